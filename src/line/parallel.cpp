// The parallel of a segment at a distance.

#include "line/segment.h"

using namespace planegeo;

extern "C" {

int32_t ca_palds(const DTPOINT *a1, const DTPOINT *a2, double d, int16_t side, DTPOINT *out1,
                 DTPOINT *out2) {
    const Segment line = load(a1, a2);
    const Vec2 direction = line.direction();
    if (isWithinBox(direction, distanceTolerance())) return 1;
    // A direction of exactly (0, 0), which only a tolerance of zero lets through, means 0 degrees.
    const double length = hypotLength(direction);
    const Vec2 along = length == 0.0 ? Vec2{1.0, 0.0} : direction / length;
    const Vec2 offset = -leftNormal(along) * (d * side);
    store(line.start + offset, out1);
    store(line.end + offset, out2);
    return 0;
}

} // extern "C"
