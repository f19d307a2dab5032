/// Polynomial equations of degree two to four in closed form, and the complex square root.
#pragma once

#include "solver/polynomial.h"

namespace planegeo {

/// The principal square root.
Complex squareRoot(Complex z);

Roots<2> solveQuadratic(const Polynomial<2> &c);
Roots<3> solveCubic(const Polynomial<3> &c);
/// The roots of two quadratic factors, one with real roots before one without.
Roots<4> solveQuartic(const Polynomial<4> &c);

} // namespace planegeo
