/// The zero of a function between two places where its signs differ.
#pragma once

#include <cmath>

namespace planegeo {

/// An abscissa with the function's value there; the value may be infinite.
struct Sample {
    double x;
    double y;
};

/// Where the line through two samples is zero.
inline double secantZero(Sample one, Sample other) {
    return (one.x * other.y - other.x * one.y) / (other.y - one.y);
}

/// Where to stop: at a value this near to zero, or at a step of this size relative to x.
struct Accuracy {
    double value = 0.0;
    double step = 0x1p-52;
};

/// Regula falsi after Anderson and Bjorck: a value that is kept twice is scaled by what the
/// secant left over. Ends after 100 steps at the latest.
template <class Function>
double rootBetween(Function f, Sample low, Sample high, Accuracy accuracy = {}) {
    double last = low.x;
    int kept = 0;
    for (int step = 0; step < 100; ++step) {
        double x = secantZero(low, high);
        if (!(x > low.x && x < high.x)) x = 0.5 * (low.x + high.x);
        const double y = f(x);
        if (std::fabs(y) <= accuracy.value) return x;
        if (std::fabs(x - last) <= accuracy.step * std::fabs(x)) return x;
        last = x;
        const bool isHigh = (y > 0.0) == (high.y > 0.0);
        Sample &moved = isHigh ? high : low;
        Sample &stays = isHigh ? low : high;
        if (kept == (isHigh ? -1 : 1)) {
            const double left = 1.0 - y / moved.y;
            stays.y *= left > 0.0 ? left : 0.5;
        }
        kept = isHigh ? -1 : 1;
        moved = {x, y};
    }
    return last;
}

} // namespace planegeo
