// The points that a person may mean who points near them.
#pragma once

#include <optional>
#include <vector>

#include "drawing.h"
#include "spatial_index.h"

namespace draft {

/// In the order in which points at the same place are offered.
enum class SnapKind {
    end,
    middle,
    center,
    quadrant,
    intersection,
    perpendicular,
    tangent,
    nearest
};
inline constexpr std::size_t kSnapKindCount = 8;

const char *nameOf(SnapKind kind);

struct Snap {
    SnapKind kind;
    DTPOINT at;
    double distance; ///< from where the person points
    std::size_t entity;
    std::optional<std::size_t> other; ///< of an intersection
};

/// Answers for one drawing, which must outlive it.
class Snapper {
  public:
    explicit Snapper(const Drawing &drawing);

    /// Candidates within a radius, nearest first. Perpendiculars and tangents are those from a
    /// second point. The library divides ellipses in a table of its own: not for two threads.
    std::vector<Snap> near(DTPOINT at, double radius, std::optional<DTPOINT> from) const;

  private:
    const Drawing &drawing_;
    SpatialIndex index_;
};

} // namespace draft
