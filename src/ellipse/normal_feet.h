/// The feet of the normals from a point to an ellipse.
#pragma once

#include <utility>

#include "ellipse/frame.h"
#include "ellipse/normal_equation.h"

namespace planegeo {

/// The points of an ellipse whose distance from a point is stationary, each as the unit vector
/// (cos t, sin t) of its parameter.
///
/// The nearest foot lies in the point's own quadrant, the farthest in the opposite one. A point
/// inside the evolute has two more, both across the longer axis: a foot at a second minimum of
/// the distance and, nearer to the end of that axis, one at a second maximum.
class NormalFeet {
  public:
    /// The point in the frame of the ellipse. Either axis may be the longer; a negative one
    /// turns the parameters over.
    NormalFeet(Vec2 point, double halfFirst, double halfSecond)
        : exchanged_(std::fabs(halfSecond) > std::fabs(halfFirst)),
          sign_{std::copysign(1.0, point.x) * std::copysign(1.0, halfFirst),
                std::copysign(1.0, point.y) * std::copysign(1.0, halfSecond)} {
        double major = std::fabs(halfFirst), minor = std::fabs(halfSecond);
        double x = std::fabs(point.x), y = std::fabs(point.y);
        if (exchanged_) {
            std::swap(major, minor);
            std::swap(x, y);
        }
        const double k = (major - minor) * (major + minor);
        // Where a flat ellipse bends most k and major x are large and almost equal.
        const bool flat = 2.0 * minor < major;
        equation_ = {k, major * x, minor * y,
                     flat ? major * (major - x) - minor * minor : k - major * x};
    }

    Vec2 nearest() const { return placed(equation_.least()); }
    /// The whole degree, 0 to 359, at or below the parameter of nearest().
    int degreeOfNearest() const {
        const int t = equation_.degreeOfLeast();
        const int inQuadrant = exchanged_ ? 89 - t : t;
        const int inHalf = sign_.x < 0.0 ? 179 - inQuadrant : inQuadrant;
        return sign_.y < 0.0 ? 359 - inHalf : inHalf;
    }
    Vec2 farthest() const { return placed(equation_.greatest()); }
    bool areFour() const { return equation_.hasFour(); }
    Vec2 secondNearest() const { return placed(equation_.secondMinimum()); }
    Vec2 secondFarthest() const { return placed(equation_.secondMaximum()); }

  private:
    Vec2 placed(Vec2 d) const {
        if (exchanged_) std::swap(d.x, d.y);
        return {d.x * sign_.x, d.y * sign_.y};
    }

    bool exchanged_;
    Vec2 sign_;
    NormalEquation equation_{};
};

} // namespace planegeo
