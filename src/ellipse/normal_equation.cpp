// Solves the equation of the normals to an ellipse in the cotangent (or the tangent) of the
// parameter, where each of its roots is the only one of a concave function on its side.

#include "ellipse/normal_equation.h"

#include <algorithm>

#include "ellipse/degree_table.h"

namespace planegeo {

namespace {

/// Above it 1 + z^2 is z^2, and z may be squared no longer.
constexpr double kFlatCotangent = 1e100;
/// A step that is a smaller part of z leaves an error of its third power.
constexpr double kLastStepShare = 0x1p-20;
/// Three steps do from the start values below, save where two roots are about to merge.
constexpr int kMaxSteps = 12;

/// k z / sqrt(1 + z^2) + p z = q for z >= 0, with k and q not negative. The left side is concave:
/// it grows for p >= 0, and for a negative p it has a first root or none.
struct ConcaveEquation {
    double k, p, q;
    double kLessQ;

    double root() const;

  private:
    double rootWithoutSlope() const;
    double startValue() const;
    double halleyStep(double z) const;
};

/// p = 0: z / sqrt(1 + z^2) = q / k.
double ConcaveEquation::rootWithoutSlope() const {
    if (q == 0.0 && k > 0.0) return 0.0;
    return kLessQ > 0.0 ? q / std::sqrt(kLessQ * (k + q)) : HUGE_VAL;
}

/// Bounds from below: z / sqrt(1 + z^2) is at most z and at most 1. Between them, where q is
/// about k and p is small, 1 - 1 / (2 z^2) stands for it, and p z^3 + (1 - q/k) z^2 = 1/2 joins
/// z = (2 p / k)^(-1/3) and z = (2 (1 - q/k))^(-1/2).
double ConcaveEquation::startValue() const {
    const double steep = q / (k + p);
    if (p < 0.0) return std::max(steep, rootWithoutSlope());
    const double root = std::cbrt(2.0 * p / k);
    const double beside = kLessQ > 0.0 ? kLessQ * (k + q) / (q * q) : 0.0;
    const double between = 0.8 / std::sqrt(root * root + beside);
    return std::min(std::max({steep, -kLessQ / p, between}), q / p);
}

double ConcaveEquation::halleyStep(double z) const {
    const double s2 = 1.0 / (1.0 + z * z);
    const double s = std::sqrt(s2);
    const double c = z * s;
    // For large z the difference of k and k c is taken from s, without cancellation.
    const double value = z < 1.0 ? k * c + p * z - q : p * z + kLessQ - k * s2 / (1.0 + c);
    const double slope = k * s * s2 + p;
    const double bend = -3.0 * k * c * s2 * s2;
    // Not over the square of the slope: about the centre of a circle it may underflow.
    return -value / (slope - 0.5 * value * (bend / slope));
}

double ConcaveEquation::root() const {
    if (p == 0.0) return rootWithoutSlope();
    double z = startValue();
    for (int i = 0; i < kMaxSteps && z < kFlatCotangent; ++i) {
        const double step = halleyStep(z);
        z += step;
        if (!(std::fabs(step) > kLastStepShare * z)) break;
    }
    return z;
}

/// The unit vector (cos t, sin t) with the cotangent z >= 0.
Vec2 unitOfCotangent(double z) {
    if (!(z < kFlatCotangent)) return {1.0, 1.0 / z};
    const double s = 1.0 / std::sqrt(1.0 + z * z);
    return {z * s, s};
}

} // namespace

Vec2 NormalEquation::least() const {
    return unitOfCotangent(ConcaveEquation{k, v, u, kLessU}.root());
}

/// In the first quadrant k cos t + v cot t falls, and passes u at the solution.
int NormalEquation::degreeOfLeast() const {
    const auto isBefore = [this](int t) {
        return k * kDegrees.cosine[t] + v * kDegrees.cotangent[t] > u ? 1 : 0;
    };
    int tens = 0, ones = 0;
    for (int t = 10; t < 90; t += 10) {
        tens += isBefore(t);
    }
    for (int i = 1; i < 10; ++i) {
        ones += isBefore(10 * tens + i);
    }
    return 10 * tens + ones;
}

// With the tangent in place of the cotangent u and v exchange their places.

Vec2 NormalEquation::greatest() const {
    const Vec2 d = unitOfCotangent(ConcaveEquation{k, u, v, k - v}.root());
    return {-d.y, -d.x};
}

/// (k^2 - u^2 - v^2)^3 > 27 k^2 u^2 v^2 is the inside of the evolute.
bool NormalEquation::hasFour() const {
    const double s = kLessU * (k + u) - v * v;
    const double kuv = k * u * v;
    return s > 0.0 && s * s * s > 27.0 * kuv * kuv;
}

Vec2 NormalEquation::secondMinimum() const {
    const Vec2 d = unitOfCotangent(ConcaveEquation{k, -v, u, kLessU}.root());
    return {d.x, -d.y};
}

Vec2 NormalEquation::secondMaximum() const {
    const Vec2 d = unitOfCotangent(ConcaveEquation{k, -u, v, k - v}.root());
    return {d.y, -d.x};
}

} // namespace planegeo
