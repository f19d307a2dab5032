/// The inverse of the length along an ellipse whose longer half axis is 1.
#pragma once

#include <optional>

#include "ellipse/unit_speed.h"

namespace planegeo {

/// From an end of the longer axis to an angle, both ways.
double lengthAt(const UnitSpeed &arc, const Offset &at);
/// Degrees. The length there is the given one to within `precision`. Nothing beyond some hundred
/// turns, or where it is not found in a few steps.
std::optional<double> angleAtLength(const UnitSpeed &arc, double length, double precision);

} // namespace planegeo
