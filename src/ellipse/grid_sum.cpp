// Trapezoid sums by the Euler-Maclaurin formula, and the Simpson rule made of them.

#include "ellipse/grid_sum.h"

#include <algorithm>
#include <array>

#include "ellipse/speed.h"

namespace planegeo {

namespace {

/// A shorter axis below adds less than rounding to the length of any measurable arc.
constexpr double kFlatAxis = 0x1p-40;

/// So many steps from a singularity the first term left out is below B_14 / 14 10^-13 of a sample.
constexpr double kFarSteps = 10.0;
/// Passes of so many steps are cheap enough to be summed sample by sample, which decides as the
/// plain steps do where rounding does.
constexpr std::int64_t kMostSampledSteps = 2048;
/// Steps end at kSmallestStepDeg long before.
constexpr std::int64_t kNoLongestPass = std::int64_t{1} << 40;
constexpr std::size_t kCorrections = 6;
/// B_2k / 2k, k = 1 to 6.
constexpr std::array<double, kCorrections> kBernoulliPerOrder = {
    1.0 / 12.0, -1.0 / 120.0, 1.0 / 252.0, -1.0 / 240.0, 1.0 / 132.0, -691.0 / 32760.0};

/// Of an expansion about a point.
using Coefficients = std::array<double, 2 * kCorrections>;

/// Of g about an angle.
Coefficients expandedSquare(double b, Rotation u) {
    const double wave = 0.5 * (1.0 - b) * (1.0 + b); // g = mean - wave cos 2u
    const Rotation twice = u * u;
    Coefficients g = {b * b * (u.c * u.c) + u.s * u.s};
    double factor = wave;
    for (std::size_t k = 1; k < g.size(); ++k) {
        factor *= 2.0 / static_cast<double>(k);
        const double derivative[] = {-twice.c, twice.s, twice.c, -twice.s}; // of -cos
        g[k] = factor * derivative[k % 4];
    }
    return g;
}

Coefficients root(const Coefficients &g) {
    Coefficients y = {std::sqrt(g[0])};
    for (std::size_t k = 1; k < y.size(); ++k) {
        double rest = g[k];
        for (std::size_t j = 1; j < k; ++j) {
            rest -= y[j] * y[k - j];
        }
        y[k] = rest / (2.0 * y[0]);
    }
    return y;
}

Coefficients quotient(double numerator, const Coefficients &g) {
    Coefficients y = {numerator / g[0]};
    for (std::size_t k = 1; k < y.size(); ++k) {
        double rest = 0.0;
        for (std::size_t j = 1; j <= k; ++j) {
            rest -= g[j] * y[k - j];
        }
        y[k] = rest / g[0];
    }
    return y;
}

/// The integral of sqrt(b^2 cos^2 + sin^2) from 0 to an angle of the first quadrant, without a
/// difference: s b^2 R_F + (1 - b^2) b^2 / 3 s^3 R_D at (b^2 c^2, f^2, b^2), f being the root at
/// the angle, R_F and R_D Carlson's symmetric integrals, by duplication.
double lengthFromEnd(double b, Rotation u) {
    constexpr double kClose = 0x1p-14; // its fourth power is left out
    constexpr int kMostDuplications = 60;
    const double b2 = b * b;
    const double focal2 = (1.0 - b) * (1.0 + b);
    double x = b2 * (u.c * u.c);
    double y = b2 + focal2 * (u.s * u.s);
    double z = b2;
    double sum = 0.0;
    double part = 1.0;
    const auto isWide = [&] {
        const auto [least, greatest] = std::minmax({x, y, z});
        return greatest - least > kClose * greatest;
    };
    for (int i = 0; i < kMostDuplications && isWide(); ++i) {
        const double rx = std::sqrt(x), ry = std::sqrt(y), rz = std::sqrt(z);
        const double shift = rx * ry + ry * rz + rz * rx;
        sum += part / (rz * (z + shift));
        part *= 0.25;
        x = (x + shift) * 0.25;
        y = (y + shift) * 0.25;
        z = (z + shift) * 0.25;
    }
    const double m = (x + y + z) / 3.0;
    const double fx = 1.0 - x / m, fy = 1.0 - y / m, fz = -fx - fy;
    const double first = (1.0 - (fx * fy - fz * fz) / 10.0 + fx * fy * fz / 14.0) / std::sqrt(m);
    const double n = (x + y + 3.0 * z) / 5.0;
    const double dx = 1.0 - x / n, dy = 1.0 - y / n, dz = (-dx - dy) / 3.0;
    const double second = 3.0 * sum + part *
                                          (1.0 - (dx * dy - 6.0 * dz * dz) * 3.0 / 14.0 +
                                           (3.0 * dx * dy - 8.0 * dz * dz) * dz / 6.0) /
                                          (n * std::sqrt(n));
    return b2 * u.s * (first + focal2 / 3.0 * (u.s * u.s) * second);
}

} // namespace

GridSum::GridSum(EllipseSpeed speed, double halfFirst, double halfSecond)
    : speed_(speed), halfFirst_(halfFirst), halfSecond_(halfSecond) {
    const double a = std::fabs(halfFirst);
    const double b = std::fabs(halfSecond);
    const auto [shorter, longer] = std::minmax(a, b);
    b_ = shorter / longer;
    scale_ = speed == EllipseSpeed::arc ? longer : longer * longer;
    endDeg_ = a >= b ? 0.0 : 90.0;
}

double GridSum::sample(double deg) const {
    if (speed_ == EllipseSpeed::arc) return ArcSpeed::of(halfFirst_, halfSecond_)(deg);
    return SectorSpeed::of(halfFirst_, halfSecond_)(deg);
}

/// From the nearest end of the longer axis.
double GridSum::offsetDeg(double deg) const { return std::remainder(deg - endDeg_, 180.0); }

/// Of the arc's speed, from an end of the longer axis.
double GridSum::arcTo(double deg) const {
    const auto fromEnd = [this](double offset) {
        const Rotation u = Rotation::ofDegrees(offset);
        return b_ < kFlatAxis ? u.s * u.s / (1.0 + u.c) : lengthFromEnd(b_, u);
    };
    const double u = offsetDeg(deg);
    const double halfTurns = std::nearbyint((deg - endDeg_ - u) / 180.0);
    return halfTurns * 2.0 * fromEnd(90.0) + std::copysign(fromEnd(std::fabs(u)), u);
}

/// The swept angle is that between (b cos, sin) at both ends, scaled.
double GridSum::sectorBetween(double fromDeg, double toDeg) const {
    const double halfTurns = std::floor((toDeg - fromDeg) / 180.0);
    const double restDeg = (toDeg - fromDeg) - 180.0 * halfTurns;
    const Rotation from = Rotation::ofDegrees(offsetDeg(fromDeg));
    const Rotation rest = Rotation::ofDegrees(restDeg);
    const Rotation to = from * rest;
    const double swept = std::atan2(b_ * rest.s, b_ * b_ * from.c * to.c + from.s * to.s);
    return 0.5 * b_ * (halfTurns * kPi + swept);
}

double GridSum::integralBetween(double fromDeg, double toDeg) const {
    if (speed_ == EllipseSpeed::sector) return sectorBetween(fromDeg, toDeg);
    return arcTo(toDeg) - arcTo(fromDeg);
}

/// What a sum that starts or ends at an angle has beside the integral.
double GridSum::correction(double deg, double h) const {
    const Coefficients g = expandedSquare(b_, Rotation::ofDegrees(offsetDeg(deg)));
    const Coefficients f = speed_ == EllipseSpeed::arc ? root(g) : quotient(0.5 * b_ * b_, g);
    const double step2 = h * h * (kRadPerDeg * kRadPerDeg);
    double sum = 0.0;
    for (std::size_t k = kCorrections; k > 0; --k) {
        sum = (sum + kBernoulliPerOrder[k - 1] * f[2 * k - 1]) * step2;
    }
    return sum;
}

double GridSum::smooth(const Grid &grid, std::int64_t from, std::int64_t to) const {
    if (from == to) return 0.0;
    const double start = grid.at(from);
    const double end = grid.at(to);
    return scale_ *
           (integralBetween(start, end) + (correction(end, grid.h) - correction(start, grid.h)));
}

double GridSum::trapezoidsOfSamples(const Grid &grid, std::int64_t from, std::int64_t to) const {
    if (from == to) return 0.0;
    double sum = 0.5 * (sample(grid.at(from)) + sample(grid.at(to)));
    for (std::int64_t i = from + 1; i < to; ++i) {
        sum += sample(grid.at(i));
    }
    return sum * (grid.h * kRadPerDeg);
}

double GridSum::trapezoids(const Grid &grid, std::int64_t n) const {
    const double nearDeg = kFarSteps * grid.h;
    if (b_ * kDegPerRad >= nearDeg) return smooth(grid, 0, n);
    double sum = 0.0;
    std::int64_t done = 0;
    double end = endDeg_ + 180.0 * std::ceil((grid.lo - nearDeg - endDeg_) / 180.0);
    for (; end - nearDeg < grid.at(n); end += 180.0) {
        const auto index = [&](double steps) {
            return std::clamp(static_cast<std::int64_t>(steps), done, n);
        };
        const std::int64_t from = index(std::floor((end - nearDeg - grid.lo) / grid.h));
        const std::int64_t to = index(std::ceil((end + nearDeg - grid.lo) / grid.h));
        sum += smooth(grid, done, from) + trapezoidsOfSamples(grid, from, to);
        done = to;
    }
    return sum + smooth(grid, done, n);
}

double GridSum::simpsonOfSamples(double lo, double hi, std::int64_t n) const {
    const double h = (hi - lo) / static_cast<double>(n);
    double sum = 0.0;
    for (std::int64_t i = 1; i < n; ++i) {
        sum += (i % 2 == 1 ? 4.0 : 2.0) * sample(lo + static_cast<double>(i) * h);
    }
    return (sample(lo) + sample(hi) + sum) * h * kPi / 540.0; // h / 3 in radians
}

Integral GridSum::integral(double lo, double hi) const {
    const double span = hi - lo;
    if (!takes(span)) return {Refinement::outOfIntervals};
    const double start = std::fmod(lo, 360.0);
    const auto trapezoidsOf = [&](std::int64_t n) {
        return trapezoids({start, span / static_cast<double>(n)}, n);
    };
    double last = sample(lo);
    std::int64_t coarseCount = 0;
    double coarse = 0.0;
    return refine(span, kNoLongestPass, [&](std::int64_t n) -> SimpsonSum {
        if (!std::isfinite(last)) return {last, 0.0}; // more samples do not mend it
        if (n <= kMostSampledSteps) return {last = simpsonOfSamples(lo, hi, n), 0.0};
        if (coarseCount != n / 2) coarse = trapezoidsOf(n / 2);
        const double fine = trapezoidsOf(n);
        last = (4.0 * fine - coarse) / 3.0;
        coarse = fine;
        coarseCount = n;
        return {last, 0.0};
    });
}

} // namespace planegeo
