// Where the tangents from a point touch a circle, and the common tangents of two circles.

#include "base/settings.h"
#include "circle/circle.h"

namespace {

using namespace planegeo;

/// With v from the centre to the point and p^2 = |v|^2 - r^2, its power, the contacts are
///   c + r / |v|^2 (r v -+ p left of v).
Vec2Pair contactsFrom(Vec2 v, double power, const Circle &circle) {
    const Vec2 toChord = v * circle.r;
    const Vec2 left = leftNormal(v) * std::sqrt(power);
    const double k = circle.r / dot(v, v);
    return twice(circle.center) + (twice(toChord) + pairOf(-left, left)) * k;
}

/// Two lines, on the one circle and on the other.
struct TangentLines {
    Vec2Pair onOne;
    Vec2Pair onOther;
};

/// Two circles that do not touch from inside. With v from centre to centre, a line touches circle i
/// at c_i + r_i n, n the unit normal
///   n = (k v -+ root(|v|^2 - k^2) left of v) / |v|^2,
/// k = r1 - r2 for the outer pair; for the inner one k = r1 + r2, and circle 2 lies on the
/// other side of the line, at c_2 - r_2 n. The line right of the first circle comes first.
struct TwoCircles {
    Circle one, other;
    Vec2 v;
    double d2;

    TangentLines lines(double k, double squaredHeight, double side) const {
        const Vec2 left = leftNormal(v) * std::sqrt(squaredHeight);
        const Vec2Pair normals = twice(v * k) + pairOf(-left, left);
        return {twice(one.center) + normals * (one.r / d2),
                twice(other.center) + normals * (side * (other.r / d2))};
    }
};

void store(const TangentLines &lines, DTPOINT *t1, DTPOINT *t2, DTPOINT *t3, DTPOINT *t4) {
    store(lines.onOne.at(0), t1);
    store(lines.onOther.at(0), t2);
    store(lines.onOne.at(1), t3);
    store(lines.onOther.at(1), t4);
}

/// Whether common tangents are given, `outer` being |v|^2 - (r1 - r2)^2.
bool haveTangents(const TwoCircles &circles, double outer) {
    const double r1 = circles.one.r, r2 = circles.other.r;
    if (r1 <= 0.0 || r2 <= 0.0) return false;
    if (isWithinBox(circles.v, distanceTolerance())) return false;
    const double d = std::sqrt(circles.d2);
    if (r2 > d + r1 || r1 > d + r2) return false;
    // A squared quantity on purpose compared with errdist.
    return !(std::fabs(outer) < distanceTolerance());
}

} // namespace

extern "C" {

int32_t ca_pctan(const DTPOINT *center, double r, const DTPOINT *point, DTPOINT *out1,
                 DTPOINT *out2, uint16_t *count) {
    const Circle circle = {load(center), r};
    const Vec2 v = load(point) - circle.center;
    const double power = dot(v, v) - r * r;
    const Vec2Pair contacts = contactsFrom(v, power, circle);
    // Chosen as pairs, as compilers would branch on what is anybody's guess; exactly: a point on
    // the circle has no tangent.
    const Pair powers = {power, power};
    const Vec2Pair given = {powers > 0.0 ? contacts.x : Pair{}, powers > 0.0 ? contacts.y : Pair{}};
    store(given.at(0), out1);
    store(given.at(1), out2);
    *count = power > 0.0 ? 2 : 0;
    return 0;
}

int32_t ca_cctan(const DTPOINT *c1, double r1, const DTPOINT *c2, double r2, DTPOINT *t1,
                 DTPOINT *t2, DTPOINT *t3, DTPOINT *t4, DTPOINT *t5, DTPOINT *t6, DTPOINT *t7,
                 DTPOINT *t8, uint16_t *count) {
    const Vec2 v = load(c2) - load(c1);
    const TwoCircles circles = {{load(c1), r1}, {load(c2), r2}, v, dot(v, v)};
    const double sum = r1 + r2, difference = r1 - r2;
    const double outer = circles.d2 - difference * difference;
    const double inner = circles.d2 - sum * sum;
    if (!haveTangents(circles, outer)) {
        *count = 0;
        return 1;
    }
    store(circles.lines(difference, std::fabs(outer), 1.0), t1, t2, t3, t4);
    if (inner > 0.0) store(circles.lines(sum, inner, -1.0), t5, t6, t7, t8);
    *count = inner > 0.0 ? 4 : 2;
    return 0;
}

} // extern "C"
