/// The composite Simpson rule over a range of degrees, its step halved until the sum settles.
#pragma once

#include <cmath>
#include <cstdint>

#include "base/tolerance.h"
#include "base/vec2.h"

namespace planegeo {

inline constexpr double kUnitRoundoff = 0x1p-53;
/// h / 3 in radians, per degree of h.
inline constexpr double kThirdRadPerDeg = 0.005817764173314432;

/// One pass of the rule.
struct SimpsonSum {
    double value;
    double uncertainty;    ///< how far at most from the sum over samples; 0 for that sum itself
    std::int32_t code = 0; ///< of an integrand that refused; the value is then none
};

enum class Refinement {
    done,           ///< settled, or ended by kSmallestStepDeg
    outOfIntervals, ///< the next pass would have too many intervals
    refused,        ///< the integrand returned a code
    undecided,      ///< an uncertain sum lies too near to a decision
};

struct Integral {
    Refinement outcome;
    double value = 0.0; ///< 0 unless done
    double uncertainty = 0.0;
    std::int32_t code = 0;    ///< the integrand's own, 0 unless refused
    std::int64_t samples = 2; ///< that the plain steps take, both ends included
};

/// Whether the comparison of |x| with a limit could turn out otherwise.
inline bool isOpen(double x, double limit, double uncertainty) {
    return std::fabs(std::fabs(x) - limit) < uncertainty;
}

/// Intervals for a length in units of an interval: even and at least 4. The length lies below
/// 2^62 or is NaN.
inline std::int64_t evenIntervals(double length) {
    if (!(length >= 4.0)) return 4;
    const auto whole = static_cast<std::int64_t>(length);
    return whole + whole % 2;
}

/// Refines sums over `span` degrees, pass(n) being that of n intervals, until two agree. The
/// first takes about one interval per degree. A span below 4 * kSmallestStepDeg, or an empty
/// one, gives 0.
///
/// `longestPass` is the interval count after which the step is halved no more. A range of more
/// degrees, an infinite or a NaN one would not settle in any reasonable time: it is out of
/// intervals without a walk.
template <class Pass> Integral refine(double span, std::int64_t longestPass, Pass pass) {
    if (!(span <= static_cast<double>(longestPass))) return {Refinement::outOfIntervals};
    Integral found = {Refinement::done};
    for (std::int64_t n = evenIntervals(span);; n *= 2) {
        if (span / static_cast<double>(n) < kSmallestStepDeg) return found;
        const SimpsonSum s = pass(n);
        if (s.code != 0) return {Refinement::refused, 0.0, 0.0, s.code};
        found.samples += n - 1;
        const double change = s.value - found.value;
        if (isOpen(change, kSettledIntegral, s.uncertainty + found.uncertainty)) {
            return {Refinement::undecided};
        }
        found.value = s.value;
        found.uncertainty = s.uncertainty;
        if (std::fabs(change) <= kSettledIntegral) return found;
        if (n > longestPass) {
            return {Refinement::outOfIntervals, 0.0, 0.0, 0, found.samples};
        }
    }
}

/// The integral of f over [lo, hi], f(degrees, value) returning a code.
///
/// The ends are asked before anything else, in this order, and every pass asks its interior
/// points afresh: an integrand of the host can observe both.
template <class Integrand>
Integral sampledIntegral(Integrand f, double lo, double hi, std::int64_t longestPass) {
    double atStart = 0.0;
    double atEnd = 0.0;
    if (const std::int32_t code = f(lo, atStart)) return {Refinement::refused, 0.0, 0.0, code};
    if (const std::int32_t code = f(hi, atEnd)) return {Refinement::refused, 0.0, 0.0, code};
    return refine(hi - lo, longestPass, [&](std::int64_t n) -> SimpsonSum {
        const double h = (hi - lo) / static_cast<double>(n);
        double sum = 0.0;
        for (std::int64_t i = 1; i < n; ++i) {
            double value = 0.0;
            if (const std::int32_t code = f(lo + static_cast<double>(i) * h, value)) {
                return {0.0, 0.0, code};
            }
            sum += (i % 2 == 1 ? 4.0 : 2.0) * value;
        }
        return {(atStart + atEnd + sum) * h * kPi / 540.0, 0.0}; // h / 3 in radians
    });
}

} // namespace planegeo
