// Two lines through the common points of a circle and an ellipse.
//
// For 0 < s < 1, with t = 1 - s, the curve  E - (b^2 + H s) C  is
//     H t (y - y0)^2 - H s (x - x0)^2 + constant,
// and where the constant vanishes it falls apart into the lines
//     sqrt(s) x + sqrt(t) y = (g + s) / L,    sqrt(t) y - sqrt(s) x = L,
//     L = xi / sqrt(s) + eta / sqrt(t).
// It vanishes at the roots in (0, 1) of
//     s^3 - (1 - g) s^2 + (xi^2 + eta^2 - g) s - xi^2,
// of which there is one or, if all four points are real, three. Exchanging s with t, xi with eta
// and g with -1 - g leaves the cubic as it is, so that each root is sought from its nearer end.
//
// No step divides by a centre's coordinate or by H alone: nearly round ellipses and centres nearly
// on an axis keep their digits. The doubled digits are for what is left: nearly touching curves,
// and a circle much larger than the ellipse.

#include "ellipse/pencil.h"

namespace planegeo {

namespace {

/// s^3 - alpha s^2 + k s - xi^2, seen from s = 0.
struct PencilCubic {
    Doubled xi;
    Doubled xi2;
    Doubled alpha;
    Doubled k;

    PencilCubic(Doubled atZero, Doubled atZero2, Doubled atOne2, Doubled g)
        : xi(atZero), xi2(atZero2), alpha(1.0 - g), k(atZero2 + atOne2 - g) {}

    double at(double s) const { return ((s - alpha.hi) * s + k.hi) * s - xi2.hi; }
    Doubled at(Doubled s) const { return ((s - alpha) * s + k) * s - xi2; }
    double slopeAt(double s) const { return (3.0 * s - 2.0 * alpha.hi) * s + k.hi; }

    double inflection() const { return alpha.hi / 3.0; }
    /// Asked of the cubic whose point of inflection is nearer to 0 than to 1. The cubic rises
    /// and is concave up to its first root before that point, if there is one; of three roots
    /// that one is then further from the middle one than the last is.
    bool hasOuterRootBefore() const { return inflection() > 0.0 && at(inflection()) >= 0.0; }
    /// Whether a root before the point of inflection is nearer to 0 than to 1.
    bool isNearZero() const { return inflection() <= 0.5 || at(0.5) >= 0.0; }

    /// Newton's steps from a start between which and the root the cubic does not bend back: none
    /// passes the root.
    Doubled rootFrom(double start, double direction) const {
        constexpr int kMostSteps = 64, kMostDoubledSteps = 8;
        constexpr double kLastStep = 0x1p-50; // of the root; the next would be its square
        double s = start;
        for (int i = 0; i < kMostSteps; ++i) {
            const double next = s - at(s) / slopeAt(s);
            if (!((next - s) * direction > 0.0)) break;
            s = next;
        }
        Doubled root = s;
        for (int i = 0; i < kMostDoubledSteps; ++i) {
            const double step = at(root).value() / slopeAt(root.hi);
            root = root - step;
            if (!(std::fabs(step) > kLastStep * root.hi)) break;
        }
        return root;
    }

    /// xi / sqrt(s) at a root, also where both are zero.
    Doubled ratioAt(Doubled root) const {
        return root.hi > 0.0 ? xi / squareRoot(root) : squareRoot(k);
    }
};

/// Where the line  normal . p = offset  meets the unit circle, in the circle's own size and place.
LineCut cutUnitCircle(Vec2 normal, Doubled offset, const Pencil &pencil) {
    const Doubled rest = (1.0 - offset) * (1.0 + offset);
    const auto placed = [&](Vec2 v, double length) {
        return Vec2{pencil.quadrant.x * v.x, pencil.quadrant.y * v.y} * (length * pencil.r);
    };
    return {placed(normal, offset.value()),
            placed(leftNormal(normal), std::sqrt(std::fabs(rest.value()))), rest.hi >= 0.0};
}

} // namespace

Pencil::Pencil(const CircleAndEllipse &curves)
    : quadrant{std::copysign(1.0, curves.center.x), std::copysign(1.0, curves.center.y)},
      r(curves.r) {
    const double a = curves.a, b = curves.b;
    const double e = std::fabs(curves.center.x), f = std::fabs(curves.center.y);
    const Doubled a2 = Doubled::product(a, a), b2 = Doubled::product(b, b);
    const Doubled h = Doubled::difference(a, b) * Doubled::sum(a, b);
    const Doubled unit = 1.0 / (h * r);
    xi = b2 * e * unit;
    eta = a2 * f * unit;
    const Doubled toCircle = Doubled::product(e, e) + (Doubled::product(r, r) - a2);
    g = (b2 * toCircle + a2 * Doubled::product(f, f)) * unit / r;
}

std::array<LineCut, 2> Pencil::lines() const {
    const Doubled xi2 = squared(xi), eta2 = squared(eta);
    const PencilCubic fromZero(xi, xi2, eta2, g);
    const PencilCubic fromOne(eta, eta2, xi2, -1.0 - g);
    const bool before = fromZero.inflection() <= 0.5 ? fromZero.hasOuterRootBefore()
                                                     : !fromOne.hasOuterRootBefore();
    const bool rising = (before ? fromZero : fromOne).isNearZero();
    const bool nearZero = before == rising;
    const Doubled root =
        (nearZero ? fromZero : fromOne).rootFrom(rising ? 0.0 : 0.5, rising ? 1.0 : -1.0);
    const Doubled s = nearZero ? root : 1.0 - root;
    const Doubled t = nearZero ? 1.0 - root : root;
    const Vec2 normal = {std::sqrt(s.value()), std::sqrt(t.value())};
    const Doubled far = fromZero.ratioAt(s) + fromOne.ratioAt(t);
    return {cutUnitCircle(normal, (g + s) / far, *this),
            cutUnitCircle({-normal.x, normal.y}, far, *this)};
}

} // namespace planegeo
