/// One real root by Newton's method.
#pragma once

namespace planegeo {

struct NewtonRoot {
    double x; ///< the root, or where the search ended
    bool converged;
};

/// The degree lies in [2, kMaxDegree] and c[0] is not zero.
NewtonRoot findRealRoot(const double *c, int degree);

} // namespace planegeo
