/// Questions about segments that other rooms ask too.
#pragma once

#include <cstdint>

#include "base/settings.h"
#include "base/vec2.h"

namespace planegeo {

struct Segment {
    Vec2 start;
    Vec2 end;

    constexpr Vec2 direction() const { return end - start; }
};

inline Segment load(const DTPOINT *a, const DTPOINT *b) { return {load(a), load(b)}; }

enum class OnSegment : std::int32_t { yes = 0, no = 1, segmentTooShort = -1 };

/// Whether a point lies on a segment within errdist; the ends are asked before the length.
OnSegment onSegment(const Segment &segment, Vec2 q);

} // namespace planegeo
