#include "nearest.h"

#include <array>
#include <cmath>

namespace draft {

namespace {

Nearest nearerEnd(const Shape &shape, DTPOINT to) {
    const Ends ends = endsOf(shape);
    const double first = ca_dstpt(&ends.points[0], &to);
    const double second = ca_dstpt(&ends.points[1], &to);
    return first <= second ? Nearest{ends.points[0], first} : Nearest{ends.points[1], second};
}

struct NearestOn {
    DTPOINT to;

    Nearest operator()(const DTLINE &line) const {
        constexpr int kFootOnSegment = 0;
        const Ends ends = endsOf(line);
        DTPOINT foot;
        double distance = 0.0;
        if (ca_perln(&ends.points[0], &ends.points[1], &to, &foot, &distance) == kFootOnSegment)
            return {foot, distance};
        return nearerEnd(line, to);
    }

    Nearest operator()(const DTARC &arc) const {
        const DTPOINT center = {arc.cx, arc.cy};
        double deg = 0.0;
        const bool isInRange = ca_onarc(&center, arc.r, arc.start, arc.end, &to, &deg) == 0;
        if (!isInRange && !isClosed(arc)) return nearerEnd(arc, to);
        return {pointAt(arc, deg), std::fabs(ca_dstpt(&center, &to) - arc.r)};
    }

    Nearest operator()(const DTELLIPSE &e) const {
        const DTPOINT center = {e.cx, e.cy};
        const std::array<double, 2> angles = {e.start, e.end};
        Nearest nearest{};
        nearest.distance = a2d_dstpp(&center, e.a, e.b, e.rot, angles.data(), &to, &nearest.point);
        return nearest;
    }
};

} // namespace

Nearest nearestOn(const Shape &shape, DTPOINT to) { return std::visit(NearestOn{to}, shape); }

} // namespace draft
