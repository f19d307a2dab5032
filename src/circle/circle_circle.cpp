// Where two circles meet, and two arcs. Circles are asked with fixed tolerances, arcs with errdist.

#include "circle/circle_circle.h"

#include "base/settings.h"

namespace {

using namespace planegeo;

/// The two points of circles that cross, with v from centre to centre:
///   c1 + (q v +- s right of v) / |v|^2,  q = (r1^2 - r2^2 + |v|^2) / 2,  s^2 = r1^2 |v|^2 - q^2.
/// Kept in this form: it is exact on a grid, and whether a point lies at the very end of an arc
/// hangs on its last bits. A square that rounding makes negative gives non-finite points.
PointPair crossingPoints(const Circle &one, const Circle &other) {
    const Vec2 v = other.center - one.center;
    const double d2 = dot(v, v);
    const double q = (one.r * one.r - other.r * other.r + d2) * 0.5;
    const double s = std::sqrt(one.r * one.r * d2 - q * q);
    const Vec2 toChord = v * q;
    const Vec2 left = leftNormal(v) * s;
    return {{one.center + (toChord - left) / d2, one.center + (toChord + left) / d2}, 2};
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
    if (apart < -kTouchLength && enclosed > kTouchLength) return crossingPoints(one, other);
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

double raised(double deg) { return deg < 0.0 ? deg + 360.0 : deg; }
AngleRange raised(AngleRange range) { return {raised(range.start), raised(range.end)}; }

/// The filter of arc with arc, apart from AngleRange on purpose: its slack is far wider and
/// does not reach back across 0, and a direction at the very start takes another turn.
bool isOnArcWithWideSlack(const Arc &arc, Vec2 point) {
    const double first = arc.range.start - kArcArcSlackDeg;
    double last = arc.range.end + kArcArcSlackDeg;
    if (first > last) last += 360.0;
    const Vec2 fromCenter = point - arc.circle.center;
    const double coarse = coarseDirectionDeg(fromCenter);
    const double turned = first >= coarse ? coarse + 360.0 : coarse;
    if (isClearOfZero(coarse) && isClearOf(coarse, first) && isClearOf(turned, last)) {
        return turned < last;
    }
    double deg = directionDeg(fromCenter);
    if (deg == 360.0) deg = 0.0;
    if (first >= deg) deg += 360.0;
    return !(deg > last); // a NaN passes
}

PointPair keptOnBothArcs(const PointPair &points, Arc one, Arc other, FullCircleTest isFull) {
    // Raised once more on purpose: an angle below -360 has come here still negative.
    one.range = raised(one.range);
    other.range = raised(other.range);
    const bool anyOnOne = isFull(one.range);
    const bool anyOnOther = isFull(other.range);
    return points.keptWhere([&](Vec2 p) {
        return (anyOnOne || isOnArcWithWideSlack(one, p)) &&
               (anyOnOther || isOnArcWithWideSlack(other, p));
    });
}

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

/// What two circles have in common before the ranges are asked, with errdist throughout.
PointPair crossCirclesOfArcs(const Circle &one, const Circle &other) {
    const double tolerance = distanceTolerance();
    const Vec2 along = other.center - one.center;
    const double d = plainLength(along);
    const double enclosed = std::fabs(one.r - other.r);
    const double overlap = one.r + other.r - d;
    if (std::fabs(enclosed - d) < tolerance || std::fabs(overlap) < tolerance) {
        // A touch is measured from the centre of the larger circle.
        const Vec2 point =
            one.r >= other.r ? one.center + along * one.r / d : other.center - along * other.r / d;
        return {{point}, 1};
    }
    if (d < tolerance || overlap < 0.0 || enclosed > d) return {};
    return crossingPoints(one, other);
}

int32_t answerArcs(const Arc &one, const Arc &other, FullCircleTest isFull, DTPOINT *out1,
                   DTPOINT *out2, uint16_t *count) {
    *count = 0;
    if (areIdentical(one, other)) return 1;
    if (one.circle.r <= 0.0 || other.circle.r <= 0.0) return 1;

    PointPair points{};
    if (isWithinBox(one.circle.center - other.circle.center, distanceTolerance())) {
        if (!(std::fabs(one.circle.r - other.circle.r) < distanceTolerance())) return 0;
        points = commonEnds(one, other);
        if (points.count == 0) return 0;
    } else {
        points = crossCirclesOfArcs(one.circle, other.circle);
        if (points.count == 0) return 0;
        points = keptOnBothArcs(points, one, other, isFull);
    }
    storePadded(points, out1, out2);
    *count = static_cast<uint16_t>(points.count);
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
    return answerArcs({{load(c1), r1}, raised(loadRange(angles1))},
                      {{load(c2), r2}, raised(loadRange(angles2))}, isFullWithSlack, out1, out2,
                      count);
}

int32_t ca_ins2c(const DTPOINT *c1, const DTPOINT *c2, double r1, double r2, const double *angles1,
                 const double *angles2, DTPOINT *out1, DTPOINT *out2, uint16_t *count) {
    return answerArcs({{load(c1), r1}, raised(loadRange(angles1))},
                      {{load(c2), r2}, raised(loadRange(angles2))}, isFullExactly, out1, out2,
                      count);
}

} // extern "C"
