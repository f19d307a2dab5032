/// The search for the limit of an integral of a given value.
#pragma once

#include <cstdint>

#include "ellipse/measurer.h"

namespace planegeo {

struct FoundLimit {
    bool found;
    std::int32_t code; ///< when found 0 or kOutOfIntervals, else kGaveUp or the integrand's own
    double limit;
};

inline constexpr std::int32_t kGaveUp = -1;
inline constexpr std::int32_t kOutOfIntervals = -2;

/// Moves one limit until the integral is the wanted one, by steps that halve at each change of
/// direction. The search begins as if after a shrink, so its very first stretch is half a step.
FoundLimit searchLimit(Measurer measure, double lo, double hi, double wanted, bool movesLower);

} // namespace planegeo
