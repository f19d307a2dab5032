// Polynomial equations beside GSL, Open CASCADE, Boost and Eigen. Some peers give all roots, some
// the real ones: each is asked for what it gives.

#include <algorithm>
#include <complex>

#include <boost/math/tools/roots.hpp>
#if __has_include(<boost/math/tools/quartic_roots.hpp>)
#include <boost/math/tools/cubic_roots.hpp>
#include <boost/math/tools/quartic_roots.hpp>
#define HAS_BOOST_QUARTIC 1
#endif
#include <gsl/gsl_complex_math.h>
#include <gsl/gsl_poly.h>
#include <math_DirectPolynomialRoots.hxx>
#include <unsupported/Eigen/Polynomials>

#include "compare.h"

namespace {

using namespace bench;

template <std::size_t Degree> using Ascending = std::array<double, Degree + 1>;

template <std::size_t Degree> Ascending<Degree> ascending(const Equation &in) {
    Ascending<Degree> c;
    std::reverse_copy(in.c, in.c + Degree + 1, c.begin());
    return c;
}
Equation same(const Equation &in) { return in; }

/// The roots of a pair count alike.
void addRoot(Answer &answer, double re, double im) { answer.add(re, std::fabs(im)); }

Answer allRoots(const double *pairs, std::size_t count) {
    Answer answer;
    for (std::size_t k = 0; k < count; ++k) {
        addRoot(answer, pairs[2 * k], pairs[2 * k + 1]);
    }
    return answer;
}
Answer realRoots(const double *pairs, std::size_t count) {
    Answer answer;
    for (std::size_t k = 0; k < count; ++k) {
        if (pairs[2 * k + 1] == 0.0) answer.add(pairs[2 * k]);
    }
    return answer;
}

template <std::size_t Degree> Answer byCompanionOfGsl(const Ascending<Degree> &c) {
    static gsl_poly_complex_workspace *const workspace = gsl_poly_complex_workspace_alloc(c.size());
    double z[2 * Degree];
    if (gsl_poly_complex_solve(c.data(), c.size(), workspace, z) != 0) return {};
    return allRoots(z, Degree);
}
Answer byEigen(const double *ascending, int degree) {
    const Eigen::Map<const Eigen::VectorXd> coefficients(ascending, degree + 1);
    const Eigen::PolynomialSolver<double, Eigen::Dynamic> solver(coefficients);
    Answer answer;
    for (int k = 0; k < degree; ++k) {
        addRoot(answer, solver.roots()[k].real(), solver.roots()[k].imag());
    }
    return answer;
}
template <std::size_t Degree> Answer byEigen(const Ascending<Degree> &c) {
    return byEigen(c.data(), static_cast<int>(Degree));
}

template <class... Coefficients> Answer byOcct(Coefficients... c) {
    const math_DirectPolynomialRoots roots(c...);
    Answer answer;
    if (!roots.IsDone()) return answer;
    for (int k = 1; k <= roots.NbSolutions(); ++k) {
        answer.add(roots.Value(k));
    }
    return answer;
}

using Solve = int32_t(const double *, double *);

/// Known when compiled, as what the peers are asked is.
template <std::size_t Degree, Solve *solve, Answer (*read)(const double *, std::size_t)>
constexpr auto closedForm = [](const Equation &in) {
    double out[2 * Degree];
    solve(in.c, out);
    return read(out, Degree);
};

const int kQuadratics[] = {
    Comparison("quadratic, all roots", equation)
        .ours("amaSolveEquationOf2ndD", closedForm<2, amaSolveEquationOf2ndD, allRoots>)
        .peer("GSL", same,
              [](const Equation &in) {
                  gsl_complex z[2];
                  gsl_poly_complex_solve_quadratic(in.c[0], in.c[1], in.c[2], z, z + 1);
                  return allRoots(z[0].dat, 2);
              }),
    Comparison("quadratic, real roots", equation)
        .ours("amaSolveEquationOf2ndD", closedForm<2, amaSolveEquationOf2ndD, realRoots>)
        .peer("GSL", same,
              [](const Equation &in) {
                  double x[2];
                  const int count = gsl_poly_solve_quadratic(in.c[0], in.c[1], in.c[2], x, x + 1);
                  Answer answer;
                  for (int k = 0; k < count; ++k) {
                      answer.add(x[k]);
                  }
                  return answer;
              })
        .peer("OCCT", same, [](const Equation &in) { return byOcct(in.c[0], in.c[1], in.c[2]); })
        .peer("Boost", same,
              [](const Equation &in) {
                  const auto [x, y] =
                      boost::math::tools::quadratic_roots(in.c[0], in.c[1], in.c[2]);
                  Answer answer;
                  if (!std::isnan(x)) {
                      answer.add(x);
                      answer.add(y);
                  }
                  return answer;
              }),
};

#ifdef HAS_BOOST_QUARTIC
template <class Roots> Answer boostRoots(const Roots &roots) {
    Answer answer;
    for (const double x : roots) {
        if (!std::isnan(x)) answer.add(x);
    }
    return answer;
}
#endif

int cubicsAndQuartics() {
    Comparison("cubic, all roots", equation)
        .ours("amaSolveEquationOf3rdD", closedForm<3, amaSolveEquationOf3rdD, allRoots>)
        .peer("GSL", same, [](const Equation &in) {
            gsl_complex z[3];
            gsl_poly_complex_solve_cubic(in.c[1] / in.c[0], in.c[2] / in.c[0], in.c[3] / in.c[0], z,
                                         z + 1, z + 2);
            return allRoots(z[0].dat, 3);
        });
    Comparison cubic("cubic, real roots", equation);
    cubic.ours("amaSolveEquationOf3rdD", closedForm<3, amaSolveEquationOf3rdD, realRoots>)
        .peer("GSL", same,
              [](const Equation &in) {
                  double x[3];
                  const int count = gsl_poly_solve_cubic(in.c[1] / in.c[0], in.c[2] / in.c[0],
                                                         in.c[3] / in.c[0], x, x + 1, x + 2);
                  Answer answer;
                  for (int k = 0; k < count; ++k) {
                      answer.add(x[k]);
                  }
                  return answer;
              })
        .peer("OCCT", same,
              [](const Equation &in) { return byOcct(in.c[0], in.c[1], in.c[2], in.c[3]); });
    Comparison("quartic, all roots", equation)
        .ours("amaSolveEquationOf4thD", closedForm<4, amaSolveEquationOf4thD, allRoots>)
        .peer("GSL", ascending<4>, byCompanionOfGsl<4>)
        .peer("Eigen", ascending<4>, byEigen<4>);
    Comparison quartic("quartic, real roots", equation);
    quartic.ours("amaSolveEquationOf4thD", closedForm<4, amaSolveEquationOf4thD, realRoots>)
        .peer("OCCT", same, [](const Equation &in) {
            return byOcct(in.c[0], in.c[1], in.c[2], in.c[3], in.c[4]);
        });
#ifdef HAS_BOOST_QUARTIC
    using namespace boost::math::tools;
    cubic.peer("Boost", same, [](const Equation &in) {
        return boostRoots(cubic_roots(in.c[0], in.c[1], in.c[2], in.c[3]));
    });
    quartic.peer("Boost", same, [](const Equation &in) {
        return boostRoots(quartic_roots(in.c[0], in.c[1], in.c[2], in.c[3], in.c[4]));
    });
#endif
    return 0;
}

const int kClosedForms = cubicsAndQuartics();

template <std::size_t Degree> int iterations() {
    return Comparison("degree " + std::to_string(Degree) + ", all roots", equation, 1e-5)
        .ours("amaDKA",
              [](const Equation &in) {
                  double c[Degree + 1], out[2 * Degree]; // c is changed by the call
                  std::copy_n(in.c, Degree + 1, c);
                  amaDKA(c, static_cast<int32_t>(Degree), 1e-12, 500.0, out);
                  return allRoots(out, Degree);
              })
        .ours("amaBairstaw",
              [](const Equation &in) {
                  double out[2 * Degree];
                  if (amaBairstaw(in.c, static_cast<int32_t>(Degree), out) != 0) return Answer{};
                  return allRoots(out, Degree);
              })
        .peer("GSL", ascending<Degree>, byCompanionOfGsl<Degree>)
        .peer("Eigen", ascending<Degree>, byEigen<Degree>);
}

const int kIterations[] = {iterations<5>(), iterations<6>(), iterations<10>(), iterations<20>()};

struct Value {
    double re, im;
};
Value value(Random &random) { return {random.uniform(-10.0, 10.0), random.uniform(-10.0, 10.0)}; }

Answer root(double re, double im) {
    Answer answer;
    answer.add(re, im);
    return answer;
}

const int kSquareRoot =
    Comparison("complex square root", value)
        .ours("ama_c_sqrt",
              [](const Value &in) {
                  const DTCOMPLEX z = ama_c_sqrt({in.re, in.im});
                  return root(z.re, z.im);
              })
        .peer(
            "libstdc++", [](const Value &in) { return std::complex<double>(in.re, in.im); },
            [](const std::complex<double> &in) {
                const std::complex<double> z = std::sqrt(in);
                return root(z.real(), z.imag());
            })
        .peer(
            "GSL", [](const Value &in) { return gsl_complex_rect(in.re, in.im); },
            [](const gsl_complex &in) {
                const gsl_complex z = gsl_complex_sqrt(in);
                return root(GSL_REAL(z), GSL_IMAG(z));
            });

} // namespace
