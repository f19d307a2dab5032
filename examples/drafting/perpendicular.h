// Perpendiculars from a point.
#pragma once

#include <vector>

#include "drawing.h"

namespace draft {

/// Where perpendiculars from a point meet a shape, within its ends.
std::vector<DTPOINT> perpendicularFeet(DTPOINT from, const Shape &shape);

} // namespace draft
