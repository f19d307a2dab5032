// Reads a DXF drawing by dxflib.
#pragma once

#include <string>

#include "drawing.h"

namespace draft {

/// Lines, circles, arcs, ellipses and polylines, those of inserted blocks too. Whatever else
/// the file holds is counted by its kind. Throws Failure when the file cannot be trusted.
Drawing readDxf(const std::string &path);

} // namespace draft
