// The arc through three points or over a chord, and the angles by which an arc is stored.

#include <optional>

#include "base/settings.h"
#include "circle/circle.h"

namespace {

using namespace planegeo;

/// On purpose all three sines must be small: points of a narrow but tall triangle make an arc.
bool areCollinear(double cross, double d12, double d23, double d13) {
    const double area = std::fabs(cross);
    return area / (d13 * d12) < kCollinearSine && area / (d23 * d12) < kCollinearSine &&
           area / (d13 * d23) < kCollinearSine;
}

/// Whether the sine of one angle is so far above the limit that the lengths need not be known.
bool isClearTriangle(double cross, Vec2 side, Vec2 other) {
    constexpr double kSquaredSine = 4.0 * kCollinearSine * kCollinearSine;
    constexpr double kFarFromUnderflow = 0x1p-900;
    const double side2 = dot(side, side), other2 = dot(other, other);
    return side2 > kFarFromUnderflow && other2 > kFarFromUnderflow &&
           cross * cross > kSquaredSine * (side2 * other2);
}

/// The arc from p1 by p2 to p3, stored anticlockwise whichever way it turns. With s and t the
/// sides p1p2 and p2p3, its centre is
///   p2 + left of (|t|^2 s + |s|^2 t) / (2 s x t).
[[gnu::always_inline]] inline std::optional<Arc> arcThrough(Vec2 p1, Vec2 p2, Vec2 p3) {
    const Vec2 s = p2 - p1;
    const Vec2 t = p3 - p2;
    const double tolerance = distanceTolerance();
    if (isShorterThan(s, tolerance) || isShorterThan(t, tolerance) ||
        isShorterThan(p3 - p1, tolerance)) {
        return std::nullopt;
    }
    const double turn = cross(s, t);
    if (!isClearTriangle(turn, s, p3 - p1) &&
        areCollinear(turn, hypotLength(s), hypotLength(t), hypotLength(p3 - p1))) {
        return std::nullopt;
    }

    const Vec2 center = p2 + leftNormal(s * dot(t, t) + t * dot(s, s)) / (2.0 * turn);
    const double deg1 = directionDeg(p1 - center);
    const double deg3 = directionDeg(p3 - center);
    // Chosen as a pair, as compilers would branch on what is anybody's guess.
    const Pair turns = {turn, turn};
    const Pair ends = turns > 0.0 ? Pair{deg1, deg3} : Pair{deg3, deg1};
    return Arc{{center, hypotLength(p1 - center)}, {ends[0], ends[1]}};
}

bool isWholeTurn(AngleRange range) { return std::fabs(range.end - range.start) > kStoredTurnDeg; }

/// The stored form of an arc's angles, apart from AngleRange::normalised on purpose: the raw
/// difference is asked first, 360 stays 360, and equal ends stay an arc without extent.
AngleRange storedRange(AngleRange range) {
    constexpr AngleRange kFullCircle = {0.0, 360.0};
    if (isWholeTurn(range)) return kFullCircle;
    range = reducedKeeping360(range).wrapped();
    if (isWholeTurn(range)) return kFullCircle;
    return range;
}

void storeRange(AngleRange range, double *angles) {
    angles[0] = range.start;
    angles[1] = range.end;
}

int32_t answerArc(const std::optional<Arc> &arc, DTPOINT *center, double *r, double *angles) {
    if (!arc) {
        storeRange({0.0, 0.0}, angles);
        return 1;
    }
    store(arc->circle.center, center);
    *r = arc->circle.r;
    storeRange(arc->range, angles);
    return 0;
}

} // namespace

extern "C" {

int32_t ca_arc3p(const DTPOINT *p1, const DTPOINT *p2, const DTPOINT *p3, DTPOINT *center,
                 double *r, double *angles) {
    return answerArc(arcThrough(load(p1), load(p2), load(p3)), center, r, angles);
}

int32_t ca_arc2pratio(int32_t dir, double ratio, double x1, double y1, double x2, double y2,
                      DTPOINT *center, double *r, double *angles) {
    if (std::fabs(ratio) < kFlattestRatio) return 1;
    const Vec2 start = {x1, y1};
    const Vec2 end = {x2, y2};
    const Vec2 chord = end - start;
    if (isShorterThan(chord, kShortestChord)) return 1;
    const Vec2 outward = dir == 0 ? leftNormal(chord) : -leftNormal(chord);
    const Vec2 middle = (start + end) * 0.5 + outward * ratio;
    if (isShorterThan(middle - start, kMiddleToEnd) || isShorterThan(middle - end, kMiddleToEnd)) {
        return 1;
    }
    std::optional<Arc> arc = arcThrough(start, middle, end);
    if (arc) arc->range = storedRange(arc->range);
    return answerArc(arc, center, r, angles);
}

int32_t ca_arcan(double *start, double *end) {
    const AngleRange range = storedRange({*start, *end});
    *start = range.start;
    *end = range.end;
    return 0;
}

} // extern "C"
