// A circle about the origin against an ellipse along the axes.
//
// With H = a^2 - b^2 and (ex, ey) the ellipse's centre, the difference of both equations is
//     2 b^2 ex x = N(y),   N(y) = H y^2 - 2 a^2 ey y + b^2 (ex^2 - a^2 + r^2) + a^2 ey^2.
// Put into the circle this is a quartic in y. Its points are taken from two lines instead, and
// put into the order in which the quartic is solved by radicals: that order is the answer's.

#include "ellipse/circle_ellipse.h"

#include <algorithm>

#include "base/angle.h"
#include "base/doubled.h"
#include "base/settings.h"
#include "base/tolerance.h"
#include "circle/circle_circle.h"
#include "ellipse/settle.h"
#include "solver/closed_form.h"

namespace planegeo {

namespace {

/// One root y of the quartic with its point.
struct Root {
    Vec2 point;
    double imaginary;
    bool isOnCurves;
};

/// An ellipse without width: the segment at y = ey.
ConicPoints crossSegment(const CircleAndEllipse &curves) {
    const auto [center, a, b, r] = curves;
    const double first = center.x - a, last = center.x + a;
    const double inside = r - std::fabs(center.y);
    ConicPoints points;
    if (std::fabs(inside) < kSegmentTouch) {
        // On purpose a segment beyond the touching point still has it.
        if (first > kSegmentEnd || !(last <= kSegmentEnd)) {
            points.push({0.0, center.y});
        }
        return points;
    }
    if (!(inside > 0.0)) return points;
    const double s = std::sqrt(inside * (r + std::fabs(center.y)));
    for (const double x : {s, -s}) {
        if (first - x < kSegmentEnd && last - x > -kSegmentEnd) {
            points.push({x, center.y});
        }
    }
    return points;
}

/// N(y) = 0: where the ellipse's centre lies on the y axis, and the last resort of the others. On
/// purpose nothing asks whether the points lie on the ellipse.
class SymmetricPair {
  public:
    explicit SymmetricPair(const CircleAndEllipse &curves)
        : curves_(curves),
          h_(Doubled::difference(curves.a, curves.b) * Doubled::sum(curves.a, curves.b)),
          slope_(Doubled::product(curves.a, curves.a) * curves.center.y) {
        const auto [center, a, b, r] = curves;
        const Doubled apart =
            Doubled::product(a, a) - Doubled::product(center.x, center.x) - Doubled::product(r, r);
        discriminant_ = Doubled::product(b, b) * (slope_ * center.y + h_ * apart);
    }

    /// Keeps in `tried` what it does not write.
    ConicPoints solved(ConicPoints tried) const {
        const double size = std::fabs(discriminant_.value());
        if (size < kQuadraticTouch) return touching(tried);
        tried.count = 0;
        if (!(size >= kQuadraticTouch) || discriminant_.hi < 0.0) return tried;
        const Doubled root = squareRoot(discriminant_);
        push(tried, (slope_ + root) / h_);
        push(tried, (slope_ - root) / h_);
        return tried;
    }

  private:
    CircleAndEllipse curves_;
    Doubled h_;
    Doubled slope_; ///< a^2 ey
    Doubled discriminant_;

    /// r^2 - y^2
    Doubled squaredX(Doubled y) const { return (curves_.r - y) * (curves_.r + y); }

    void push(ConicPoints &points, Doubled y) const {
        const double x2 = squaredX(y).value();
        if (std::fabs(x2) < kCircleTopSquared) {
            points.push({0.0, y.value()});
        } else if (x2 > 0.0) {
            const double x = std::sqrt(x2);
            points.push({x, y.value()});
            points.push({-x, y.value()});
        }
    }

    ConicPoints touching(ConicPoints tried) const {
        auto &[first, second, third, fourth] = tried.at;
        tried.count = 2;
        if (std::fabs(curves_.center.y) < kTouchOnAxis) {
            first = {curves_.a, 0.0};
            second = {-curves_.a, 0.0};
            return tried;
        }
        const Doubled y = slope_ / h_;
        const double x2 = squaredX(y).value();
        first.y = second.y = y.value();
        // On purpose, without a root x stays what it was: 0, or that of a point tried before.
        if (x2 > 0.0) first.x = std::sqrt(x2);
        second.x = -first.x;
        return tried;
    }
};

/// The point that a complex root y +- i v, taken for real, is given by N(y), and whether it lies
/// on both curves nevertheless. N(y + i v) is real on the curves, so that N(y) exceeds it by
/// H v^2; and both equations hold there, so that their real parts fail by squares of the
/// imaginary ones.
Root nearlyReal(const LineCut &cut, const CircleAndEllipse &curves) {
    const auto [center, a, b, r] = curves;
    const auto [u, v] = cut.half;
    const double shift = (a - b) * (a + b) * v * v / (2.0 * b * b * center.x);
    const Vec2 point = {cut.middle.x + shift, cut.middle.y};
    const double sum = point.x + cut.middle.x;
    const double offCircle = (shift * sum + u * u + v * v) / (r * r);
    const double offEllipse = (shift * (sum - 2.0 * center.x) + u * u) / (a * a) + v * v / (b * b);
    const bool isOnCurves = std::fabs(offCircle) <= kOffCurve && std::fabs(offEllipse) <= kOffCurve;
    return {point, std::fabs(v), isOnCurves};
}

/// The two roots of a line, the greater first.
std::array<Root, 2> rootsOf(const LineCut &cut, const CircleAndEllipse &curves) {
    if (!cut.isReal) return {nearlyReal(cut, curves), nearlyReal(cut, curves)};
    const Vec2 up = cut.half.y > 0.0 ? cut.half : -cut.half;
    return {Root{cut.middle + up, 0.0, true}, Root{cut.middle - up, 0.0, true}};
}

/// The roots in the order of the solution by radicals: of two quadratic factors, of which the one
/// with the lower roots comes first unless it alone has no real ones.
std::array<Root, 4> rootsByFactors(const Pencil &pencil, const CircleAndEllipse &curves) {
    const auto cuts = pencil.lines();
    auto one = rootsOf(cuts[0], curves);
    auto other = rootsOf(cuts[1], curves);
    if (cuts[0].isReal && cuts[1].isReal) {
        std::array<Root, 4> all = {one[0], one[1], other[0], other[1]};
        std::sort(all.begin(), all.end(),
                  [](const Root &v, const Root &w) { return v.point.y > w.point.y; });
        return {all[2], all[3], all[0], all[1]};
    }
    const bool exchanged =
        cuts[0].isReal == cuts[1].isReal ? other[0].point.y < one[0].point.y : cuts[1].isReal;
    if (exchanged) std::swap(one, other);
    return {one[0], one[1], other[0], other[1]};
}

/// With Y = y / r - eta the ordinates solve  Y^4 + p Y^2 + q Y + ... = 0,
///     p = 2 (g - eta^2 + 2 xi^2),    q = -8 xi^2 eta.
Doubled halfSquareTerm(const Pencil &pencil) {
    return pencil.g - squared(pencil.eta) + 2.0 * squared(pencil.xi);
}
/// Whether q, in drawing units, is so small that the equation is solved without it.
bool isBiquadratic(const Pencil &pencil) {
    const double r = pencil.r, xi = pencil.xi.hi;
    const double q = 8.0 * xi * xi * pencil.eta.hi * r * r * r;
    if (q == 0.0) return true;
    if (!(q < kBiquadraticLinearTerm)) return false;
    const double p = 2.0 * halfSquareTerm(pencil).value() * r * r;
    return p != 0.0 && q / std::fabs(p) < kBiquadraticRatio;
}

/// The roots without q:  Y^2 = w = -p / 2 +- 2 xi sqrt(spread),  x = -xi +- sqrt(spread).
class BiquadraticRoots {
  public:
    BiquadraticRoots(const Pencil &pencil, const CircleAndEllipse &curves)
        : curves_(curves), signX_(pencil.quadrant.x), xi_(pencil.xi),
          shift_(pencil.quadrant.y * pencil.eta), halfP_(halfSquareTerm(pencil)),
          eta2_(squared(pencil.eta)), beyondXi_(1.0 + pencil.g - 2.0 * eta2_),
          spread_(beyondXi_ + squared(pencil.xi)) {}

    /// +-sqrt(w), the greater w first.
    std::array<Root, 4> inOrder() const {
        const double rest = spread_.value();
        if (rest < 0.0) return complexPairs(-rest);
        const Doubled half = squareRoot(spread_);
        const auto [first, second] = pairOf(half);
        const auto [third, fourth] = pairOf(-half);
        return {first, second, third, fourth};
    }

  private:
    CircleAndEllipse curves_;
    double signX_;
    Doubled xi_;
    Doubled shift_;
    Doubled halfP_;
    Doubled eta2_;
    Doubled beyondXi_; ///< spread - xi^2
    Doubled spread_;

    std::array<Root, 2> pairOf(Doubled half) const {
        // xi is large where the ellipse is nearly round: no difference from it.
        const Doubled x = half.hi > 0.0 ? beyondXi_ / (half + xi_) : half - xi_;
        const Doubled w = (1.0 - x) * (1.0 + x) - eta2_;
        if (w.value() < 0.0) {
            const Root root = rootAt(x - w / (2.0 * xi_), 0.0, std::sqrt(-w.value()));
            return {root, root};
        }
        const Doubled y = squareRoot(w);
        return {rootAt(x, y, 0.0), rootAt(x, -y, 0.0)};
    }
    std::array<Root, 4> complexPairs(double spread) const {
        const Complex y = squareRoot(Complex{-halfP_.value(), 2.0 * xi_.hi * std::sqrt(spread)});
        const Doubled x = y.im * y.im / (2.0 * xi_.hi) - xi_;
        const Root first = rootAt(x, y.re, y.im), second = rootAt(x, -y.re, y.im);
        return {first, second, first, second};
    }

    Root rootAt(Doubled x, Doubled y, double imaginary) const {
        const double r = curves_.r;
        const Doubled planeX = signX_ * x * r, planeY = (y + shift_) * r;
        return {
            {planeX.value(), planeY.value()}, std::fabs(imaginary) * r, isOnCurves(planeX, planeY)};
    }
    bool isOnCurves(Doubled x, Doubled y) const {
        const auto [center, a, b, r] = curves_;
        const Doubled offCircle = squared(x / r) + squared(y / r) - 1.0;
        const Doubled offEllipse = squared((x - center.x) / a) + squared((y - center.y) / b) - 1.0;
        return std::fabs(offCircle.value()) <= kOffCurve &&
               std::fabs(offEllipse.value()) <= kOffCurve;
    }
};

bool isDuplicate(Vec2 p, Vec2 q, double stretch) {
    if (!(std::fabs(p.y - q.y) < kSameOrdinate)) return false;
    const double turn =
        angleBetween(directionDeg({p.x, p.y * stretch}), directionDeg({q.x, q.y * stretch}));
    return turn < kSameKeyAngleDeg;
}

/// The points of the roots that count as real, each once; beyond the count the ones dropped.
ConicPoints distinctPoints(const std::array<Root, 4> &roots, const CircleAndEllipse &curves) {
    ConicPoints tried;
    bool stays[4] = {};
    for (const Root &root : roots) {
        if (!(root.imaginary <= kRealRoot)) continue;
        stays[tried.count] = root.isOnCurves;
        tried.push(root.point);
    }
    // A duplicate goes even when the point that it repeats is not on the curves.
    bool repeats[4] = {};
    for (int j = 1; j < tried.count; ++j) {
        for (int i = 0; i < j && !repeats[j]; ++i) {
            repeats[j] = !repeats[i] && isDuplicate(tried.at[i], tried.at[j], curves.a / curves.b);
        }
    }
    const int candidates = tried.count;
    tried.count = 0;
    for (int i = 0; i < candidates; ++i) {
        if (stays[i] && !repeats[i]) tried.push(tried.at[i]);
    }
    return tried;
}

void settle(ConicPoints &points, const CircleAndEllipse &curves) {
    const EllipseFrame circle = {{0.0, 0.0}, {1.0, 0.0}, curves.r, curves.r};
    const EllipseFrame ellipse = {curves.center, {1.0, 0.0}, curves.a, curves.b};
    for (int i = 0; i < points.count; ++i) {
        points.at[i] = settledOnBoth(points.at[i], circle, ellipse);
    }
}

} // namespace

ConicPoints crossCircleEllipse(const CircleAndEllipse &curves) {
    const auto [center, a, b, r] = curves;
    if (a < kShortestHalfAxis || r < kShortestHalfAxis || b > a) return {kBadShape, {}};
    if (b < kShortestHalfAxis) return crossSegment(curves);
    if (std::fabs(a - b) < distanceTolerance()) {
        const PointPair pair = crossCircles({{0.0, 0.0}, r}, {center, a});
        return {pair.count, {pair.at[0], pair.at[1]}};
    }
    if (std::fabs(center.x) < kCenterOnAxis) return SymmetricPair(curves).solved({});
    if (a == b) return {}; // the quartic has lost its leading term
    const Pencil pencil(curves);
    const bool biquadratic = isBiquadratic(pencil);
    const auto roots =
        biquadratic ? BiquadraticRoots(pencil, curves).inOrder() : rootsByFactors(pencil, curves);
    ConicPoints points = distinctPoints(roots, curves);
    const bool none = points.count == 0;
    if (none) points = SymmetricPair(curves).solved(points);
    // Without a term of their equation the points miss the curves by as much.
    if (none || (biquadratic && center.y != 0.0)) settle(points, curves);
    return points;
}

} // namespace planegeo
