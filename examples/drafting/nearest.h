// The point of a shape nearest to another.
#pragma once

#include "drawing.h"

namespace draft {

struct Nearest {
    DTPOINT point;
    double distance;
};

Nearest nearestOn(const Shape &shape, DTPOINT to);

} // namespace draft
