// The solvers under comparison, in one shape: coefficients in, roots out.
#pragma once

#include <algorithm>
#include <array>
#include <cmath>
#include <complex>
#include <vector>

#include <gsl/gsl_poly.h>

#if __has_include(<boost/math/tools/quartic_roots.hpp>)
#include <boost/math/tools/cubic_roots.hpp>
#include <boost/math/tools/quartic_roots.hpp>
#define ACCURACY_HAS_BOOST_ROOTS 1
#endif

#include "planegeo.h"
#include "truth.h"

namespace accuracy {

using Coefficients = std::vector<double>; // highest degree first

inline std::vector<Root> pairs(const std::vector<double> &out) {
    std::vector<Root> roots;
    for (std::size_t k = 0; k + 1 < out.size(); k += 2) {
        roots.emplace_back(out[k], out[k + 1]);
    }
    return roots;
}

inline std::vector<Root> closedForm(const Coefficients &c) {
    std::vector<double> out(2 * (c.size() - 1));
    const auto solve = c.size() == 3   ? amaSolveEquationOf2ndD
                       : c.size() == 4 ? amaSolveEquationOf3rdD
                                       : amaSolveEquationOf4thD;
    solve(c.data(), out.data());
    return pairs(out);
}

/// With the second root of each complex pair replaced by the conjugate of the first; no roots
/// where the call fails.
inline std::vector<Root> bairstow(const Coefficients &c) {
    std::vector<double> out(2 * (c.size() - 1));
    if (amaBairstaw(c.data(), static_cast<int32_t>(c.size() - 1), out.data()) != 0) return {};
    std::vector<Root> roots = pairs(out);
    for (std::size_t k = 0; k + 1 < roots.size(); k += 2) {
        if (roots[k].imag() != 0.0) roots[k + 1] = std::conj(roots[k]);
    }
    return roots;
}

inline constexpr double kBound = 1e-12;
inline constexpr double kBudget = 500;

inline std::vector<Root> aberth(const Coefficients &coefficients) {
    Coefficients c = coefficients; // changed by the call
    std::vector<double> out(2 * (c.size() - 1));
    amaDKA(c.data(), static_cast<int32_t>(c.size() - 1), kBound, kBudget, out.data());
    return pairs(out);
}

/// GSL's eigenvalues of the companion matrix.
inline std::vector<Root> gslCompanion(const Coefficients &coefficients) {
    const Coefficients c(coefficients.rbegin(), coefficients.rend());
    std::vector<double> out(2 * (c.size() - 1));
    gsl_poly_complex_workspace *workspace = gsl_poly_complex_workspace_alloc(c.size());
    const int status = gsl_poly_complex_solve(c.data(), c.size(), workspace, out.data());
    gsl_poly_complex_workspace_free(workspace);
    return status == 0 ? pairs(out) : std::vector<Root>{};
}

/// GSL's closed forms; it has none for the quartic.
inline std::vector<Root> gslClosedForm(const Coefficients &c) {
    gsl_complex z[3];
    if (c.size() == 3) {
        gsl_poly_complex_solve_quadratic(c[0], c[1], c[2], &z[0], &z[1]);
    } else if (c.size() == 4) {
        gsl_poly_complex_solve_cubic(c[1] / c[0], c[2] / c[0], c[3] / c[0], &z[0], &z[1], &z[2]);
    } else {
        return gslCompanion(c);
    }
    std::vector<Root> roots;
    for (std::size_t k = 0; k + 1 < c.size(); ++k) {
        roots.emplace_back(GSL_REAL(z[k]), GSL_IMAG(z[k]));
    }
    return roots;
}

/// Boost's closed forms give real roots only, and NaN for the others.
inline std::vector<Root> boostClosedForm([[maybe_unused]] const Coefficients &c) {
    std::vector<Root> roots;
#ifdef ACCURACY_HAS_BOOST_ROOTS
    using namespace boost::math::tools;
    if (c.size() == 3) {
        const auto [x, y] = quadratic_roots(c[0], c[1], c[2]);
        return {x, y};
    }
    if (c.size() == 4) {
        for (const double x : cubic_roots(c[0], c[1], c[2], c[3]))
            roots.emplace_back(x);
    } else {
        for (const double x : quartic_roots(c[0], c[1], c[2], c[3], c[4]))
            roots.emplace_back(x);
    }
#endif
    return roots;
}

} // namespace accuracy
