// A line against the standard ellipse x^2 / A^2 + y^2 / B^2 = 1: whether it touches, where it cuts.
//
// Both questions turn on  cross(p1, p2)^2 - A^2 dy^2 - B^2 dx^2, small against its terms for a
// line that nearly touches. It is formed with doubled digits: of lines through points rounded to
// 1e-16 of a drawing 1e5 wide, plain squares would lose the touching ones.

#include "base/doubled.h"
#include "base/settings.h"
#include "base/tolerance.h"
#include "ellipse/line_ellipse.h"

namespace planegeo {

namespace {

/// The line  d.y x - d.x y = moment  through two points, against an ellipse of half axes A, B.
struct StandardLine {
    Segment points;
    StandardEllipse ellipse;
    Vec2 d;
    double length;
    double moment;
    /// A^2 d.y^2 + B^2 d.x^2: the distance from the centre at which a line of this direction
    /// touches, times |d|, squared.
    double reach;
    double excess;      ///< moment^2 - reach: positive for a line that misses
    double beyondFirst; ///< moment^2 - A^2 d.y^2: positive if it crosses y = 0 outside the ellipse

    StandardLine(const Segment &line, const StandardEllipse &e)
        : points(line), ellipse(e), d(line.start - line.end), length(plainLength(d)) {
        const Vec2 p = line.start, q = line.end;
        const Doubled exactMoment = Doubled::product(q.x, p.y) - Doubled::product(p.x, q.y);
        const Doubled alongFirst = squared(e.halfSecond * Doubled::difference(p.x, q.x));
        const Doubled alongSecond = squared(e.halfFirst * Doubled::difference(p.y, q.y));
        const Doubled beyond = squared(exactMoment) - alongSecond;
        moment = exactMoment.value();
        reach = (alongFirst + alongSecond).value();
        beyondFirst = beyond.value();
        excess = (beyond - alongFirst).value();
    }

    bool isHorizontal() const { return std::fabs(d.y) < kAxisParallelSpan; }
    bool isVertical() const { return std::fabs(d.x) < kAxisParallelSpan; }
    /// A shorter one has distance 0 from every point, and (0, 0) for a foot.
    bool isMeasurable() const { return !(length < distanceTolerance()); }
};

/// A line along an axis touches at the ends of the other axis only; nothing if it misses them.
std::optional<Vec2> touchAtAxisEnd(const StandardLine &line) {
    const auto [halfFirst, halfSecond] = line.ellipse;
    Vec2 foot = {0.0, 0.0};
    double distance = 0.0;
    if (line.isMeasurable()) {
        const PerpendicularFoot perpendicular = footOnLine({0.0, 0.0}, line.points.start, -line.d);
        foot = perpendicular.point;
        distance = std::fabs(perpendicular.offset) * line.length;
    }
    if (std::fabs(distance - halfSecond) <= kAxisTouchDistance && line.isHorizontal()) {
        return Vec2{0.0, foot.y >= 0.0 ? halfSecond : -halfSecond};
    }
    if (std::fabs(distance - halfFirst) <= kAxisTouchDistance && line.isVertical()) {
        return Vec2{foot.x >= 0.0 ? halfFirst : -halfFirst, 0.0};
    }
    return std::nullopt;
}

/// The focal test. With X0 the line's crossing of y = 0, c the focal distance and d1, d2 the
/// distances of the foci, a tangent has
///   X0^2 - A^2 = sqrt((X0 - c)^2 - d1^2) sqrt((X0 + c)^2 - d2^2);
/// for any line crossing beyond the ellipse the two sides differ by excess / |d|^2. Foci that are
/// not real decide nothing.
bool passesFocalTest(const StandardLine &line) {
    const auto [halfFirst, halfSecond] = line.ellipse;
    if (std::fabs(halfSecond) > std::fabs(halfFirst)) return true;
    const double c = std::sqrt((halfFirst - halfSecond) * (halfFirst + halfSecond));
    if (c - halfFirst > kLineFocusExcess) return false;
    const double difference =
        line.isMeasurable() ? line.excess / dot(line.d, line.d) : halfSecond * halfSecond;
    return std::fabs(difference) <= kFocalDifference;
}

/// The touching points (A^2 / X0, -+ B s / X0), s = sqrt(X0^2 - A^2), of the tangents through
/// (X0, 0): the first of them near enough to the line.
std::optional<Vec2> touchBesideAxes(const StandardLine &line) {
    const auto [halfFirst, halfSecond] = line.ellipse;
    const double s = std::sqrt(line.beyondFirst); // times |d.y|
    const double x = halfFirst / line.moment * halfFirst * line.d.y;
    const double y = -halfSecond * (line.d.y > 0.0 ? s : -s) / line.moment;

    // Distances of the candidates from the line: s |B d.x -+ s| / |moment d|. The smaller one
    // without the difference, as  B^2 d.x^2 - s^2 = -excess.
    double first = 0.0, second = 0.0;
    if (line.isMeasurable()) {
        const double far = std::fabs(halfSecond * line.d.x) + s;
        const double near = std::fabs(line.excess) / far;
        const bool nearIsFirst = (halfSecond * line.d.x > 0.0) == (line.d.y > 0.0);
        const double unit = s / (std::fabs(line.moment) * line.length);
        first = unit * (nearIsFirst ? near : far);
        second = unit * (nearIsFirst ? far : near);
    }
    if (first <= kTouchDistance) return Vec2{x, y};
    if (second <= kTouchDistance) return Vec2{x, -y};
    return std::nullopt;
}

std::optional<Vec2> touch(const StandardLine &line) {
    if (const auto atEnd = touchAtAxisEnd(line)) return atEnd;
    if (line.isVertical() || line.isHorizontal()) return std::nullopt;
    // A line that crosses the first axis within the ellipse does not touch it; a first axis of
    // zero has no touching points.
    if (!(line.beyondFirst > 0.0) || line.ellipse.halfFirst == 0.0) return std::nullopt;
    if (!passesFocalTest(line)) return std::nullopt;
    return touchBesideAxes(line);
}

/// Two points as one when they are no further apart than errdist.
LineCrossing merged(Vec2 first, Vec2 second, double distance) {
    if (distanceTolerance() >= distance) return {1, {first}};
    return {2, {first, second}};
}

LineCrossing crossVertical(double x, const StandardEllipse &ellipse) {
    const double a = std::fabs(ellipse.halfFirst);
    const double b = std::fabs(ellipse.halfSecond);
    const double inside = (a - x) * (a + x);
    const double discriminant = inside * b * b * 4.0 * a * a;
    if (discriminant > 0.0) {
        const double y = b * std::sqrt(inside) / a;
        return merged({x, y}, {x, -y}, 2.0 * y);
    }
    if (std::fabs(discriminant) <= kVerticalTouchDiscriminant) return {1, {{x, 0.0}}};
    return {};
}

/// The quadratic  P x^2 + 2 Q x + (k^2 / B^2 - 1) = 0  of the line y = m x + k.
struct SlopeQuadratic {
    double m, k, p, q;
    double constant;
    double discriminant;

    explicit SlopeQuadratic(const StandardLine &line) {
        const double a2 = line.ellipse.halfFirst * line.ellipse.halfFirst;
        const double b2 = line.ellipse.halfSecond * line.ellipse.halfSecond;
        m = line.d.y / line.d.x;
        k = line.points.start.y - m * line.points.start.x;
        p = m * m / b2 + 1.0 / a2;
        q = k * m / b2;
        constant = k * k / b2 - 1.0;
        discriminant = 1.0 / a2 - k * k / a2 / b2 + m * m / b2;
    }

    Vec2 at(double x) const { return {x, m * x + k}; }
    LineCrossing solved() const {
        if (discriminant == 0.0) return {1, {at(-q / p)}};
        if (!(discriminant > 0.0)) return {};
        const double x1 = (std::sqrt(discriminant) - q) / p;
        const double x2 = x1 != 0.0 ? constant / p / x1 : -2.0 * q / p; // by their product
        const Vec2 first = at(x1), second = at(x2);
        return merged(first, second, hypotLength(first - second));
    }
};

/// The same in the line's own terms: P = reach / (A B d.x)^2, the discriminant is
/// -excess / (A B d.x)^2, and the points are
///   moment (A^2 d.y, -B^2 d.x) / reach  +-  |A B| sqrt(-excess) / reach  d.
LineCrossing solvedAccurately(const StandardLine &line) {
    const auto [a, b] = line.ellipse;
    if (line.excess > 0.0) return {};
    const Vec2 middle = Vec2{a * a * line.d.y, -b * b * line.d.x} * (line.moment / line.reach);
    if (line.excess == 0.0) return {1, {middle}};
    const double halfChord = std::fabs(a * b) * std::sqrt(-line.excess) / line.reach;
    const Vec2 half = line.d * (line.d.x > 0.0 ? halfChord : -halfChord);
    return merged(middle + half, middle - half, 2.0 * halfChord * line.length);
}

StandardCrossing crossSlanted(const StandardLine &line) {
    const SlopeQuadratic quadratic(line);
    if (quadratic.p == 0.0) return {true, {}};
    // A zero axis leaves no number, and no points.
    if (!std::isfinite(quadratic.p)) return {false, {}};
    // From 1e77 on the doubled products overflow.
    if (!std::isfinite(line.excess)) return {false, quadratic.solved()};
    return {false, solvedAccurately(line)};
}

} // namespace

std::optional<Vec2> touchStandardEllipse(const Segment &line, const StandardEllipse &ellipse) {
    return touch(StandardLine(line, ellipse));
}

StandardCrossing crossStandardEllipse(const Segment &line, const StandardEllipse &ellipse) {
    const StandardLine placed(line, ellipse);
    if (const auto at = touch(placed)) return {false, {1, {*at}}};
    if (placed.isVertical()) return {false, crossVertical(line.start.x, ellipse)};
    return crossSlanted(placed);
}

} // namespace planegeo

using namespace planegeo;

extern "C" {

int32_t a2d_insLStandardE(const DTPOINT *p1, const DTPOINT *p2, double a, double b, DTPOINT *out1,
                          DTPOINT *out2, uint16_t *count) {
    const auto [degenerate, crossing] =
        crossStandardEllipse(load(p1, p2), StandardEllipse::of(a, b));
    *count = static_cast<uint16_t>(crossing.count);
    store(crossing.points[0], out1);
    store(crossing.points[1], out2);
    return degenerate ? -1 : 0;
}

int32_t a2d_IsElpTangentLine(const DTPOINT *p1, const DTPOINT *p2, double a, double b,
                             DTPOINT *out) {
    const auto at = touchStandardEllipse(load(p1, p2), StandardEllipse::of(a, b));
    if (!at) return -1;
    store(*at, out);
    return 0;
}

} // extern "C"
