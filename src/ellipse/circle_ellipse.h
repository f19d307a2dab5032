/// Where a circle meets an ellipse.
#pragma once

#include "ellipse/pencil.h"

namespace planegeo {

/// Up to four points in the order of the question that found them. Beyond the count lies what
/// was tried and dropped, or (0, 0).
struct ConicPoints {
    int count = 0;
    Vec2 at[4] = {};

    void push(Vec2 point) { at[count++] = point; }
};

/// What stands in for a count when the shape is refused.
inline constexpr int kBadShape = -1001;

/// The circle about the origin against an ellipse with its first axis along x; a, b are half
/// axes, b may be zero. The count is kBadShape when a or r are too short, or b exceeds a.
ConicPoints crossCircleEllipse(const CircleAndEllipse &curves);

} // namespace planegeo
