/// Questions about segments that other rooms ask too.
#pragma once

#include <cmath>
#include <cstdint>

#include "base/pair.h"
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
[[gnu::noinline]] OnSegment onSegmentByDistance(Vec2 start, Vec2 end, Vec2 q);

/// The length of a component that SegmentLook wants to be below, see there.
inline double longestTold() {
    constexpr double kFarFromUnderflow = 0x1p-500, kFarFromOverflow = 0x1p400;
    const double tolerance = distanceTolerance();
    if (!(kFarFromUnderflow < tolerance && tolerance < kFarFromOverflow)) return 0.0;
    return 0x1p40 * tolerance;
}

/// How a point lies to a segment, as far as products tell without a root and without a branch that
/// hangs on where it lies; of one of each, or of pairs.
///
/// With d the direction, m its longer component, so that m <= |d| < 1.5 m, and v from the start to
/// the point, the point is nearer than errdist to the line where |d x v| < m errdist 2/3, and not
/// where |d x v| > 2 m errdist. Its projection is further than errdist inside both ends where both
/// d . v and d . d - d . v are above 2 m errdist, and further outside one where either is below the
/// negative. Roundings, some 2^-50 d . d, stay far below m errdist while m is below longestTold().
template <class Vector> struct SegmentLook {
    using Number = decltype(Vector::x);

    Number longer; ///< m
    Number slack;  ///< 2 m errdist
    // What is positive holds: the point lies on the segment where the first two do, and not, or the
    // segment is too short, where one of the others does.
    Number onLine, inside;
    Number offLine, outside;

    SegmentLook(Vector direction, Vector fromStart)
        : longer(larger(magnitude(direction.x), magnitude(direction.y))),
          slack(longer * (2.0 * distanceTolerance())) {
        const Number offset = magnitude(cross(direction, fromStart));
        const Number squared = dot(direction, direction);
        const Number along = dot(direction, fromStart);
        const Number twiceFromMiddle = magnitude(along + along - squared);
        const Number twiceSlack = slack + slack;
        onLine = slack - (offset + offset + offset);
        inside = squared - twiceSlack - twiceFromMiddle;
        offLine = offset - slack;
        outside = twiceFromMiddle - (squared + twiceSlack);
    }
};

/// Whether a point lies on a segment within errdist; the ends are asked before the length.
inline OnSegment onSegment(const Segment &segment, Vec2 q) {
    const SegmentLook<Vec2> look(segment.direction(), q - segment.start);
    const bool isOn = (look.onLine > 0.0) & (look.inside > 0.0);
    const bool isOff = (look.offLine > 0.0) | (look.outside > 0.0);
    const double shortest = 2.0 * distanceTolerance(), longest = longestTold();
    const bool isTold = (shortest < look.longer) & (look.longer < longest);
    if (!(isTold & (isOn | isOff))) return onSegmentByDistance(segment.start, segment.end, q);
    return isOff ? OnSegment::no : OnSegment::yes;
}

} // namespace planegeo
