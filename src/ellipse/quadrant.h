/// Circles that keep to a quadrant of an ellipse.
#pragma once

#include "base/root.h"
#include "circle/circle.h"

namespace planegeo {

inline constexpr double kHalfPi = 1.5707963267948966;

/// A quadrant of an ellipse about the origin, with half axes a > b along x and y. It runs from
/// its sharp end (a, 0), parameter 0, to its flat end (0, b), parameter pi/2: curvature falls.
struct Quadrant {
    double a;
    double b;

    Vec2 at(double u) const { return {a * std::cos(u), b * std::sin(u)}; }
    /// Square of the distance of the foci from the centre, F^2.
    double focal2() const { return (a - b) * (a + b); }
    /// How far the point at a parameter lies outside a circle.
    double offset(const Circle &circle, double u) const {
        return plainLength(at(u) - circle.center) - circle.r;
    }
    /// The circle about a point of the x axis through the sharp end that lets the curve in by a
    /// depth, or that about a point of the y axis through the flat end that it leaves by a height.
    Circle sharpCircle(double depth) const;
    Circle flatCircle(double height) const;
    /// That depth and height for the circles through the point at a parameter.
    double sharpDepth(double u) const;
    double flatHeight(double u) const;
};

/// A circle that the quadrant leaves by one distance to both sides: outwards at the parameter
/// middle - half, inwards at middle + half. Nowhere else in the quadrant is its distance extreme.
struct BalancedCircle {
    Circle circle;
    double middle;
    double half;
};

/// The balanced circles of one distance, ordered by their middle.
struct BalancedFamily {
    Quadrant quadrant;
    double distance;
    double firstMiddle; ///< there the outer parameter is 0
    double lastMiddle;  ///< there the inner parameter is pi/2

    static BalancedFamily of(const Quadrant &quadrant, double distance);
    /// Half of the circle of a middle, if its radius were that of curvature there.
    double guessHalf(double middle) const;
    /// The circle of a middle between the first and the last, its half being guessed.
    BalancedCircle at(double middle, double guess) const;
};

/// Positive when the circles cross, zero when the inner one touches the outer one from inside,
/// negative when it lies within.
inline double protrusion(const Circle &inner, const Circle &outer) {
    return plainLength(inner.center - outer.center) - (outer.r - inner.r);
}

} // namespace planegeo
