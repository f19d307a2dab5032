// Where a line meets an ellipse in any position, and which of the points lie on an elliptic arc.

#include "ellipse/line_ellipse.h"

#include "base/doubled.h"
#include "base/settings.h"
#include "ellipse/parameter_range.h"

namespace {

using namespace planegeo;

/// cross(u, w) of the unit vector u = d / length: to an ulp even where w is much longer than the
/// cross product, unless coordinates beyond 1e150 overflow.
double crossWithUnit(Vec2 d, double length, Vec2 w) {
    const double product = accurateCross(d, w);
    return std::isfinite(product) ? product / length : cross(d / length, w);
}

/// Up to two points of a line and an ellipse, by stretching the plane across the first axis so that
/// the ellipse becomes a circle. They are seen from the centre: far from the origin the plane's
/// coordinates would round them.
struct StretchedCrossing {
    bool isRefused;
    std::uint32_t count;
    double stretch;
    Vec2 first; ///< in the stretched frame, on the line's start side
    Vec2 second;

    /// Where a point lies in the plane, seen from the centre.
    Vec2 offset(Vec2 stretched, const EllipseFrame &ellipse) const {
        return ellipse.turn.apply({stretched.x, stretched.y / stretch});
    }
};

/// The infinite line through two points; a zero axis is refused, and a line or its stretched
/// direction shorter than the tolerance. Inlined always: handed over in memory, points would be
/// read before they are written.
[[gnu::always_inline]] inline StretchedCrossing
crossLineEllipse(const Segment &line, const EllipseFrame &ellipse, double tolerance) {
    constexpr StretchedCrossing kRefused = {true, 0, 0.0, {}, {}};
    const double r = ellipse.halfFirst;
    if (r == 0.0 || ellipse.halfSecond == 0.0) return kRefused;
    const Vec2 d = line.start - line.end;
    const double length = hypotLength(d);
    if (tolerance > length) return kRefused;

    // The stretch (x, y) -> (x, k y) of the ellipse's frame makes it the circle of radius r.
    const double k = r / ellipse.halfSecond;
    const Vec2 u = ellipse.turn.undo(d / length);
    const Vec2 stretched = {u.x, u.y * k};
    const double stretch = hypotLength(stretched);
    if (tolerance > stretch) return kRefused;
    const Vec2 v = stretched / stretch;

    // Signed distance from the circle's centre to the stretched line: cross(v, w'), w' from the
    // line's start to the centre. The stretch multiplies every cross product by k, so the one of
    // the plane serves, before the turn could round it.
    const double h = k * crossWithUnit(d, length, ellipse.center - line.start) / stretch;
    const double gap = std::fabs(h) - r;
    const Vec2 foot = leftNormal(v) * -h;

    if (tolerance > std::fabs(gap)) return {false, 1, k, foot, {}};
    if (!(gap <= tolerance)) return {false, 0, k, {}, {}};
    const double root = std::sqrt(-gap * (r + std::fabs(h))); // r^2 - h^2
    const Vec2 half = v * (std::isfinite(root) ? root : 0.0);
    return {false, 2, k, foot + half, foot - half};
}

constexpr Vec2 kMissing = {0.0, 0.0};

[[gnu::always_inline]] inline void store(const StretchedCrossing &crossing,
                                         const EllipseFrame &ellipse, DTPOINT *out1,
                                         DTPOINT *out2) {
    const auto place = [&](Vec2 p) { return crossing.offset(p, ellipse) + ellipse.center; };
    store(crossing.count > 0 ? place(crossing.first) : kMissing, out1);
    store(crossing.count > 1 ? place(crossing.second) : kMissing, out2);
}

/// Whether an elliptic arc, given by the parameters of its ends, holds a point seen from the
/// centre. Directions of the ends snap to the axes of the ellipse, those of the points to the axes
/// of the plane.
bool isOnSnappedArc(Vec2 offset, const EllipseFrame &ellipse, double rotationDeg, AngleRange ends) {
    return isOnArc(snappedDirectionRad(ellipse.localAt(ends.start)) * kDegPerRad,
                   snappedDirectionRad(ellipse.localAt(ends.end)) * kDegPerRad,
                   snappedDirectionRad(offset) * kDegPerRad - rotationDeg);
}

} // namespace

extern "C" {

int32_t a2d_CrsLE(const DTPOINT *p1, const DTPOINT *p2, const DTPOINT *center, double a, double b,
                  double rot, DTPOINT *out1, DTPOINT *out2, uint32_t *count, double tol) {
    const EllipseFrame ellipse = EllipseFrame::of(load(center), a, b, rot);
    const auto crossing = crossLineEllipse(load(p1, p2), ellipse, tol);
    *count = crossing.count;
    if (crossing.isRefused) return 1;
    store(crossing, ellipse, out1, out2);
    return 0;
}

int32_t a2d_insle(const DTPOINT *p1, const DTPOINT *p2, const DTPOINT *center, double a, double b,
                  double rot, DTPOINT *out1, DTPOINT *out2, uint16_t *count) {
    const EllipseFrame ellipse = EllipseFrame::of(load(center), a, b, rot);
    const auto crossing = crossLineEllipse(load(p1, p2), ellipse, distanceTolerance());
    *count = static_cast<uint16_t>(crossing.count);
    if (crossing.isRefused) return -1;
    store(crossing, ellipse, out1, out2);
    return 0;
}

int32_t ca_insle(const DTPOINT *p1, const DTPOINT *p2, const DTPOINT *center, double a, double b,
                 double rot, DTPOINT *out1, DTPOINT *out2, uint16_t *count) {
    return a2d_insle(p1, p2, center, a, b, rot, out1, out2, count);
}

int32_t a2d_insle2(const DTPOINT *p1, const DTPOINT *p2, const DTPOINT *center, double a, double b,
                   double rot, DTPOINT *out1, DTPOINT *out2, uint16_t *count) {
    return a2d_insle(p1, p2, center, a, b, rot, out1, out2, count);
}

int32_t a2d_insl1(const DTPOINT *p1, const DTPOINT *p2, const DTPOINT *center, double a, double b,
                  double rot, const double *angles, DTPOINT *out1, DTPOINT *out2, uint16_t *count) {
    const EllipseFrame ellipse = EllipseFrame::of(load(center), a, b, rot);
    const AngleRange ends = {angles[0], angles[1]};
    const auto crossing = crossLineEllipse(load(p1, p2), ellipse, distanceTolerance());
    *count = 0;
    if (crossing.isRefused) return -1;

    const ParameterRange arc(ellipse, rot, ends);
    const auto [told, inside] = arc.look(pairOf(crossing.first, crossing.second));
    const auto holds = [&, told = told, inside = inside](int i, Vec2 offset) {
        if (arc.isWholeTurn()) return true;
        const bool isTold = told[i] > 0.0 && !isSnapped(offset);
        return isTold ? inside[i] > 0.0 : isOnSnappedArc(offset, ellipse, rot, ends);
    };
    const Vec2 first = crossing.offset(crossing.first, ellipse);
    const Vec2 second = crossing.offset(crossing.second, ellipse);
    const bool hasFirst = crossing.count > 0 && holds(0, first);
    const bool hasSecond = crossing.count > 1 && holds(1, second);
    *count = static_cast<uint16_t>((hasFirst ? 1 : 0) + (hasSecond ? 1 : 0));
    const Vec2 kept = hasFirst ? first : second;
    store(hasFirst || hasSecond ? kept + ellipse.center : kMissing, out1);
    store(hasFirst && hasSecond ? second + ellipse.center : kMissing, out2);
    return 0;
}

} // extern "C"
