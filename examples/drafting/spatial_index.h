// Finds entities by where they are.
#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "drawing.h"

namespace draft {

/// An R-tree over boxes; reading it from several threads is safe.
class SpatialIndex {
  public:
    explicit SpatialIndex(const std::vector<Box> &boxes);
    ~SpatialIndex();
    SpatialIndex(const SpatialIndex &) = delete;
    SpatialIndex &operator=(const SpatialIndex &) = delete;

    /// Sets @p out to the places of the boxes that come within a distance of a box, in x and in
    /// y; in rising order.
    void find(const Box &box, double distance, std::vector<std::uint32_t> &out) const;

  private:
    struct Tree;
    std::unique_ptr<Tree> tree_;
};

std::vector<Box> boxesOf(const Drawing &drawing);

} // namespace draft
