// A drawing as a new DXF, written by dxflib.
#pragma once

#include <string>

#include "drawing.h"

namespace draft {

/// Entities as they are, with their layers; polylines as their segments. Throws Failure.
std::string dxfText(const Drawing &drawing);

} // namespace draft
