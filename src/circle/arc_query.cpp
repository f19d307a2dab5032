// The ends and the extents of an arc, how a point lies to it, and the arc turned.

#include "circle/arc_query.h"

#include <algorithm>

#include "base/settings.h"

namespace planegeo {

RadianArc turned(const RadianArc &arc, Vec2 pivot, double turnRad) {
    if (std::fabs(turnRad) <= kNoTurnRad) return arc;
    const Rotation turn = Rotation::ofRadians(turnRad);
    const Circle circle = {turn.apply(arc.circle.center - pivot) + pivot, arc.circle.r};

    const double span = arc.endRad - arc.startRad;
    if (std::fabs(span) <= kFullSpanSlackRad || std::fabs(span - kTwoPi) <= kFullSpanSlackRad) {
        return {circle, 0.0, kTwoPi};
    }
    double start = arc.startRad + turnRad;
    double end = arc.endRad + turnRad;
    if (start > kTwoPi || end > kTwoPi) {
        start -= kTwoPi;
        end -= kTwoPi;
    }
    if (start < -kTwoPi || end < -kTwoPi) {
        start += kTwoPi;
        end += kTwoPi;
    }
    return {circle, start, end};
}

} // namespace planegeo

namespace {

using namespace planegeo;

struct Box {
    Vec2 max = {-kEmptyBoxLength, -kEmptyBoxLength};
    Vec2 min = {kEmptyBoxLength, kEmptyBoxLength};

    void widen(Vec2 p) {
        max = {std::max(max.x, p.x), std::max(max.y, p.y)};
        min = {std::min(min.x, p.x), std::min(min.y, p.y)};
    }
};

/// The ends, and every axis direction in between. A start above the end holds none of these.
Box extents(const Arc &arc) {
    constexpr Vec2 kAxisDirections[] = {{1.0, 0.0}, {0.0, 1.0}, {-1.0, 0.0}, {0.0, -1.0}};
    Box box;
    box.widen(arc.circle.at(Rotation::ofDegrees(arc.range.start)));
    box.widen(arc.circle.at(Rotation::ofDegrees(arc.range.end)));
    for (int quarter = -4; quarter <= 4; ++quarter) {
        const double deg = 90.0 * quarter;
        if (arc.range.start <= deg && deg <= arc.range.end) {
            const Vec2 direction = kAxisDirections[(quarter + 4) % 4];
            box.widen(arc.circle.center + arc.circle.r * direction);
        }
    }
    return box;
}

/// Apart from AngleRange on purpose: the range is taken as it stands, and the angle tried a turn
/// down and up.
bool isInOpenRange(double deg, AngleRange range) {
    const double first = range.start - kOnArcSlackDeg;
    const double last = range.end + kOnArcSlackDeg;
    const auto isBetween = [&](double angle) { return first < angle && angle < last; };
    return isBetween(deg) || isBetween(deg - 360.0) || isBetween(deg + 360.0);
}

} // namespace

extern "C" {

int32_t ca_arccd(const DTPOINT *center, double r, const double *angles, DTPOINT *pstart,
                 DTPOINT *pend) {
    const Circle circle = {load(center), r};
    const double endRad = angles[1];
    store(circle.at(Rotation::ofRadians(angles[0])), pstart);
    store(circle.at(Rotation::ofRadians(endRad)), pend);
    return 0;
}

int32_t ca_arcXY(const DTPOINT *center, double r, double start, double end, DTPOINT *pmax,
                 DTPOINT *pmin) {
    const Box box = extents({{load(center), r}, {start, end}});
    store(box.max, pmax);
    store(box.min, pmin);
    return 0;
}

int32_t ca_onarc(const DTPOINT *center, double, double start, double end, const DTPOINT *point,
                 double *ang) {
    const double direction = directionDeg(load(point) - load(center));
    const double deg = direction > 180.0 ? direction - 360.0 : direction;
    *ang = deg;
    return isInOpenRange(deg, {start, end}) ? 0 : 1;
}

int32_t ca_posar(const DTPOINT *center, double r, const DTPOINT *point, uint16_t *side) {
    if (r <= 0.0) return 1;
    const double distance = plainLength(load(center) - load(point));
    if (std::fabs(r - distance) < distanceTolerance()) {
        *side = 0;
    } else {
        *side = r > distance ? 65535 : 1;
    }
    return 0;
}

int32_t ca_rvarc(const DTPOINT *center, double r, const double *angles, const DTPOINT *pivot,
                 double rot, DTPOINT *out_center, double *out_r, double *out_angles) {
    const RadianArc arc = turned({{load(center), r}, angles[0], angles[1]}, load(pivot), rot);
    store(arc.circle.center, out_center);
    *out_r = arc.circle.r;
    out_angles[0] = arc.startRad;
    out_angles[1] = arc.endRad;
    return 0;
}

} // extern "C"
