/// Brings a point that nearly lies on two curves onto both.
#pragma once

#include "ellipse/frame.h"

namespace planegeo {

/// (u / A)^2 + (v / B)^2 - 1 in an ellipse's frame, and its gradient in the plane.
struct EllipseMiss {
    double value;
    Vec2 gradient;

    EllipseMiss(const EllipseFrame &ellipse, Vec2 point) {
        const Vec2 local = ellipse.toLocal(point);
        const Vec2 scaled = {local.x / ellipse.halfFirst, local.y / ellipse.halfSecond};
        value = dot(scaled, scaled) - 1.0;
        gradient = ellipse.turn.apply(
            {2.0 * scaled.x / ellipse.halfFirst, 2.0 * scaled.y / ellipse.halfSecond});
    }
};

/// The common point next to one that misses it by little, by Newton's steps; the point itself where
/// they do not settle, as where the curves only nearly touch.
inline Vec2 settledOnBoth(Vec2 point, const EllipseFrame &one, const EllipseFrame &other) {
    constexpr int kMostSteps = 5;
    constexpr double kFarStep = 0x1p-10, kSettledStep = 0x1p-42; // of the larger curve's size
    const double size = std::fmax(std::fmax(one.halfFirst, one.halfSecond),
                                  std::fmax(other.halfFirst, other.halfSecond));
    Vec2 settled = point;
    for (int i = 0; i < kMostSteps; ++i) {
        const EllipseMiss a(one, settled), b(other, settled);
        const double determinant = cross(a.gradient, b.gradient);
        const Vec2 step = leftNormal(b.gradient * a.value - a.gradient * b.value) / determinant;
        const double length = plainLength(step);
        if (!(length < kFarStep * size)) return point;
        settled = settled + step;
        if (length < kSettledStep * size) return settled;
    }
    return point;
}

} // namespace planegeo
