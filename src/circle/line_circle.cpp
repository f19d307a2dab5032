// Where a line meets a circle, and which of the points lie on an arc of the circle or on a
// segment of the line.

#include "circle/line_circle.h"

namespace {

using namespace planegeo;

/// The range as this question reads it, apart from AngleRange on purpose: a negative angle is
/// raised by one turn and nothing else is reduced.
class LiteralArc {
  public:
    explicit LiteralArc(AngleRange range) {
        const double start = raisedOnce(range.start);
        const double end = raisedOnce(range.end);
        full_ = std::fabs(end - start) < kLineArcSlackDeg ||
                std::fabs(end - start - 360.0) < kLineArcSlackDeg;
        first_ = start - kLineArcSlackDeg;
        last_ = end + kLineArcSlackDeg;
        if (first_ >= last_) last_ += 360.0;
    }

    bool holds(Vec2 fromCenter) const {
        if (full_) return true;
        const double coarse = coarseDirectionDeg(fromCenter);
        const double raised = first_ > coarse ? coarse + 360.0 : coarse;
        if (isClearOfZero(coarse) && isClearOf(coarse, first_) && isClearOf(raised, last_)) {
            return raised < last_;
        }
        double deg = directionDeg(fromCenter);
        if (std::fabs(deg - 360.0) < kLineArcSlackDeg) deg = 0.0;
        if (first_ > deg) deg += 360.0;
        return !(deg > last_); // a NaN passes
    }

  private:
    static double raisedOnce(double deg) { return deg < 0.0 ? deg + 360.0 : deg; }

    double first_;
    double last_;
    bool full_;
};

} // namespace

namespace planegeo {

PointPair crossLineCircle(const Segment &line, const Circle &circle) {
    const Vec2 along = line.direction();
    const double squared = dot(along, along);
    const PerpendicularFoot foot = footOnLine(circle.center, line.start, along);
    const double gap = std::fabs(foot.offset) * std::sqrt(squared) - circle.r;
    if (gap >= distanceTolerance()) return {};
    if (std::fabs(gap) < distanceTolerance()) return {{foot.point}, 1};

    // With p and q from the centre to the points of the line and d from one to the other:
    //   c + (D left of d +- s d) / |d|^2,  D = q x p,  s^2 = r^2 |d|^2 - D^2.
    // Kept in this form: it is exact on a grid, and whether a point lies at the very end of
    // an arc hangs on its last bits.
    const double D = cross(line.end - circle.center, line.start - circle.center);
    const double s = std::sqrt(circle.r * circle.r * squared - D * D);
    const Vec2 toFoot = leftNormal(along) * D;
    const Vec2 ahead = along * s;
    return {
        {(toFoot + ahead) / squared + circle.center, (toFoot - ahead) / squared + circle.center},
        2};
}

std::optional<PointPair> crossLineArc(Keep keep, const Segment &line, const Circle &circle,
                                      AngleRange range) {
    if (circle.r <= 0.0) return std::nullopt;
    if (isWithinBox(line.direction(), distanceTolerance())) return std::nullopt;
    PointPair points = crossLineCircle(line, circle);
    if (asksForArc(keep)) {
        const LiteralArc arc(range);
        points = points.keptWhere([&](Vec2 p) { return arc.holds(p - circle.center); });
    }
    if (asksForSegment(keep)) {
        points = points.keptWhere([&](Vec2 p) { return onSegment(line, p) == OnSegment::yes; });
    }
    return points;
}

} // namespace planegeo

namespace {

constexpr int32_t kNoPoint = 2071;

int32_t answerLineArc(Keep keep, const DTPOINT *a1, const DTPOINT *a2, const DTPOINT *center,
                      double r, const double *angles, DTPOINT *out1, DTPOINT *out2,
                      uint16_t *count) {
    const AngleRange range = asksForArc(keep) ? loadRange(angles) : AngleRange{};
    const auto points = crossLineArc(keep, load(a1, a2), {load(center), r}, range);
    const PointPair kept = points.value_or(PointPair{});
    storePadded(kept, out1, out2);
    *count = static_cast<uint16_t>(kept.count);
    return points ? 0 : 1;
}

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
    return answerLineArc(Keep{mode}, a1, a2, center, r, angles, out1, out2, count);
}

int32_t a2dCrsLC(const DTPOINT *a1, const DTPOINT *a2, const DTPOINT *center, double r,
                 DTPOINT *out) {
    uint16_t count;
    answerLineArc(Keep::all, a1, a2, center, r, nullptr, out, out + 1, &count);
    return count;
}

int32_t ca_crslc(const DTPOINT *a1, const DTPOINT *a2, const DTPOINT *center, double r,
                 DTPOINT *out1, DTPOINT *out2, uint16_t *count) {
    answerLineArc(Keep::all, a1, a2, center, r, nullptr, out1, out2, count);
    return *count > 0 ? 0 : kNoPoint;
}

int32_t ca_crslc2(const DTPOINT *a1, const DTPOINT *a2, const DTPOINT *center, double r,
                  const double *angles, DTPOINT *out1, DTPOINT *out2, uint16_t *count) {
    answerLineArc(Keep::onArc, a1, a2, center, r, angles, out1, out2, count);
    return *count > 0 ? 0 : kNoPoint;
}

int32_t ca_inslc(const DTPOINT *a1, const DTPOINT *a2, const DTPOINT *center, double r,
                 const double *angles, DTPOINT *out1, DTPOINT *out2, uint16_t *count) {
    return answerLineArc(Keep::onBoth, a1, a2, center, r, angles, out1, out2, count);
}

int32_t a2d_inslc(const DTPOINT *a1, const DTPOINT *a2, const DTPOINT *center, double r,
                  const double *angles, DTPOINT *out1, DTPOINT *out2, uint16_t *count) {
    return ca_inslc(a1, a2, center, r, angles, out1, out2, count);
}

int32_t sb_inslc(const DTPOINT *a1, const DTPOINT *a2, const DTPOINT *center, double r,
                 const double *angles, DTPOINT *out1, DTPOINT *out2, uint16_t *count) {
    return answerLineArc(Keep::onArc, a1, a2, center, r, angles, out1, out2, count);
}

} // extern "C"
