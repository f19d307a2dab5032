// All roots of a polynomial at once: the iteration of Durand and Kerner from Aberth's circle.
//
// Whether a sweep changes anything hangs on the last bit: every expression stands in the order
// that hosts have always had.

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstring>

#include "base/vec2.h"
#include "planegeo.h"
#include "solver/polynomial.h"

namespace {

using namespace planegeo;

using RootTable = std::array<Complex, kMaxDegree>;

constexpr Complex operator-(Complex z, Complex w) { return {z.re - w.re, z.im - w.im}; }
constexpr Complex operator*(Complex z, Complex w) {
    return {z.re * w.re - z.im * w.im, z.re * w.im + z.im * w.re};
}

/// Smith's quotient, scaled by the larger part of the divisor. A zero divisor gives NaN.
Complex operator/(Complex z, Complex w) {
    const bool byReal = std::fabs(w.re) >= std::fabs(w.im);
    const double large = byReal ? w.re : w.im, small = byReal ? w.im : w.re;
    const double p = byReal ? z.re : z.im, q = byReal ? z.im : z.re;
    const double ratio = small / large;
    const double scale = large + small * ratio;
    const double turned = p * ratio;
    return {(p + q * ratio) / scale, (byReal ? q - turned : turned - q) / scale};
}

/// n times the largest |c[k]|^(1/k). c[1] is left out on purpose.
double startRadius(const double *c, int n) {
    double radius = 0.0;
    for (int k = 2; k <= n; ++k) {
        const double candidate = n * std::pow(std::fabs(c[k]), 1.0 / k);
        if (candidate > radius) radius = candidate;
    }
    return radius;
}

/// A circle about the origin, not about the mean of the roots. A radius of zero is let pass: from
/// the second degree on the first sweep then divides by zero, and the roots are NaN.
void placeOnCircle(RootTable &z, const double *c, int n) {
    const double radius = startRadius(c, n);
    for (int k = 0; k < n; ++k) {
        const double angle = kTwoPi * k / n + kPi / (2.0 * n);
        z[static_cast<std::size_t>(k)] = {radius * std::cos(angle), radius * std::sin(angle)};
    }
}

/// |z| >= limit; not of a NaN. Roots that have converged are far below it.
bool reaches(Complex z, double limit) {
    const double re = std::fabs(z.re), im = std::fabs(z.im), half = 0.5 * limit;
    if (re < half && im < half) return false; // |z| is less than 0.71 of the limit
    const bool partReaches = re >= limit || im >= limit;
    if (partReaches && !std::isnan(re) && !std::isnan(im)) return true;
    return std::hypot(z.re, z.im) >= limit;
}

/// Moves every root in its turn, against those that this sweep has moved already. Returns whether
/// the largest |value| met, before the moves, is below the bound; a NaN is no largest.
///
/// The value, by Horner's rule from the leading coefficient 1, and the product of the distances
/// from the other roots are two chains of products that wait for nothing but themselves: side by
/// side they take hardly longer than one.
bool sweep(RootTable &z, const double *c, int n, double bound) {
    bool isBelow = bound > 0.0;
    const auto count = static_cast<std::size_t>(n);
    Complex moved = {0.0, 0.0}; // the root before: the next one waits for it, in no memory
    for (std::size_t i = 0; i < count; ++i) {
        const Complex root = z[i];
        Complex value = {1.0, 0.0};
        Complex product = {1.0, 0.0};
        const auto step = [&](std::size_t k, Complex other) {
            value = value * root;
            value.re += c[k];
            product = product * (root - other);
        };
        for (std::size_t k = 1; k < i; ++k)
            step(k, z[k - 1]);
        if (i > 0) step(i, moved);
        for (std::size_t k = i + 1; k < count; ++k)
            step(k, z[k]);
        value = value * root;
        value.re += c[count];
        if (isBelow && reaches(value, bound)) isBelow = false;
        moved = root - value / product;
        z[i] = moved;
    }
    return isBelow;
}

/// Notices when the roots come back to where they were, bit by bit: from then on sweeps repeat
/// themselves for ever, and whole periods of them can be left out. The roots are remembered ever
/// again, and for ever longer, so that a period is found however late it starts (Brent's method).
class PeriodFinder {
  public:
    /// Periods are found sooner where roots are remembered often, but only those that are short.
    enum class Memory { often, afterPowersOfTwo };
    explicit PeriodFinder(Memory memory) : memory_(memory) {}

    /// The period of the roots after `sweeps` sweeps, 0 as long as none is seen.
    std::int64_t period(const RootTable &z, int n, std::int64_t sweeps) {
        const auto count = static_cast<std::size_t>(n);
        if (rememberedAt_ > 0 && areSame(z, count)) return sweeps - rememberedAt_;
        if (sweeps >= next_) {
            std::copy_n(z.begin(), count, remembered_.begin());
            rememberedAt_ = sweeps;
            next_ = memory_ == Memory::often ? sweeps + sweeps / 4 + 4 : 2 * sweeps;
        }
        return 0;
    }

  private:
    static bool isSame(double a, double b) {
        std::uint64_t bitsA, bitsB;
        std::memcpy(&bitsA, &a, sizeof a);
        std::memcpy(&bitsB, &b, sizeof b);
        return bitsA == bitsB;
    }
    bool areSame(const RootTable &z, std::size_t count) const {
        for (std::size_t i = 0; i < count; ++i) {
            if (!isSame(z[i].re, remembered_[i].re)) return false;
            if (!isSame(z[i].im, remembered_[i].im)) return false;
        }
        return true;
    }

    RootTable remembered_;
    Memory memory_;
    std::int64_t rememberedAt_ = 0;
    std::int64_t next_ = 1;
};

/// floor(budget) + 1 sweeps, none for a negative or NaN budget.
std::int64_t sweepsFor(double budget) {
    constexpr double kMost = 9e15; // every integer below it is a double
    if (!(budget >= 0.0)) return 0;
    return static_cast<std::int64_t>(budget < kMost ? budget : kMost) + 1;
}

/// The sweeps that are made as long as no period is seen. A sweep costs some n (n + 16) complex
/// products; eighteen million of them take some 40 ms. Roots that converge do so in some eight
/// sweeps per degree at most, for which the thousand leave the higher degrees time.
std::int64_t sweepLimit(int n) {
    constexpr std::int64_t kUsualProducts = 10'000'000;
    constexpr std::int64_t kMostProducts = 18'000'000;
    constexpr std::int64_t kUsualSweeps = 1'000;
    const std::int64_t products = static_cast<std::int64_t>(n) * (n + 16);
    return std::max(kUsualProducts / products, std::min(kUsualSweeps, kMostProducts / products));
}

/// Sweeps until the residual is below the bound or the budget is used up; tells which.
bool iterate(RootTable &z, const double *c, int n, double bound, double budget) {
    const std::int64_t wanted = sweepsFor(budget);
    std::int64_t last = std::min(wanted, sweepLimit(n));
    // Whether a period is seen before the limit tells what is answered: that is to stay.
    PeriodFinder finder(last == wanted ? PeriodFinder::Memory::often
                                       : PeriodFinder::Memory::afterPowersOfTwo);
    for (std::int64_t made = 1; made <= last; ++made) {
        if (sweep(z, c, n, bound)) return true;
        const std::int64_t period = finder.period(z, n, made);
        if (period > 0) last = made + (wanted - made) % period;
    }
    return false;
}

/// Makes roots real whose imaginary part is below the limit; returns how many.
int snapToReal(RootTable &z, int n, double limit) {
    int snapped = 0;
    for (int k = 0; k < n; ++k) {
        double &im = z[static_cast<std::size_t>(k)].im;
        if (!(std::fabs(im) < limit)) continue;
        im = 0.0;
        ++snapped;
    }
    return snapped;
}

} // namespace

extern "C" {

int32_t amaDKA(double *c, int32_t n, double eps, double maxiter, double *out) {
    if (n > kMaxDegree || c[0] == 0.0) return -1;
    for (int k = 1; k <= n; ++k) {
        c[k] = c[k] / c[0];
    }
    // Without roots the first sweep, if there is one, meets no value but zero.
    if (n < 1) return maxiter >= 0.0 && eps > 0.0 ? 0 : -1;
    RootTable z;
    placeOnCircle(z, c, n);
    const bool converged = iterate(z, c, n, eps, maxiter);
    const int snapped = snapToReal(z, n, std::sqrt(eps));
    for (int k = 0; k < n; ++k) {
        store(z[static_cast<std::size_t>(k)], out + 2 * static_cast<std::ptrdiff_t>(k));
    }
    // A run that ended without converging still succeeds when any of its roots looks real.
    return converged || snapped > 0 ? 0 : -1;
}

} // extern "C"
