/// The inverse of the length along an ellipse whose longer half axis is 1.
#pragma once

#include <optional>

#include "ellipse/unit_speed.h"

namespace planegeo {

/// From an end of the longer axis to an angle, both ways.
double lengthAt(const UnitSpeed &arc, double deg);

struct AngleAtLength {
    double deg;
    Rotation turn; ///< from the nearest end of the longer axis, either way
};

/// The angle at which a length is reached to within `precision`. Nothing beyond some hundred turns,
/// or where it is not found in a few steps.
std::optional<AngleAtLength> angleAtLength(const UnitSpeed &arc, double length, double precision);

} // namespace planegeo
