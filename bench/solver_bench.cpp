// Polynomial equations.

#include <algorithm>
#include <string>

#include "inputs.h"

namespace {

using namespace bench;

struct Value {
    DTCOMPLEX z;
};

/// As from two ellipses with a common centre and axes that are parallel.
Equation biquadratic(Random &random) {
    return {{1.0, 0.0, random.uniform(-10.0, 10.0), 0.0, random.uniform(-10.0, 10.0)}};
}
Value value(Random &random) { return {{random.uniform(-10.0, 10.0), random.uniform(-10.0, 10.0)}}; }

template <class Make, class Call>
int equationRow(const std::string &name, Make make, int degree, Call call) {
    return row(name, make, [call, degree](const Equation &in) {
        double out[2 * kMaxDegree];
        return call(in.c, out) + out[2 * degree - 2];
    });
}

const int kClosedForms[] = {
    equationRow("amaSolveLinerEquation", equation, 1, amaSolveLinerEquation),
    equationRow("amaSolveEquationOf2ndD", equation, 2, amaSolveEquationOf2ndD),
    equationRow("amaSolveEquationOf3rdD", equation, 3, amaSolveEquationOf3rdD),
    equationRow("amaSolveEquationOf4thD", equation, 4, amaSolveEquationOf4thD),
    equationRow("amaSolveEquationOf4thD/biquadratic", biquadratic, 4, amaSolveEquationOf4thD),
    row("ama_c_sqrt", value, [](const Value &in) { return ama_c_sqrt(in.z).re; }),
};

int newtonRow(const std::string &name, int degree) {
    return equationRow(name, equation, 1, [degree](const double *c, double *out) {
        return amaNewtonRaphson(c, degree, out);
    });
}
int bairstowRow(const std::string &name, int degree) {
    return equationRow(name, equation, degree, [degree](const double *c, double *out) {
        out[2 * degree - 2] = 0.0;
        return amaBairstaw(c, degree, out);
    });
}
int aberthRow(const std::string &name, int degree) {
    return equationRow(name, equation, degree, [degree](const double *in, double *out) {
        double c[kMaxDegree + 1]; // changed by the call
        std::copy_n(in, degree + 1, c);
        return amaDKA(c, degree, 1e-12, 500.0, out);
    });
}

/// The plain rows are of the lowest degree that is not solved in closed form, and for amaBairstaw
/// of that which conics ask for.
int iterations() {
    newtonRow("amaNewtonRaphson", 5);
    bairstowRow("amaBairstaw", 4);
    aberthRow("amaDKA", 5);
    for (const int degree : {6, 10, 19, 20, 40}) {
        const std::string suffix = "/" + std::to_string(degree);
        newtonRow("amaNewtonRaphson" + suffix, degree);
        bairstowRow("amaBairstaw" + suffix, degree);
        aberthRow("amaDKA" + suffix, degree);
    }
    return 0;
}

const int kIterations = iterations();

} // namespace
