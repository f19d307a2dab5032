// Where two circles meet, and two arcs. Circles are asked with fixed tolerances, arcs with errdist.

#include "circle/circle_circle.h"

#include "base/settings.h"

namespace {

using namespace planegeo;

/// The two points of circles that cross, with v from centre to centre:
///   c1 + (q v +- s right of v) / |v|^2,  q = (r1^2 - r2^2 + |v|^2) / 2,  s^2 = r1^2 |v|^2 - q^2.
/// Kept in this form: it is exact on a grid, and whether a point lies at the very end of an arc
/// hangs on its last bits. A square that rounding makes negative gives non-finite points.
Vec2Pair crossingPoints(const Circle &one, const Circle &other) {
    const Vec2 v = other.center - one.center;
    const double d2 = dot(v, v);
    const double q = (one.r * one.r - other.r * other.r + d2) * 0.5;
    const double s = std::sqrt(one.r * one.r * d2 - q * q);
    const Vec2 toChord = v * q;
    const Vec2 left = leftNormal(v) * s;
    const Vec2Pair fromCenter = twice(toChord) + pairOf(-left, left);
    return twice(one.center) + Vec2Pair{fromCenter.x / d2, fromCenter.y / d2};
}

Vec2 touchingPoint(const Circle &one, const Circle &other, double d) {
    const Vec2 back = one.center - other.center;
    const double sum = one.r + other.r;
    const double difference = one.r - other.r;
    if (std::fabs(difference) < kEqualRadiiLength) return (one.center + other.center) * 0.5;
    const bool fromOutside = std::fabs(sum - d) < kTouchLength;
    return fromOutside ? other.center + back * other.r / sum
                       : other.center - back * other.r / difference;
}

} // namespace

namespace planegeo {

PointPair crossCircles(const Circle &one, const Circle &other) {
    const Vec2 along = other.center - one.center;
    const double d2 = dot(along, along);
    if (d2 < kConcentricSquared) return {};
    const double d = std::sqrt(d2);
    const double apart = d - (one.r + other.r);
    const double enclosed = d - std::fabs(one.r - other.r); // negative: one inside the other
    if (apart < -kTouchLength && enclosed > kTouchLength) {
        const Vec2Pair points = crossingPoints(one, other);
        return {{points.at(0), points.at(1)}, 2};
    }
    if (apart > kTouchLength || enclosed < -kTouchLength) return {};
    return {{touchingPoint(one, other, d)}, 1};
}

} // namespace planegeo

namespace {

using FullCircleTest = bool (*)(AngleRange);

/// The two tests for a full circle by which the two arc functions differ.
bool isFullWithSlack(AngleRange range) {
    return std::fabs(range.end - range.start) < kFullArcSlackDeg ||
           std::fabs(range.end - range.start - 360.0) < kFullArcSlackDeg;
}
bool isFullExactly(AngleRange range) {
    return range.end == range.start || range.end - range.start == 360.0;
}

AngleRange raised(AngleRange range) {
    return {raisedIf(range.start < 0.0, range.start), raisedIf(range.end < 0.0, range.end)};
}

/// The filter of arc with arc, apart from AngleRange on purpose: its slack is far wider and
/// does not reach back across 0, and a direction at the very start takes another turn.
struct WideArc {
    Vec2 center;
    double first;
    double last;
    bool isFull;

    WideArc(const Arc &arc, FullCircleTest isFullCircle) : center(arc.circle.center) {
        const AngleRange range = raised(arc.range);
        isFull = isFullCircle(range);
        first = range.start - kArcArcSlackDeg;
        last = range.end + kArcArcSlackDeg;
        last = raisedIf(first > last, last);
    }

    bool holds(Vec2 point) const {
        if (isFull) return true;
        double deg = directionDeg(point - center);
        if (deg == 360.0) deg = 0.0;
        if (first >= deg) deg += 360.0;
        return !(deg > last); // a NaN passes
    }

    /// Positive where a point is held, and where that is clear of every angle at which it changes.
    CoarseLook look(Vec2Pair points) const {
        if (isFull) return {};
        return CoarseLook(points - twice(center), first, last);
    }
};

bool areIdentical(const Arc &one, const Arc &other) {
    const double tolerance = distanceTolerance();
    return std::fabs(one.circle.r - other.circle.r) < tolerance &&
           std::fabs(one.range.start - other.range.start) < tolerance &&
           std::fabs(one.range.end - other.range.end) < tolerance &&
           isWithinBox(one.circle.center - other.circle.center, tolerance);
}

/// Whether two ends on the circle are one point: errdist is compared with what parts their
/// angles in degrees, from each other or from a whole turn, and with their distance along it.
bool isSameEnd(double deg, double otherDeg, double circumference) {
    const double tolerance = distanceTolerance();
    const double apart = deg - otherDeg;
    return std::fabs(apart) < tolerance || std::fabs(std::fabs(apart) - 360.0) < tolerance ||
           std::fabs(circumference * (apart / 360.0)) < tolerance;
}

/// Arcs of one circle meet only where one ends and the other begins.
PointPair commonEnds(const Arc &one, const Arc &other) {
    const double circumference = kTwoPi * one.circle.r;
    PointPair points{};
    if (isSameEnd(one.range.start, other.range.end, circumference)) {
        points.push(one.circle.at(Rotation::ofDegrees(one.range.start)));
    }
    if (isSameEnd(one.range.end, other.range.start, circumference)) {
        points.push(one.circle.at(Rotation::ofDegrees(one.range.end)));
    }
    return points;
}

/// How many points two circles have in common before the ranges are asked, with errdist throughout.
int countOfCommon(const Circle &one, const Circle &other, double d) {
    const double tolerance = distanceTolerance();
    const double enclosed = std::fabs(one.r - other.r);
    const double overlap = one.r + other.r - d;
    if (std::fabs(enclosed - d) < tolerance || std::fabs(overlap) < tolerance) return 1;
    return d < tolerance || overlap < 0.0 || enclosed > d ? 0 : 2;
}

/// A touch is measured from the centre of the larger circle.
Vec2 touchOfArcs(const Circle &one, const Circle &other, double d) {
    const Vec2 along = other.center - one.center;
    return one.r >= other.r ? one.center + along * one.r / d : other.center - along * other.r / d;
}

/// storeHeld() without its short cut.
[[gnu::noinline]] int storeHeldOneByOne(WideArc one, WideArc other, Vec2Pair points, DTPOINT *out1,
                                        DTPOINT *out2) {
    const auto isHeld = [&](Vec2 p) { return one.holds(p) && other.holds(p); };
    return storeKept(points, isHeld(points.at(0)), isHeld(points.at(1)), out1, out2);
}

/// The points held by both arcs; their number.
int storeHeld(const WideArc &one, const WideArc &other, Vec2Pair points, DTPOINT *out1,
              DTPOINT *out2) {
    const CoarseLook onOne = one.look(points), onOther = other.look(points);
    const Pair told = onOne.told > 0.0 ? onOther.told : Pair{};
    if (told[0] > 0.0 && told[1] > 0.0) {
        const Pair held = smaller(onOne.inside, onOther.inside);
        return storeKept(points, held[0] > 0.0, held[1] > 0.0, out1, out2);
    }
    return storeHeldOneByOne(one, other, points, out1, out2);
}

template <FullCircleTest isFull>
int32_t answerArcs(const Arc &one, const Arc &other, DTPOINT *out1, DTPOINT *out2,
                   uint16_t *count) {
    *count = 0;
    if (areIdentical(one, other)) return 1;
    if (one.circle.r <= 0.0 || other.circle.r <= 0.0) return 1;

    const Vec2 along = other.circle.center - one.circle.center;
    if (isWithinBox(along, distanceTolerance())) {
        if (!(std::fabs(one.circle.r - other.circle.r) < distanceTolerance())) return 0;
        const PointPair points = commonEnds(one, other);
        if (points.count == 0) return 0;
        storePadded(points, out1, out2);
        *count = static_cast<uint16_t>(points.count);
        return 0;
    }
    const double d = plainLength(along);
    const int common = countOfCommon(one.circle, other.circle, d);
    if (common == 0) return 0;
    // Raised once more on purpose: an angle below -360 has come here still negative.
    const WideArc first(one, isFull), second(other, isFull);
    if (common == 2) {
        const Vec2Pair points = crossingPoints(one.circle, other.circle);
        *count = static_cast<uint16_t>(storeHeld(first, second, points, out1, out2));
        return 0;
    }
    const Vec2 touch = touchOfArcs(one.circle, other.circle, d);
    const int held = storeHeldOneByOne(first, second, twice(touch), out1, out2);
    *count = held > 0 ? 1 : 0;
    return 0;
}

} // namespace

extern "C" {

int32_t a2dCrs2C(const DTPOINT *c1, double r1, const DTPOINT *c2, double r2, double *out) {
    const PointPair points = crossCircles({load(c1), r1}, {load(c2), r2});
    for (int i = 0; i < points.count; ++i) {
        *out++ = points.at[i].x;
        *out++ = points.at[i].y;
    }
    return points.count;
}

int32_t a2d_ins2c(const DTPOINT *c1, const DTPOINT *c2, double r1, double r2, const double *angles1,
                  const double *angles2, DTPOINT *out1, DTPOINT *out2, uint16_t *count) {
    return answerArcs<isFullWithSlack>({{load(c1), r1}, raised(loadRange(angles1))},
                                       {{load(c2), r2}, raised(loadRange(angles2))}, out1, out2,
                                       count);
}

int32_t ca_ins2c(const DTPOINT *c1, const DTPOINT *c2, double r1, double r2, const double *angles1,
                 const double *angles2, DTPOINT *out1, DTPOINT *out2, uint16_t *count) {
    return answerArcs<isFullExactly>({{load(c1), r1}, raised(loadRange(angles1))},
                                     {{load(c2), r2}, raised(loadRange(angles2))}, out1, out2,
                                     count);
}

} // extern "C"
