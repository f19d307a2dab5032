/// Where lines meet ellipses, as values for the rooms that build on it.
#pragma once

#include <optional>

#include "ellipse/frame.h"
#include "line/segment.h"

namespace planegeo {

/// Up to two points; a point that is missing is (0, 0).
struct LineCrossing {
    std::uint32_t count = 0;
    Vec2 points[2] = {};
};

/// The infinite line through two points against an ellipse, by stretching the plane across the
/// first axis so that the ellipse becomes a circle. The points are seen from the ellipse's centre:
/// far from the origin the plane's coordinates would round them. The first lies on the line's start
/// side. Nothing for a zero axis, or a line or its stretched direction shorter than the tolerance.
std::optional<LineCrossing> crossLineEllipse(const Segment &line, const EllipseFrame &ellipse,
                                             double tolerance);

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
