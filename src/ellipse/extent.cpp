// Where an ellipse has a tangent of a given direction, and the box around an elliptic arc.
//
// Points off the arc give way to the nearer of its ends; the box is that of the four points
// so found for the directions of y and x.

#include <algorithm>
#include <array>

#include "base/tolerance.h"
#include "ellipse/convert.h"
#include "ellipse/query.h"

namespace {

using namespace planegeo;

struct TangentPair {
    Vec2 one;
    Vec2 other;
};

TangentPair withOpposite(Vec2 point) { return {point, -point}; }

TangentPair toPlane(const EllipseFrame &frame, const TangentPair &points) {
    return {frame.toPlane(points.one), frame.toPlane(points.other)};
}

/// The local points with a tangent of a local direction; the first has a positive y.
///
/// With m = tan phi and s^2 = m^2 A^2 + B^2: (-A^2 m / s, B^2 / s) and its mirror image
TangentPair tangentPoints(const EllipseFrame &frame, double phiDeg) {
    const double a2 = frame.halfFirst * frame.halfFirst;
    const double b2 = frame.halfSecond * frame.halfSecond;
    const double m = std::tan(phiDeg * kRadPerDeg);
    const double s = std::sqrt(m * m * a2 + b2);
    return withOpposite({-a2 * m / s, b2 / s});
}

bool isAlong(double phiDeg, double axisDeg) {
    return std::fabs(std::fabs(phiDeg) - axisDeg) < kTangentAlongAxisDeg;
}

/// As many turns as take a direction into the range of kDirectionBelowZeroDeg and
/// kDirectionMaxDeg, one after the other: a turn too many falls short of 0 only by the slack.
double withinOneTurn(double deg) {
    if (deg > kDirectionMaxDeg) {
        const double rest = remainderOfTurns(deg);
        return rest + 360.0 > kDirectionMaxDeg ? rest : rest + 360.0;
    }
    if (deg < -kDirectionBelowZeroDeg) {
        const double rest = remainderOfTurns(deg);
        return rest < -kDirectionBelowZeroDeg ? rest + 360.0 : rest;
    }
    return deg;
}

double raisedOrLoweredOnce(double deg) {
    if (deg > kDirectionMaxDeg) deg -= 360.0;
    if (deg < -kDirectionBelowZeroDeg) deg += 360.0;
    return deg;
}

/// An elliptic arc in its own frame.
struct LocalArc {
    EllipseFrame frame;
    double rotationDeg;
    Vec2 start;
    Vec2 end;
    CoarseRange coarse;
    bool isWholeTurn; ///< whose polar range holds every direction

    static LocalArc of(Vec2 center, double first, double second, double rotationDeg,
                       AngleRange parameters) {
        if (rotationDeg >= 360.0) rotationDeg -= 360.0;
        if (rotationDeg <= -360.0) rotationDeg += 360.0;
        const EllipseFrame frame = EllipseFrame::of(center, first, second, rotationDeg);
        const Vec2 start = frame.localAt(parameters.start);
        const Vec2 end = frame.localAt(parameters.end);
        const bool isWholeTurn = isAtZero(start) && isAtZero(end);
        return {frame, rotationDeg, start, end, CoarseRange::of(start, end), isWholeTurn};
    }

    /// The point, or the nearer end where the arc does not reach it; the end where both ends
    /// are as near.
    Vec2 nearest(Vec2 local) const {
        if (isWholeTurn || isInRange(local)) return local;
        return plainLength(local - end) > plainLength(local - start) ? start : end;
    }

    /// On the first axis by snappedDirectionRad().
    static bool isAtZero(Vec2 v) { return std::fabs(v.y) < kAxisSnapLength && v.x > 0.0; }

    bool isInRange(Vec2 local) const {
        const auto exact = [this] {
            return AngleRange{snappedDirectionRad(start) * kDegPerRad,
                              snappedDirectionRad(end) * kDegPerRad};
        };
        return holdsSnappedDirection(local, 0.0, coarse, exact, [](AngleRange range, double deg) {
            return inPolarRange(range, deg);
        });
    }

    /// The points with a tangent of a direction, moved onto the arc.
    TangentPair pointsAlong(double directionDeg) const {
        const TangentPair found = alongWholeTurn(raisedOrLoweredOnce(directionDeg) - rotationDeg);
        return toPlane(frame, {nearest(found.one), nearest(found.other)});
    }

    /// The local direction is not reduced, on purpose: 360 and 450 go to the formula.
    TangentPair alongWholeTurn(double phiDeg) const {
        if (isAlong(phiDeg, 90.0) || isAlong(phiDeg, 270.0)) {
            return withOpposite({frame.halfFirst, 0.0});
        }
        if (isAlong(phiDeg, 0.0) || isAlong(phiDeg, 180.0)) {
            return withOpposite({0.0, frame.halfSecond});
        }
        return tangentPoints(frame, phiDeg);
    }
};

/// Corners of the box, and the points that made it: those with a tangent along y, then along x.
struct Extents {
    bool found;
    Vec2 lower;
    Vec2 upper;
    std::array<Vec2, 4> extremes;
};

Extents extentsOf(Vec2 center, double first, double second, double rotationDeg,
                  AngleRange parameters) {
    // Equal angles span nothing: a whole ellipse has to be given as a span of 360.
    if (std::fabs(parameters.start - parameters.end) < kArcWithoutSpanDeg) return {};
    const auto arc = LocalArc::of(center, first, second, rotationDeg, parameters);
    const TangentPair alongY = arc.pointsAlong(90.0);
    const TangentPair alongX = arc.pointsAlong(0.0);
    Extents box = {
        true, alongY.one, alongY.one, {alongY.one, alongY.other, alongX.one, alongX.other}};
    for (const Vec2 point : box.extremes) {
        box.lower = {std::min(box.lower.x, point.x), std::min(box.lower.y, point.y)};
        box.upper = {std::max(box.upper.x, point.x), std::max(box.upper.y, point.y)};
    }
    return box;
}

} // namespace

extern "C" {

int32_t ca_elaln(const DTPOINT *center, double a, double b, double rot, double direction,
                 DTPOINT *out1, DTPOINT *out2) {
    const EllipseFrame frame = EllipseFrame::of(load(center), a, b, rot);
    const double phi = withinOneTurn(direction) - rot;
    // 90 alone is special, on purpose: at 270 the tangent's huge value is used.
    const TangentPair local =
        isAlong(phi, 90.0) ? withOpposite({frame.halfFirst, 0.0}) : tangentPoints(frame, phi);
    const TangentPair points = toPlane(frame, local);
    store(points.one, out1);
    store(points.other, out2);
    return 1; // on purpose, though it never fails
}

int32_t ang_pnt(const DTPOINT *center, double a, double b, double rot, const double *angles,
                double direction, DTPOINT *out1, DTPOINT *out2) {
    const auto arc = LocalArc::of(load(center), a, b, rot, {angles[0], angles[1]});
    const TangentPair points = arc.pointsAlong(direction);
    store(points.one, out1);
    store(points.other, out2);
    return 0;
}

int32_t ca_elamn(const DTPOINT *center, double a, double b, double rot, const double *angles,
                 DTPOINT *lower, DTPOINT *upper) {
    const Extents box = extentsOf(load(center), a, b, rot, {angles[0], angles[1]});
    store(box.lower, lower);
    store(box.upper, upper);
    return box.found ? 0 : 1;
}

int32_t ca_elpmn(const DTPOINT *center, double a, double b, double rot, const double *angles,
                 DTPOINT *lower, DTPOINT *upper, DTPOINT *extremes) {
    const Extents box = extentsOf(load(center), a, b, rot, {angles[0], angles[1]});
    store(box.lower, lower);
    store(box.upper, upper);
    if (!box.found) return 1;
    for (const Vec2 &point : box.extremes) {
        store(point, extremes++);
    }
    return 0;
}

} // extern "C"
