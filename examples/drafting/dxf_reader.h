// Reads a DXF drawing by dxflib.
#pragma once

#include <string>
#include <vector>

#include "drawing.h"
#include "record_feed.h"

namespace draft {

struct DxfFile {
    std::string text;
    std::vector<Source> sources;
    Drawing drawing;
};

/// Lines, circles, arcs, ellipses and polylines, those of inserted blocks too. Whatever else
/// the file holds is counted by its kind. Throws Failure when the file cannot be trusted.
DxfFile readDxf(const std::string &path);

} // namespace draft
