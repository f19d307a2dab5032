#include "polyline.h"

#include <array>
#include <optional>

namespace draft {

namespace {

/// The arc over a chord, through the point that lies the bulge times half the chord right of the
/// chord's middle; none where the library finds the three points in one line.
std::optional<DTARC> arcOver(DTPOINT from, DTPOINT to, double bulge) {
    const DTPOINT middle = {(from.x + to.x + bulge * (to.y - from.y)) / 2.0,
                            (from.y + to.y - bulge * (to.x - from.x)) / 2.0};
    DTPOINT center;
    double r = 0.0;
    std::array<double, 2> angles{};
    if (ca_arc3p(&from, &middle, &to, &center, &r, angles.data()) != 0) return {};
    a2d_StdSedeg(&angles[0], &angles[1]);
    return DTARC{
        bulge > 0.0 ? 0 : PLANEGEO_ATTR_REVERSED, center.x, center.y, r, angles[0], angles[1]};
}

void addSegment(Segments &segments, const Vertex &from, DTPOINT to) {
    const std::optional<DTARC> arc =
        from.bulge == 0.0 ? std::nullopt : arcOver(from.at, to, from.bulge);
    if (arc) {
        segments.shapes.emplace_back(*arc);
    } else {
        if (from.bulge != 0.0) ++segments.nearlyFlat;
        segments.shapes.emplace_back(DTLINE{0, from.at.x, from.at.y, to.x, to.y});
    }
}

} // namespace

Segments segmentsOf(const std::vector<Vertex> &vertices, bool closed) {
    Segments segments;
    const std::size_t count = vertices.size();
    for (std::size_t i = 0; i < count; ++i) {
        if (i + 1 == count && (!closed || count == 1)) break;
        const DTPOINT to = vertices[(i + 1) % count].at;
        if (isTogether(vertices[i].at, to)) {
            ++segments.ofNoLength;
        } else {
            addSegment(segments, vertices[i], to);
        }
    }
    return segments;
}

} // namespace draft
