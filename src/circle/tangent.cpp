// Where the tangents from a point touch a circle, and the common tangents of two circles.

#include "base/settings.h"
#include "circle/circle.h"

namespace {

using namespace planegeo;

/// With v from the centre to the point and p^2 = |v|^2 - r^2, its power, the contacts are
///   c + r / |v|^2 (r v -+ p left of v).
PointPair contactsFrom(Vec2 point, const Circle &circle) {
    const Vec2 v = point - circle.center;
    const double power = dot(v, v) - circle.r * circle.r;
    if (!(power > 0.0)) return {}; // exactly: a point on the circle has no tangent
    const Vec2 toChord = v * circle.r;
    const Vec2 left = leftNormal(v) * std::sqrt(power);
    const double k = circle.r / dot(v, v);
    return {{circle.center + (toChord - left) * k, circle.center + (toChord + left) * k}, 2};
}

struct TangentLine {
    Vec2 onOne;
    Vec2 onOther;
};

/// First the outer pair, then the inner one, of each the line right of the first circle first.
struct TangentLines {
    TangentLine at[4];
    int count;
};

/// With v from centre to centre, a line touches circle i at c_i + r_i n, n the unit normal
///   n = (k v -+ root(|v|^2 - k^2) left of v) / |v|^2,
/// k = r1 - r2 for the outer pair; for the inner one k = r1 + r2, and circle 2 lies on the
/// other side of the line, at c_2 - r_2 n.
TangentLines commonTangents(const Circle &one, const Circle &other) {
    if (one.r <= 0.0 || other.r <= 0.0) return {};
    const Vec2 v = other.center - one.center;
    if (isWithinBox(v, distanceTolerance())) return {};
    const double d2 = dot(v, v);
    const double d = std::sqrt(d2);
    if (other.r > d + one.r || one.r > d + other.r) return {};
    const double difference = one.r - other.r;
    const double outer = d2 - difference * difference;
    // A squared quantity on purpose compared with errdist.
    if (std::fabs(outer) < distanceTolerance()) return {};

    const double k1 = one.r / d2;
    const double k2 = other.r / d2;
    TangentLines lines{};
    const auto add = [&](Vec2 normal, double side) {
        lines.at[lines.count++] = {one.center + normal * k1, other.center + normal * (side * k2)};
    };
    const Vec2 outerLeft = leftNormal(v) * std::sqrt(std::fabs(outer));
    add(v * difference - outerLeft, 1.0);
    add(v * difference + outerLeft, 1.0);

    const double sum = one.r + other.r;
    const double inner = d2 - sum * sum;
    if (!(inner > 0.0)) return lines;
    const Vec2 innerLeft = leftNormal(v) * std::sqrt(inner);
    add(v * sum - innerLeft, -1.0);
    add(v * sum + innerLeft, -1.0);
    return lines;
}

} // namespace

extern "C" {

int32_t ca_pctan(const DTPOINT *center, double r, const DTPOINT *point, DTPOINT *out1,
                 DTPOINT *out2, uint16_t *count) {
    const PointPair contacts = contactsFrom(load(point), {load(center), r});
    storePadded(contacts, out1, out2);
    *count = static_cast<uint16_t>(contacts.count);
    return 0;
}

int32_t ca_cctan(const DTPOINT *c1, double r1, const DTPOINT *c2, double r2, DTPOINT *t1,
                 DTPOINT *t2, DTPOINT *t3, DTPOINT *t4, DTPOINT *t5, DTPOINT *t6, DTPOINT *t7,
                 DTPOINT *t8, uint16_t *count) {
    const TangentLines lines = commonTangents({load(c1), r1}, {load(c2), r2});
    DTPOINT *const outputs[4][2] = {{t1, t2}, {t3, t4}, {t5, t6}, {t7, t8}};
    for (int i = 0; i < lines.count; ++i) {
        store(lines.at[i].onOne, outputs[i][0]);
        store(lines.at[i].onOther, outputs[i][1]);
    }
    *count = static_cast<uint16_t>(lines.count);
    return lines.count == 0 ? 1 : 0;
}

} // extern "C"
