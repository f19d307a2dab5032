// Where an ellipse has a tangent of a given direction, and the box around an elliptic arc.
//
// Points off the arc give way to the nearer of its ends; the box is that of the four points so
// found for the directions of y and x.

#include <algorithm>
#include <array>

#include "base/tolerance.h"
#include "ellipse/parameter_range.h"
#include "ellipse/query.h"

namespace {

using namespace planegeo;

/// A point seen from the centre, and its mirror image.
Vec2Pair withOpposite(Vec2 point) { return pairOf(point, -point); }

/// The local point with a tangent of a local direction that has a positive y; the other is its
/// mirror image.
///
/// With m = tan phi and s^2 = m^2 A^2 + B^2: (-A^2 m / s, B^2 / s)
Vec2 tangentPoint(const EllipseFrame &frame, double phiDeg) {
    const double a2 = frame.halfFirst * frame.halfFirst;
    const double b2 = frame.halfSecond * frame.halfSecond;
    const double m = std::tan(phiDeg * kRadPerDeg);
    const double s = std::sqrt(m * m * a2 + b2);
    return {-a2 * m / s, b2 / s};
}

/// The same of a direction that is known by its vector and far from upright: m = y / x.
Vec2 tangentPoint(const EllipseFrame &frame, Vec2 direction) {
    const Vec2 v = {frame.halfFirst * direction.y, frame.halfSecond * direction.x};
    const double length = std::copysign(plainLength(v), direction.x);
    return {-frame.halfFirst * v.x / length, frame.halfSecond * v.y / length};
}

bool isAlong(double phiDeg, double axisDeg) {
    return std::fabs(std::fabs(phiDeg) - axisDeg) < kTangentAlongAxisDeg;
}

/// As many turns as take a direction into the range of kDirectionBelowZeroDeg and kDirectionMaxDeg,
/// one after the other: a turn too many falls short of 0 only by the slack.
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

/// Whether points are farther from one than from another, by the lengths of plainLength(); without
/// roots where the squares are so far apart that these do not round to one number.
Pair fartherFrom(Vec2 one, Vec2 other, Vec2Pair points) {
    constexpr double kApart = 0x1p-50;
    const Vec2Pair fromOne = points - twice(one), fromOther = points - twice(other);
    const Pair square = dot(fromOne, fromOne), otherSquare = dot(fromOther, fromOther);
    const Pair excess = square - otherSquare;
    const Pair apart = magnitude(excess) - kApart * otherSquare;
    if ((apart[0] > 0.0) & (apart[1] > 0.0)) return excess;
    const auto byRoots = [&](int i) { return std::sqrt(square[i]) > std::sqrt(otherSquare[i]); };
    return Pair{byRoots(0) ? 1.0 : 0.0, byRoots(1) ? 1.0 : 0.0};
}

/// Whether the polar range of an arc's ends holds a point.
bool isInRange(Vec2 local, Vec2 start, Vec2 end) {
    return inPolarRange(
        {snappedDirectionRad(start) * kDegPerRad, snappedDirectionRad(end) * kDegPerRad},
        snappedDirectionRad(local) * kDegPerRad);
}

/// An elliptic arc in its own frame.
struct LocalArc {
    double rotationDeg;
    EllipseFrame frame;
    ParameterRange range;
    Vec2 start{}, end{}; ///< not of a whole turn, which needs none

    LocalArc(Vec2 center, double first, double second, double rotation, AngleRange parameters)
        : rotationDeg(loweredRotation(rotation)),
          frame(EllipseFrame::of(center, first, second, rotationDeg)),
          range(frame, rotationDeg, parameters) {
        if (range.isWholeTurn()) return;
        start = frame.localAt(parameters.start);
        end = frame.localAt(parameters.end);
    }

    static double loweredRotation(double deg) {
        if (deg >= 360.0) deg -= 360.0;
        if (deg <= -360.0) deg += 360.0;
        return deg;
    }

    /// A point of the whole ellipse and its mirror image; where the arc does not reach one, the
    /// nearer end, and the end where both ends are as near. Nothing branches on what is anybody's
    /// guess.
    Vec2Pair onArc(Vec2 point) const {
        if (range.isWholeTurn()) return withOpposite(point);
        auto [told, inside] =
            range.look(withOpposite({point.x * frame.halfSecond, point.y * frame.halfFirst}));
        if (!((told[0] > 0.0) & (told[1] > 0.0))) {
            inside = Pair{isInRange(point, start, end) ? 1.0 : 0.0,
                          isInRange(-point, start, end) ? 1.0 : 0.0};
        }
        const Vec2Pair points = withOpposite(point);
        const Pair endIsFarther = fartherFrom(end, start, points);
        const auto nearest = [&, held = inside](Pair place, double first, double last) {
            const Pair nearer = endIsFarther > 0.0 ? Pair{first, first} : Pair{last, last};
            return held > 0.0 ? place : nearer;
        };
        return {nearest(points.x, start.x, end.x), nearest(points.y, start.y, end.y)};
    }

    /// The point of the whole ellipse with a tangent of a direction that tangentPoint() tells. The
    /// local direction is not reduced, on purpose: 360 and 450 go to the formula.
    Vec2 onWholeTurn(double directionDeg) const {
        const double phiDeg = raisedOrLoweredOnce(directionDeg) - rotationDeg;
        if (isAlong(phiDeg, 90.0) || isAlong(phiDeg, 270.0)) return {frame.halfFirst, 0.0};
        if (isAlong(phiDeg, 0.0) || isAlong(phiDeg, 180.0)) return {0.0, frame.halfSecond};
        return tangentPoint(frame, phiDeg);
    }
};

/// Whether the directions along x and y are told as well by sine and cosine of the rotation as by
/// the tangents of the angles in between: where they are far from the axes. Of a circle both ends
/// of an arc may be as near to a point, and the tangents' last bits decide.
bool isOblique(const EllipseFrame &frame, double rotationDeg) {
    constexpr double kFarFromAxis = 0.02, kFarFromRound = 0x1p-20;
    return std::fabs(frame.turn.c) > kFarFromAxis && std::fabs(frame.turn.s) > kFarFromAxis &&
           std::fabs(rotationDeg) < 360.0 &&
           std::fabs(frame.halfFirst - frame.halfSecond) > kFarFromRound * frame.halfFirst;
}

/// Corners of the box, and the points that made it: those with a tangent along y, then along x.
struct Extents {
    bool found;
    Vec2 lower;
    Vec2 upper;
    std::array<Vec2, 4> extremes;
};

/// Inlined always: handed over in memory, the points would be read before they are written.
[[gnu::always_inline]] inline Extents extentsOf(Vec2 center, double first, double second,
                                                double rotationDeg, AngleRange parameters) {
    // Equal angles span nothing: a whole ellipse has to be given as a span of 360.
    if (std::fabs(parameters.start - parameters.end) < kArcWithoutSpanDeg) return {};
    const LocalArc arc(center, first, second, rotationDeg, parameters);
    const double c = arc.frame.turn.c, s = arc.frame.turn.s;
    const bool byTurn = isOblique(arc.frame, arc.rotationDeg);
    const Vec2 alongY = byTurn ? tangentPoint(arc.frame, {s, c}) : arc.onWholeTurn(90.0);
    const Vec2 alongX = byTurn ? tangentPoint(arc.frame, {c, -s}) : arc.onWholeTurn(0.0);
    const Vec2Pair y = arc.onArc(alongY), x = arc.onArc(alongX);
    const Vec2 p = arc.frame.toPlane(y.at(0)), q = arc.frame.toPlane(y.at(1));
    const Vec2 r = arc.frame.toPlane(x.at(0)), t = arc.frame.toPlane(x.at(1));
    const auto leastOf = [](double u, double v, double w, double z) {
        return std::min(std::min(std::min(u, v), w), z);
    };
    const auto greatestOf = [](double u, double v, double w, double z) {
        return std::max(std::max(std::max(u, v), w), z);
    };
    return {true,
            {leastOf(p.x, q.x, r.x, t.x), leastOf(p.y, q.y, r.y, t.y)},
            {greatestOf(p.x, q.x, r.x, t.x), greatestOf(p.y, q.y, r.y, t.y)},
            {p, q, r, t}};
}

} // namespace

extern "C" {

int32_t ca_elaln(const DTPOINT *center, double a, double b, double rot, double direction,
                 DTPOINT *out1, DTPOINT *out2) {
    const EllipseFrame frame = EllipseFrame::of(load(center), a, b, rot);
    const double phi = withinOneTurn(direction) - rot;
    // 90 alone is special, on purpose: at 270 the tangent's huge value is used.
    const Vec2 local = isAlong(phi, 90.0) ? Vec2{frame.halfFirst, 0.0} : tangentPoint(frame, phi);
    store(frame.toPlane(local), out1);
    store(frame.toPlane(-local), out2);
    return 1; // on purpose, though it never fails
}

int32_t ang_pnt(const DTPOINT *center, double a, double b, double rot, const double *angles,
                double direction, DTPOINT *out1, DTPOINT *out2) {
    const LocalArc arc(load(center), a, b, rot, {angles[0], angles[1]});
    const Vec2Pair points = arc.onArc(arc.onWholeTurn(direction));
    store(arc.frame.toPlane(points.at(0)), out1);
    store(arc.frame.toPlane(points.at(1)), out2);
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
