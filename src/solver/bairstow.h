/// All roots of a polynomial by quadratic factors.
#pragma once

#include <cstdint>

namespace planegeo {

/// Results of the solver, which are also those of its exported function.
enum class Bairstow : std::int32_t {
    done = 0,
    noPolynomial = -1, ///< leading coefficient zero, or a degree outside [1, kMaxDegree]
    noFactor = -2,
    noRealRoot = -3, ///< the Newton step of an odd degree; its last iterate is the last pair's
};

/// Writes `degree` pairs; degrees up to four in closed form. A caller that knows its degree to
/// be four asks solveQuartic().
Bairstow solveByBairstow(const double *c, int degree, double *out);

} // namespace planegeo
