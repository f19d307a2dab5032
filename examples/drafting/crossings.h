// All places of a drawing where two of its entities meet.
#pragma once

#include <vector>

#include "drawing.h"

namespace draft {

enum class CrossingKind {
    crossing,
    joint,  ///< both entities end there
    overlap ///< an end of a stretch that both share
};
inline constexpr std::size_t kCrossingKindCount = 3;

const char *nameOf(CrossingKind kind);

struct Crossing {
    std::size_t first, second; ///< places in Drawing::entities, first < second
    DTPOINT at;
    CrossingKind kind;
};

struct Crossings {
    std::vector<Crossing> found; ///< by first, then by second
    Tally unknown;               ///< pairs near each other that the library refuses
};

Crossings crossingsOf(const Drawing &drawing);

} // namespace draft
