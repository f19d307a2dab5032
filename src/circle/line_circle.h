/// Where a line meets a circle.
#pragma once

#include <cstdint>
#include <optional>

#include "circle/circle.h"
#include "line/segment.h"

namespace planegeo {

/// The points of an infinite line and a full circle, the one further along the line first.
/// A line whose distance from the centre differs from the radius by less than errdist, to
/// either side, touches in the foot of the perpendicular. A line without direction, which is
/// not asked for here, gives two points that are not finite.
PointPair crossLineCircle(const Segment &line, const Circle &circle);

/// Which of those points are kept. The numbers are the caller's; others keep all.
enum class Keep : std::uint32_t { all = 0, onArc = 1, onSegment = 2, onBoth = 3 };

constexpr bool asksForArc(Keep keep) { return keep == Keep::onArc || keep == Keep::onBoth; }
constexpr bool asksForSegment(Keep keep) { return keep == Keep::onSegment || keep == Keep::onBoth; }

/// The points kept, in the same order; nothing at all when the radius is not positive or the
/// points of the line coincide. The range is read where the arc is asked for.
std::optional<PointPair> crossLineArc(Keep keep, const Segment &line, const Circle &circle,
                                      AngleRange range);

} // namespace planegeo
