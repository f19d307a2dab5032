// A polyline as the segments that it consists of.
#pragma once

#include <vector>

#include "drawing.h"

namespace draft {

struct Vertex {
    DTPOINT at;
    double bulge; ///< of the segment to the next vertex: tan(sweep / 4), positive anticlockwise
};

struct Segments {
    std::vector<Shape> shapes;  ///< lines, and arcs where a segment bulges
    std::size_t ofNoLength = 0; ///< left out
    std::size_t nearlyFlat = 0; ///< lines instead of arcs that bulge by less than a ten-thousandth
};

Segments segmentsOf(const std::vector<Vertex> &vertices, bool closed);

} // namespace draft
