// The tangents from a point to an ellipse, by two ways that decide by tolerances of their own: the
// polar line of the point, and the circle over the first axis on which the feet of the foci lie.

#include "base/settings.h"
#include "base/tolerance.h"
#include "circle/circle_circle.h"
#include "ellipse/frame.h"
#include "ellipse/implicit.h"
#include "ellipse/line_ellipse.h"

namespace {

using namespace planegeo;

/// The points of contact of the tangents from q = (x, y) to an ellipse. With
/// F = B^2 x^2 + A^2 y^2 - A^2 B^2, which is positive outside, they are
///   (A^2 (B^2 x +- y sqrt F), B^2 (A^2 y -+ x sqrt F)) / (B^2 x^2 + A^2 y^2).
struct Contacts {
    Vec2 plus, minus;

    Contacts(Vec2 q, const StandardEllipse &e) {
        const double a2 = e.halfFirst * e.halfFirst, b2 = e.halfSecond * e.halfSecond;
        const double root = std::sqrt(implicitValue(q, e.halfFirst, e.halfSecond));
        const double sum = b2 * q.x * q.x + a2 * q.y * q.y;
        const Vec2 middle = {b2 * q.x, a2 * q.y}, half = {q.y * root, -q.x * root};
        const auto placed = [&](Vec2 v) { return Vec2{a2 * v.x / sum, b2 * v.y / sum}; };
        plus = placed(middle + half);
        minus = placed(middle - half);
    }
};

/// The contacts by the polar line  x x0 / A^2 + y y0 / B^2 = 1,  the greater abscissa first.
std::optional<Contacts> contactsByPolarLine(Vec2 q, const StandardEllipse &e) {
    const double b2 = e.halfSecond * e.halfSecond;
    Contacts contacts(q, e);
    if (std::fabs(q.y) < kPolarLineUpright) {
        // The line is upright at x = A^2 / x0, and there y^2 = B^2 (1 - x^2 / A^2).
        const double x = e.halfFirst / q.x * e.halfFirst;
        const double square = b2 * (q.x - e.halfFirst) * (q.x + e.halfFirst) / (q.x * q.x);
        if (square <= kPolarLineMisses) return std::nullopt;
        contacts.plus = {x, std::sqrt(square)};
        contacts.minus = {x, -std::sqrt(square)};
        return contacts;
    }
    // Of the quadratic for x of  y = m x + q,  of a length to the sixth.
    const double discriminant =
        4.0 * b2 * b2 * implicitValue(q, e.halfFirst, e.halfSecond) / (q.y * q.y);
    if (discriminant <= kPolarLineMisses) return std::nullopt;
    if (q.y < 0.0) std::swap(contacts.plus, contacts.minus);
    return contacts;
}

/// What crossStandardEllipse() answers for the line through q and k, where k is rounded but the
/// line is a tangent: with the contact known it is asked of the tangent itself.
StandardCrossing crossTangent(Vec2 q, Vec2 k, Vec2 contact, const StandardEllipse &e) {
    const auto [a, b] = e;
    const auto one = [](Vec2 point) { return StandardCrossing{false, {1, {point}}}; };
    const bool isHorizontal = std::fabs(q.y - k.y) < kAxisParallelSpan;
    const bool isVertical = std::fabs(q.x - k.x) < kAxisParallelSpan;
    // A line shorter than errdist has distance 0 from every point.
    const bool isMeasurable = !(plainLength(q - k) < distanceTolerance());
    const Vec2 normal = {contact.x / (a * a), contact.y / (b * b)}; // normal . x = 1
    const double distance = isMeasurable ? 1.0 / plainLength(normal) : 0.0;
    if (isHorizontal && std::fabs(distance - b) <= kAxisTouchDistance) {
        return one({0.0, isMeasurable && contact.y < 0.0 ? -b : b});
    }
    if (isVertical && std::fabs(distance - a) <= kAxisTouchDistance) {
        return one({isMeasurable && contact.x < 0.0 ? -a : a, 0.0});
    }
    if (isVertical) return crossStandardEllipse({q, k}, e);
    if (b == 0.0) return {false, {}}; // through an end of the segment: that is no touch
    // Of the candidates on both sides of the first axis the first may be near enough.
    const bool isFirst = (contact.y > 0.0) == (b * contact.x < 0.0);
    const double mirrored = 2.0 * contact.y * contact.y / (b * b) * distance;
    const bool mirrorTouches =
        isMeasurable ? mirrored <= kTouchDistance : b * b <= kFocalDifference;
    if (!isHorizontal && !isFirst && mirrorTouches) return one({contact.x, -contact.y});
    return one(contact);
}

/// How far a point lies from the tangent at a contact.
double distanceFromTangent(Vec2 p, Vec2 contact, const StandardEllipse &e) {
    const Vec2 normal = {contact.x / (e.halfFirst * e.halfFirst),
                         contact.y / (e.halfSecond * e.halfSecond)};
    return std::fabs(dot(normal, p) - 1.0) / plainLength(normal);
}

struct TangentPoints {
    int32_t result;
    int count; ///< of the points; not all are contacts unless the result is 2
    Vec2 at[2];
};

/// By the feet of the perpendiculars from the foci onto the tangents from q: they lie on the circle
/// over the first axis and on the circle whose diameter joins the focus and q.
class FocalConstruction {
  public:
    FocalConstruction(Vec2 q, const StandardEllipse &e)
        : q_(q), ellipse_(e),
          focal_(std::sqrt((e.halfFirst - e.halfSecond) * (e.halfFirst + e.halfSecond))) {}

    TangentPoints solved() const;

  private:
    PointPair feetOfFocus(double abscissa) const {
        const Vec2 focus = {abscissa, 0.0};
        const Circle thales = {(q_ + focus) * 0.5, plainLength(q_ - focus) * 0.5};
        return crossCircles({{0.0, 0.0}, ellipse_.halfFirst}, thales);
    }
    Vec2 awayFromPoint(const PointPair &feet) const {
        return plainLength(q_ - feet.at[0]) < kFootAtPoint ? feet.at[1] : feet.at[0];
    }
    TangentPoints alongLines(Vec2 k1, Vec2 k2) const;

    Vec2 q_;
    StandardEllipse ellipse_;
    double focal_;
};

TangentPoints FocalConstruction::alongLines(Vec2 k1, Vec2 k2) const {
    const Contacts contacts(q_, ellipse_);
    TangentPoints points{};
    for (const Vec2 k : {k1, k2}) {
        const bool isPlus = distanceFromTangent(k, contacts.plus, ellipse_) <
                            distanceFromTangent(k, contacts.minus, ellipse_);
        const auto [degenerate, crossing] =
            crossTangent(q_, k, isPlus ? contacts.plus : contacts.minus, ellipse_);
        points.at[points.count++] = crossing.points[0];
        if (degenerate) return {-1, points.count, {points.at[0], points.at[1]}};
        if (crossing.count != 1) return points;
    }
    points.result = 2;
    return points;
}

TangentPoints FocalConstruction::solved() const {
    if (focal_ - ellipse_.halfFirst > kTangentFocusExcess) return {-1, 0, {}};
    // The nearer focus; of two as near the one on the negative side.
    const double nearer = focal_ * q_.x > 0.0 ? focal_ : -focal_;
    const PointPair feet = feetOfFocus(nearer);
    if (feet.count != 2) return {0, 0, {}};
    if (ellipse_.halfFirst <= 0.0) return {-1, 0, {}};
    const bool isOnCircle = std::fabs(ellipse_.halfFirst - plainLength(q_)) < distanceTolerance();
    if (!isOnCircle) return alongLines(feet.at[0], feet.at[1]);
    // The point is a foot itself, on one of the tangents for each focus.
    const PointPair others = feetOfFocus(-nearer);
    if (others.count != 2) return {0, 0, {}};
    return alongLines(awayFromPoint(feet), awayFromPoint(others));
}

} // namespace

extern "C" {

int32_t ca_inspe(const DTPOINT *p, const DTPOINT *center, double a, double b, double rot,
                 DTPOINT *out1, DTPOINT *out2) {
    const EllipseFrame frame = EllipseFrame::of(load(center), a, b, rot);
    const Vec2 q = frame.toLocal(load(p));
    const auto contacts = contactsByPolarLine(q, {frame.halfFirst, frame.halfSecond});
    store(contacts ? frame.toPlane(contacts->plus) : Vec2{0.0, 0.0}, out1);
    store(contacts ? frame.toPlane(contacts->minus) : Vec2{0.0, 0.0}, out2);
    return contacts ? 0 : 1;
}

int32_t a2d_tchpe(const DTPOINT *p, const DTPOINT *center, double a, double b, double rot,
                  DTPOINT *out1, DTPOINT *out2) {
    const EllipseFrame frame = EllipseFrame::of(load(center), a, b, rot);
    const Vec2 q = frame.toLocal(load(p));
    const StandardEllipse ellipse = {frame.halfFirst, frame.halfSecond};
    const TangentPoints points = FocalConstruction(q, ellipse).solved();
    // What a failure leaves is told in the frame of the ellipse, on purpose.
    const auto told = [&](Vec2 v) { return points.result == 2 ? frame.toPlane(v) : v; };
    if (points.count > 0) store(told(points.at[0]), out1);
    if (points.count > 1) store(told(points.at[1]), out2);
    return points.result;
}

} // extern "C"
