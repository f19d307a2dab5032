// Where two lines meet: through two points each, with a bare or a scaled test for parallels,
// or through a point and a direction angle each.

#include "base/angle.h"
#include "line/segment.h"

namespace {

using namespace planegeo;

/// Two lines in normal form, n . x = c. The constants are formed at the given coordinates,
/// without a shift.
struct LinePair {
    Vec2 normalA, normalB;
    double a, b;
    double determinant; ///< cross product of the directions

    LinePair(const Segment &first, const Segment &second)
        : normalA(normalOf(first)), normalB(normalOf(second)), a(dot(normalA, first.start)),
          b(dot(normalB, second.start)),
          determinant(normalB.y * normalA.x - normalB.x * normalA.y) {}

    Vec2 intersection() const {
        return {(normalB.y * a - b * normalA.y) / determinant,
                (b * normalA.x - normalB.x * a) / determinant};
    }

  private:
    static Vec2 normalOf(const Segment &s) { return {s.end.y - s.start.y, s.start.x - s.end.x}; }
};

/// On purpose both quotients must be small: one alone is no parallel.
bool areParallel(double determinant, const Segment &first, const Segment &second) {
    const double tolerance = distanceTolerance();
    return isQuotientBelow(std::fabs(determinant), first.direction(), tolerance) &&
           isQuotientBelow(std::fabs(determinant), second.direction(), tolerance);
}

struct TwoLines {
    const DTPOINT *a1, *a2, *b1, *b2;
};

/// a2d_ins2l() without its short cut.
[[gnu::noinline]] int32_t crossByDistance(TwoLines points, DTPOINT *out) {
    const auto [a1, a2, b1, b2] = points;
    const Segment a = load(a1, a2);
    const Segment b = load(b1, b2);
    const LinePair lines(a, b);
    if (areParallel(lines.determinant, a, b)) {
        store({0.0, 0.0}, out);
        return 2;
    }
    const Vec2 point = lines.intersection();
    store(point, out);
    const bool isOnBoth =
        onSegment(a, point) == OnSegment::yes && onSegment(b, point) == OnSegment::yes;
    return isOnBoth ? 0 : 1;
}

bool isVertical(double deg) {
    return std::fabs(deg - 90.0) < kDirectionSlackDeg ||
           std::fabs(deg - 270.0) < kDirectionSlackDeg;
}

/// The point common to y - p.y = tan(degP) (x - p.x) and the same of q.
Vec2 intersectByAngles(Vec2 p, double degP, Vec2 q, double degQ) {
    // 90 against 270 comes here too and gives the huge value of the tangent.
    if (isVertical(degP)) return {p.x, std::tan(degQ * kRadPerDeg) * (p.x - q.x) + q.y};
    if (isVertical(degQ)) return {q.x, std::tan(degP * kRadPerDeg) * (q.x - p.x) + p.y};
    const double t1 = std::tan(degP * kRadPerDeg);
    const double t2 = std::tan(degQ * kRadPerDeg);
    const double x = (t1 * p.x - t2 * q.x - p.y + q.y) / (t1 - t2);
    return {x, x * t1 - t1 * p.x + p.y};
}

} // namespace

extern "C" {

int32_t a2dCrs2L(const DTPOINT *a1, const DTPOINT *a2, const DTPOINT *b1, const DTPOINT *b2,
                 DTPOINT *out) {
    const LinePair lines(load(a1, a2), load(b1, b2));
    if (std::fabs(lines.determinant) < kParallelCross) return 0;
    store(lines.intersection(), out);
    return 1;
}

int32_t a2d_ins2l(const DTPOINT *a1, const DTPOINT *a2, const DTPOINT *b1, const DTPOINT *b2,
                  DTPOINT *out) {
    const Segment a = load(a1, a2), b = load(b1, b2);
    const LinePair lines(a, b);
    const Vec2 point = lines.intersection();
    const Vec2Pair starts = pairOf(a.start, b.start), ends = pairOf(a.end, b.end);
    const SegmentLook<Vec2Pair> look(ends - starts, twice(point) - starts);
    // A determinant above the slack of one line is none of parallels, see isQuotientBelow().
    const Pair told =
        smaller(std::fabs(lines.determinant) - look.slack, longestTold() - look.longer);
    const Pair insideIfNear = look.onLine > 0.0 ? look.inside : Pair{};
    const Pair on = smallerOf(told > 0.0 ? insideIfNear : Pair{});
    const Pair off = largerOf(told > 0.0 ? look.outside : Pair{});
    if (!(larger(on, off)[0] > 0.0)) return crossByDistance({a1, a2, b1, b2}, out);
    store(point, out);
    return off[0] > 0.0 ? 1 : 0;
}

int32_t ca_ins2l(const DTPOINT *a1, const DTPOINT *a2, const DTPOINT *b1, const DTPOINT *b2,
                 DTPOINT *out) {
    return a2d_ins2l(a1, a2, b1, b2, out);
}

int32_t aatCalCrs2l(double *rec, double *angles) {
    constexpr int32_t kSameDirection = 2070;
    angles[0] = reducedKeeping360(angles[0]);
    angles[1] = reducedKeeping360(angles[1]);
    if (std::fabs(angles[0] - angles[1]) < kDirectionSlackDeg) return kSameDirection;
    const Vec2 point = intersectByAngles({rec[0], rec[1]}, angles[0], {rec[2], rec[3]}, angles[1]);
    rec[4] = point.x;
    rec[5] = point.y;
    return 0;
}

} // extern "C"
