// The foot of the perpendicular from a point onto a line, and its distance.

#include "base/tolerance.h"
#include "line/segment.h"

using namespace planegeo;

extern "C" {

int32_t ca_perln(const DTPOINT *a1, const DTPOINT *a2, const DTPOINT *p, DTPOINT *foot,
                 double *dist) {
    const Segment line = load(a1, a2);
    const Vec2 point = load(p);
    *dist = 0.0;
    const double length = plainLength(line.direction());
    if (length < distanceTolerance()) return -1;
    const PerpendicularFoot perpendicular = footOnLine(point, line.start, line.direction());
    const Vec2 f = perpendicular.point;
    *dist = std::fabs(perpendicular.offset) * length;
    store(f, foot);
    // A product of distances on purpose, not errdist.
    return dot(f - line.start, f - line.end) > kFootBeyondEndProduct ? 1 : 0;
}

} // extern "C"
