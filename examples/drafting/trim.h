// Cutting a piece out of a shape.
#pragma once

#include <optional>
#include <vector>

#include "drawing.h"

namespace draft {

/// What is left of a shape when the piece around a point is taken out, up to the nearest cuts on
/// both sides: none, one or two shapes, the start's first. Nothing where the cuts bound no piece:
/// none lies within an open shape, or fewer than two on a closed one.
std::optional<std::vector<Shape>> trimmed(const Shape &shape, const std::vector<DTPOINT> &cuts,
                                          DTPOINT pick);

} // namespace draft
