// Where two shapes meet.
#pragma once

#include <array>
#include <cstddef>
#include <string>

#include "drawing.h"

namespace draft {

/// The points common to two shapes, in the order of the library's answer; then their ends.
struct Meeting {
    static constexpr std::size_t kMost = 4;

    std::array<DTPOINT, kMost> points{};
    std::size_t count = 0;
    bool overlaps = false; ///< the shapes share a stretch; the points are its ends
    bool known = true;     ///< false where the library refuses the pair

    void add(DTPOINT p) { points[count++] = p; }
};

Meeting meetingOf(const Shape &first, const Shape &second);
/// "line with arc".
std::string pairName(const Shape &first, const Shape &second);

} // namespace draft
