#include "affine.h"

#include <cmath>

namespace draft {

namespace {

/// Two half diameters count as equal, or as perpendicular, when they are so to this share of
/// their size: well above the roundings of a few nested turns, well below what is seen.
constexpr double kConjugateSlack = 1e-12;

/// An ellipse as the library's placing rules leave it: centre + u cos t + v sin t.
struct ConjugateEllipse {
    std::uint32_t attr;
    DTPOINT center, u, v;
    double start, end; ///< of t, degrees
};

double dot(DTPOINT a, DTPOINT b) { return a.x * b.x + a.y * b.y; }
double cross(DTPOINT a, DTPOINT b) { return a.x * b.y - a.y * b.x; }
double length(DTPOINT v) { return std::hypot(v.x, v.y); }

void normalise(double &start, double &end) {
    if (a2d_StdSedeg(&start, &end) == 1) {
        start = 0.0;
        end = 360.0;
    }
}

/// Reverses v and t together where a mirror has turned the ellipse over, so that t again runs
/// anticlockwise.
void turnAnticlockwise(ConjugateEllipse &e) {
    if (cross(e.u, e.v) >= 0.0) return;
    e.attr ^= PLANEGEO_ATTR_REVERSED;
    e.v = {-e.v.x, -e.v.y};
    const double start = e.start;
    e.start = -e.end;
    e.end = -start;
}

/// Replaces u and v by perpendicular half axes, (u v) turned by half the angle whose tangent is
/// 2 u.v / (u.u - v.v).
void toPrincipalAxes(ConjugateEllipse &e) {
    const double skew = 2.0 * dot(e.u, e.v);
    const double spread = dot(e.u, e.u) - dot(e.v, e.v);
    if (std::fabs(skew) <= kConjugateSlack * (dot(e.u, e.u) + dot(e.v, e.v))) return;
    const double deg = atan2d(skew, spread) / 2.0;
    const double c = cosd(deg);
    const double s = sind(deg);
    const DTPOINT first = {e.u.x * c + e.v.x * s, e.u.y * c + e.v.y * s};
    e.v = {e.v.x * c - e.u.x * s, e.v.y * c - e.u.y * s};
    e.u = first;
    e.start -= deg;
    e.end -= deg;
}

bool isRound(const ConjugateEllipse &e) {
    const double squares = dot(e.u, e.u) + dot(e.v, e.v);
    return std::fabs(dot(e.u, e.v)) <= kConjugateSlack * squares &&
           std::fabs(dot(e.u, e.u) - dot(e.v, e.v)) <= kConjugateSlack * squares;
}

ConjugateEllipse placedConjugate(const ConjugateEllipse &e, const Affine &affine) {
    ConjugateEllipse image = {
        e.attr, affine.point(e.center), affine.vector(e.u), affine.vector(e.v), e.start, e.end};
    turnAnticlockwise(image);
    return image;
}

Shape asArc(const ConjugateEllipse &e) {
    const double turnDeg = atan2d(e.u.y, e.u.x);
    DTARC arc = {e.attr, e.center.x, e.center.y, length(e.u), e.start + turnDeg, e.end + turnDeg};
    normalise(arc.start, arc.end);
    return arc;
}

Shape asEllipse(ConjugateEllipse e) {
    toPrincipalAxes(e);
    DTELLIPSE ellipse = {
        e.attr,  e.center.x, e.center.y,          2.0 * length(e.u), 2.0 * length(e.v),
        e.start, e.end,      atan2d(e.u.y, e.u.x)};
    normalise(ellipse.start, ellipse.end);
    return ellipse;
}

struct Placed {
    const Affine &affine;

    Shape operator()(const DTLINE &line) const {
        const DTPOINT from = affine.point({line.x1, line.y1});
        const DTPOINT to = affine.point({line.x2, line.y2});
        return DTLINE{line.attr, from.x, from.y, to.x, to.y};
    }
    Shape operator()(const DTARC &arc) const {
        const ConjugateEllipse image = placedConjugate(
            {arc.attr, {arc.cx, arc.cy}, {arc.r, 0.0}, {0.0, arc.r}, arc.start, arc.end}, affine);
        return isRound(image) ? asArc(image) : asEllipse(image);
    }
    Shape operator()(const DTELLIPSE &e) const {
        const double c = cosd(e.rot);
        const double s = sind(e.rot);
        return asEllipse(placedConjugate({e.attr,
                                          {e.cx, e.cy},
                                          {e.a / 2.0 * c, e.a / 2.0 * s},
                                          {-e.b / 2.0 * s, e.b / 2.0 * c},
                                          e.start,
                                          e.end},
                                         affine));
    }
};

} // namespace

Affine Affine::move(double dx, double dy) { return {1.0, 0.0, 0.0, 1.0, dx, dy}; }
Affine Affine::scale(double sx, double sy) { return {sx, 0.0, 0.0, sy, 0.0, 0.0}; }
Affine Affine::turn(double deg) {
    const double c = cosd(deg);
    const double s = sind(deg);
    return {c, -s, s, c, 0.0, 0.0};
}

bool Affine::isIdentity() const {
    return xx == 1.0 && xy == 0.0 && yx == 0.0 && yy == 1.0 && dx == 0.0 && dy == 0.0;
}

DTPOINT Affine::vector(DTPOINT v) const { return {xx * v.x + xy * v.y, yx * v.x + yy * v.y}; }
DTPOINT Affine::point(DTPOINT p) const {
    const DTPOINT turned = vector(p);
    return {turned.x + dx, turned.y + dy};
}

Affine operator*(const Affine &outer, const Affine &inner) {
    const DTPOINT x = outer.vector({inner.xx, inner.yx});
    const DTPOINT y = outer.vector({inner.xy, inner.yy});
    const DTPOINT d = outer.point({inner.dx, inner.dy});
    return {x.x, y.x, x.y, y.y, d.x, d.y};
}

Shape placed(const Shape &shape, const Affine &affine) {
    // Nothing is lost to rounding where nothing moves.
    return affine.isIdentity() ? shape : std::visit(Placed{affine}, shape);
}

} // namespace draft
