/// The process-wide settings.
#pragma once

#include <cstdint>

namespace planegeo {

inline constexpr int kSimpsonParameterCount = 10;

/// Plain variables on purpose: a host that changes them while others compute orders that itself.
struct Settings {
    double errdist = 1e-6;
    std::int32_t startendFlg = 0;
    double simpsonParameters[kSimpsonParameterCount] = {};
};

extern Settings settings;

/// errdist, asked at each use and never kept between calls.
inline double distanceTolerance() { return settings.errdist; }

/// Only the value 1 keeps the start of a cut element; every other value keeps its end.
inline bool keepsStart() { return settings.startendFlg == 1; }

} // namespace planegeo
