// Coefficients of the cosine series, and the Simpson rule over it.

#include "ellipse/cosine_series.h"

#include <algorithm>

namespace planegeo {

namespace {

/// Half axes whose squares neither over- nor underflow.
constexpr double kShortestHalfAxis = 0x1p-400;
constexpr double kLongestHalfAxis = 0x1p400;

/// A step of the first pass is shorter: a span below 5 degrees is cut in 4.
constexpr double kLongestStepDeg = 1.25;
/// With these 2kh stays below 160 degrees, clear of the poles of the Simpson rule's factor.
constexpr int kMostSimpsonTerms = 64;
/// Farther limits would make the rounding of a sample's angle the larger error.
constexpr double kFarthestLimitDeg = 1000000.0;

// With q = 2kh the Simpson rule multiplies the integral of cos 2kt, which is at most 2 / 2k, by
//     m(q) = q (2 + cos q) / 3 sin q,    0 <= m(q) - 1 <= q^4/180 q / sin q
// (the numerator's series alternates), and q / sin q <= 1 + 0.93 q^2 up to 160 degrees. m grows
// with q, so a pass of step h is no farther from one of half the step than from the integral: by
// the sum of |c_k| k^3 kFourthOrder (1 + kNextOrder k^2).
constexpr double kTwoSteps = 2.0 * kLongestStepDeg * kRadPerDeg;
constexpr double kFourthOrder = kTwoSteps * kTwoSteps * kTwoSteps * kTwoSteps / 180.0;
constexpr double kNextOrder = 0.93 * kTwoSteps * kTwoSteps;

double flatness(double a, double b) { return (b - a) / (a + b); }

/// Terms after which a remainder that falls like rho^k has lost `bits` bits; -1 when none do.
int termsFor(double a, double b, double bits) {
    const auto [shorter, longer] = std::minmax(a, b);
    if (!(shorter >= kShortestHalfAxis && longer <= kLongestHalfAxis)) return -1;
    const double bitsPerTerm = -std::log2(std::fabs(flatness(a, b)));
    if (bitsPerTerm > bits * 1.5) return 0;
    const double terms = std::ceil(bits / bitsPerTerm);
    // An axis lost beside the other makes the bits zero, perhaps a negative one.
    return terms > 0.0 && terms <= CosineSeries::kMostTerms ? static_cast<int>(terms) : -1;
}

} // namespace

// f = P |1 + rho z| with z = e^2it is P (1 + rho z)^1/2 (1 + rho / z)^1/2. The binomials of 1/2
// are at most k^-3/2 / 2, hence with r = |rho|
//     |c_k| <= E k^-3/2 r^k,    E = P (1 + r^2),
// and 42 bits of r^k leave a remainder of some roundings. From (f^2)' f = 2 f^2 f' follows, the
// coefficients taken two-sided (c_k = 2 y_k, c_0 = y_0),
//     rho (k - 3/2) y_k-1 + (1 + rho^2) k y_k + rho (k + 3/2) y_k+1 = 0,
// stable downwards. This fixes them up to a factor, and their sum at the crest fixes that.
CosineSeries CosineSeries::ofArcSpeed(double halfFirst, double halfSecond) {
    constexpr double kBits = 42.0;
    const double a = std::fabs(halfFirst);
    const double b = std::fabs(halfSecond);
    CosineSeries f(termsFor(a, b, kBits));
    if (!f.isUsable()) return f;

    const double rho = flatness(a, b);
    const double lead = (1.0 + rho * rho) / rho;
    const double flip = rho < 0.0 ? -1.0 : 1.0;
    double sign = f.terms_ % 2 == 0 ? 1.0 : flip;
    double above = 0.0;
    double here = 1.0;
    double crest = 0.0; // the sum where cos 2t is the sign of rho
    for (int k = f.terms_; k > 0; --k) {
        f.c(k) = 2.0 * here;
        crest += sign * f.c(k);
        sign *= flip;
        const double inverse = 1.0 / (k - 1.5);
        const double below = -(lead * k * inverse) * here - ((k + 1.5) * inverse) * above;
        above = here;
        here = below;
    }
    f.c(0) = here;
    const double factor = std::max(a, b) / (crest + here);
    for (int k = 0; k <= f.terms_; ++k) {
        f.c(k) *= factor;
    }

    // Sums over k, by k^1/2 <= (k + 1) / 2, k^3/2 <= k (k + 1) / 2 and k^7/2 <= k^4.
    const double r = std::fabs(rho);
    const double w = 1.0 / (1.0 - r);
    const double envelope = (a + b) * 0.5 * (1.0 + r * r);
    f.weight_ = envelope * (1.0 + 4.0 * r * w * w);
    f.firstPassError_ =
        envelope * r * (w * w * w) * kFourthOrder * (1.0 + kNextOrder * 24.0 * (w * w));
    return f;
}

// A^2 B^2 / 2 f^2 with the f above: A B / 2 (1 - rho^2) / |1 + rho z|^2, whose series is
// geometric, A B / 2 (1 - 2 rho cos 2t + 2 rho^2 cos 4t - ...).
CosineSeries CosineSeries::ofSectorSpeed(double halfFirst, double halfSecond) {
    constexpr double kBits = 52.0;
    const double a = std::fabs(halfFirst);
    const double b = std::fabs(halfSecond);
    CosineSeries f(termsFor(a, b, kBits));
    if (!f.isUsable()) return f;

    const double rho = flatness(a, b);
    double power = a * b;
    f.c(0) = power * 0.5;
    for (int k = 1; k <= f.terms_; ++k) {
        f.c(k) = power *= -rho;
    }

    // Sums over k, by k^3 <= k (k + 1) (k + 2) and k^5 <= k (k + 1) ... (k + 4).
    const double r = std::fabs(rho);
    const double w = 1.0 / (1.0 - r);
    f.weight_ = a * b * 2.0 * (w * w * w);
    f.firstPassError_ =
        a * b * 6.0 * r * (w * w) * (w * w) * kFourthOrder * (1.0 + kNextOrder * 20.0 * (w * w));
    return f;
}

SimpsonSum CosineSeries::simpson(double lo, double hi, std::int64_t n) const {
    const double span = (hi - lo) * kRadPerDeg;
    const double h = span / static_cast<double>(n);
    const Rotation middle = Rotation::ofRadians((lo + hi) * kRadPerDeg);
    const Rotation whole = Rotation::ofRadians(span);
    const Rotation step = Rotation::ofRadians(2.0 * h);
    Rotation m = middle; // by 2km
    Rotation s = whole;  // by ks
    Rotation q = step;   // by 2kh
    double sum = 0.0;
    for (int k = 1; k <= terms_; ++k) {
        sum += (*this)[k] * (2.0 + q.c) / q.s * (m.c * s.s);
        m = m * middle;
        s = s * whole;
        q = q * step;
    }
    const double value = h * ((*this)[0] * static_cast<double>(n) + sum * 2.0 / 3.0);
    // In roundings: the sum over samples has n of its value for the additions, none of its terms
    // being negative; and for a term of at most span |c_k| some 20, 2k 4T for its angle, T being
    // the larger limit; the closed form some 10k for its turns, k 8T for their angles.
    const double farthest = (std::fabs(lo) + std::fabs(hi)) * kRadPerDeg;
    return {value, kUnitRoundoff * (static_cast<double>(n) * value +
                                    (64.0 + 32.0 * farthest) * span * weight_)};
}

Integral CosineSeries::integral(double lo, double hi, std::int64_t longestPass) const {
    const bool isNear = std::fabs(lo) <= kFarthestLimitDeg && std::fabs(hi) <= kFarthestLimitDeg;
    if (!isUsable() || terms_ > kMostSimpsonTerms || !isNear) return {Refinement::undecided};

    // Mostly the first sum exceeds the tolerance and the second settles: the bound of their
    // difference then tells so without the first.
    const double span = hi - lo;
    const std::int64_t n = evenIntervals(span);
    const double secondStep = span / static_cast<double>(2 * n);
    if (firstPassError_ < kSettledIntegral * 0.75 && secondStep >= kSmallestStepDeg) {
        const SimpsonSum s = simpson(lo, hi, 2 * n);
        if (s.value > kSettledIntegral * 2.0 && s.uncertainty < kSettledIntegral * 0.1) {
            return {Refinement::done, s.value, s.uncertainty, 0, 3 * n};
        }
    }
    return refine(span, longestPass, [&](std::int64_t count) { return simpson(lo, hi, count); });
}

} // namespace planegeo
