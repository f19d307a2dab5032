// All roots of a polynomial: in closed form up to degree four, above by Bairstow's quadratic
// factors, after a Newton root where the degree is odd.
//
// A factor is accepted on the smallest residual seen in the whole call, and the residuals end at
// rounding level: the outcome hangs on the last bit. So every expression stands in the order that
// hosts have always had, of + - * / and absolute values only, on which all platforms agree.

#include "solver/bairstow.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "base/tolerance.h"
#include "planegeo.h"
#include "solver/closed_form.h"
#include "solver/newton.h"

namespace {

using namespace planegeo;

constexpr int kMaxIterations = 100;

/// x^2 + v x + u
struct Factor {
    double v;
    double u;
};

/// What is left of a polynomial b of degree d after dividing it by a factor, and the quotient once
/// more: B[i] = b[i] - v B[i-1] - u B[i-2], E[i] = B[i] - v E[i-1] - u E[i-2].
struct DoubleDivision {
    double linear;   ///< B[d-1]
    double constant; ///< B[d]
    double e2;       ///< E[d-2]
    double e3;       ///< E[d-3]
};

DoubleDivision divideTwice(const double *b, int degree, Factor factor) {
    const auto [v, u] = factor;
    double b1 = 0.0, b2 = 0.0, e1 = 0.0, e2 = 0.0; // the last value of B and E, the one before
    for (int i = 0; i <= degree - 2; ++i) {
        const double quotient = b[i] - v * b1 - u * b2;
        const double second = quotient - v * e1 - u * e2;
        b2 = b1;
        b1 = quotient;
        e2 = e1;
        e1 = second;
    }
    const double linear = b[degree - 1] - v * b1 - u * b2;
    const double constant = b[degree] - v * linear - u * b1;
    return {linear, constant, e1, e2};
}

Factor improved(Factor factor, const DoubleDivision &rest) {
    const auto [v, u] = factor;
    const double g = -(v * rest.e2 + u * rest.e3);
    const double determinant = rest.e2 * rest.e2 - g * rest.e3;
    if (determinant == 0.0) return {v + 1.0, u + 1.0};
    return {v + (rest.e2 * rest.linear - rest.e3 * rest.constant) / determinant,
            u + (rest.e2 * rest.constant - g * rest.linear) / determinant};
}

/// The best factor of a call so far. It carries over from one factor to the next, on purpose: a
/// later search that never gets below its residual takes the earlier factor once more.
struct BestFactor {
    double residual = kBairstowWorstResidual;
    Factor factor = {0.0, 0.0};

    bool isUnset() const { return residual == kBairstowWorstResidual; }
};

/// Notices when the factors of a search come back to one that they had: from then on the search
/// repeats itself. A later one is remembered ever again, so that it is found wherever it starts.
class RepetitionFinder {
  public:
    explicit RepetitionFinder(Factor start) : remembered_(start) {}

    /// To be asked after each step, with the number of steps made. The sign of a zero is no
    /// difference: no factor is divided by.
    bool isBack(Factor factor, int steps) {
        if (factor.v == remembered_.v && factor.u == remembered_.u) return true;
        if (steps == next_) {
            remembered_ = factor;
            next_ += 4 + next_ / 4;
        }
        return false;
    }

  private:
    Factor remembered_;
    int next_ = 4;
};

Factor findFactor(const double *b, int degree, double largest, BestFactor &best) {
    Factor factor = {1.0, 1.0};
    RepetitionFinder finder(factor);
    for (int steps = 1; steps <= kMaxIterations; ++steps) {
        const DoubleDivision rest = divideTwice(b, degree, factor);
        factor = improved(factor, rest);
        // The rest belongs to the factor before this step, the coefficient v to the one after.
        const double residual =
            (std::fabs(rest.linear * factor.v + rest.constant) + std::fabs(rest.linear)) / largest;
        if (residual <= kBairstowExactResidual) return factor;
        if (residual == best.residual) return best.factor;
        if (residual < best.residual) best = {residual, factor};
        // What comes again is no better than it was.
        if (finder.isBack(factor, steps)) break;
    }
    return best.factor;
}

/// Replaces the polynomial by its quotient and the last two coefficients by the factor.
void deflate(double *b, int degree, Factor factor) {
    const auto [v, u] = factor;
    double b1 = 0.0, b2 = 0.0;
    for (int i = 0; i <= degree - 2; ++i) {
        b[i] = b[i] - v * b1 - u * b2;
        b2 = b1;
        b1 = b[i];
    }
    b[degree - 1] = v;
    b[degree] = u;
}

/// Leaves the factors in pairs b[1], b[2]; b[3], b[4]; ..., the last one found first. The degree
/// is even and above two.
bool factorise(double *b, int degree) {
    const double largest = largestMagnitude(b, degree);
    BestFactor best;
    for (int d = degree; d >= 4; d -= 2) {
        best.factor = findFactor(b, d, largest, best);
        if (best.isUnset()) return false; // also where the residual was exactly zero at once
        deflate(b, d, best.factor);
    }
    b[1] = b[1] / b[0];
    b[2] = b[2] / b[0];
    return true;
}

/// Writes the two roots of a factor. The second of a complex pair is not the conjugate of the first
/// but its mirror image in the imaginary axis, on purpose.
void storeRoots(Factor factor, double *out) {
    const auto [v, u] = factor;
    const double discriminant = v * v - 4.0 * u;
    const double r = std::sqrt(std::fabs(discriminant));
    if (discriminant >= kBairstowRealDiscriminant) {
        store(real((v - r) * -0.5), out);
        store(real((v + r) * -0.5), out + 2);
    } else {
        store({-v / 2.0, r / 2.0}, out);
        store({v / 2.0, r / 2.0}, out + 2);
    }
}

template <std::size_t Degree>
Bairstow solveInClosedForm(Roots<Degree> (*solve)(const double *), const double *c, double *out) {
    const std::int32_t count = store(solve(c), out);
    return count == kNoLeadingCoefficient ? Bairstow::noPolynomial : Bairstow::done;
}

/// The quotient of c by x - root, without the remainder.
void divideByRoot(const double *c, int degree, double root, double *quotient) {
    quotient[0] = c[0];
    for (int i = 1; i < degree; ++i) {
        quotient[i] = root * quotient[i - 1] + c[i];
    }
}

/// Degree above four; c[0] is not zero.
Bairstow solveByFactors(const double *c, int degree, double *out) {
    double b[kMaxDegree + 1];
    int even = degree;
    double *const last = out + 2 * static_cast<std::ptrdiff_t>(degree - 1);
    if (degree % 2 == 0) {
        std::copy_n(c, degree + 1, b);
    } else {
        even = degree - 1;
        const NewtonRoot root = findRealRoot(c, degree);
        divideByRoot(c, degree, root.x, b);
        last[0] = root.x; // also where it is the last iterate only
        if (!root.converged) return Bairstow::noRealRoot;
        last[1] = 0.0;
    }
    if (!factorise(b, even)) return Bairstow::noFactor;
    for (int k = 1; k < even; k += 2, out += 4) {
        storeRoots({b[k], b[k + 1]}, out);
    }
    return Bairstow::done;
}

} // namespace

namespace planegeo {

Bairstow solveByBairstow(const double *c, int degree, double *out) {
    if (degree < 1 || degree > kMaxDegree || c[0] == 0.0) return Bairstow::noPolynomial;
    switch (degree) {
    case 1:
        out[0] = -c[1] / c[0]; // one double, without an imaginary part
        return Bairstow::done;
    case 2:
        return solveInClosedForm(solveQuadratic, c, out);
    case 3:
        return solveInClosedForm(solveCubic, c, out);
    case 4:
        return solveInClosedForm(solveQuartic, c, out);
    default:
        return solveByFactors(c, degree, out);
    }
}

} // namespace planegeo

extern "C" {

int32_t amaBairstaw(const double *c, int32_t n, double *out) {
    return static_cast<int32_t>(solveByBairstow(c, n, out));
}

} // extern "C"
