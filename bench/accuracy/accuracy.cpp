// Prints how far the roots found by planegeo, GSL and Boost lie from those in quadruple precision.

#include <cstdio>
#include <functional>
#include <random>

#include "solvers.h"
#include "truth.h"

namespace {

using namespace accuracy;

constexpr int kPolynomials = 2000;
/// The relative error below which a root counts as right.
constexpr double kRight = 1e-6;

class Random {
  public:
    double uniform(double low, double high) {
        return low + (high - low) * (static_cast<double>(engine_() >> 11) * 0x1p-53);
    }
    double logUniform(double low, double high) {
        return std::exp(uniform(std::log(low), std::log(high)));
    }
    bool heads() { return engine_() % 2 == 0; }

  private:
    std::mt19937_64 engine_{20240229};
};

/// Multiplied out in quadruple precision and rounded once.
Coefficients fromRoots(const std::vector<Root> &roots) {
    std::vector<__float128> c = {1};
    for (const Root &root : roots) {
        const __float128 re = root.real(), im = root.imag();
        const bool isReal = root.imag() == 0.0;
        std::vector<__float128> product(c.size() + (isReal ? 1 : 2));
        for (std::size_t i = 0; i < c.size(); ++i) {
            product[i] += c[i];
            product[i + 1] -= (isReal ? re : 2 * re) * c[i];
            if (!isReal) product[i + 2] += (re * re + im * im) * c[i];
        }
        c = product;
    }
    Coefficients rounded(c.size());
    std::transform(c.begin(), c.end(), rounded.begin(),
                   [](__float128 v) { return static_cast<double>(v); });
    return rounded;
}

Coefficients randomCoefficients(Random &random, std::size_t degree) {
    Coefficients c(degree + 1);
    for (double &v : c) {
        v = random.uniform(-1, 1);
    }
    return c;
}

Coefficients realRoots(Random &random, std::size_t degree) {
    std::vector<Root> roots(degree);
    for (Root &root : roots) {
        root = random.uniform(-10, 10);
    }
    return fromRoots(roots);
}

Coefficients mixedRoots(Random &random, std::size_t degree) {
    std::vector<Root> roots;
    for (std::size_t left = degree; left > 0;) {
        const bool pair = left > 1 && random.heads();
        const double re = random.uniform(-10, 10);
        roots.emplace_back(re, pair ? random.uniform(0.1, 10) : 0.0);
        left -= pair ? 2 : 1;
    }
    return fromRoots(roots);
}

Coefficients sixDecades(Random &random, std::size_t degree) {
    std::vector<Root> roots(degree);
    for (Root &root : roots) {
        root = random.logUniform(1e-3, 1e3) * (random.heads() ? 1 : -1);
    }
    return fromRoots(roots);
}

Coefficients twoClose(Random &random, std::size_t degree) {
    std::vector<Root> roots(degree);
    for (Root &root : roots) {
        root = random.uniform(-10, 10);
    }
    roots[1] = roots[0] * (1 + 1e-6);
    return fromRoots(roots);
}

/// Symmetric about zero but for a small linear term.
Coefficients nearlyBiquadratic(Random &random, double linear) {
    return {1, 0, random.uniform(-10, 10), linear, random.uniform(-10, 10)};
}

struct Kind {
    const char *name;
    std::function<Coefficients(Random &, std::size_t)> make;
    bool allReal;
};

struct Errors {
    std::vector<double> all;

    double quantile(double share) {
        std::sort(all.begin(), all.end());
        return all[static_cast<std::size_t>(share * static_cast<double>(all.size() - 1))];
    }
    /// Per cent of the polynomials with every root right.
    double right() const {
        const auto count =
            std::count_if(all.begin(), all.end(), [](double e) { return e < kRight; });
        return 100.0 * static_cast<double>(count) / static_cast<double>(all.size());
    }
};

using Solver = std::vector<Root> (*)(const Coefficients &);

std::vector<Errors> measure(const Kind &kind, std::size_t degree,
                            const std::vector<Solver> &solvers) {
    Random random;
    std::vector<Errors> errors(solvers.size());
    for (int i = 0; i < kPolynomials; ++i) {
        const Coefficients c = kind.make(random, degree);
        const std::vector<Quad> roots = trueRoots(c);
        for (std::size_t s = 0; s < solvers.size(); ++s) {
            errors[s].all.push_back(largestError(solvers[s](c), roots));
        }
    }
    return errors;
}

void printErrors(Errors &errors) {
    for (const double share : {0.99, 1.0}) {
        const double error = errors.quantile(share);
        if (std::isfinite(error)) {
            std::printf(" %.0e |", error);
        } else {
            std::printf(" NaN |");
        }
    }
}

void printClosedForms(const Kind &kind, std::size_t degree) {
    auto errors = measure(kind, degree, {closedForm, gslClosedForm, boostClosedForm});
    std::printf("| %zu | %s |", degree, kind.name);
    printErrors(errors[0]);
    printErrors(errors[1]);
    if (kind.allReal) {
        printErrors(errors[2]);
    } else {
        std::printf(" | |");
    }
    std::puts("");
}

void closedForms() {
    const Kind kinds[] = {
        {"coefficients in [-1, 1]", randomCoefficients, false},
        {"real roots in [-10, 10]", realRoots, true},
        {"real and complex roots", mixedRoots, false},
        {"real roots over six decades", sixDecades, true},
        {"two real roots 1e-6 apart", twoClose, true},
    };
    std::puts("| degree | polynomials | planegeo: 99 % | worst | GSL: 99 % | worst "
              "| Boost: 99 % | worst |\n|---|---|---|---|---|---|---|---|");
    for (std::size_t degree = 2; degree <= 4; ++degree) {
        for (const Kind &kind : kinds) {
            printClosedForms(kind, degree);
        }
    }
}

bool isRightlyCounted(const Coefficients &c, const std::vector<Quad> &roots) {
    double out[8];
    return amaSolveEquationOf4thD(c.data(), out) ==
           std::count_if(roots.begin(), roots.end(), [](Quad root) {
               return std::fabs(static_cast<double>(root.im)) <
                      1e-20 * size(root); // the others are far from real
           });
}

void nearlyBiquadratics() {
    std::puts("| q | amaSolveEquationOf4thD | count of real roots | amaDKA |\n|---|---|---|---|");
    for (int exponent = -14; exponent <= -2; ++exponent) {
        const double linear = std::pow(10.0, exponent);
        Random random;
        Errors quartic, iteration;
        int counted = 0;
        for (int i = 0; i < kPolynomials; ++i) {
            const Coefficients c = nearlyBiquadratic(random, linear);
            const std::vector<Quad> roots = trueRoots(c);
            quartic.all.push_back(largestError(closedForm(c), roots));
            iteration.all.push_back(largestError(aberth(c), roots));
            counted += isRightlyCounted(c, roots) ? 1 : 0;
        }
        std::printf("| %.0e | %.1f %% | %.1f %% | %.1f %% |\n", linear, quartic.right(),
                    100.0 * counted / kPolynomials, iteration.right());
    }
}

void iterations() {
    const Kind kinds[] = {
        {"coefficients in [-1, 1]", randomCoefficients, false},
        {"real and complex roots", mixedRoots, false},
    };
    std::puts("| degree | polynomials | amaBairstaw | amaDKA | GSL |\n|---|---|---|---|---|");
    for (const Kind &kind : kinds) {
        for (const std::size_t degree : {5U, 6U, 7U, 8U, 9U, 10U, 12U, 15U, 19U}) {
            std::printf("| %zu | %s |", degree, kind.name);
            for (const Errors &e : measure(kind, degree, {bairstow, aberth, gslCompanion})) {
                std::printf(" %.1f %% |", e.right());
            }
            std::puts("");
        }
    }
}

} // namespace

int main() {
    closedForms();
    std::puts("");
    nearlyBiquadratics();
    std::puts("");
    iterations();
}
