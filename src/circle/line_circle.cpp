// Where a line meets a circle, and which of the points lie on an arc of the circle or on a
// segment of the line.

#include "circle/line_circle.h"

namespace {

using namespace planegeo;

/// The range as this question reads it, apart from AngleRange on purpose: a negative angle is
/// raised by one turn and nothing else is reduced.
struct LiteralArc {
    double first;
    double last;
    bool isFull;

    explicit LiteralArc(AngleRange range) {
        const double start = raisedIf(range.start < 0.0, range.start);
        const double end = raisedIf(range.end < 0.0, range.end);
        isFull = std::fabs(end - start) < kLineArcSlackDeg ||
                 std::fabs(end - start - 360.0) < kLineArcSlackDeg;
        first = start - kLineArcSlackDeg;
        last = end + kLineArcSlackDeg;
        last = raisedIf(first >= last, last);
    }

    bool holds(Vec2 fromCenter) const {
        if (isFull) return true;
        double deg = directionDeg(fromCenter);
        if (std::fabs(deg - 360.0) < kLineArcSlackDeg) deg = 0.0;
        if (first > deg) deg += 360.0;
        return !(deg > last); // a NaN passes
    }
};

/// Where a line cuts a circle.
struct Cuts {
    Vec2Pair points;
    Vec2Pair offsets; ///< from the centre, times |d|^2
};

/// How a line passes a circle.
struct Passage {
    Vec2 along;
    double squared;
    Vec2 foot;  ///< of the perpendicular from the centre
    double gap; ///< from the circle to the line; negative where the line cuts it

    Passage(const Segment &line, const Circle &circle)
        : along(line.direction()), squared(dot(along, along)) {
        const PerpendicularFoot dropped = footOnLine(circle.center, line.start, along);
        foot = dropped.point;
        gap = std::fabs(dropped.offset) * std::sqrt(squared) - circle.r;
    }

    /// With p and q from the centre to the points of the line and d from one to the other:
    ///   c + (D left of d +- s d) / |d|^2,  D = q x p,  s^2 = r^2 |d|^2 - D^2.
    /// Kept in this form: it is exact on a grid, and whether a point lies at the very end of an arc
    /// hangs on its last bits.
    Cuts cuts(const Segment &line, const Circle &circle) const {
        const double D = cross(line.end - circle.center, line.start - circle.center);
        const double s = std::sqrt(circle.r * circle.r * squared - D * D);
        const Vec2 toFoot = leftNormal(along) * D;
        const Vec2 ahead = along * s;
        const Vec2Pair offset = twice(toFoot) + pairOf(ahead, -ahead);
        return {Vec2Pair{offset.x / squared, offset.y / squared} + twice(circle.center), offset};
    }

    /// Whether the offsets, which are known before the points, tell the points' directions from the
    /// centre to 0.001 degrees: what the centre's coordinates round away is no part of the radius.
    bool tellsDirections(const Circle &circle) const {
        constexpr double kFarFromUnderflow = 0x1p-300;
        const double farthest = 0x1p36 * circle.r;
        return circle.r > kFarFromUnderflow && squared > kFarFromUnderflow &&
               std::fabs(circle.center.x) < farthest && std::fabs(circle.center.y) < farthest;
    }
};

/// Which of two points are kept, positive numbers, where all is clear of every tolerance. Inlined
/// always: pairs are handed over in memory.
struct KeptOfTwo {
    Pair told = {1.0, 1.0};
    Pair kept = {1.0, 1.0};

    [[gnu::always_inline]] KeptOfTwo(Keep keep, const Segment &line, AngleRange range,
                                     const Cuts &cuts, bool offsetsTell) {
        if (asksForArc(keep)) {
            const LiteralArc arc(range);
            if (!arc.isFull) {
                const CoarseLook look(cuts.offsets, arc.first, arc.last);
                told = offsetsTell ? look.told : Pair{};
                kept = look.inside;
            }
        }
        if (asksForSegment(keep)) {
            const SegmentLook<Vec2Pair> look(twice(line.direction()),
                                             cuts.points - twice(line.start));
            const Pair on = look.onLine > 0.0 ? look.inside : Pair{};
            const Pair either = larger(on, look.outside);
            told = told > 0.0 ? either : Pair{};
            told = longestTold() > look.longer ? told : Pair{};
            kept = on > 0.0 ? kept : Pair{};
        }
    }

    bool isTold() const { return told[0] > 0.0 && told[1] > 0.0; }
};

inline bool isRefused(const Segment &line, const Circle &circle) {
    return circle.r <= 0.0 || isWithinBox(line.direction(), distanceTolerance());
}

/// crossLineArc() of a line with a direction and a circle with a radius.
PointPair keptOf(const Passage &passage, Keep keep, const Segment &line, const Circle &circle,
                 AngleRange range) {
    const double tolerance = distanceTolerance();
    if (passage.gap >= tolerance) return {};
    PointPair points = {{passage.foot}, 1};
    if (!(std::fabs(passage.gap) < tolerance)) {
        const Vec2Pair cuts = passage.cuts(line, circle).points;
        points = {{cuts.at(0), cuts.at(1)}, 2};
    }
    if (asksForArc(keep)) {
        const LiteralArc arc(range);
        points = points.keptWhere([&](Vec2 p) { return arc.holds(p - circle.center); });
    }
    if (asksForSegment(keep)) {
        points = points.keptWhere([&](Vec2 p) { return onSegment(line, p) == OnSegment::yes; });
    }
    return points;
}

/// answerLineArc() without its short cut.
[[gnu::noinline]] int32_t answerOneByOne(Keep keep, const Segment &line, const Circle &circle,
                                         AngleRange range, DTPOINT *out1, DTPOINT *out2,
                                         uint16_t *count) {
    const auto points = crossLineArc(keep, line, circle, range);
    const PointPair kept = points.value_or(PointPair{});
    storePadded(kept, out1, out2);
    *count = static_cast<uint16_t>(kept.count);
    return points ? 0 : 1;
}

template <Keep keep>
int32_t answerLineArc(const DTPOINT *a1, const DTPOINT *a2, const DTPOINT *center, double r,
                      const double *angles, DTPOINT *out1, DTPOINT *out2, uint16_t *count) {
    const AngleRange range = asksForArc(keep) ? loadRange(angles) : AngleRange{};
    const Segment line = load(a1, a2);
    const Circle circle = {load(center), r};
    const double tolerance = distanceTolerance();
    const Passage passage(line, circle);
    if (!isRefused(line, circle) && passage.gap < tolerance &&
        !(std::fabs(passage.gap) < tolerance)) {
        const Cuts cuts = passage.cuts(line, circle);
        const KeptOfTwo look(keep, line, range, cuts, passage.tellsDirections(circle));
        if (look.isTold()) {
            *count = static_cast<uint16_t>(
                storeKept(cuts.points, look.kept[0] > 0.0, look.kept[1] > 0.0, out1, out2));
            return 0;
        }
    }
    return answerOneByOne(keep, line, circle, range, out1, out2, count);
}

} // namespace

namespace planegeo {

PointPair crossLineCircle(const Segment &line, const Circle &circle) {
    return keptOf(Passage(line, circle), Keep::all, line, circle, {});
}

std::optional<PointPair> crossLineArc(Keep keep, const Segment &line, const Circle &circle,
                                      AngleRange range) {
    if (isRefused(line, circle)) return std::nullopt;
    return keptOf(Passage(line, circle), keep, line, circle, range);
}

} // namespace planegeo

namespace {

constexpr int32_t kNoPoint = 2071;

} // namespace

extern "C" {

int32_t cross_lin_cir(const DTPOINT *a1, const DTPOINT *a2, const DTPOINT *center, double r,
                      DTPOINT *out1, DTPOINT *out2, uint16_t *count) {
    const PointPair points = crossLineCircle(load(a1, a2), {load(center), r});
    if (points.count > 0) storePadded(points, out1, out2);
    *count = static_cast<uint16_t>(points.count);
    return 0;
}

int32_t a2d_lin_arc(uint32_t mode, const DTPOINT *a1, const DTPOINT *a2, const DTPOINT *center,
                    double r, const double *angles, DTPOINT *out1, DTPOINT *out2, uint16_t *count) {
    switch (Keep{mode}) {
    case Keep::onArc:
        return answerLineArc<Keep::onArc>(a1, a2, center, r, angles, out1, out2, count);
    case Keep::onSegment:
        return answerLineArc<Keep::onSegment>(a1, a2, center, r, angles, out1, out2, count);
    case Keep::onBoth:
        return answerLineArc<Keep::onBoth>(a1, a2, center, r, angles, out1, out2, count);
    default:
        return answerLineArc<Keep::all>(a1, a2, center, r, angles, out1, out2, count);
    }
}

int32_t a2dCrsLC(const DTPOINT *a1, const DTPOINT *a2, const DTPOINT *center, double r,
                 DTPOINT *out) {
    uint16_t count;
    answerLineArc<Keep::all>(a1, a2, center, r, nullptr, out, out + 1, &count);
    return count;
}

int32_t ca_crslc(const DTPOINT *a1, const DTPOINT *a2, const DTPOINT *center, double r,
                 DTPOINT *out1, DTPOINT *out2, uint16_t *count) {
    answerLineArc<Keep::all>(a1, a2, center, r, nullptr, out1, out2, count);
    return *count > 0 ? 0 : kNoPoint;
}

int32_t ca_crslc2(const DTPOINT *a1, const DTPOINT *a2, const DTPOINT *center, double r,
                  const double *angles, DTPOINT *out1, DTPOINT *out2, uint16_t *count) {
    answerLineArc<Keep::onArc>(a1, a2, center, r, angles, out1, out2, count);
    return *count > 0 ? 0 : kNoPoint;
}

int32_t ca_inslc(const DTPOINT *a1, const DTPOINT *a2, const DTPOINT *center, double r,
                 const double *angles, DTPOINT *out1, DTPOINT *out2, uint16_t *count) {
    return answerLineArc<Keep::onBoth>(a1, a2, center, r, angles, out1, out2, count);
}

int32_t a2d_inslc(const DTPOINT *a1, const DTPOINT *a2, const DTPOINT *center, double r,
                  const double *angles, DTPOINT *out1, DTPOINT *out2, uint16_t *count) {
    return ca_inslc(a1, a2, center, r, angles, out1, out2, count);
}

int32_t sb_inslc(const DTPOINT *a1, const DTPOINT *a2, const DTPOINT *center, double r,
                 const double *angles, DTPOINT *out1, DTPOINT *out2, uint16_t *count) {
    return answerLineArc<Keep::onArc>(a1, a2, center, r, angles, out1, out2, count);
}

} // extern "C"
