/// Where lines meet ellipses, as values for the rooms that build on it.
#pragma once

#include <optional>

#include "line/segment.h"

namespace planegeo {

/// Up to two points; a point that is missing is (0, 0).
struct LineCrossing {
    std::uint32_t count = 0;
    Vec2 points[2] = {};
};

/// The ellipse centred at the origin with its first axis along x: x^2 / A^2 + y^2 / B^2 = 1.
struct StandardEllipse {
    double halfFirst;
    double halfSecond;

    static StandardEllipse of(double first, double second) { return {first * 0.5, second * 0.5}; }
};

/// Where the infinite line touches the ellipse, by tolerances that do not follow errdist; a line
/// along an axis touches only at that axis's ends.
std::optional<Vec2> touchStandardEllipse(const Segment &line, const StandardEllipse &ellipse);

struct StandardCrossing {
    bool degenerate;       ///< the quadratic has lost its leading term
    LineCrossing crossing; ///< the greater x first; a vertical line gives the greater y first
};

/// The infinite line against the ellipse; one point where it touches.
StandardCrossing crossStandardEllipse(const Segment &line, const StandardEllipse &ellipse);

} // namespace planegeo
