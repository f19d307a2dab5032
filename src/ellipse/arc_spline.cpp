// Tangent-continuous chains of circular arcs that keep to a quadrant of an ellipse.
//
// A chain of the distance d consists of circles that the curve leaves by d to both sides. Each
// touches the next from inside, and there the arcs meet. At the end of an axis the circle goes
// through that end, its centre on the axis, and the curve leaves it by d to one side.
//
// No arc leaves the curve further: let f be the distance of the curve outside a circle. The disk
// of a circle lies in that of the next, so f of the one is nowhere below f of the other, and equal
// to it at the joint. From its greatest value on, f of the one is not below its least, -d; up to
// its least value, f of the other is not above its greatest, d. The joint lies between, so both
// are within d there; and f has no other extremes in the quadrant (see BalancedCircle).
//
// Each circle is settled by the one before and by d alone, so errors do not add up. The number of
// arcs follows from the tolerance; then d is lowered until the last circle just reaches the end.

#include "ellipse/arc_spline.h"

#include <limits>

namespace planegeo {

namespace {

constexpr double kBeyond = std::numeric_limits<double>::infinity();
constexpr double kEpsilon = std::numeric_limits<double>::epsilon();

double directionRad(Vec2 v) { return std::atan2(v.y, v.x); }

double cube(double v) { return v * v * v; }

} // namespace

ChainBuilder::ChainBuilder(const Quadrant &quadrant, const Stretch &stretch, double distance)
    : quadrant_(quadrant), stretch_(stretch), family_(BalancedFamily::of(quadrant, distance)),
      sharp_(stretch.sharpCircle.value_or(quadrant.sharpCircle(distance))),
      flat_(stretch.flatCircle.value_or(quadrant.flatCircle(distance))) {}

std::optional<BalancedCircle> ChainBuilder::first() const {
    if (stretch_.startsAtAxis()) return BalancedCircle{sharp_, 0.0, 0.0};
    // The curve crosses the circle at the start, and only then leaves it outwards.
    BalancedCircle tried = {};
    const auto offset = [&](double middle) {
        tried = family_.at(middle, family_.guessHalf(middle));
        const bool startsBehind = tried.middle - tried.half < stretch_.from;
        return startsBehind ? family_.distance : quadrant_.offset(tried.circle, stretch_.from);
    };
    const Sample low = {family_.firstMiddle, offset(family_.firstMiddle)};
    const Sample high = {family_.lastMiddle, offset(family_.lastMiddle)};
    if (!(low.y > 0.0 && high.y < 0.0)) return std::nullopt;
    rootBetween(offset, low, high);
    return tried;
}

std::optional<BalancedCircle> ChainBuilder::next(const BalancedCircle &from) const {
    BalancedCircle tried = from;
    const auto crossing = [&](double middle) {
        const double guess = tried.half > 0.0 ? tried.half : family_.guessHalf(middle);
        tried = family_.at(middle, guess);
        return protrusion(from.circle, tried.circle);
    };
    // Where curvature changes evenly the next middle is 2 sqrt(3) halves away.
    Sample low = {std::fmax(family_.firstMiddle, from.middle + 3.0 * from.half), 0.0};
    Sample high = {std::fmin(family_.lastMiddle, from.middle + 4.0 * from.half), 0.0};
    low.y = low.x < high.x ? crossing(low.x) : 0.0;
    if (!(low.y > 0.0)) low = {std::fmax(family_.firstMiddle, from.middle + from.half), kBeyond};
    high.y = low.x < high.x ? crossing(high.x) : 0.0;
    if (!(high.y < 0.0)) high = {family_.lastMiddle, crossing(family_.lastMiddle)};
    if (!(high.y < 0.0 && low.x < high.x)) return std::nullopt;
    // Circles that touch to the last place of the largest radius need no more.
    rootBetween(crossing, low, high, {kEpsilon * flat_.r, kEpsilon});
    return tried;
}

double ChainBuilder::reach(const std::optional<BalancedCircle> &last) const {
    if (!last) return kBeyond;
    if (stretch_.endsAtAxis()) return protrusion(last->circle, flat_);
    const bool endsBehind = last->middle + last->half >= stretch_.to;
    return endsBehind ? kBeyond : -quadrant_.offset(last->circle, stretch_.to);
}

namespace {

/// So many circles, not counting that of the flat end, reach that far.
struct Count {
    int circles;
    double reach;
};

std::optional<Count> countCircles(const ChainBuilder &builder, int most) {
    auto last = builder.first();
    double reach = builder.reach(last);
    int circles = 1;
    for (; reach < 0.0; ++circles) {
        if (circles >= most) return std::nullopt;
        last = builder.next(*last);
        reach = builder.reach(last);
    }
    return Count{circles, reach};
}

double reachOf(const ChainBuilder &builder, int circles) {
    auto last = builder.first();
    for (int i = 1; last && i < circles; ++i) {
        last = builder.next(*last);
    }
    return builder.reach(last);
}

/// The circle of an end of an axis alone, where it may be chosen and is close enough.
std::optional<ChainFit> fitAxisCircle(const Quadrant &quadrant, const Stretch &stretch,
                                      double tolerance) {
    if (stretch.startsAtAxis() == stretch.endsAtAxis()) return std::nullopt;
    if (stretch.sharpCircle || stretch.flatCircle) return std::nullopt;
    const double distance = stretch.startsAtAxis() ? quadrant.sharpDepth(stretch.to)
                                                   : quadrant.flatHeight(stretch.from);
    if (!(distance <= tolerance)) return std::nullopt;
    return ChainFit{distance, 1};
}

/// A chain on its own reaches its end with no more lowerings of the distance than this. One that
/// goes on from a neighbour may need a distance near zero, where its circles are ill conditioned.
constexpr int kLowerings = 4;

} // namespace

std::optional<ChainFit> fitChain(const Quadrant &quadrant, const Stretch &stretch, double tolerance,
                                 int mostArcs) {
    if (const auto axisCircle = fitAxisCircle(quadrant, stretch, tolerance)) return axisCircle;
    // Every circle about the centre between the axes is within a - b.
    const double widest = std::fmin(tolerance, quadrant.a - quadrant.b);
    const int flatArc = stretch.endsAtAxis() ? 1 : 0;
    const auto count = countCircles(ChainBuilder(quadrant, stretch, widest), mostArcs - flatArc);
    if (!count) return std::nullopt;
    const int circles = count->circles;
    // The reach is nearly linear in the cube root of the distance.
    const auto reach = [&](double root) {
        return reachOf(ChainBuilder(quadrant, stretch, cube(root)), circles);
    };
    Sample high = {std::cbrt(widest), count->reach};
    Sample low = {high.x * (circles + 0.2) / (circles + 1.4), 0.0};
    low.y = reach(low.x);
    for (int step = 0; low.y >= 0.0; ++step) {
        if (step == kLowerings) return std::nullopt;
        high = low;
        low.x *= 0.7;
        low.y = reach(low.x);
    }
    const double largestRadius = quadrant.a * quadrant.a / quadrant.b;
    const double root = rootBetween(reach, low, high, {2.0 * kEpsilon * largestRadius, kEpsilon});
    return ChainFit{cube(root), circles + flatArc};
}

ChainWalk::ChainWalk(const Quadrant &quadrant, const Stretch &stretch, const ChainFit &fit)
    : builder_(quadrant, stretch, fit.distance), endsAtAxis_(stretch.endsAtAxis()),
      end_(quadrant.at(stretch.to)), arcsLeft_(fit.arcs), current_(builder_.flat()) {
    const bool isFlatAlone = fit.arcs == 1 && endsAtAxis_;
    if (!isFlatAlone) current_ = builder_.first().value_or(current_);
    startRad_ = directionRad(quadrant.at(stretch.from) - current_.circle.center);
}

RadianArc ChainWalk::next() {
    --arcsLeft_;
    const Circle circle = current_.circle;
    const double startRad = startRad_;
    if (arcsLeft_ == 0) return {circle, startRad, directionRad(end_ - circle.center)};
    current_ = arcsLeft_ == 1 && endsAtAxis_ ? builder_.flat()
                                             : builder_.next(current_).value_or(builder_.flat());
    startRad_ = directionRad(circle.center - current_.circle.center);
    return {circle, startRad, startRad_};
}

namespace {

constexpr int kSlices = 32;

/// Bound of (cos x - cos w)(q - cos(x + 2 m)) for |x| <= w: over a slice each factor stays near
/// its greater end, as its second derivative is 1 at most.
double greatestProduct(double w, double q, double m) {
    const double slice = 2.0 * w / kSlices;
    const double bulge = slice * slice / 8.0;
    double greatest = 0.0;
    double inner = 0.0;
    double outer = std::fabs(q - std::cos(2.0 * m - w));
    for (int i = 1; i <= kSlices; ++i) {
        const double x = i * slice - w;
        const double nextInner =
            i == kSlices ? 0.0 : 2.0 * std::sin(0.5 * (w + x)) * std::sin(0.5 * (w - x));
        const double nextOuter = std::fabs(q - std::cos(x + 2.0 * m));
        const double product =
            (std::fmax(inner, nextInner) + bulge) * (std::fmax(outer, nextOuter) + bulge);
        greatest = std::fmax(greatest, product);
        inner = nextInner;
        outer = nextOuter;
    }
    return greatest;
}

/// Whether the curve goes anticlockwise about a centre (x, y) from one parameter to another: then
/// each of its points lies on the ray through a point of the arc.
///
///     cross(P - c, P') = A B - (x B cos t + y A sin t) > 0
bool goesAround(const Quadrant &quadrant, Vec2 center, double from, double to) {
    const Vec2 wave = {center.x * quadrant.b, center.y * quadrant.a};
    const double limit = quadrant.a * quadrant.b;
    const auto isLow = [&](double t) {
        return wave.x * std::cos(t) + wave.y * std::sin(t) < limit;
    };
    const double crest = std::remainder(directionRad(wave) - from, kTwoPi);
    const bool holdsCrest = (crest < 0.0 ? crest + kTwoPi : crest) < to - from;
    return isLow(from) && isLow(to) && (!holdsCrest || plainLength(wave) < limit);
}

} // namespace

// The circles through the points at m - w and m + w, with centre (x, y): the power of the point
// at t is |P - c|^2 - r^2 = -F^2 (cos(t - m) - cos w)(q - cos(t + m)), one circle for each q, with
// 2 A x = F^2 (q + cos w) cos m and 2 B y = F^2 (q - cos w) sin m.
//
// Of the second factor's expansion about t = m the constant part is to balance the others: with
// even change of curvature it is zero, about the end of an axis it is (3 - sqrt 8) of the span.
SingleArc singleArc(const Quadrant &quadrant, double from, double to) {
    const double m = 0.5 * (from + to);
    const double w = 0.5 * (to - from);
    const double q = std::cos(2.0 * m) * (1.0 - (3.0 - std::sqrt(8.0)) * (1.0 - std::cos(w)));
    const double f2 = quadrant.focal2();
    const Vec2 center = {f2 * (q + std::cos(w)) * std::cos(m) / (2.0 * quadrant.a),
                         f2 * (q - std::cos(w)) * std::sin(m) / (2.0 * quadrant.b)};
    const double r = plainLength(quadrant.at(from) - center);
    const double power = f2 * greatestProduct(w, q, m);
    // |sqrt(r^2 + power) - r|, larger inside the circle than outside.
    const double inside = r * r - power;
    const bool isClose = inside > 0.0 && goesAround(quadrant, center, from, to);
    const double distance = isClose ? power / (r + std::sqrt(inside)) : kBeyond;
    return {{center, r}, distance};
}

} // namespace planegeo
