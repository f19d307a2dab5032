// Lengths and areas.
#pragma once

#include <optional>

#include "drawing.h"

namespace draft {

struct Measure {
    double length;
    std::optional<double> area; ///< of a closed shape
};

/// The library keeps the ellipse that it measures in a table of its own: not for two threads.
Measure measureOf(const Shape &shape);

/// Of a whole polyline; one that crosses itself has the difference of its loops as its area.
Measure measureOf(const Drawing &drawing, const Outline &outline);

} // namespace draft
