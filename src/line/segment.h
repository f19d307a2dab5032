/// Questions about segments that other rooms ask too.
#pragma once

#include <cmath>
#include <cstdint>

#include "base/settings.h"
#include "base/vec2.h"

namespace planegeo {

struct Segment {
    Vec2 start;
    Vec2 end;

    constexpr Vec2 direction() const { return end - start; }
};

inline Segment load(const DTPOINT *a, const DTPOINT *b) { return {load(a), load(b)}; }

enum class OnSegment : std::int32_t { yes = 0, no = 1, segmentTooShort = -1 };

/// onSegment() without its short cut.
OnSegment onSegmentByDistance(const Segment &segment, Vec2 q);

/// Whether a point lies on a segment within errdist; the ends are asked before the length. One that
/// is not even near to a decision costs no root and no branch that hangs on where it lies. Inlined
/// always: a segment handed over in memory would be read before it is written.
[[gnu::always_inline]] inline OnSegment onSegment(const Segment &segment, Vec2 q) {
    constexpr double kFarFromOverflow = 0x1p1000;
    const double tolerance = distanceTolerance();
    const Vec2 fromStart = q - segment.start;
    const Vec2 fromEnd = q - segment.end;
    const Vec2 direction = segment.direction();
    const double x = std::fabs(direction.x), y = std::fabs(direction.y);
    const double longer = x > y ? x : y; // the length is at most 1.5 times that
    const double distanceTimesLength = std::fabs(cross(direction, fromStart));
    const bool isOff = distanceTimesLength > 2.0 * tolerance * longer;
    const bool isOn = distanceTimesLength < 0.5 * tolerance * longer;
    const bool isLong = (longer > 2.0 * tolerance) & (longer < kFarFromOverflow);
    const bool isAtStart = isWithinBox(fromStart, tolerance);
    const bool isAtEnd = isWithinBox(fromEnd, tolerance);
    if (!((isOff | isOn) & isLong) || (isAtStart | isAtEnd)) return onSegmentByDistance(segment, q);
    const bool isBeyondStart = dot(direction, fromStart) >= 0.0;
    const bool isBeforeEnd = dot(-direction, fromEnd) >= 0.0;
    return (isOn & isBeyondStart & isBeforeEnd) ? OnSegment::yes : OnSegment::no;
}

} // namespace planegeo
