/// What the solvers share: complex values, coefficients, and roots as pairs of doubles.
#pragma once

#include <array>
#include <cmath>
#include <cstdint>
#include <utility>

namespace planegeo {

struct Complex {
    double re;
    double im;
};

/// Two values, which one instruction divides in the time of one. Not to be loaded together: a host
/// has often just stored them one by one, and a load of both waits until they are in the cache.
using Pair = double __attribute__((vector_size(16)));

constexpr Complex operator-(Complex z) { return {-z.re, -z.im}; }
constexpr Complex conjugate(Complex z) { return {z.re, -z.im}; }
constexpr Complex real(double x) { return {x, 0.0}; }

inline void store(Complex z, double *pair) {
    pair[0] = z.re;
    pair[1] = z.im;
}

/// Coefficients of a polynomial, highest degree first.
template <std::size_t Degree> using Polynomial = std::array<double, Degree + 1>;

/// Loads them one by one, which the compiler is not to change: see Pair.
template <std::size_t Degree> Polynomial<Degree> load(const volatile double *c) {
    Polynomial<Degree> polynomial;
    for (std::size_t i = 0; i <= Degree; ++i) {
        polynomial[i] = c[i];
    }
    return polynomial;
}

/// The largest |c[i]|; a NaN is no largest.
inline double largestMagnitude(const double *c, int degree) {
    double largest = 0.0;
    for (int i = 0; i <= degree; ++i) {
        const double size = std::fabs(c[i]);
        if (size > largest) largest = size;
    }
    return largest;
}

/// What Roots::realCount holds when the leading coefficient is exactly zero.
inline constexpr std::int32_t kNoLeadingCoefficient = -1;

/// All roots of an equation in the order of the branch that found them.
template <std::size_t Degree> struct Roots {
    std::array<Complex, Degree> root;
    /// How many roots the branch reports as real, or kNoLeadingCoefficient: `root` then holds
    /// nothing. Real roots found through complex arithmetic are not among those reported.
    std::int32_t realCount;
};

template <std::size_t Degree, std::size_t... K>
void storeEach(const Roots<Degree> &roots, double *out, std::index_sequence<K...>) {
    (store(roots.root[K], out + 2 * K), ...);
}

/// Writes the pairs, unless there are none; returns the count. Without a loop, so that they need
/// not go through memory before.
template <std::size_t Degree> std::int32_t store(const Roots<Degree> &roots, double *out) {
    if (roots.realCount == kNoLeadingCoefficient) return kNoLeadingCoefficient;
    storeEach(roots, out, std::make_index_sequence<Degree>());
    return roots.realCount;
}

/// The iterative solvers refuse a higher degree: work and working storage stay bounded without
/// heap memory. Doubles tell little about the roots long before; from degree 144 on the powers of
/// the starting circle of amaDKA overflow unless the coefficients shrink.
inline constexpr int kMaxDegree = 200;

} // namespace planegeo
