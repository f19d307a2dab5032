// Circular with elliptic arcs, and two elliptic arcs, in any position.
//
// A circle and an ellipse are carried into the frame whose origin is the circle's centre and whose
// x axis is the ellipse's first. Of two ellipses the plane is stretched until one is a circle.

#include "base/settings.h"
#include "base/tolerance.h"
#include "circle/circle.h"
#include "ellipse/circle_ellipse.h"
#include "ellipse/convert.h"
#include "ellipse/parameter_range.h"
#include "ellipse/settle.h"

namespace {

using namespace planegeo;

struct Points {
    int count = 0;
    Vec2 at[4] = {};

    void push(Vec2 point) { at[count++] = point; }
};

/// Every point but those that repeat one before it. The squared distance is compared with errdist
/// itself, on purpose. parameterOf(i) is the parameter of a point on the ellipse, degrees.
template <class ParameterOf> Points withoutRepeats(const Points &points, ParameterOf parameterOf) {
    Points distinct;
    int which[4] = {};
    for (int j = 0; j < points.count; ++j) {
        bool repeats = false;
        for (int i = 0; i < distinct.count && !repeats; ++i) {
            const Vec2 apart = points.at[j] - distinct.at[i];
            repeats = dot(apart, apart) < distanceTolerance() &&
                      angleBetween(parameterOf(j), parameterOf(which[i])) < kSameParameterDeg;
        }
        if (repeats) continue;
        which[distinct.count] = j;
        distinct.push(points.at[j]);
    }
    return distinct;
}

/// The points on both arcs; nothing when the shape of the ellipse is refused.
///
/// Angles are taken in the common frame: they keep their digits far from the origin.
std::optional<Points> crossArcs(const Arc &arc, const EllipseFrame &frame, AngleRange parameters) {
    const Vec2 center = frame.turn.undo(frame.center - arc.circle.center);
    const ConicPoints points =
        crossCircleEllipse({center, frame.halfFirst, frame.halfSecond, arc.circle.r});
    if (points.count < 0) return std::nullopt;

    const EllipseFrame local = {center, {1.0, 0.0}, frame.halfFirst, frame.halfSecond};
    const bool isSegment = !(frame.halfSecond >= kShortestHalfAxis);
    const AngleRange onCircle = AngleRange::normalised(arc.range.start, arc.range.end).range;
    const AngleRange onEllipse = AngleRange::normalised(parameters.start, parameters.end).range;
    Points kept;
    Vec2 rays[4] = {};
    for (int i = 0; i < points.count; ++i) {
        const Vec2 turned = frame.turn.apply(points.at[i]);
        if (!onCircle.containsDirection(turned)) continue;
        if (!isSegment) {
            if (!hasParameters(local)) return std::nullopt;
            rays[kept.count] = parameterRay(points.at[i], local);
            if (!onEllipse.containsDirection(rays[kept.count])) continue;
        }
        kept.push(turned + arc.circle.center);
    }
    // Only the count is lowered, on purpose: the points stay where they were in the list.
    const auto parameterOf = [&](int i) { return directionDeg(rays[i]); };
    if (!isSegment) kept.count = withoutRepeats(kept, parameterOf).count;
    return kept;
}

bool areSameEllipse(const EllipseFrame &one, const EllipseFrame &other, double rotation,
                    double otherRotation) {
    const double tolerance = distanceTolerance();
    const Vec2 apart = one.center - other.center;
    return std::fabs(2.0 * (one.halfFirst - other.halfFirst)) < tolerance &&
           std::fabs(2.0 * (one.halfSecond - other.halfSecond)) < tolerance &&
           std::fabs(rotation - otherRotation) < tolerance && !(dot(apart, apart) > tolerance);
}

/// Whether an arc given as 0 and 360 is told to be a whole turn from the images of its ends, too.
bool staysWhole(const EllipseFrame &ellipse, const DTELLIPSE &record, double k) {
    constexpr double kMostStretched = 1000.0;
    return ParameterRange(ellipse, record.rot, {record.start, record.end}).isWholeTurn() &&
           k < kMostStretched && k * kMostStretched > 1.0;
}

/// The second ellipse in the frame of the first, stretched along y by k.
std::optional<ScaledEllipse> stretchedInto(const EllipseFrame &first, double firstRotation,
                                           double k, const EllipseFrame &other,
                                           const DTELLIPSE &second) {
    const Vec2 center = first.toLocal({second.cx, second.cy});
    const DTELLIPSE local = {0,        center.x,     center.y,   second.a,
                             second.b, second.start, second.end, second.rot - firstRotation};
    const auto image =
        staysWhole(other, local, k) ? wholeScaledAlongY(local, k) : scaledAlongY(local, k);
    return image && image->start && image->end ? image : std::nullopt;
}

} // namespace

extern "C" {

int32_t a2dIntersectionEC(double ex, double ey, double a, double b, double r, DTPOINT *out) {
    const ConicPoints points = crossCircleEllipse({{ex, ey}, a, b, r});
    if (points.count < 0) return points.count;
    for (int i = 0; i < 4; ++i) {
        store(points.at[i], out + i);
    }
    return points.count;
}

int32_t a2d_insce(const double *center, double r, const double *angles, const double *ecenter,
                  double a, double b, double rot, const double *eangles, DTPOINT *p1, DTPOINT *p2,
                  DTPOINT *p3, DTPOINT *p4, int16_t *count) {
    const auto points =
        crossArcs({{{center[0], center[1]}, r}, loadRange(angles)},
                  EllipseFrame::of({ecenter[0], ecenter[1]}, a, b, rot), loadRange(eangles));
    if (!points) return -1;
    *count = static_cast<int16_t>(points->count);
    DTPOINT *const outs[] = {p1, p2, p3, p4};
    for (int i = 0; i < points->count; ++i) {
        store(points->at[i], outs[i]);
    }
    return 0;
}

int32_t ca_insce(const double *center, double r, const double *angles, const double *ecenter,
                 double a, double b, double rot, const double *eangles, DTPOINT *p1, DTPOINT *p2,
                 DTPOINT *p3, DTPOINT *p4, int16_t *count) {
    return a2d_insce(center, r, angles, ecenter, a, b, rot, eangles, p1, p2, p3, p4, count);
}

int32_t a2d_ins2e(const double *center1, const double *center2, double a1, double a2, double b1,
                  double b2, double rot1, double rot2, const double *angles1, const double *angles2,
                  DTPOINT *p1, DTPOINT *p2, DTPOINT *p3, DTPOINT *p4, int16_t *count) {
    const EllipseFrame first = EllipseFrame::of({center1[0], center1[1]}, a1, b1, rot1);
    const EllipseFrame other = EllipseFrame::of({center2[0], center2[1]}, a2, b2, rot2);
    const DTELLIPSE second = {0, center2[0], center2[1], a2, b2, angles2[0], angles2[1], rot2};
    const AngleRange range = loadRange(angles1);
    *count = 0;
    if (areSameEllipse(first, other, rot1, rot2)) return 1;
    const double k = a1 / b1;
    const auto image = stretchedInto(first, rot1, k, other, second);
    if (!image) return -1;
    const auto points = crossArcs({{{0.0, 0.0}, first.halfFirst}, range}, image->frame,
                                  {*image->start, *image->end});
    if (!points) return -1;

    *count = static_cast<int16_t>(points->count);
    DTPOINT *const outs[] = {p1, p2, p3, p4};
    for (int i = 0; i < 4; ++i) {
        // Points beyond the count are carried along too, on purpose: whatever the caller left.
        const bool isFound = i < points->count;
        const Vec2 stretched = isFound ? points->at[i] : load(outs[i]);
        const Vec2 point = first.toPlane({stretched.x, stretched.y / k});
        store(isFound ? settledOnBoth(point, first, other) : point, outs[i]);
    }
    return 0;
}

int32_t ca_ins2e(const double *center1, const double *center2, double a1, double a2, double b1,
                 double b2, double rot1, double rot2, const double *angles1, const double *angles2,
                 DTPOINT *p1, DTPOINT *p2, DTPOINT *p3, DTPOINT *p4, int16_t *count) {
    return a2d_ins2e(center1, center2, a1, a2, b1, b2, rot1, rot2, angles1, angles2, p1, p2, p3, p4,
                     count);
}

int32_t a2d_chk_distdeg(const DTPOINT *points, int32_t n, const double *center, double rot,
                        double a, double b, DTPOINT *out) {
    if (n < 2 || n > 4) return -1;
    const EllipseFrame frame = EllipseFrame::of({center[0], center[1]}, a, b, rot);
    if (!hasParameters(frame)) return -1;
    Points all;
    for (int i = 0; i < n; ++i) {
        all.push(load(points + i));
    }
    const Points distinct =
        withoutRepeats(all, [&](int i) { return *parameterOfPoint(all.at[i], frame, rot); });
    for (int i = 0; i < distinct.count; ++i) {
        store(distinct.at[i], out + i);
    }
    return distinct.count;
}

} // extern "C"
