/// What is integrated along an ellipse.
#pragma once

#include <cmath>

#include "base/vec2.h"

namespace planegeo {

/// Half axes whose squares neither over- nor underflow.
inline constexpr double kLeastHalfAxis = 0x1p-400;
inline constexpr double kGreatestHalfAxis = 0x1p400;

/// Speed of the point (A cos t, B sin t), the length that it covers per radian of t:
/// sqrt(A^2 sin^2 t + B^2 cos^2 t).
struct ArcSpeed {
    double squareFirst;
    double squareSecond;

    static ArcSpeed of(double halfFirst, double halfSecond) {
        return {halfFirst * halfFirst, halfSecond * halfSecond};
    }
    double operator()(Rotation t) const {
        return std::sqrt(squareSecond * (t.c * t.c) + squareFirst * (t.s * t.s));
    }
    double operator()(double parameterDeg) const {
        return (*this)(Rotation::ofDegrees(parameterDeg));
    }
};

/// Half the squared distance from the centre to the ellipse along a polar angle, the area that
/// the ray sweeps per radian: A^2 B^2 / (2 (B^2 cos^2 + A^2 sin^2)).
struct SectorSpeed {
    double squareFirst;
    double squareSecond;

    static SectorSpeed of(double halfFirst, double halfSecond) {
        return {halfFirst * halfFirst, halfSecond * halfSecond};
    }
    double operator()(double polarDeg) const {
        const Rotation ray = Rotation::ofDegrees(polarDeg);
        return squareFirst * squareSecond * 0.5 /
               (squareSecond * (ray.c * ray.c) + squareFirst * (ray.s * ray.s));
    }
};

} // namespace planegeo
