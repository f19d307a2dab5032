// The contents of a file before its blocks are unfolded, and the unfolding.
#pragma once

#include <map>
#include <memory>
#include <string>
#include <variant>
#include <vector>

#include "affine.h"
#include "drawing.h"
#include "record_feed.h"

namespace draft {

/// A block set into the drawing or into another block, possibly as a grid.
struct Insert {
    std::string block; ///< blockKey() of its name
    Affine outer;      ///< from the grid to the plane
    Affine inner;      ///< from the block to one cell of the grid
    int columns, rows;
    double columnStep, rowStep;
    std::uint32_t layer, source;
};

struct Polyline {
    std::vector<Shape> segments;
    bool closed;
    std::uint32_t layer, source;
};

struct Block {
    DTPOINT base = {0.0, 0.0};
    /// In the order of the file. Plain entities are by far the most, so the others stand apart.
    std::vector<std::variant<Entity, std::unique_ptr<Polyline>, std::unique_ptr<Insert>>> items;
};

/// Blocks by blockKey() of their name; the drawing itself has the empty name.
using Blocks = std::map<std::string, Block>;

/// Adds to a drawing what its file holds, inserted blocks unfolded; throws Failure where they
/// unfold without end.
void unfold(const Blocks &blocks, const TallyByBlock &leftOut, Drawing &drawing);

} // namespace draft
