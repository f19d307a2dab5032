/// Polynomial equations of degree two to four in closed form, and the complex square root.
#pragma once

#include <array>
#include <cmath>
#include <cstdint>

#include "base/vec2.h"

namespace planegeo {

struct Complex {
    double re;
    double im;
};

constexpr Complex operator-(Complex z) { return {-z.re, -z.im}; }
constexpr Complex conjugate(Complex z) { return {z.re, -z.im}; }
constexpr Complex real(double x) { return {x, 0.0}; }

/// Coefficients of a polynomial, highest degree first.
template <std::size_t Degree> using Polynomial = std::array<double, Degree + 1>;

/// What Roots::realCount holds when the leading coefficient is exactly zero.
inline constexpr std::int32_t kNoLeadingCoefficient = -1;

/// All roots of an equation in the order of the branch that found them.
template <std::size_t Degree> struct Roots {
    std::array<Complex, Degree> root;
    /// How many roots the branch reports as real, or kNoLeadingCoefficient: `root` then holds
    /// nothing. Real roots found through complex arithmetic are not among those reported.
    std::int32_t realCount;
};

/// The principal square root.
Complex squareRoot(Complex z);

Roots<2> solveQuadratic(const Polynomial<2> &c);
Roots<3> solveCubic(const Polynomial<3> &c);
/// The roots of two quadratic factors, one with real roots before one without.
Roots<4> solveQuartic(const Polynomial<4> &c);

} // namespace planegeo
