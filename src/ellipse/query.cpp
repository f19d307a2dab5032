// Where a point or a line lies to an ellipse; foci and tangent directions.
//
// The curve is asked for by the sum of the focal distances, the arc by polar directions that
// snap to the axes. Neither tolerance follows errdist; only the test by parameter does.

#include "ellipse/query.h"

#include "base/tolerance.h"
#include "ellipse/convert.h"

namespace planegeo {

FocalSum focalSum(Vec2 point, const EllipseFrame &frame, double rotationDeg) {
    const double a = frame.halfFirst;
    const double b = frame.halfSecond;
    const bool firstIsLonger = a >= b;
    // c^2 = a^2 - b^2, as a product: no rounding takes it below zero.
    const double c = std::sqrt(firstIsLonger ? (a - b) * (a + b) : (b - a) * (b + a));
    const Vec2 local = firstIsLonger ? Vec2{c, 0.0} : Vec2{0.0, c};
    const Vec2 focus = std::fabs(rotationDeg) >= kFociTurnDeg ? frame.turn.apply(local) : local;
    const Vec2 offset = point - frame.center;
    return {plainLength(offset - focus) + plainLength(offset + focus),
            2.0 * (firstIsLonger ? a : b)};
}

bool inPolarRange(AngleRange range, double directionDeg) {
    double theta = directionDeg;
    if (theta < -kPolarSlackDeg) theta += 360.0;
    auto [start, end] = range;
    if (std::fabs(start) < kWholeTurnAtZeroDeg && std::fabs(end) < kWholeTurnAtZeroDeg) end = 360.0;
    if (start < -kPolarSlackDeg) {
        start += 360.0;
        if (end < -kPolarSlackDeg) end += 360.0; // on purpose only where the start was raised
        if (start < -kPolarSlackDeg) return false;
    }
    if (end < -kPolarSlackDeg) return false;
    if (theta > kPolarMaxDeg) theta -= 360.0; // 360 itself stays
    const bool crossesZero = start > end;
    if (crossesZero && theta >= start - kPolarSlackDeg && theta < kPolarMaxDeg) return true;
    const double first = crossesZero ? -kPolarSlackDeg : start - kPolarSlackDeg;
    return !(theta < first || theta > end + kPolarSlackDeg); // a NaN passes
}

namespace {

/// Ray to an arc's end, by pi and 180 and not by the degree constants on purpose: where start and
/// end are a turn apart the last bit decides which of them is the greater.
Vec2 rayToEnd(const EllipseFrame &frame, double parameterDeg) {
    const Rotation parameter = Rotation::ofRadians(parameterDeg * kPi / 180.0);
    return {frame.halfFirst * parameter.c, frame.halfSecond * parameter.s};
}

double polarEndDeg(Vec2 ray) { return snappedDirectionRad(ray) * 180.0 / kPi; }

/// Whether a point lies on the curve, whatever its direction.
OnEllipseArc onCurve(Vec2 point, const EllipseFrame &frame, double rotationDeg) {
    if (2.0 * frame.halfFirst <= kAxisTooShort || 2.0 * frame.halfSecond <= kAxisTooShort) {
        return OnEllipseArc::axisTooShort;
    }
    const bool isOff = focalSum(point, frame, rotationDeg).deviation() >= kFocalSumSlack;
    return isOff ? OnEllipseArc::no : OnEllipseArc::yes;
}

} // namespace

EllipticArc::EllipticArc(const EllipseFrame &frame, double rotationDeg, AngleRange parameters)
    : frame_(frame), rotationDeg_(rotationDeg), start_(rayToEnd(frame, parameters.start)),
      end_(rayToEnd(frame, parameters.end)), coarse_(CoarseRange::of(start_, end_)) {}

OnEllipseArc EllipticArc::holds(Vec2 point) const {
    const OnEllipseArc curve = onCurve(point, frame_, rotationDeg_);
    if (curve != OnEllipseArc::yes) return curve;
    return isBetweenEnds(point) ? OnEllipseArc::yes : OnEllipseArc::no;
}

bool EllipticArc::isBetweenEnds(Vec2 point) const {
    const auto exact = [this] { return AngleRange{polarEndDeg(start_), polarEndDeg(end_)}; };
    return holdsSnappedDirection(
        point - frame_.center, rotationDeg_, coarse_, exact,
        [](AngleRange range, double deg) { return inPolarRange(range, deg); });
}

OnEllipseArc onEllipseArc(Vec2 point, const EllipseFrame &frame, double rotationDeg,
                          AngleRange parameters) {
    const OnEllipseArc curve = onCurve(point, frame, rotationDeg);
    if (curve != OnEllipseArc::yes) return curve;
    const EllipticArc arc(frame, rotationDeg, parameters);
    return arc.isBetweenEnds(point) ? OnEllipseArc::yes : OnEllipseArc::no;
}

} // namespace planegeo

namespace {

using namespace planegeo;

/// Tangent at a local point of an ellipse whose second half axis is `ratio` of the first.
Vec2 tangentAt(Vec2 local, double ratio) { return {-local.y / ratio, local.x * ratio}; }

/// Positive when the line through p and q cuts the ellipse: a length where it runs along an
/// axis, the discriminant of y = m x + c elsewhere. On purpose both are held against one number.
double depthOfLine(Vec2 p, Vec2 q, const EllipseFrame &frame) {
    const double a = frame.halfFirst;
    const double b = frame.halfSecond;
    if (std::fabs(p.y - q.y) <= kLineAlongAxis) return b - std::fabs(p.y);
    if (!(std::fabs(p.x - q.x) > kLineAlongAxis)) return a - std::fabs(p.x);
    const double m = (p.y - q.y) / (p.x - q.x);
    const double c = p.y - m * p.x;
    return m * m * a * a - c * c + b * b;
}

} // namespace

extern "C" {

int32_t GetElpFocusPnt(const DTPOINT *center, double a, double b, double rot, DTPOINT *focus1,
                       DTPOINT *focus2) {
    // The lengths as passed, on purpose not halved; a longer b has no foci and gives NaN.
    const double c = std::sqrt((a - b) * (a + b));
    if (c - a > kFocusBeyondAxis) return -1;
    const Vec2 o = load(center);
    const Rotation turn = Rotation::ofDegrees(rot);
    const Vec2 offset = Vec2{turn.c, turn.s} * c;
    store(o - offset, focus1);
    store(o + offset, focus2);
    return 0;
}

int32_t a2d_GetTangentVectorOnElp(double ratio, const DTPOINT *point, DTPOINT *tangent) {
    if (point == nullptr || tangent == nullptr || ratio > 1.0) return 1;
    store(tangentAt(load(point), ratio), tangent);
    return 0;
}

int32_t a2d_GetTangentVectorOnDTELLIPSE(const DTELLIPSE *ellipse, const DTPOINT *point,
                                        DTPOINT *tangent) {
    if (ellipse == nullptr || point == nullptr || tangent == nullptr) return 1;
    if (ellipse->b <= 0.0 || ellipse->a <= 0.0) return 1;
    const EllipseFrame frame = EllipseFrame::of(*ellipse);
    // Shorter over longer whichever comes first, on purpose: with a longer second axis the
    // vector is that of the ellipse with its axes exchanged.
    const double ratio =
        ellipse->a >= ellipse->b ? ellipse->b / ellipse->a : ellipse->a / ellipse->b;
    store(frame.turn.apply(tangentAt(frame.toLocal(load(point)), ratio)), tangent);
    return 0;
}

int32_t CheckEllipseArcAngle(const DTELLIPSE *ellipse, const DTPOINT *point) {
    const auto parameter = parameterOfPoint(load(point), EllipseFrame::of(*ellipse), ellipse->rot);
    return parameter && isOnArc(ellipse->start, ellipse->end, *parameter) ? 0 : 1;
}

int32_t a2d_hanel(const DTLINE *line, const DTELLIPSE *ellipse) {
    const EllipseFrame frame = EllipseFrame::of(*ellipse);
    const double depth = depthOfLine(frame.toLocal({line->x1, line->y1}),
                                     frame.toLocal({line->x2, line->y2}), frame);
    if (std::fabs(depth) <= kLineTouches) return 1;
    return depth > 0.0 ? 2 : 0;
}

int32_t ca_onelp(const DTPOINT *center, double a, double b, double rot, const double *angles,
                 const DTPOINT *point) {
    const EllipseFrame frame = EllipseFrame::of(load(center), a, b, rot);
    return static_cast<int32_t>(onEllipseArc(load(point), frame, rot, {angles[0], angles[1]}));
}

int32_t pin_chk(const DTPOINT *center, double rot, const double *range, const DTPOINT *point) {
    const double direction = snappedDirectionRad(load(point) - load(center)) * kDegPerRad;
    return inPolarRange({range[0], range[1]}, direction - rot) ? 0 : 1;
}

int32_t ca_posel(const DTPOINT *center, double a, double b, double rot, const DTPOINT *point,
                 uint16_t *position) {
    const EllipseFrame frame = EllipseFrame::of(load(center), a, b, rot);
    const Vec2 p = load(point);
    *position = 0;
    if (a <= kAxisTooShort || b <= kAxisTooShort) return -1;
    const FocalSum focal = focalSum(p, frame, rot);
    if (!(focal.deviation() < kFocalSumSlack)) *position = focal.isOutside() ? 1 : 65535;
    return 0;
}

} // extern "C"
