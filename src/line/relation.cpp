// How a point lies to a line: side, on the segment, where its projection falls.

#include "line/segment.h"

namespace planegeo {

OnSegment onSegmentByDistance(Vec2 start, Vec2 end, Vec2 q) {
    const double tolerance = distanceTolerance();
    const Vec2 fromStart = q - start;
    const Vec2 fromEnd = q - end;
    if (isShorterThan(fromStart, tolerance) || isShorterThan(fromEnd, tolerance)) {
        return OnSegment::yes;
    }
    const Vec2 direction = end - start;
    if (isShorterThan(direction, tolerance)) return OnSegment::segmentTooShort;
    const double distanceTimesLength = std::fabs(cross(direction, fromStart));
    if (!isQuotientBelow(distanceTimesLength, direction, tolerance)) return OnSegment::no;
    const bool between = dot(direction, fromStart) >= 0.0 && dot(-direction, fromEnd) >= 0.0;
    return between ? OnSegment::yes : OnSegment::no;
}

} // namespace planegeo

namespace {

using namespace planegeo;

/// Projection onto `along` of a vector whose dot product with it is `product`.
Vec2 projection(double product, Vec2 along) { return along * (product / dot(along, along)); }

} // namespace

extern "C" {

int32_t ca_posln(const DTPOINT *a1, const DTPOINT *a2, const DTPOINT *p, uint16_t *side) {
    const Segment line = load(a1, a2);
    const double tolerance = distanceTolerance();
    const Vec2 direction = line.direction();
    if (isWithinBox(direction, tolerance)) return 1;
    // The raw cross product on purpose, not the distance.
    const Vec2 toPoint = load(p) - line.start;
    const double turn = toPoint.y * direction.x - toPoint.x * direction.y;
    const uint16_t besideLine = turn > 0.0 ? 65535 : 1;
    *side = std::fabs(turn) < tolerance ? uint16_t{0} : besideLine;
    return 0;
}

int32_t a2d_onlin(const DTPOINT *p1, const DTPOINT *p2, const DTPOINT *q) {
    return static_cast<int32_t>(onSegment(load(p1, p2), load(q)));
}

int32_t ca_onlin(const DTPOINT *p1, const DTPOINT *p2, const DTPOINT *q) {
    return a2d_onlin(p1, p2, q);
}

int32_t a2d_Chk3pnt(const DTPOINT *p1, const DTPOINT *p2, const DTPOINT *p3) {
    constexpr int32_t kNotBeforeStart = 1;
    constexpr int32_t kNotBeyondEnd = 2;
    constexpr int32_t kOnSegment = kNotBeforeStart | kNotBeyondEnd;

    const Segment segment = load(p1, p2);
    const Vec2 fromStart = load(p3) - segment.start;
    const Vec2 fromEnd = load(p3) - segment.end;
    double tolerance = distanceTolerance();
    if (isShorterThan(fromStart, tolerance)) tolerance = hypotLength(fromStart) * 0.5;
    if (isShorterThan(fromEnd, tolerance)) return kOnSegment;

    int32_t where = 0;
    const Vec2 forward = segment.direction();
    const double ahead = dot(fromStart, forward);
    if (ahead >= 0.0) {
        if (isNotLongerThan(projection(ahead, forward), tolerance)) return kOnSegment;
        where |= kNotBeforeStart;
    }
    const Vec2 backward = -forward;
    const double behind = dot(fromEnd, backward);
    if (behind < 0.0) return where;
    if (isNotLongerThan(projection(behind, backward), tolerance)) return kOnSegment;
    return where | kNotBeyondEnd;
}

} // extern "C"
