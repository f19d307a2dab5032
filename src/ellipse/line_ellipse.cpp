// Where a line meets an ellipse in any position, and which of the points lie on an elliptic arc.

#include "ellipse/line_ellipse.h"

#include "base/doubled.h"
#include "ellipse/convert.h"

namespace planegeo {

namespace {

/// cross(u, w) of the unit vector u = d / length: to an ulp even where w is much longer than the
/// cross product, unless coordinates beyond 1e150 overflow.
double crossWithUnit(Vec2 d, double length, Vec2 w) {
    const double product = accurateCross(d, w);
    return std::isfinite(product) ? product / length : cross(d / length, w);
}

} // namespace

std::optional<LineCrossing> crossLineEllipse(const Segment &line, const EllipseFrame &ellipse,
                                             double tolerance) {
    const double r = ellipse.halfFirst;
    if (r == 0.0 || ellipse.halfSecond == 0.0) return std::nullopt;
    const Vec2 d = line.start - line.end;
    const double length = hypotLength(d);
    if (tolerance > length) return std::nullopt;

    // The stretch (x, y) -> (x, k y) of the ellipse's frame makes it the circle of radius r.
    const double k = r / ellipse.halfSecond;
    const Vec2 u = ellipse.turn.undo(d / length);
    const Vec2 stretched = {u.x, u.y * k};
    const double stretch = hypotLength(stretched);
    if (tolerance > stretch) return std::nullopt;
    const Vec2 v = stretched / stretch;

    // Signed distance from the circle's centre to the stretched line: cross(v, w'), w' from the
    // line's start to the centre. The stretch multiplies every cross product by k, so the one of
    // the plane serves, before the turn could round it.
    const double h = k * crossWithUnit(d, length, ellipse.center - line.start) / stretch;
    const double gap = std::fabs(h) - r;
    const Vec2 foot = leftNormal(v) * -h;
    const auto unstretched = [&](Vec2 q) { return ellipse.turn.apply({q.x, q.y / k}); };

    if (tolerance > std::fabs(gap)) return LineCrossing{1, {unstretched(foot)}};
    if (!(gap <= tolerance)) return LineCrossing{};
    const double root = std::sqrt(-gap * (r + std::fabs(h))); // r^2 - h^2
    const Vec2 half = v * (std::isfinite(root) ? root : 0.0);
    return LineCrossing{2, {unstretched(foot + half), unstretched(foot - half)}};
}

} // namespace planegeo

namespace {

using namespace planegeo;

void store(const LineCrossing &crossing, Vec2 center, DTPOINT *out1, DTPOINT *out2) {
    constexpr Vec2 kMissing = {0.0, 0.0};
    store(crossing.count > 0 ? crossing.points[0] + center : kMissing, out1);
    store(crossing.count > 1 ? crossing.points[1] + center : kMissing, out2);
}

/// What an elliptic arc, given by the parameters of its ends, keeps of the points. Directions of
/// the ends snap to the axes of the ellipse, those of the points to the axes of the plane.
LineCrossing keptOnArc(const LineCrossing &crossing, const EllipseFrame &ellipse,
                       double rotationDeg, const double *ends) {
    if (crossing.count == 0) return crossing;
    const Vec2 start = ellipse.localAt(ends[0]), end = ellipse.localAt(ends[1]);
    const auto exact = [start, end] {
        return AngleRange::normalised(snappedDirectionRad(start) * kDegPerRad,
                                      snappedDirectionRad(end) * kDegPerRad)
            .range;
    };
    const auto holds = [](AngleRange range, double deg) {
        return isOnArc(range.start, range.end, deg);
    };
    const CoarseRange coarse = CoarseRange::of(start, end);
    LineCrossing kept;
    for (std::uint32_t i = 0; i < crossing.count; ++i) {
        const Vec2 point = crossing.points[i];
        if (holdsSnappedDirection(point, rotationDeg, coarse, exact, holds)) {
            kept.points[kept.count++] = point;
        }
    }
    return kept;
}

} // namespace

extern "C" {

int32_t a2d_CrsLE(const DTPOINT *p1, const DTPOINT *p2, const DTPOINT *center, double a, double b,
                  double rot, DTPOINT *out1, DTPOINT *out2, uint32_t *count, double tol) {
    const EllipseFrame ellipse = EllipseFrame::of(load(center), a, b, rot);
    const auto crossing = crossLineEllipse(load(p1, p2), ellipse, tol);
    *count = crossing ? crossing->count : 0;
    if (!crossing) return 1;
    store(*crossing, ellipse.center, out1, out2);
    return 0;
}

int32_t a2d_insle(const DTPOINT *p1, const DTPOINT *p2, const DTPOINT *center, double a, double b,
                  double rot, DTPOINT *out1, DTPOINT *out2, uint16_t *count) {
    const EllipseFrame ellipse = EllipseFrame::of(load(center), a, b, rot);
    const auto crossing = crossLineEllipse(load(p1, p2), ellipse, distanceTolerance());
    *count = static_cast<uint16_t>(crossing ? crossing->count : 0);
    if (!crossing) return -1;
    store(*crossing, ellipse.center, out1, out2);
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
    const auto crossing = crossLineEllipse(load(p1, p2), ellipse, distanceTolerance());
    *count = 0;
    if (!crossing) return -1;
    const LineCrossing kept = keptOnArc(*crossing, ellipse, rot, angles);
    *count = static_cast<uint16_t>(kept.count);
    store(kept, ellipse.center, out1, out2);
    return 0;
}

} // extern "C"
