/// The inverse of arc length.
#pragma once

#include "ellipse/cosine_series.h"
#include "ellipse/speed.h"

namespace planegeo {

inline constexpr int kMostNewtonSteps = 60;

/// The parameter between lo and hi, degrees, at which a length reaches a value: Newton's method
/// from a guess t, kept in the bracket by halving it, until a step is shorter than `close`. The
/// length need not rise by exactly the speed, nor be summed to its last term.
inline double parameterAt(double value, const SineSeries &length, const ArcSpeed &speed, double t,
                          double lo, double hi, double close, int terms) {
    for (int i = 0; i < kMostNewtonSteps; ++i) {
        const Rotation turn = Rotation::ofDegrees(t);
        const double missing = value - length.at(t, turn, terms);
        const double step = missing / speed(turn) * kDegPerRad;
        const double next = t + step;
        if (std::fabs(step) < close) return next;
        (missing > 0.0 ? lo : hi) = t;
        t = next > lo && next < hi ? next : (lo + hi) * 0.5;
    }
    return t;
}

} // namespace planegeo
