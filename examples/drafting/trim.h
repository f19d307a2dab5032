// Cutting a piece out of a shape.
#pragma once

#include <optional>
#include <vector>

#include "drawing.h"

namespace draft {

struct Trim {
    std::vector<Shape> left; ///< one or two, the start's first
    Shape removed;
};

/// Takes out the piece of a shape around a point, up to the nearest cuts on both sides. Nothing
/// where the cuts bound no piece: none lies within an open shape, or fewer than two on a closed
/// one.
std::optional<Trim> trimmed(const Shape &shape, const std::vector<DTPOINT> &cuts, DTPOINT pick);

} // namespace draft
