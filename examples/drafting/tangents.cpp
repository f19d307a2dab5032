#include "tangents.h"

#include <array>

#include "conics.h"

namespace draft {

namespace {

bool isInRange(const DTARC &arc, DTPOINT touch) {
    return a2d_ChkDegr(arc.start, arc.end, atan2d(touch.y - arc.cy, touch.x - arc.cx)) == 0;
}
bool isInRange(const DTELLIPSE &arc, DTPOINT touch) {
    return CheckEllipseArcAngle(&arc, &touch) == 0;
}

DTELLIPSE asEllipse(const DTARC &arc) {
    return {arc.attr, arc.cx, arc.cy, 2.0 * arc.r, 2.0 * arc.r, arc.start, arc.end, 0.0};
}
DTELLIPSE asEllipse(const DTELLIPSE &ellipse) { return ellipse; }

struct TangentsFrom {
    DTPOINT point;

    std::vector<Tangent> operator()(const DTLINE & /*line*/) const { return {}; }

    std::vector<Tangent> operator()(const DTARC &arc) const {
        const DTPOINT center = {arc.cx, arc.cy};
        std::array<DTPOINT, 2> touch{};
        std::uint16_t count = 0;
        ca_pctan(&center, arc.r, &point, &touch[0], &touch[1], &count);
        return count == 0 ? std::vector<Tangent>{} : inRange(arc, touch);
    }

    std::vector<Tangent> operator()(const DTELLIPSE &given) const {
        constexpr int kBothFound = 2;
        const DTELLIPSE e = canonical(given);
        const DTPOINT center = {e.cx, e.cy};
        std::array<DTPOINT, 2> touch{};
        if (a2d_tchpe(&point, &center, e.a, e.b, e.rot, &touch[0], &touch[1]) != kBothFound)
            return {};
        return inRange(e, touch);
    }

  private:
    template <typename Curve>
    std::vector<Tangent> inRange(const Curve &curve, const std::array<DTPOINT, 2> &touch) const {
        std::vector<Tangent> tangents;
        for (const DTPOINT p : touch)
            if (isInRange(curve, p)) tangents.push_back({point, p});
        return tangents;
    }
};

/// Four at most, of which a count are found.
using Found = std::array<Tangent, 4>;

template <typename First, typename Second>
std::vector<Tangent> inBothRanges(const Found &found, std::size_t count, const First &first,
                                  const Second &second) {
    std::vector<Tangent> tangents;
    for (std::size_t i = 0; i < count; ++i) {
        if (isInRange(first, found[i].from) && isInRange(second, found[i].to))
            tangents.push_back(found[i]);
    }
    return tangents;
}

struct CommonTangents {
    std::vector<Tangent> operator()(const DTARC &a, const DTARC &b) const {
        const DTPOINT centerA = {a.cx, a.cy};
        const DTPOINT centerB = {b.cx, b.cy};
        Found t{};
        std::uint16_t count = 0;
        ca_cctan(&centerA, a.r, &centerB, b.r, &t[0].from, &t[0].to, &t[1].from, &t[1].to,
                 &t[2].from, &t[2].to, &t[3].from, &t[3].to, &count);
        return inBothRanges(t, count, a, b);
    }

    /// At least one of them an ellipse.
    template <typename First, typename Second>
    std::vector<Tangent> operator()(const First &first, const Second &second) const {
        const DTELLIPSE a = asEllipse(first);
        const DTELLIPSE b = asEllipse(second);
        const DTPOINT centerA = {a.cx, a.cy};
        const DTPOINT centerB = {b.cx, b.cy};
        Found t{};
        std::uint16_t count = 0;
        a2d_tch2e(&centerA, &centerB, a.a, b.a, a.b, b.b, a.rot, b.rot, &t[0].from, &t[0].to,
                  &t[1].from, &t[1].to, &t[2].from, &t[2].to, &t[3].from, &t[3].to, &count);
        return inBothRanges(t, count, a, b);
    }

    template <typename Second>
    std::vector<Tangent> operator()(const DTLINE & /*line*/, const Second & /*second*/) const {
        return {};
    }
    std::vector<Tangent> operator()(const DTARC & /*arc*/, const DTLINE & /*line*/) const {
        return {};
    }
    std::vector<Tangent> operator()(const DTELLIPSE & /*e*/, const DTLINE & /*line*/) const {
        return {};
    }
};

} // namespace

bool hasTangents(const Shape &shape) { return !std::holds_alternative<DTLINE>(shape); }

std::vector<Tangent> tangentsFrom(DTPOINT point, const Shape &curve) {
    return std::visit(TangentsFrom{point}, curve);
}

std::vector<Tangent> commonTangents(const Shape &first, const Shape &second) {
    return std::visit(CommonTangents{}, first, second);
}

} // namespace draft
