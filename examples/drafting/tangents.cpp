#include "tangents.h"

#include <array>

namespace draft {

namespace {

bool isInRange(const DTARC &arc, DTPOINT touch) {
    return a2d_ChkDegr(arc.start, arc.end, atan2d(touch.y - arc.cy, touch.x - arc.cx)) == 0;
}

struct TangentsFrom {
    DTPOINT point;

    std::vector<Tangent> operator()(const DTARC &arc) const {
        const DTPOINT center = {arc.cx, arc.cy};
        std::array<DTPOINT, 2> touch{};
        std::uint16_t count = 0;
        ca_pctan(&center, arc.r, &point, &touch[0], &touch[1], &count);
        std::vector<Tangent> tangents;
        for (std::size_t i = 0; i < count; ++i)
            if (isInRange(arc, touch[i])) tangents.push_back({point, touch[i]});
        return tangents;
    }
    std::vector<Tangent> operator()(const DTLINE & /*line*/) const { return {}; }
    std::vector<Tangent> operator()(const DTELLIPSE & /*ellipse*/) const { return {}; }
};

struct CommonTangents {
    std::vector<Tangent> operator()(const DTARC &a, const DTARC &b) const {
        const DTPOINT centerA = {a.cx, a.cy};
        const DTPOINT centerB = {b.cx, b.cy};
        std::array<Tangent, 4> found{};
        std::uint16_t count = 0;
        ca_cctan(&centerA, a.r, &centerB, b.r, &found[0].from, &found[0].to, &found[1].from,
                 &found[1].to, &found[2].from, &found[2].to, &found[3].from, &found[3].to, &count);
        std::vector<Tangent> tangents;
        for (std::size_t i = 0; i < count; ++i) {
            if (isInRange(a, found[i].from) && isInRange(b, found[i].to))
                tangents.push_back(found[i]);
        }
        return tangents;
    }
    template <typename First, typename Second>
    std::vector<Tangent> operator()(const First & /*first*/, const Second & /*second*/) const {
        return {};
    }
};

} // namespace

bool hasTangents(const Shape &shape) { return std::holds_alternative<DTARC>(shape); }

std::vector<Tangent> tangentsFrom(DTPOINT point, const Shape &curve) {
    return std::visit(TangentsFrom{point}, curve);
}

std::vector<Tangent> commonTangents(const Shape &first, const Shape &second) {
    return std::visit(CommonTangents{}, first, second);
}

} // namespace draft
