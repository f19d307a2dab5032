// Points along a line: at a distance from its start, and the end to keep at a cut.

#include "line/segment.h"

namespace {

using namespace planegeo;

Segment load(const DTLINE *line) { return {{line->x1, line->y1}, {line->x2, line->y2}}; }

/// Not nearer than errdist to the infinite line, or a line without direction.
bool isOffLine(Vec2 point, const Segment &line) {
    const Vec2 direction = line.direction();
    const double distanceTimesLength = std::fabs(cross(direction, point - line.start));
    return !isQuotientBelow(distanceTimesLength, direction, distanceTolerance());
}

} // namespace

extern "C" {

int32_t ca_DistAlongbyLineFromSpnt(const DTPOINT *start, const DTPOINT *end, double dist,
                                   DTPOINT *out) {
    if (start == nullptr || end == nullptr || dist < 0.0) return 0;
    const Segment segment = load(start, end);
    const Vec2 direction = segment.direction();
    const double squared = dot(direction, direction);
    const double length = squared > 0.0 ? std::sqrt(squared) : 0.0;
    if (dist >= length) {
        store(segment.end, out);
    } else {
        store({segment.start.x + direction.x * dist / length,
               segment.start.y + direction.y * dist / length},
              out);
    }
    return 1;
}

int32_t a2d_InsDl(const DTLINE *elem, const DTLINE *cut, DTPOINT *out) {
    const Segment element = load(elem);
    const Segment cutting = load(cut);
    if (isOffLine(element.start, cutting) || isOffLine(element.end, cutting)) return -1;
    const Vec2 kept = keepsStart() ? element.start : element.end;
    if (onSegment(cutting, kept) != OnSegment::yes) return 0;
    store(kept, out);
    return 1;
}

} // extern "C"
