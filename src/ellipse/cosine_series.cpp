// Coefficients of the cosine series.

#include "ellipse/cosine_series.h"

#include <algorithm>

#include "ellipse/speed.h"

namespace planegeo {

namespace {

double flatness(double a, double b) { return (b - a) / (a + b); }

/// Terms after which a remainder that falls like rho^k has lost `bits` bits; -1 when none do.
int termsFor(double a, double b, double bits) {
    const auto [shorter, longer] = std::minmax(a, b);
    if (!(shorter >= kLeastHalfAxis && longer <= kGreatestHalfAxis)) return -1;
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

    // Sums over k, by k^1/2 <= (k + 1) / 2.
    const double r = std::fabs(rho);
    const double w = 1.0 / (1.0 - r);
    const double envelope = (a + b) * 0.5 * (1.0 + r * r);
    f.weight_ = envelope * (1.0 + 4.0 * r * w * w);
    return f;
}

} // namespace planegeo
