// Circular arcs in place of ellipses.
#pragma once

#include <optional>
#include <vector>

#include "drawing.h"

namespace draft {

/// A chain of arcs within a tolerance of an elliptic arc; nothing where the library refuses:
/// the tolerance is not positive, or so small that the chain would have too many arcs.
std::optional<std::vector<DTARC>> arcsFor(const DTELLIPSE &ellipse, double tolerance);

} // namespace draft
