// Turning, framing and mirroring of points, their distance and the direction between them.

#include "base/angle.h"
#include "base/vec2.h"

using namespace planegeo;

extern "C" {

int32_t c_pnt(const DTPOINT *center, const DTPOINT *point, DTPOINT *out, double angle) {
    const Vec2 c = load(center);
    const Rotation turn = Rotation::ofDegrees(angle);
    out->x = turn.apply(load(point) - c).x + c.x;
    // The point is read again on purpose: in place, its x is the new one by now.
    out->y = turn.apply(load(point) - c).y + c.y;
    return 0;
}

int32_t ca_rvpnt(const DTPOINT *center, const DTPOINT *point, DTPOINT *out, double angle) {
    return c_pnt(center, point, out, angle);
}

int32_t pnt_std(const DTPOINT *point, const DTPOINT *origin, double angle, DTPOINT *out) {
    store(Rotation::ofDegrees(angle).apply(load(point) - load(origin)), out);
    return 0;
}

int32_t pnt_formd(const DTPOINT *point, const DTPOINT *origin, double angle, DTPOINT *out) {
    store(Rotation::ofDegrees(angle).apply(load(point)) + load(origin), out);
    return 0;
}

int32_t pnt_mer(const DTPOINT *point, const DTPOINT *line_p1, const DTPOINT *line_p2,
                DTPOINT *out) {
    const Vec2 a = load(line_p1);
    store(mirrored(load(point), a, load(line_p2) - a), out);
    return 0;
}

int32_t ca_vmpnt(const DTPOINT *line_p1, const DTPOINT *line_p2, const DTPOINT *point,
                 DTPOINT *out) {
    return pnt_mer(point, line_p1, line_p2, out);
}

double ca_vcrad(const DTPOINT *from, const DTPOINT *to) {
    return snappedDirectionRad(load(to) - load(from));
}

double ca_dstpt(const DTPOINT *p, const DTPOINT *q) { return plainLength(load(q) - load(p)); }

} // extern "C"
