// The common tangents of two ellipses.
//
// The plane is stretched so that ellipse 1 becomes the unit circle; tangents stay tangents. With p
// the centre of ellipse 2 there and U, V its semi-axes stretched along, it reaches along a unit
// vector n from n.p - r to n.p + r, r^2 = (U.n)^2 + (V.n)^2. The tangent n.x = 1 of the circle
// touches it where
//   F(n) = (1 - n.p)^2 - r^2 = 0,
// on the circle's side (an outer tangent) if 1 - n.p > 0, on the other side (an inner one) if not.
// As a function of the direction F is stationary like the squared distance of a point from an
// ellipse: in two or four directions, and between two of them it has one zero or none.

#include <functional>
#include <utility>

#include "base/angle.h"
#include "base/settings.h"
#include "ellipse/frame.h"
#include "ellipse/normal_equation.h"

namespace {

using namespace planegeo;

/// Up to four values in ascending order.
template <class Value> struct Ordered {
    Value at[4]{};
    int count = 0;

    template <class Less> void insert(const Value &value, Less less) {
        int i = count++;
        for (; i > 0 && less(value, at[i - 1]); --i) {
            at[i] = at[i - 1];
        }
        at[i] = value;
    }
};

struct TwoEllipses {
    EllipseFrame one, two;

    Vec2 between() const { return two.center - one.center; }
};

/// The point of an ellipse, from its centre, at which the outward normal is n.
Vec2 contactAt(const EllipseFrame &e, Vec2 n) {
    const Vec2 local = e.turn.undo(n);
    const Vec2 stretched = {e.halfFirst * local.x, e.halfSecond * local.y};
    return e.turn.apply({e.halfFirst * stretched.x, e.halfSecond * stretched.y}) /
           plainLength(stretched);
}

struct Tangent {
    Vec2 normal; ///< outward from ellipse 1
    bool inner;

    /// The points of contact from the centre of ellipse 1.
    Vec2 contactOne(const TwoEllipses &e) const { return contactAt(e.one, normal); }
    Vec2 contactTwo(const TwoEllipses &e) const {
        return e.between() + (inner ? -contactAt(e.two, normal) : contactAt(e.two, normal));
    }
};

/// F over the directions of n.
class TangencyEquation {
  public:
    explicit TangencyEquation(const TwoEllipses &e)
        : half_{e.one.halfFirst, e.one.halfSecond}, p_(stretched(e, e.between())),
          u_(stretched(e, e.two.turn.apply({e.two.halfFirst, 0.0}))),
          v_(stretched(e, e.two.turn.apply({0.0, e.two.halfSecond}))) {}

    /// 1 - n.p
    double room(Vec2 n) const { return 1.0 - dot(n, p_); }
    double value(Vec2 n) const { return depth(n) * (std::fabs(room(n)) + reach(n)); }
    /// The derivative of F by the angle of n.
    double slope(Vec2 n) const {
        const Vec2 along = leftNormal(n);
        return -2.0 * (room(n) * dot(along, p_) + dot(u_, n) * dot(u_, along) +
                       dot(v_, n) * dot(v_, along));
    }
    /// By how much the tangent of ellipse 1 misses ellipse 2 in the plane; negative where it cuts.
    double gap(Vec2 n) const { return depth(n) / plainLength(inPlane(n)); }
    /// The normal in the frame of ellipse 1.
    Vec2 inPlane(Vec2 n) const { return {n.x / half_.x, n.y / half_.y}; }

    /// The angles of n, within a turn, at which F is stationary.
    Ordered<double> stationary() const;

  private:
    static Vec2 stretched(const TwoEllipses &e, Vec2 v) {
        const Vec2 local = e.one.turn.undo(v);
        return {local.x / e.one.halfFirst, local.y / e.one.halfSecond};
    }
    double reach(Vec2 n) const { return plainLength({dot(u_, n), dot(v_, n)}); }
    double depth(Vec2 n) const { return std::fabs(room(n)) - reach(n); }

    Vec2 half_, p_, u_, v_;
};

/// With the principal axes of  p p' - U U' - V V'  as the frame, F / 2 is
///   k/2 cos^2 - p.x cos - p.y sin + const.
Ordered<double> TangencyEquation::stationary() const {
    const double differing =
        p_.x * p_.x - p_.y * p_.y - (u_.x * u_.x - u_.y * u_.y) - (v_.x * v_.x - v_.y * v_.y);
    const double mixed = 2.0 * (p_.x * p_.y - u_.x * u_.y - v_.x * v_.y);
    const double k = plainLength({differing, mixed});
    const Rotation axes = Rotation::ofRadians(0.5 * std::atan2(mixed, differing));
    const Vec2 p = axes.undo(p_);
    const Vec2 folded = {std::fabs(p.x), std::fabs(p.y)};
    const NormalEquation equation = {k, folded.x, folded.y, k - folded.x};
    Ordered<double> angles;
    const auto add = [&](Vec2 d) {
        const Vec2 n = axes.apply({std::copysign(d.x, d.x * p.x), std::copysign(d.y, d.y * p.y)});
        angles.insert(std::atan2(n.y, n.x), std::less<>());
    };
    add(equation.least());
    add(equation.greatest());
    if (equation.hasFour()) {
        add(equation.secondMinimum());
        add(equation.secondMaximum());
    }
    return angles;
}

Vec2 unitAt(double rad) { return {std::cos(rad), std::sin(rad)}; }

/// A direction between two others, given by their angles, at which F has another sign: Newton's
/// steps, halving where they would leave the shrinking interval.
Vec2 zeroBetween(const TangencyEquation &equation, double below, double above) {
    if (equation.value(unitAt(below)) > 0.0) std::swap(below, above);
    constexpr int kMaxSteps = 80; // halvings alone would reach the last place of an angle
    double t = 0.5 * (below + above);
    for (int i = 0; i < kMaxSteps; ++i) {
        const Vec2 n = unitAt(t);
        const double value = equation.value(n);
        (value < 0.0 ? below : above) = t;
        const double newton = t - value / equation.slope(n);
        const bool inside = (newton - below) * (newton - above) <= 0.0;
        const double next = inside ? newton : 0.5 * (below + above);
        if (std::fabs(next - t) <= 0x1p-48) break;
        t = next;
    }
    return unitAt(t);
}

/// A Newton step in the plane turns the normal square to the line through the two points of
/// contact; kept while that brings it nearer to being so.
Tangent refined(Tangent tangent, const TwoEllipses &e) {
    const auto chord = [&e](const Tangent &t) { return t.contactTwo(e) - t.contactOne(e); };
    Vec2 line = chord(tangent);
    for (int i = 0; i < 3; ++i) {
        const Vec2 square = leftNormal(line) / plainLength(line);
        const Tangent next = {dot(square, tangent.normal) < 0.0 ? -square : square, tangent.inner};
        const Vec2 nextLine = chord(next);
        if (!(std::fabs(dot(next.normal, nextLine)) < std::fabs(dot(tangent.normal, line)))) break;
        tangent = next;
        line = nextLine;
    }
    return tangent;
}

/// Outer tangents before inner ones; each kind by the direction of the normal from ellipse 1,
/// measured from the direction of centre 2 in (-180, 180], or of the first axis of ellipse 1
/// where the centres coincide.
class TangentOrder {
  public:
    explicit TangentOrder(const TwoEllipses &e)
        : base_(isWithinBox(e.between(), distanceTolerance()) ? Vec2{e.one.turn.c, e.one.turn.s}
                                                              : e.between()) {}

    bool operator()(const Tangent &s, const Tangent &t) const {
        return s.inner != t.inner ? t.inner : angleOf(s) < angleOf(t);
    }

  private:
    double angleOf(const Tangent &t) const {
        return std::atan2(cross(base_, t.normal), dot(base_, t.normal));
    }
    Vec2 base_;
};

struct Tangents {
    Ordered<Tangent> found;
    bool coincide; ///< the ellipses, within errdist
};

/// Every change of sign of F around the circle is a tangent. A stationary value within errdist of
/// zero has no sign: the ellipses touch there, where two tangents merge or are about to.
Tangents commonTangents(const TwoEllipses &e) {
    const TangencyEquation equation(e);
    Ordered<double> stationary = equation.stationary();
    bool isPositive[4]{};
    int signs = 0;
    for (int i = 0; i < stationary.count; ++i) {
        const double gap = equation.gap(unitAt(stationary.at[i]));
        if (std::fabs(gap) < distanceTolerance()) continue;
        isPositive[signs] = gap > 0.0;
        stationary.at[signs++] = stationary.at[i];
    }
    Tangents tangents = {{}, signs == 0};
    for (int i = 0; i < signs; ++i) {
        const bool last = i + 1 == signs;
        const int next = last ? 0 : i + 1;
        if (isPositive[i] == isPositive[next]) continue;
        const double end = stationary.at[next] + (last ? kTwoPi : 0.0);
        const Vec2 n = zeroBetween(equation, stationary.at[i], end);
        const Vec2 normal = e.one.turn.apply(equation.inPlane(n));
        tangents.found.insert(refined({normal / plainLength(normal), equation.room(n) < 0.0}, e),
                              TangentOrder(e));
    }
    return tangents;
}

bool isProper(const EllipseFrame &e) {
    const double tolerance = distanceTolerance();
    return 2.0 * e.halfFirst > tolerance && 2.0 * e.halfSecond > tolerance;
}

bool isFinite(const TwoEllipses &e) {
    const Vec2 d = e.between();
    return std::isfinite(d.x + d.y + e.one.turn.c + e.two.turn.c + e.one.halfFirst +
                         e.one.halfSecond + e.two.halfFirst + e.two.halfSecond);
}

} // namespace

extern "C" {

int32_t a2d_tch2e(const DTPOINT *center1, const DTPOINT *center2, double a1, double a2, double b1,
                  double b2, double rot1, double rot2, DTPOINT *t1, DTPOINT *t2, DTPOINT *t3,
                  DTPOINT *t4, DTPOINT *t5, DTPOINT *t6, DTPOINT *t7, DTPOINT *t8,
                  uint16_t *count) {
    constexpr int32_t kDone = 0, kCoincide = 1, kNested = 2, kRefused = -1;
    const TwoEllipses e = {EllipseFrame::of(load(center1), a1, b1, rot1),
                           EllipseFrame::of(load(center2), a2, b2, rot2)};
    *count = 0;
    if (!isProper(e.one) || !isProper(e.two) || !isFinite(e)) return kRefused;
    const auto [tangents, coincide] = commonTangents(e);
    if (coincide) return kCoincide;
    if (tangents.count == 0) return kNested;
    DTPOINT *const outs[4][2] = {{t1, t2}, {t3, t4}, {t5, t6}, {t7, t8}};
    for (int i = 0; i < tangents.count; ++i) {
        store(e.one.center + tangents.at[i].contactOne(e), outs[i][0]);
        store(e.one.center + tangents.at[i].contactTwo(e), outs[i][1]);
    }
    *count = static_cast<uint16_t>(tangents.count);
    return kDone;
}

} // extern "C"
