// The roots of a polynomial in quadruple precision, and how far others lie from them.
#pragma once

#include <algorithm>
#include <cmath>
#include <complex>
#include <limits>
#include <vector>

namespace accuracy {

using Root = std::complex<double>;

struct Quad {
    __float128 re;
    __float128 im;
};

inline Quad operator+(Quad z, Quad w) { return {z.re + w.re, z.im + w.im}; }
inline Quad operator-(Quad z, Quad w) { return {z.re - w.re, z.im - w.im}; }
inline Quad operator*(Quad z, Quad w) {
    return {z.re * w.re - z.im * w.im, z.re * w.im + z.im * w.re};
}
inline double size(Quad z) {
    return std::hypot(static_cast<double>(z.re), static_cast<double>(z.im));
}
inline Quad operator/(Quad z, Quad w) {
    const __float128 scale = w.re * w.re + w.im * w.im;
    return {(z.re * w.re + z.im * w.im) / scale, (z.im * w.re - z.re * w.im) / scale};
}

/// Aberth's step: Newton's, corrected for the pull of the other roots.
inline Quad aberthStep(const std::vector<double> &c, const std::vector<Quad> &z, std::size_t i) {
    Quad value = {c[0], 0}, slope = {0, 0};
    for (std::size_t k = 1; k < c.size(); ++k) {
        slope = slope * z[i] + value;
        value = value * z[i] + Quad{c[k], 0};
    }
    if (value.re == 0 && value.im == 0) return {0, 0};
    Quad pull = {0, 0};
    for (std::size_t j = 0; j < z.size(); ++j) {
        if (j != i) pull = pull + Quad{1, 0} / (z[i] - z[j]);
    }
    return Quad{1, 0} / (slope / value - pull);
}

/// All roots. The search ends with steps that lie far below the last place of a double and above
/// the noise about two roots that agree to six digits.
inline std::vector<Quad> trueRoots(const std::vector<double> &c) {
    constexpr double kSettled = 1e-22;
    constexpr int kMostRounds = 200;
    const std::size_t n = c.size() - 1;
    double radius = 0;
    for (std::size_t k = 1; k <= n; ++k) {
        radius = std::max(radius, std::pow(std::fabs(c[k] / c[0]), 1.0 / static_cast<double>(k)));
    }
    std::vector<Quad> z(n);
    for (std::size_t k = 0; k < n; ++k) {
        const Root start =
            std::polar(radius, (6.28 * static_cast<double>(k) + 1) / static_cast<double>(n));
        z[k] = {start.real(), start.imag()};
    }
    bool moved = true;
    for (int round = 0; moved && round < kMostRounds; ++round) {
        moved = false;
        for (std::size_t i = 0; i < n; ++i) {
            const Quad step = aberthStep(c, z, i);
            z[i] = z[i] - step;
            moved = moved || size(step) > kSettled * size(z[i]);
        }
    }
    return z;
}

/// The largest distance of a root from its true one, relative to that; infinite where a root is
/// missing or NaN. Nearest pairs are matched first.
inline double largestError(std::vector<Root> found, std::vector<Quad> roots) {
    double worst = found.size() < roots.size() ? std::numeric_limits<double>::infinity() : 0.0;
    while (!found.empty() && !roots.empty()) {
        std::size_t bestFound = 0, bestTrue = 0;
        double best = std::numeric_limits<double>::infinity();
        for (std::size_t i = 0; i < found.size(); ++i) {
            for (std::size_t j = 0; j < roots.size(); ++j) {
                const Quad gap = Quad{found[i].real(), found[i].imag()} - roots[j];
                const double error = size(gap) / size(roots[j]);
                if (error < best) {
                    best = error;
                    bestFound = i;
                    bestTrue = j;
                }
            }
        }
        worst = std::max(worst, best);
        found.erase(found.begin() + static_cast<std::ptrdiff_t>(bestFound));
        roots.erase(roots.begin() + static_cast<std::ptrdiff_t>(bestTrue));
    }
    return worst;
}

} // namespace accuracy
