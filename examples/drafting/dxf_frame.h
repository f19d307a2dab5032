// What a DXF of the year 2000's form needs around its entities, so that other programs read it.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include <dl_dxf.h>

namespace draft {

struct FrameLayer {
    std::string name;
    int color; ///< index of the usual palette, 1 to 255
};

struct FrameBlock {
    std::string name;
    std::function<void(DL_Dxf &, DL_WriterA &)> writeContents;
};

/// The text of a whole file: header, tables, blocks, the entities that a function adds, objects.
/// Throws Failure where there is no room for it.
std::string framedText(const std::vector<FrameLayer> &layers, const std::vector<FrameBlock> &blocks,
                       const std::function<void(DL_Dxf &, DL_WriterA &)> &writeEntities);

/// By layer in everything.
DL_Attributes onLayer(const std::string &layer);

} // namespace draft
