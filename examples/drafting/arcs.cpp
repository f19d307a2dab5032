#include "arcs.h"

#include <array>
#include <cstdint>

namespace draft {

std::optional<std::vector<DTARC>> arcsFor(const DTELLIPSE &e, double tolerance) {
    constexpr int kMoreThanRoom = -2;
    const DTPOINT center = {e.cx, e.cy};
    const std::array<double, 2> range = {e.start, e.end};
    std::uint16_t count = 0;
    const int asked = ca_elip2(&center, e.a, e.b, e.rot, range.data(), tolerance, nullptr, nullptr,
                               nullptr, &count);
    if (asked != kMoreThanRoom) return {};
    std::vector<DTPOINT> centers(count);
    std::vector<double> radii(count);
    std::vector<double> angles(2 * std::size_t{count});
    if (ca_elip2(&center, e.a, e.b, e.rot, range.data(), tolerance, centers.data(), radii.data(),
                 angles.data(), &count) != 0)
        return {};
    std::vector<DTARC> arcs;
    arcs.reserve(count);
    for (std::size_t i = 0; i < count; ++i) {
        arcs.push_back({0, centers[i].x, centers[i].y, radii[i], angles[2 * i], angles[2 * i + 1]});
    }
    return arcs;
}

} // namespace draft
