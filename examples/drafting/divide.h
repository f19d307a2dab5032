// Dividing a shape into pieces of equal length.
#pragma once

#include <vector>

#include "drawing.h"

namespace draft {

struct Division {
    double pieceLength;
    /// Between the pieces, along the shape; of a closed shape its start comes last.
    std::vector<DTPOINT> points;
};

/// Throws Failure for an ellipse whose length the library cannot settle.
Division divisionOf(const Shape &shape, int pieces);

} // namespace draft
