#include "polyline.h"

#include <cmath>

namespace draft {

namespace {

/// A bulge that lifts the segment by less than this share of its length makes no arc.
constexpr double kFlatBulge = 1e-9;

/// The chord's ends and the arc's middle, which lies right of the chord for a positive bulge.
Shape arcOver(DTPOINT from, DTPOINT to, double bulge) {
    const DTPOINT chord = {to.x - from.x, to.y - from.y};
    const double height = (1.0 - bulge * bulge) / (4.0 * bulge);
    const DTPOINT center = {(from.x + to.x) / 2.0 - height * chord.y,
                            (from.y + to.y) / 2.0 + height * chord.x};
    const DTPOINT first = bulge > 0.0 ? from : to;
    const DTPOINT last = bulge > 0.0 ? to : from;
    DTARC arc = {bulge > 0.0 ? 0 : PLANEGEO_ATTR_REVERSED,
                 center.x,
                 center.y,
                 ca_dstpt(&center, &from),
                 atan2d(first.y - center.y, first.x - center.x),
                 atan2d(last.y - center.y, last.x - center.x)};
    a2d_StdSedeg(&arc.start, &arc.end);
    return arc;
}

Shape segment(const Vertex &from, DTPOINT to) {
    if (std::fabs(from.bulge) < kFlatBulge) return DTLINE{0, from.at.x, from.at.y, to.x, to.y};
    return arcOver(from.at, to, from.bulge);
}

} // namespace

std::vector<Shape> segmentsOf(const std::vector<Vertex> &vertices, bool closed, Tally &leftOut) {
    std::vector<Shape> segments;
    const std::size_t count = vertices.size();
    const std::size_t last = closed && count > 1 ? count : count - (count > 0 ? 1 : 0);
    for (std::size_t i = 0; i < last; ++i) {
        const DTPOINT to = vertices[(i + 1) % count].at;
        if (ca_dstpt(&vertices[i].at, &to) < ca_geterrdist()) {
            ++leftOut["polyline segment of no length"];
        } else {
            segments.push_back(segment(vertices[i], to));
        }
    }
    return segments;
}

} // namespace draft
