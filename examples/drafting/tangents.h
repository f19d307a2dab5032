// Tangents from a point, and common tangents of two curves.
#pragma once

#include <optional>
#include <vector>

#include "drawing.h"

namespace draft {

struct Tangent {
    DTPOINT from; ///< the given point, or where the tangent touches the first curve
    DTPOINT to;   ///< where it touches the curve, or the second of two
};

/// Whether a shape is a curve that tangents can be drawn to.
bool hasTangents(const Shape &shape);

/// Those that touch an arc within its range.
std::vector<Tangent> tangentsFrom(DTPOINT point, const Shape &curve);
/// Outer tangents first, then those that cross between the curves.
std::vector<Tangent> commonTangents(const Shape &first, const Shape &second);

} // namespace draft
