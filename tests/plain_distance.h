// The sampled distance of a point to an elliptic arc, step by step: every sample computed.
#pragma once

#include <cmath>

#include "planegeo.h"

namespace plain {

/// Room for the samples that the steps store; spans that need more end there.
inline constexpr int kMaxSamples = 364;

struct Nearest {
    int index;
    double parameterDeg;
    double distance;
};

/// The samples from, from + 1, ... not above a bound, each times a unit.
inline Nearest nearestSample(double from, double bound, double unit, double halfA, double halfB,
                             DTPOINT q) {
    Nearest best = {-1, NAN, NAN};
    double value = from;
    for (int i = 0; i < kMaxSamples && value <= bound; ++i, value += 1.0) {
        const double deg = value * unit;
        const double x = halfA * std::cos(deg * 0.017453292519943295) - q.x;
        const double y = halfB * std::sin(deg * 0.017453292519943295) - q.y;
        const double distance = std::sqrt(x * x + y * y);
        if (i == 0 || distance < best.distance) best = {i, deg, distance};
    }
    return best;
}

inline double dstpp(const DTPOINT &center, double a, double b, double rot, const double *angles,
                    const DTPOINT &p, DTPOINT *out) {
    if (ca_onelp(&center, a, b, rot, angles, &p) == 0) {
        *out = p;
        return 0.0;
    }
    const double start = angles[0];
    double end = angles[1];
    if (start > end) end = std::fmax(start, end + 360.0 * std::ceil((start - end) / 360.0));
    DTPOINT q;
    pnt_std(&p, &center, -rot, &q);
    *out = {0.0, 0.0};
    const Nearest degree = nearestSample(start, end, 1.0, a * 0.5, b * 0.5, q);
    if (degree.index < 0) return NAN;
    double low = start + degree.index - 1.0;
    double high = start + degree.index + 1.0;
    if (low < start) low = start;
    if (high > end) high = end;
    const Nearest tenth = nearestSample(low * 10.0, high * 10.0, 0.1, a * 0.5, b * 0.5, q);
    const double rad = tenth.parameterDeg * 0.017453292519943295;
    const DTPOINT local = {a * 0.5 * std::cos(rad), b * 0.5 * std::sin(rad)};
    pnt_formd(&local, &center, rot, out);
    if (std::fabs(out->x) < 1e-6) out->x = 0.0;
    if (std::fabs(out->y) < 1e-6) out->y = 0.0;
    return tenth.distance;
}

} // namespace plain
