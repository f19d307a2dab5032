/// The composite Simpson rule over a range of degrees, its step halved until the sum settles.
#pragma once

#include <cmath>
#include <cstdint>

#include "base/tolerance.h"
#include "base/vec2.h"

namespace planegeo {

enum class Refinement {
    done,           ///< settled, or ended by kSmallestStepDeg
    outOfIntervals, ///< the next pass would have too many intervals
    refused,        ///< the integrand returned a code
};

struct Integral {
    Refinement outcome;
    double value;         ///< 0 unless done
    std::int32_t code;    ///< the integrand's own, 0 unless refused
    std::int64_t samples; ///< how often the integrand was asked
};

/// Intervals for a length in units of an interval: even and at least 4. The length lies below
/// 2^62 or is NaN.
inline std::int64_t evenIntervals(double length) {
    if (!(length >= 4.0)) return 4;
    const auto whole = static_cast<std::int64_t>(length);
    return whole + whole % 2;
}

/// The integral of f over [lo, hi], f(degrees, value) returning a code.
///
/// The first pass takes about one interval per degree. The ends are asked before anything else,
/// in this order, and every pass asks its interior points afresh: both can be observed by an
/// integrand of the host. A range below 4 * kSmallestStepDeg, or an empty one, gives 0.
///
/// `longestPass` is the interval count after which the step is halved no more. A range of more
/// degrees, an infinite or a NaN one would not settle in any reasonable time: it is out of
/// intervals without a walk.
template <class Integrand>
Integral simpson(Integrand f, double lo, double hi, std::int64_t longestPass) {
    std::int64_t samples = 0;
    std::int32_t code = 0;
    const auto sample = [&](double deg) {
        double value = 0.0;
        ++samples;
        code = f(deg, value);
        return value;
    };
    const double atStart = sample(lo);
    if (code != 0) return {Refinement::refused, 0.0, code, samples};
    const double atEnd = sample(hi);
    if (code != 0) return {Refinement::refused, 0.0, code, samples};

    const double span = hi - lo;
    if (!(span <= static_cast<double>(longestPass))) {
        return {Refinement::outOfIntervals, 0.0, 0, samples};
    }
    std::int64_t n = evenIntervals(span);
    double settled = 0.0; // the sum of the pass before
    for (;;) {
        const double h = span / static_cast<double>(n);
        if (h < kSmallestStepDeg) return {Refinement::done, settled, 0, samples};
        double sum = 0.0;
        for (std::int64_t i = 1; i < n; ++i) {
            const double value = sample(lo + static_cast<double>(i) * h);
            if (code != 0) return {Refinement::refused, 0.0, code, samples};
            sum += (i % 2 == 1 ? 4.0 : 2.0) * value;
        }
        const double s = (atStart + atEnd + sum) * h * kPi / 540.0; // h / 3 in radians
        if (std::fabs(s - settled) <= kSettledIntegral) return {Refinement::done, s, 0, samples};
        if (n > longestPass) return {Refinement::outOfIntervals, 0.0, 0, samples};
        settled = s;
        n *= 2;
    }
}

} // namespace planegeo
