#include "perpendicular.h"

#include <array>

#include "conics.h"

namespace draft {

namespace {

struct FeetFrom {
    DTPOINT from;

    std::vector<DTPOINT> operator()(const DTLINE &line) const {
        constexpr int kFootOnSegment = 0;
        const Ends ends = endsOf(line);
        DTPOINT foot;
        double distance = 0.0;
        if (ca_perln(&ends.points[0], &ends.points[1], &from, &foot, &distance) != kFootOnSegment)
            return {};
        return {foot};
    }

    /// On the line through the centre, before it and behind it; none from the centre.
    std::vector<DTPOINT> operator()(const DTARC &arc) const {
        constexpr std::uint32_t kLineAndArc = 1;
        const DTPOINT center = {arc.cx, arc.cy};
        const std::array<double, 2> range = {arc.start, arc.end};
        std::array<DTPOINT, 2> feet{};
        std::uint16_t count = 0;
        a2d_lin_arc(kLineAndArc, &center, &from, &center, arc.r, range.data(), &feet[0], &feet[1],
                    &count);
        return {feet.begin(), feet.begin() + count};
    }

    std::vector<DTPOINT> operator()(const DTELLIPSE &given) const {
        if (const auto round = asArc(given)) return (*this)(*round);
        const DTELLIPSE ellipse = canonical(given);
        std::array<DTPOINT, 4> feet{};
        const int count = a2dEllpsPerPnts(&from, &ellipse, feet.data());
        std::vector<DTPOINT> kept;
        for (int i = 0; i < count; ++i) {
            const DTPOINT foot = feet[static_cast<std::size_t>(i)];
            if (CheckEllipseArcAngle(&ellipse, &foot) == 0) kept.push_back(foot);
        }
        return kept;
    }
};

} // namespace

std::vector<DTPOINT> perpendicularFeet(DTPOINT from, const Shape &shape) {
    return std::visit(FeetFrom{from}, shape);
}

} // namespace draft
