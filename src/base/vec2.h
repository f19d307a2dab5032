/// Points and vectors of the plane, turns, and the foot of a perpendicular.
#pragma once

#include <cmath>

#include "planegeo.h"

#ifdef __FAST_MATH__
#error "planegeo decides by comparisons that fast-math does not keep"
#endif

namespace planegeo {

inline constexpr double kPi = 3.141592653589793;
inline constexpr double kTwoPi = 6.283185307179586;
inline constexpr double kRadPerDeg = 0.017453292519943295;
inline constexpr double kDegPerRad = 57.29577951308232;

struct Vec2 {
    double x;
    double y;
};

constexpr Vec2 operator+(Vec2 v, Vec2 w) { return {v.x + w.x, v.y + w.y}; }
constexpr Vec2 operator-(Vec2 v, Vec2 w) { return {v.x - w.x, v.y - w.y}; }
constexpr Vec2 operator-(Vec2 v) { return {-v.x, -v.y}; }
constexpr Vec2 operator*(Vec2 v, double k) { return {v.x * k, v.y * k}; }
constexpr Vec2 operator*(double k, Vec2 v) { return v * k; }
constexpr Vec2 operator/(Vec2 v, double k) { return {v.x / k, v.y / k}; }

constexpr double dot(Vec2 v, Vec2 w) { return v.x * w.x + v.y * w.y; }
/// Positive when w points to the left of v.
constexpr double cross(Vec2 v, Vec2 w) { return v.x * w.y - v.y * w.x; }
/// v turned by a quarter anticlockwise.
constexpr Vec2 leftNormal(Vec2 v) { return {-v.y, v.x}; }

inline Vec2 load(const DTPOINT *p) { return {p->x, p->y}; }
inline void store(Vec2 v, DTPOINT *out) {
    out->x = v.x;
    out->y = v.y;
}

/// The library knows two lengths and each question asks for one of them: the plain root
/// of the sum of squares, and the hypotenuse routine, which neither over- nor underflows.
inline double plainLength(Vec2 v) { return std::sqrt(v.x * v.x + v.y * v.y); }
inline double hypotLength(Vec2 v) { return std::hypot(v.x, v.y); }

/// hypotLength(v) < limit, without the root where a component alone decides.
inline bool isShorterThan(Vec2 v, double limit) {
    return std::fabs(v.x) < limit && std::fabs(v.y) < limit && hypotLength(v) < limit;
}

/// hypotLength(v) <= limit, likewise.
inline bool isNotLongerThan(Vec2 v, double limit) {
    return !(std::fabs(v.x) > limit) && !(std::fabs(v.y) > limit) && hypotLength(v) <= limit;
}

/// magnitude / hypotLength(v) < limit. The length lies between the longer component and 1.5 times
/// that, which mostly decides without the root.
inline bool isQuotientBelow(double magnitude, Vec2 v, double limit) {
    constexpr double kFarFromOverflow = 0x1p1000;
    const double x = std::fabs(v.x), y = std::fabs(v.y);
    const double longer = x > y ? x : y;
    if (longer < kFarFromOverflow) {
        if (magnitude > 2.0 * limit * longer) return false;
        if (magnitude < 0.5 * limit * longer) return true;
    }
    return magnitude / hypotLength(v) < limit;
}

/// Both components are below the limit: the box test by which several questions ask
/// whether two points coincide.
inline bool isWithinBox(Vec2 v, double limit) {
    return (std::fabs(v.x) < limit) & (std::fabs(v.y) < limit);
}

/// An anticlockwise turn; sine and cosine are taken once.
struct Rotation {
    double c;
    double s;

    static Rotation ofRadians(double rad) { return {std::cos(rad), std::sin(rad)}; }
    static Rotation ofDegrees(double deg) { return ofRadians(deg * kRadPerDeg); }

    constexpr Vec2 apply(Vec2 v) const { return {v.x * c - v.y * s, v.x * s + v.y * c}; }
    constexpr Vec2 undo(Vec2 v) const { return {v.x * c + v.y * s, v.y * c - v.x * s}; }
};

/// Both turns, one after the other.
constexpr Rotation operator*(Rotation p, Rotation q) {
    return {p.c * q.c - p.s * q.s, p.s * q.c + p.c * q.s};
}

/// A perpendicular dropped from a point onto the line `through + t * direction`.
struct PerpendicularFoot {
    double offset; ///< distance of the point right of the line, in lengths of the direction
    Vec2 point;
};

/// Without a guard: a zero direction divides by zero.
inline PerpendicularFoot footOnLine(Vec2 point, Vec2 through, Vec2 direction) {
    const double offset = cross(point - through, direction) / dot(direction, direction);
    return {offset, point + leftNormal(direction) * offset};
}

/// The image of a point in the line `through + t * direction`.
inline Vec2 mirrored(Vec2 point, Vec2 through, Vec2 direction) {
    const Vec2 foot = footOnLine(point, through, direction).point;
    return foot + foot - point;
}

} // namespace planegeo
