// The parallel of a segment at a distance.

#include "base/angle.h"
#include "line/segment.h"

namespace {

using namespace planegeo;

/// The angle knows a direction also where its length does not: 0 degrees for (0, 0), which only
/// a tolerance of zero lets through, and lengths that overflow or are denormal.
Vec2 unit(Vec2 direction) {
    const double length = hypotLength(direction);
    if (std::isnormal(length)) return direction / length;
    const Rotation turn = Rotation::ofDegrees(directionDeg(direction));
    return {turn.c, turn.s};
}

} // namespace

extern "C" {

int32_t ca_palds(const DTPOINT *a1, const DTPOINT *a2, double d, int16_t side, DTPOINT *out1,
                 DTPOINT *out2) {
    const Segment line = load(a1, a2);
    const Vec2 direction = line.direction();
    if (isWithinBox(direction, distanceTolerance())) return 1;
    const Vec2 offset = -leftNormal(unit(direction)) * (d * side);
    store(line.start + offset, out1);
    store(line.end + offset, out2);
    return 0;
}

} // extern "C"
