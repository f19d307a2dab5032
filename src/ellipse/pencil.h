/// The numbers on which the common points of a circle and an ellipse depend, and two lines through
/// those points.
#pragma once

#include <array>

#include "base/doubled.h"

namespace planegeo {

/// The circle x^2 + y^2 = r^2 and the ellipse (x - center.x)^2 / a^2 + (y - center.y)^2 / b^2 = 1.
struct CircleAndEllipse {
    Vec2 center;
    double a;
    double b;
    double r;
};

/// The two points of a line and the circle: middle +- half, or middle +- i half.
struct LineCut {
    Vec2 middle;
    Vec2 half;
    bool isReal;
};

/// In radii of the circle, and mirrored so that the ellipse's centre (e, f) has no negative
/// coordinate, the curves are
///     C = x^2 + y^2 - 1,    E = b^2 (x - e)^2 + a^2 (y - f)^2 - a^2 b^2,
/// and with H = a^2 - b^2 every curve  E - (b^2 + H s) C  passes through their common points.
/// What these are depends on
///     xi = b^2 e / H,    eta = a^2 f / H,    g = (b^2 e^2 + a^2 f^2 - a^2 b^2 + b^2) / H.
/// The ellipse's e is not 0, and a > b > 0.
struct Pencil {
    Doubled xi;
    Doubled eta;
    Doubled g;
    Vec2 quadrant; ///< the signs that mirror a point back
    double r;

    explicit Pencil(const CircleAndEllipse &curves);

    /// Two lines through the four common points, two on each: of the three such pairs the one least
    /// disturbed where points nearly coincide.
    std::array<LineCut, 2> lines() const;
};

} // namespace planegeo
