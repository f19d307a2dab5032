// Circles that keep to a quadrant of an ellipse: at its ends, and balanced between them.
//
// The distance of the curve from a point (x, y) is extreme where the point lies on the curve's
// normal: A x / cos t - B y / sin t = F^2. With x > 0 > y the left side is convex in the quadrant
// and infinite at both ends of it, so there are two such parameters at most.

#include "ellipse/quadrant.h"

namespace planegeo {

namespace {

double square(double v) { return v * v; }

/// The circle about the meeting point of the normals at middle - half and middle + half, with the
/// mean of their lengths as radius. With p, q the two parameters:
///
///     center = F^2 / cos half * (cos p cos q cos middle / A, -sin p sin q sin middle / B)
Circle betweenNormals(const Quadrant &quadrant, double middle, double half) {
    const auto [a, b] = quadrant;
    const Rotation m = Rotation::ofRadians(middle);
    const Rotation h = Rotation::ofRadians(half);
    const Vec2 p = h.undo({m.c, m.s});
    const Vec2 q = h.apply({m.c, m.s});
    const double k = quadrant.focal2() / h.c;
    const Vec2 center = {k * p.x * q.x * m.c / a, -k * p.y * q.y * m.s / b};
    const double pLength = plainLength(Vec2{a * p.x, b * p.y} - center);
    const double qLength = plainLength(Vec2{a * q.x, b * q.y} - center);
    return {center, 0.5 * (pLength + qLength)};
}

/// Cube root of the distance by which the curve leaves that circle, which is nearly as half:
///
///     distance = F^2 sin 2 middle sin^3 half / (2 r cos half)
double distanceRoot(const Quadrant &quadrant, double middle, double half, double r) {
    const double k = quadrant.focal2() * std::sin(2.0 * middle) / (2.0 * r * std::cos(half));
    return std::sin(half) * std::cbrt(k);
}

/// The same for a middle and half to be tried.
double distanceRoot(const Quadrant &quadrant, double middle, double half) {
    return distanceRoot(quadrant, middle, half, betweenNormals(quadrant, middle, half).r);
}

/// A half this near to its secant is as near as its digits allow after one more.
constexpr double kNearHalf = 0x1p-30;

} // namespace

// About (c, 0) with r = a - c the curve comes nearest at the length m, m^2 = b^2 - c^2 b^2 / F^2,
// and r - m = depth is a quadratic equation for c.
Circle Quadrant::sharpCircle(double depth) const {
    const double root = b * std::sqrt(depth * (2.0 * a - depth) / focal2());
    const double c = ((a - depth) - root) * focal2() / (a * a);
    return {{c, 0.0}, a - c};
}

// About (0, -c) with r = b + c the curve is furthest at the length m, m^2 = a^2 + c^2 a^2 / F^2.
Circle Quadrant::flatCircle(double height) const {
    const double root = a * std::sqrt(height * (2.0 * b + height) / focal2());
    const double c = ((b + height) - root) * focal2() / (b * b);
    return {{0.0, -c}, b + c};
}

// Through the point at u as well: c = F^2 cos^2(u/2) / a, and (r - m)(r + m) = F^2 sin^4(u/2).
double Quadrant::sharpDepth(double u) const {
    const double f2 = focal2();
    const double c = f2 * square(std::cos(0.5 * u)) / a;
    const double m = b * std::sqrt(1.0 - c * c / f2);
    return f2 * square(square(std::sin(0.5 * u))) / (a - c + m);
}

double Quadrant::flatHeight(double u) const {
    const double f2 = focal2();
    const double v = 0.5 * (kHalfPi - u);
    const double c = f2 * square(std::cos(v)) / b;
    const double m = a * std::sqrt(1.0 + c * c / f2);
    return f2 * square(square(std::sin(v))) / (b + c + m);
}

double BalancedFamily::guessHalf(double middle) const {
    const auto [a, b] = quadrant;
    const Rotation m = Rotation::ofRadians(middle);
    const double v2 = square(a * m.s) + square(b * m.c);
    const double r = v2 * std::sqrt(v2) / (a * b);
    return std::cbrt(distance * r / (quadrant.focal2() * m.s * m.c));
}

BalancedFamily BalancedFamily::of(const Quadrant &quadrant, double distance) {
    const double want = std::cbrt(distance);
    constexpr double kMiddle = 0.5 * kHalfPi;
    const double most = distanceRoot(quadrant, kMiddle, kMiddle) - want;
    const double first =
        rootBetween([&](double middle) { return distanceRoot(quadrant, middle, middle) - want; },
                    {0.0, -want}, {kMiddle, most});
    const double last = rootBetween(
        [&](double middle) { return distanceRoot(quadrant, middle, kHalfPi - middle) - want; },
        {kMiddle, most}, {kHalfPi, -want});
    return {quadrant, distance, first, last};
}

BalancedCircle BalancedFamily::at(double middle, double guess) const {
    const double want = std::cbrt(distance);
    BalancedCircle found = {};
    const auto excess = [&](double half) {
        found = {betweenNormals(quadrant, middle, half), middle, half};
        return distanceRoot(quadrant, middle, half, found.circle.r) - want;
    };
    const double widest = std::fmin(middle, kHalfPi - middle);
    const Sample none = {0.0, -want};
    // The function is nearly a line: two or three secants do. The last half tried is found.
    Sample before = none;
    double half = guess;
    for (int step = 0; step < 8 && half > 0.0 && half < widest; ++step) {
        const Sample now = {half, excess(half)};
        half = secantZero(before, now);
        if (std::fabs(half - now.x) <= kNearHalf * half) {
            excess(half);
            return found;
        }
        before = now;
    }
    const Sample wide = {widest, excess(widest)};
    if (wide.y > 0.0) rootBetween(excess, none, wide);
    return found;
}

} // namespace planegeo
