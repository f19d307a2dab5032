// The feet of perpendiculars from a point to an ellipse or elliptic arc, with their fall-backs; the
// projection along the polar angle.
//
// The first axis must be the longer. The feet come in the order in which the closed form finds the
// roots of the quartic for their abscissas. That order is known beforehand, so the quartic is not
// solved: its rounding would lose some feet and move others.

#include "base/settings.h"
#include "base/tolerance.h"
#include "circle/line_circle.h"
#include "ellipse/normal_feet.h"
#include "ellipse/query.h"
#include "ellipse/sampled_distance.h"

namespace {

using namespace planegeo;

constexpr int32_t kShortAxis = -1;
constexpr int32_t kNotLonger = -2;

/// 0, or the code for an ellipse whose feet are not asked for.
int32_t refusal(const DTELLIPSE &e) {
    const double tolerance = distanceTolerance();
    if (tolerance >= e.a || tolerance >= e.b) return kShortAxis;
    return tolerance >= e.a - e.b ? kNotLonger : 0;
}

struct Feet {
    Vec2 at[4];
    int32_t count = 0; ///< or the code of a refusal
};

/// The nearest foot, or both where two are as near; none without finite coordinates.
struct NearestFeet {
    Feet feet;
    double distance = 0.0;
};

/// A point against an ellipse with half axes A > B, in the frame of the ellipse.
class FeetQuestion {
  public:
    FeetQuestion(const EllipseFrame &e, Vec2 point)
        : q_(e.toLocal(point)), a_(e.halfFirst), b_(e.halfSecond), k_((a_ - b_) * (a_ + b_)) {}

    Feet all() const;
    NearestFeet nearest() const;

  private:
    bool isAtCenter() const { return isShorterThan(q_, distanceTolerance()); }
    bool isOnSecondAxis() const { return std::fabs(q_.x) < distanceTolerance(); }
    bool isOnFirstAxis() const { return std::fabs(q_.y) < distanceTolerance(); }
    /// Without a difference of the axes, which only a negative errdist lets pass, the quartic has
    /// no leading coefficient.
    bool isSolvable() const { return k_ != 0.0; }

    Feet besideFirstAxis() const;
    Feet besideSecondAxis() const;
    Feet ofGeneralPoint() const;
    Vec2 placed(Vec2 direction) const { return {a_ * direction.x, b_ * direction.y}; }

    Vec2 q_;
    double a_, b_;
    double k_; ///< A^2 - B^2; a negative errdist lets negative ones pass
};

/// For a point on the first axis: x = A^2 x0 / k, where that is on the ellipse.
Feet FeetQuestion::besideFirstAxis() const {
    const double c = a_ * q_.x / k_;
    if (!(std::fabs(c) < 1.0)) return {};
    const Vec2 foot = placed({c, std::sqrt((1.0 - c) * (1.0 + c))});
    return {{foot, {foot.x, -foot.y}}, 2};
}

/// For a point on the second axis: y = -B^2 y0 / k, where that is on the ellipse.
Feet FeetQuestion::besideSecondAxis() const {
    const double s = -b_ * q_.y / k_;
    if (!(std::fabs(s) < 1.0)) return {};
    const Vec2 foot = placed({std::sqrt((1.0 - s) * (1.0 + s)), s});
    return {{foot, {-foot.x, foot.y}}, 2};
}

/// The abscissas, positive on the point's side, are the real roots. Of two the closed form gives
/// the greater first. Of four, x1 > x2 > x3 > x4, it gives x3, x4, x1, x2; the nearest foot is x3,
/// the farthest x4, and x1 and x2 lie across the first axis. (Its other branch, which would pair
/// them otherwise, needs a point within 1e-12 of the second axis.) With the second axis the longer
/// the nearest foot is x1, the farthest x2, and x3 and x4 lie across the second axis.
Feet FeetQuestion::ofGeneralPoint() const {
    if (!isSolvable()) return {{}, kNotLonger};
    const NormalFeet feet(q_, a_, b_);
    const Vec2 nearest = placed(feet.nearest()), farthest = placed(feet.farthest());
    // A NaN or an infinity has no real roots.
    if (!std::isfinite(nearest.x + nearest.y + farthest.x + farthest.y + q_.x + q_.y)) return {};
    if (!feet.areFour()) return {{nearest, farthest}, 2};
    const Vec2 secondNearest = placed(feet.secondNearest());
    const Vec2 secondFarthest = placed(feet.secondFarthest());
    if (k_ < 0.0) return {{secondFarthest, secondNearest, nearest, farthest}, 4};
    return {{nearest, farthest, secondFarthest, secondNearest}, 4};
}

Feet FeetQuestion::all() const {
    if (isAtCenter()) return {{{a_, 0.0}, {0.0, b_}, {-a_, 0.0}, {0.0, -b_}}, 4};
    if (!isOnSecondAxis() && !isOnFirstAxis()) return ofGeneralPoint();
    const Feet beside = isOnSecondAxis() ? besideSecondAxis() : besideFirstAxis();
    const Vec2 end = isOnSecondAxis() ? Vec2{0.0, b_} : Vec2{a_, 0.0};
    return {{end, -end, beside.at[0], beside.at[1]}, 2 + beside.count};
}

NearestFeet FeetQuestion::nearest() const {
    if (isAtCenter()) return {{{{0.0, b_}, {0.0, -b_}}, 2}, b_};
    if (isOnSecondAxis()) {
        return {{{{0.0, q_.y >= 0.0 ? b_ : -b_}}, 1}, std::fabs(b_ - std::fabs(q_.y))};
    }
    if (isOnFirstAxis()) {
        const Feet beside = besideFirstAxis();
        // The point is taken as on the axis in its distance, too.
        if (beside.count > 0) {
            return {beside, hypotLength({beside.at[0].x - q_.x, beside.at[0].y})};
        }
        return {{{{q_.x < 0.0 ? -a_ : a_, 0.0}}, 1}, std::fabs(a_ - std::fabs(q_.x))};
    }
    const Vec2 foot = placed(NormalFeet(q_, a_, b_).nearest());
    const double distance = hypotLength(foot - q_);
    if (!isSolvable() || !std::isfinite(distance)) return {};
    return {{{foot}, 1}, distance};
}

Feet inPlane(Feet feet, const EllipseFrame &frame) {
    for (int i = 0; i < feet.count; ++i) {
        feet.at[i] = frame.toPlane(feet.at[i]);
    }
    return feet;
}

/// In the plane.
Feet allFeet(Vec2 p, const DTELLIPSE &e) {
    if (const int32_t code = refusal(e)) return {{}, code};
    const EllipseFrame frame = EllipseFrame::of(e);
    return inPlane(FeetQuestion(frame, p).all(), frame);
}

/// In the plane, those that lie on the arc.
Feet feetOnArc(Vec2 p, const DTELLIPSE &e) {
    const Feet feet = allFeet(p, e);
    if (feet.count < 1) return feet;
    const EllipticArc arc(EllipseFrame::of(e), e.rot, {e.start, e.end});
    Feet kept;
    for (int i = 0; i < feet.count; ++i) {
        if (arc.holds(feet.at[i]) == OnEllipseArc::yes) {
            kept.at[kept.count++] = feet.at[i];
        }
    }
    return kept;
}

void store(const Feet &feet, DTPOINT *out) {
    for (int i = 0; i < feet.count; ++i) {
        store(feet.at[i], &out[i]);
    }
}

void clear(DTPOINT *out, int count) {
    for (int i = 0; i < count; ++i) {
        out[i] = {0.0, 0.0};
    }
}

/// Stores the feet and returns their number; where there is none, the nearest sample of the arc
/// stands in, or the point where it lies on the arc.
uint32_t storeOrReplace(const Feet &feet, Vec2 p, const DTELLIPSE &e, DTPOINT *out) {
    if (feet.count > 0) {
        store(feet, out);
        return static_cast<uint32_t>(feet.count);
    }
    const auto [distance, nearest] =
        sampledNearest(p, EllipseFrame::of(e), e.rot, {e.start, e.end});
    store(std::fabs(distance) < distanceTolerance() ? p : nearest, &out[0]);
    return 1;
}

/// An ellipse whose axes do not differ enough counts as the circle over its first axis.
Circle roundedToCircle(const DTELLIPSE &e) { return {{e.cx, e.cy}, e.a * 0.5}; }

/// The range of an arc of an ellipse, as a2d_perle() reads it: an end at 0 counts as 360.
AngleRange projectedRange(const DTELLIPSE &e) {
    const bool reversed = (e.attr & PLANEGEO_ATTR_REVERSED) != 0;
    const bool clockwise = (e.attr & PLANEGEO_ATTR_CLOCKWISE) != 0;
    AngleRange range =
        reversed == clockwise ? AngleRange{e.start, e.end} : AngleRange{e.end, e.start};
    if (std::fabs(range.end) < kProjectedEndAtZeroDeg) range.end = 360.0;
    return range;
}

/// One turn is added to a negative start, and then to a negative end; the rest stays outside.
bool holdsProjection(AngleRange range, double deg) {
    if (range.start < -kProjectedSlackDeg) {
        range.start += 360.0;
        if (range.end < -kProjectedSlackDeg) range.end += 360.0;
        if (range.start < -kProjectedSlackDeg) return false;
    }
    if (range.end < -kProjectedSlackDeg) return false;
    const bool notBeforeStart = range.start - kProjectedSlackDeg <= deg;
    const bool notBeyondEnd = deg <= range.end + kProjectedSlackDeg;
    if (range.start <= range.end) return notBeforeStart && notBeyondEnd;
    return (notBeforeStart && deg < kProjectedMaxDeg) ||
           (-kProjectedSlackDeg <= deg && notBeyondEnd);
}

} // namespace

extern "C" {

int32_t a2dEllpsPer(const DTPOINT *p, const DTELLIPSE *e, DTPOINT *out, double *dist) {
    const Vec2 point = load(p);
    const DTELLIPSE ellipse = *e;
    clear(out, 2);
    if (const int32_t code = refusal(ellipse)) return code;
    const EllipseFrame frame = EllipseFrame::of(ellipse);
    const NearestFeet nearest = FeetQuestion(frame, point).nearest();
    if (nearest.feet.count == 0) return 0;
    store(inPlane(nearest.feet, frame), out);
    *dist = nearest.distance;
    return nearest.feet.count;
}

int32_t a2dEllpsPerPnts(const DTPOINT *p, const DTELLIPSE *e, DTPOINT *out) {
    const Feet feet = allFeet(load(p), *e);
    clear(out, 4);
    store(feet, out);
    return feet.count;
}

int32_t a2dEllpsArcPerPnts(const DTPOINT *p, const DTELLIPSE *e, DTPOINT *out) {
    const Feet feet = feetOnArc(load(p), *e);
    store(feet, out);
    return feet.count;
}

int32_t a2d_PerEP(const DTPOINT *p, const DTELLIPSE *e, DTPOINT *out, uint32_t *count) {
    const Vec2 point = load(p);
    const DTELLIPSE ellipse = *e;
    const Feet feet = allFeet(point, ellipse);
    clear(out, 4);
    if (feet.count == kShortAxis) return -1;
    if (feet.count == kNotLonger) {
        const Circle circle = roundedToCircle(ellipse);
        if (circle.r <= 0.0 || isWithinBox(point - circle.center, distanceTolerance())) return -1;
        const PointPair crossed = crossLineCircle({point, circle.center}, circle);
        storePadded(crossed, &out[0], &out[1]);
        *count = static_cast<uint32_t>(crossed.count);
        return 0;
    }
    *count = storeOrReplace(feet, point, ellipse, out);
    return 0;
}

int32_t a2d_PerEP2(const DTPOINT *p, const DTELLIPSE *e, DTPOINT *out, uint32_t *count) {
    const Vec2 point = load(p);
    const DTELLIPSE ellipse = *e;
    const bool isFull = std::fabs(ellipse.start) < distanceTolerance() &&
                        std::fabs(ellipse.end - 360.0) < distanceTolerance();
    const Feet feet = isFull ? allFeet(point, ellipse) : feetOnArc(point, ellipse);
    if (isFull) clear(out, 4);
    if (feet.count == kShortAxis) return -1;
    if (feet.count == kNotLonger) {
        const Circle circle = roundedToCircle(ellipse);
        const auto [range, isWholeTurn] =
            AngleRange::normalised(ellipse.start + ellipse.rot, ellipse.end + ellipse.rot);
        const auto crossed = crossLineArc(Keep::onArc, {point, circle.center}, circle, range);
        storePadded(crossed.value_or(PointPair{}), &out[0], &out[1]);
        if (!crossed) return -1;
        *count = static_cast<uint32_t>(crossed->count);
        return 0;
    }
    *count = storeOrReplace(feet, point, ellipse, out);
    return 0;
}

int32_t a2d_perle(const DTPOINT *p, const DTELLIPSE *e, DTPOINT *out) {
    const Vec2 point = load(p);
    const EllipseFrame frame = EllipseFrame::of(*e);
    if (e->a <= kProjectedShortAxis || e->b <= kProjectedShortAxis) return -1;
    if (isWithinBox(point - frame.center, kProjectedAtCenter)) return -1;
    const double rotationDeg = e->rot;
    const AngleRange range = projectedRange(*e);
    // The polar angle is taken for a parameter on purpose.
    const Vec2 projected = frame.at(directionDeg(frame.toLocal(point)));
    store(projected, out);
    double deg = snappedDirectionRad(projected - frame.center) * kDegPerRad - rotationDeg;
    if (deg < -kProjectedSlackDeg) deg += 360.0;
    if (deg > kProjectedMaxDeg) deg -= 360.0;
    return holdsProjection(range, deg) ? 0 : 1;
}

} // extern "C"
