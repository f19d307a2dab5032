// A polyline as the segments that it consists of.
#pragma once

#include <vector>

#include "drawing.h"

namespace draft {

struct Vertex {
    DTPOINT at;
    double bulge; ///< of the segment to the next vertex: tan(sweep / 4), positive anticlockwise
};

/// Lines, and arcs where a segment bulges; a segment of no length is left out, and counted.
std::vector<Shape> segmentsOf(const std::vector<Vertex> &vertices, bool closed, Tally &leftOut);

} // namespace draft
