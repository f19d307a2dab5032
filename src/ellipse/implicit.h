/// The implicit equation of an ellipse.
#pragma once

#include "base/doubled.h"

namespace planegeo {

/// B^2 x^2 + A^2 y^2 - A^2 B^2 of a point in the frame of the ellipse: positive outside. To some
/// roundings of itself, also for a point beside the curve.
inline double implicitValue(Vec2 q, double halfFirst, double halfSecond) {
    const double bx = halfSecond * q.x, ay = halfFirst * q.y, ab = halfFirst * halfSecond;
    const double value = bx * bx + ay * ay - ab * ab;
    if (8.0 * std::fabs(value) > bx * bx + ay * ay + ab * ab) return value;
    const auto square = [](double a, double b) { return squared(Doubled::product(a, b)); };
    const Doubled sum = square(halfSecond, q.x) + square(halfFirst, q.y);
    return (sum - square(halfFirst, halfSecond)).value();
}

} // namespace planegeo
