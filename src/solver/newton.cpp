// One real root of a polynomial by Newton's method. A step counts as small against the largest
// coefficient, not against the root.
//
// Where the search ends hangs on the last bit: every expression stands in the order that hosts
// have always had.

#include "solver/newton.h"

#include <cmath>

#include "base/tolerance.h"
#include "planegeo.h"
#include "solver/polynomial.h"

namespace {

using namespace planegeo;

constexpr int kMaxIterations = 200;

struct ValueAndSlope {
    double value;
    double slope;
};

ValueAndSlope evaluate(const double *c, int degree, double x) {
    double value = c[0];
    double slope = degree * c[0];
    for (int i = 1; i < degree; ++i) {
        value = value * x + c[i];
        slope = slope * x + (degree - i) * c[i];
    }
    return {value * x + c[degree], slope};
}

double secondDerivative(const double *c, int degree, double x) {
    double sum = degree * (degree - 1) * c[0];
    for (int i = 1; i <= degree - 2; ++i) {
        sum = sum * x + (degree - i) * (degree - i - 1) * c[i];
    }
    return sum;
}

/// The step where the slope is zero. The discriminant has the value in the place of the slope, on
/// purpose; where it is not positive the step is zero and the search ends, on a root or not.
double rescueStep(double value, double slope, double curvature) {
    const double discriminant = (value - 2.0 * curvature) * value;
    if (discriminant > 0.0) return 2.0 * value / (-slope - std::sqrt(discriminant));
    return value == 0.0 ? 0.0 : -slope / value;
}

double newtonStep(const double *c, int degree, double x) {
    const auto [value, slope] = evaluate(c, degree, x);
    if (slope != 0.0) return -value / slope; // a NaN slope, too
    return rescueStep(value, slope, secondDerivative(c, degree, x));
}

} // namespace

namespace planegeo {

// The first iterate that passes the tight tolerance is the root; when none does, the first one
// that passes the loose tolerance.
NewtonRoot findRealRoot(const double *c, int degree) {
    double sum = c[0];
    for (int i = 1; i <= degree; ++i) {
        sum += c[i];
    }
    const double largest = largestMagnitude(c, degree);
    double x = -sum / (degree + 1);
    NewtonRoot loose = {0.0, false};
    for (int i = 0; i < kMaxIterations; ++i) {
        const double step = newtonStep(c, degree, x);
        x += step;
        const double size = std::fabs(step) / largest;
        if (size <= kNewtonTightStep) return {x, true};
        if (size <= kNewtonLooseStep && !loose.converged) loose = {x, true};
    }
    return loose.converged ? loose : NewtonRoot{x, false};
}

} // namespace planegeo

extern "C" {

int32_t amaNewtonRaphson(const double *c, int32_t n, double *x) {
    if (n < 2 || n > kMaxDegree || c[0] == 0.0) return -1;
    const NewtonRoot root = findRealRoot(c, n);
    *x = root.x;
    return root.converged ? 0 : -2;
}

} // extern "C"
