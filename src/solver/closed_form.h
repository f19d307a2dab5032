/// Polynomial equations of degree two to four in closed form, and the complex square root.
#pragma once

#include "solver/polynomial.h"

namespace planegeo {

/// The principal square root.
Complex squareRoot(Complex z);

Roots<2> solveQuadratic(const double *c);
Roots<3> solveCubic(const double *c);
/// The roots of two quadratic factors, one with real roots before one without.
Roots<4> solveQuartic(const double *c);

} // namespace planegeo
