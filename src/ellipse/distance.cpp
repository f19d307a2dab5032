// Where a point lies to an ellipse, and the nearest point of an elliptic arc.

#include "base/angle.h"
#include "base/settings.h"
#include "base/tolerance.h"
#include "ellipse/implicit.h"
#include "ellipse/normal_feet.h"
#include "ellipse/sampled_distance.h"

namespace {

using namespace planegeo;

/// The part of an ellipse between two parameters, as unit vectors (cos t, sin t).
struct ArcOfDirections {
    Vec2 first, last;
    double spanDeg;

    explicit ArcOfDirections(AngleRange range)
        : first(unitAt(range.start)), last(unitAt(range.end)), spanDeg(range.end - range.start) {}

    bool contains(Vec2 d) const {
        const double pastFirst = cross(first, d), beforeLast = cross(d, last);
        if (spanDeg > 180.0) return pastFirst >= 0.0 || beforeLast >= 0.0;
        // With both ends close together the opposite direction would pass, too.
        return pastFirst >= 0.0 && beforeLast >= 0.0 && (spanDeg > 90.0 || dot(first, d) > 0.0);
    }

    static Vec2 unitAt(double deg) {
        const Rotation turn = Rotation::ofDegrees(deg);
        return {turn.c, turn.s};
    }
};

Vec2 localPoint(const EllipseFrame &e, Vec2 d) { return {e.halfFirst * d.x, e.halfSecond * d.y}; }

/// Without the whole ellipse's nearest point on it, an arc is nearest at an end or at the other
/// minimum of the distance.
Vec2 nearestBesides(const EllipseFrame &e, Vec2 q, const NormalFeet &feet,
                    const ArcOfDirections &arc) {
    const auto squaredDistance = [q](Vec2 p) { return dot(p - q, p - q); };
    Vec2 best = localPoint(e, arc.first);
    const auto offer = [&](Vec2 p) {
        if (squaredDistance(p) < squaredDistance(best)) best = p;
    };
    offer(localPoint(e, arc.last));
    if (feet.areFour()) {
        const Vec2 other = feet.secondNearest();
        if (arc.contains(other)) offer(localPoint(e, other));
    }
    return best;
}

/// In the frame of the ellipse.
Vec2 nearestOnArc(const EllipseFrame &e, Vec2 q, AngleRange::Normalised range) {
    const NormalFeet feet(q, e.halfFirst, e.halfSecond);
    const Vec2 nearest = feet.nearest();
    if (range.fullCircle) return localPoint(e, nearest);
    const ArcOfDirections arc(range.range);
    return arc.contains(nearest) ? localPoint(e, nearest) : nearestBesides(e, q, feet, arc);
}

double distanceToArc(const EllipseFrame &e, AngleRange range, Vec2 p, DTPOINT *out) {
    const Vec2 q = e.toLocal(p);
    const Vec2 nearest = nearestOnArc(e, q, AngleRange::normalised(range.start, range.end));
    const double distance = plainLength(q - nearest);
    const bool onArc = distance < distanceTolerance();
    store(onArc ? p : e.toPlane(nearest), out);
    return onArc ? 0.0 : distance;
}

} // namespace

extern "C" {

int32_t a2d_distpe(const DTPOINT *p, const DTELLIPSE *e) {
    constexpr int32_t kOn = 0, kOutside = 1, kInside = 2;
    const EllipseFrame frame = EllipseFrame::of(*e);
    const double value = implicitValue(frame.toLocal(load(p)), frame.halfFirst, frame.halfSecond);
    if (std::fabs(value) <= kOnCurveValue) return kOn;
    return value > 0.0 ? kOutside : kInside;
}

double ca_dstpp(const DTPOINT *center, double a, double b, double rot, const double *angles,
                const DTPOINT *p, DTPOINT *out) {
    const auto [distance, nearest] = sampledNearest(
        load(p), EllipseFrame::of(load(center), a, b, rot), rot, {angles[0], angles[1]});
    store(nearest, out);
    return distance;
}

double ca_dstpe(const DTPOINT *center, double a, double b, double rot, const double *angles,
                const DTPOINT *p) {
    return sampledNearest(load(p), EllipseFrame::of(load(center), a, b, rot), rot,
                          {angles[0], angles[1]})
        .distance;
}

double a2d_dstpp(const DTPOINT *center, double a, double b, double rot, const double *angles,
                 const DTPOINT *p, DTPOINT *out) {
    return distanceToArc(EllipseFrame::of(load(center), a, b, rot), {angles[0], angles[1]}, load(p),
                         out);
}

double a2d_dstpe(const DTPOINT *center, double a, double b, double rot, const double *angles,
                 const DTPOINT *p) {
    DTPOINT nearest;
    return distanceToArc(EllipseFrame::of(load(center), a, b, rot), {angles[0], angles[1]}, load(p),
                         &nearest);
}

} // extern "C"
