// From one name of a place on an ellipse to another; axes from conjugate semi-diameters.
//
// Angles leave unreduced where the functions say so: callers normalise them as arc ranges.

#include "ellipse/convert.h"

#include <algorithm>

#include "base/settings.h"
#include "base/tolerance.h"

namespace planegeo {

namespace {

/// The local point of the ellipse along a polar angle, from its half axes.
///
/// rho^2 = A^2 B^2 / (B^2 cos^2 + A^2 sin^2)
Vec2 pointAtPolar(double halfFirst, double halfSecond, double polarDeg) {
    const Rotation polar = Rotation::ofDegrees(polarDeg);
    const double a2 = halfFirst * halfFirst;
    const double b2 = halfSecond * halfSecond;
    const double rho = std::sqrt(a2 * b2 / (b2 * polar.c * polar.c + a2 * polar.s * polar.s));
    return {rho * polar.c, rho * polar.s};
}

/// v turned by a quarter clockwise.
constexpr Vec2 clockwiseNormal(Vec2 v) { return {v.y, -v.x}; }

/// Rytz: u turned clockwise by a quarter makes with v a pair whose half sum and half difference
/// have the half sum and half difference of the semi-axes as lengths, m and n.
EllipseAxes axesByRytz(Vec2 u, Vec2 v) {
    const Vec2 w = clockwiseNormal(u);
    const double halfFirst = plainLength((v + w) * 0.5) + plainLength((v - w) * 0.5);
    // (m + n)(n - m) = cross(u, v): the second axis loses no digits when the ellipse is flat.
    const double area = cross(u, v);
    const double halfSecond = std::min(std::fabs(area) / halfFirst, halfFirst);
    // v + q w points along the first axis, q being the signed ratio of the axes. So does
    // u - q z with z = v turned likewise, up to the sign of dot(u, v); the longer of u and v
    // keeps the more digits.
    const double q = area / (halfFirst * halfFirst);
    const Vec2 alongFirst = dot(v, v) >= dot(u, u)
                                ? v + q * w
                                : std::copysign(1.0, dot(u, v)) * (u - q * clockwiseNormal(v));
    double rotation = directionDeg(alongFirst);
    rotation -= 360.0 * std::floor(rotation / 360.0);
    return {2.0 * halfFirst, 2.0 * halfSecond, rotation};
}

} // namespace

bool hasParameters(const EllipseFrame &frame) {
    const double tolerance = distanceTolerance();
    return !(std::fabs(2.0 * frame.halfFirst) < tolerance ||
             std::fabs(2.0 * frame.halfSecond) < tolerance);
}

Vec2 parameterRay(Vec2 point, const EllipseFrame &frame) {
    const double halfFirst = frame.halfFirst;
    // The plane is stretched from the first axis until the ellipse is the circle of radius
    // halfFirst. Where half the axis is too short for a foot on it, the point is its own foot.
    const Vec2 axis = {halfFirst * frame.turn.c, halfFirst * frame.turn.s};
    const bool hasFoot = !(std::fabs(halfFirst) < distanceTolerance());
    const Vec2 foot = hasFoot ? footOnLine(point, frame.center, axis).point : point;
    const Vec2 stretched = foot + (point - foot) * (halfFirst / frame.halfSecond);
    return stretched - frame.center;
}

std::optional<double> parameterOfPoint(Vec2 point, const EllipseFrame &frame, double rotationDeg) {
    if (!hasParameters(frame)) return std::nullopt;
    // Not reduced on purpose; the centre itself gives -rotationDeg.
    return directionDeg(parameterRay(point, frame)) - rotationDeg;
}

double parameterOfPolar(double first, double second, double polarDeg) {
    const Vec2 point = pointAtPolar(first * 0.5, second * 0.5, polarDeg);
    return directionDeg({point.x * second, point.y * first});
}

std::optional<EllipseAxes> axesOfConjugates(Vec2 u, Vec2 v) {
    if (std::fabs(cross(u, v)) < kConjugateCollinearCross) return std::nullopt;
    if (!(std::fabs(dot(u, v)) < kConjugatePerpendicularDot)) return axesByRytz(u, v);
    EllipseAxes axes = {2.0 * plainLength(u), 2.0 * plainLength(v), directionDeg(u)};
    if (axes.second > axes.first) {
        std::swap(axes.first, axes.second);
        axes.rotationDeg += 90.0; // not reduced on purpose: up to 450
    }
    return axes;
}

namespace {

/// Where (x, y) -> (x, k y) carries a local point of an ellipse, seen from its centre, from which
/// all but the centre is taken: it keeps its digits far from the origin.
Vec2 scaledOffset(const EllipseFrame &frame, Vec2 local, double k) {
    const Vec2 offset = frame.turn.apply(local);
    return {offset.x, offset.y * k};
}

/// The image without the ends of its arc.
std::optional<ScaledEllipse> scaledShape(const DTELLIPSE &ellipse, const EllipseFrame &frame,
                                         double k) {
    const double tolerance = distanceTolerance();
    if (tolerance >= ellipse.b || tolerance >= ellipse.a) return std::nullopt;
    constexpr Rotation kQuarter = {0x1.1a62633145c07p-54, 1.0}; // of a quarter in radians, rounded
    const double a = frame.halfFirst, b = frame.halfSecond;
    const EllipseAxes axes =
        axesOfConjugates(scaledOffset(frame, {a * 1.0, b * 0.0}, k),
                         scaledOffset(frame, {a * kQuarter.c, b * kQuarter.s}, k))
            .value_or(EllipseAxes{0.0, 0.0, 0.0});
    return ScaledEllipse{
        EllipseFrame::of({ellipse.cx, ellipse.cy * k}, axes.first, axes.second, axes.rotationDeg),
        axes,
        {},
        {}};
}

} // namespace

std::optional<ScaledEllipse> scaledAlongY(const DTELLIPSE &ellipse, double k) {
    const EllipseFrame frame = EllipseFrame::of(ellipse);
    auto scaled = scaledShape(ellipse, frame, k);
    if (!scaled) return std::nullopt;
    EllipseFrame image = scaled->frame;
    image.center = {0.0, 0.0};
    const auto parameter = [&](double parameterDeg) {
        return parameterOfPoint(scaledOffset(frame, frame.localAt(parameterDeg), k), image,
                                scaled->axes.rotationDeg);
    };
    scaled->start = parameter(ellipse.start);
    scaled->end = parameter(ellipse.end);
    return scaled;
}

std::optional<ScaledEllipse> wholeScaledAlongY(const DTELLIPSE &ellipse, double k) {
    auto scaled = scaledShape(ellipse, EllipseFrame::of(ellipse), k);
    if (!scaled || !hasParameters(scaled->frame)) return std::nullopt;
    scaled->start = 0.0;
    scaled->end = 360.0;
    return scaled;
}

} // namespace planegeo

namespace {

using namespace planegeo;

enum AngleKind : int16_t { kParametric = 0, kPolar = 1 };

} // namespace

extern "C" {

int32_t ca_elpcd(const DTPOINT *center, double a, double b, double rot, const double *angles,
                 double *points) {
    const EllipseFrame frame = EllipseFrame::of(load(center), a, b, rot);
    const Vec2 start = frame.at(angles[0]);
    const Vec2 end = frame.at(angles[1]);
    points[0] = start.x;
    points[1] = start.y;
    points[2] = end.x;
    points[3] = end.y;
    return 0;
}

int32_t a2d_elpdeg(const DTPOINT *point, const DTPOINT *center, double a, double b, double rot,
                   double *angle) {
    const auto parameter =
        parameterOfPoint(load(point), EllipseFrame::of(load(center), a, b, rot), rot);
    if (!parameter) return -1;
    *angle = *parameter;
    return 0;
}

int32_t a2dGetEllipsDt(const DTPOINT *p, const DTPOINT *q, const DTPOINT *center, double *a,
                       double *b, double *rot) {
    const Vec2 o = load(center);
    const auto found = axesOfConjugates(load(p) - o, load(q) - o);
    const EllipseAxes axes = found.value_or(EllipseAxes{0.0, 0.0, 0.0});
    *a = axes.first;
    *b = axes.second;
    *rot = axes.rotationDeg;
    return found ? 0 : -1;
}

int32_t ca_ElpAngle(int16_t mode, const DTELLIPSE *ellipse, double *parametric, double *polar) {
    switch (mode) {
    case kParametric:
        *polar = polarOfParameter(ellipse->a, ellipse->b, *parametric);
        return 0;
    case kPolar:
        *parametric = parameterOfPolar(ellipse->a, ellipse->b, *polar);
        return 0;
    default:
        return -1;
    }
}

int32_t ca_ElpCordXY(int16_t mode, const DTELLIPSE *ellipse, double angle, DTPOINT *offset) {
    if (mode != kParametric && mode != kPolar) return -1;
    const EllipseFrame frame = EllipseFrame::of(*ellipse);
    const Vec2 local = mode == kParametric ? frame.localAt(angle)
                                           : pointAtPolar(frame.halfFirst, frame.halfSecond, angle);
    // The centre is left out on purpose: the offset is the answer.
    store(std::fabs(ellipse->rot) > kOffsetTurnDeg ? frame.turn.apply(local) : local, offset);
    return 0;
}

} // extern "C"
