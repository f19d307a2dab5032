/// Where two circles meet.
#pragma once

#include "circle/circle.h"

namespace planegeo {

/// The points of two circles, with tolerances of its own (no errdist). Of two points the first
/// lies right of the direction from one centre to the other; one point is a touch within 1e-6.
PointPair crossCircles(const Circle &one, const Circle &other);

} // namespace planegeo
