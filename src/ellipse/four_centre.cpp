// An ellipse as the four-centre oval: two small circles at the ends of the long axis, two large
// ones at the ends of the short axis, joined where they share a tangent.
//
// The older form takes half axes and radians and cuts the oval by directions to a circle about
// the centre, all on purpose. The other one works as other functions do and cuts it beside the
// ellipse's own points.

#include <array>

#include "base/tolerance.h"
#include "circle/arc_query.h"
#include "ellipse/long_axis.h"
#include "ellipse/quadrant.h"

namespace {

using namespace planegeo;

double directionRad(Vec2 v) { return std::atan2(v.y, v.x); }

/// In a frame whose x axis carries the long half axis L; S is the short one.
struct Oval {
    double longHalf;
    double shortHalf;
    double jointRad; ///< direction of the first joint from the centres of both its circles
    double smallRadius;
    double largeRadius;

    static Oval of(double longHalf, double shortHalf) {
        const double d = plainLength({shortHalf, longHalf});
        return {longHalf, shortHalf, std::atan2(longHalf, shortHalf),
                (d - (longHalf - shortHalf)) * 0.5 * d / longHalf,
                (longHalf - shortHalf + d) * 0.5 * d / shortHalf};
    }

    /// The arcs right, top, left and bottom.
    RadianArc arc(int k) const {
        const double across = longHalf - smallRadius;
        const double below = shortHalf - largeRadius;
        switch (k) {
        case 0:
            return {{{across, 0.0}, smallRadius}, -jointRad, jointRad};
        case 1:
            return {{{0.0, below}, largeRadius}, jointRad, kPi - jointRad};
        case 2:
            return {{{-across, 0.0}, smallRadius}, kPi - jointRad, kPi + jointRad};
        default:
            return {{{0.0, -below}, largeRadius}, kPi + jointRad, kTwoPi - jointRad};
        }
    }
};

/// The oval, or the part of it that stands for an elliptic arc.
template <class AnyArc> struct OvalChain {
    std::array<AnyArc, 5> arcs;
    std::size_t count;

    void push(const AnyArc &arc) { arcs[count++] = arc; }
};

/// Reduction to [0, 2 pi]; a negative multiple of 2 pi becomes 2 pi, on purpose.
double reducedRad(double rad) {
    const double turns = std::trunc(rad / kTwoPi) - (rad < 0.0 ? 1.0 : 0.0);
    return rad - turns * kTwoPi;
}

/// Upper ends of the ranges of parameters for which the oval's arcs stand.
constexpr double kParameterBounds[] = {0.7853981633974483, 2.356194490192345, 3.9269908169872414,
                                       5.497787143782138};
/// The arcs from the parameter s to e. An end is cut by the direction from its arc's centre to a
/// point on the circle of radius L, not on the ellipse, on purpose.
OvalChain<RadianArc> cutByParameters(const Oval &oval, double s, double e) {
    const auto directionTo = [&oval](const RadianArc &arc, double parameter) {
        const Rotation turn = Rotation::ofRadians(parameter);
        return directionRad(Vec2{turn.c, turn.s} * oval.longHalf - arc.circle.center);
    };
    OvalChain<RadianArc> chain = {};
    bool isStarted = false;
    // An angle beyond reduction can leave s whole turns away; as many are skipped.
    const double skipped = std::fmax(0.0, std::floor(s / kTwoPi) - 1.0);
    for (int i = 0; i < 16; ++i) {
        const int turn = i / 4;
        const double bound = (skipped + turn) * kTwoPi + kParameterBounds[i % 4];
        if (!isStarted && bound < s + kOvalParameterSlackRad) continue;
        RadianArc arc = oval.arc(i % 4);
        if (!isStarted) arc.startRad = directionTo(arc, s);
        isStarted = true;
        const bool holdsEnd = bound >= e - kOvalParameterSlackRad;
        if (holdsEnd) arc.endRad = directionTo(arc, e);
        if (std::fabs(arc.endRad - arc.startRad) > kOvalArcSpanRad) chain.push(arc);
        if (holdsEnd || 4.0 * skipped + i > 8.0 || chain.count == 5) break;
    }
    return chain;
}

OvalChain<RadianArc> chainBetween(const Oval &oval, double startRad, double endRad) {
    const double s = reducedRad(startRad);
    double e = reducedRad(endRad);
    if (s + kOvalParameterSlackRad >= e) e += kTwoPi;
    if (!(std::fabs(e - s - kTwoPi) <= kOvalWholeTurnRad)) return cutByParameters(oval, s, e);
    OvalChain<RadianArc> whole = {};
    for (int k = 0; k < 4; ++k) {
        whole.push(oval.arc(k));
    }
    return whole;
}

/// From the oval's frame to the plane. Where the second half axis is the longer one the chain is
/// turned by that quarter twice, on purpose: its long axis ends up along the rotation.
RadianArc placed(RadianArc arc, Vec2 center, double quarterRad, double turnRad) {
    if (quarterRad != 0.0) {
        arc.circle.center = Rotation::ofRadians(quarterRad).apply(arc.circle.center);
        arc.startRad = reducedRad(arc.startRad + quarterRad);
        arc.endRad = reducedRad(arc.endRad + quarterRad);
    }
    arc.circle.center = arc.circle.center + center;
    for (double *rad : {&arc.startRad, &arc.endRad}) {
        if (*rad < 0.0) *rad += kTwoPi;
        if (*rad > kTwoPi) *rad -= kTwoPi;
    }
    if (arc.startRad > arc.endRad) arc.startRad -= kTwoPi;
    return std::fabs(turnRad) > kOvalTurnRad ? turned(arc, center, turnRad) : arc;
}

/// Direction of the oval's normal beside the ellipse's point at a parameter, both in degrees from
/// the long axis and rising together.
double ovalDirectionDeg(const Oval &oval, double parameterDeg) {
    const double quadrant = std::floor(parameterDeg / 90.0);
    const bool runsBack = std::fmod(quadrant, 2.0) != 0.0;
    const double rest = parameterDeg - 90.0 * quadrant;
    const Rotation u = Rotation::ofDegrees(runsBack ? 90.0 - rest : rest);
    const Vec2 point = {oval.longHalf * u.c, oval.shortHalf * u.s};
    double rad = directionRad(point - oval.arc(0).circle.center);
    if (rad > oval.jointRad) rad = directionRad(point - oval.arc(1).circle.center);
    const double local = rad * kDegPerRad;
    return 90.0 * quadrant + (runsBack ? 90.0 - local : local);
}

/// The arcs between two directions of the normal. What is left of an arc within the slack of
/// angles goes, or it would read as a whole circle.
OvalChain<Arc> cutByDirections(const Oval &oval, double fromDeg, double toDeg) {
    OvalChain<Arc> chain = {};
    Arc last = {};
    for (int i = 0; i <= 8; ++i) {
        const RadianArc arc = oval.arc(i % 4);
        const int turn = i / 4;
        const double turns = 360.0 * turn;
        const double start = std::fmax(fromDeg, arc.startRad * kDegPerRad + turns);
        const double end = std::fmin(toDeg, arc.endRad * kDegPerRad + turns);
        if (end >= start) last = {arc.circle, {start, end}};
        if (end - start > kAngleSlackDeg) chain.push(last);
    }
    if (chain.count == 0) chain.push({last.circle, {fromDeg, toDeg}});
    return chain;
}

/// The chain for an elliptic arc in the frame of its longer axis.
OvalChain<Arc> ovalOf(const LongAxisArc &arc) {
    const double longHalf = arc.frame.halfFirst;
    const double shortHalf = arc.frame.halfSecond;
    if (2.0 * (longHalf - shortHalf) < distanceTolerance()) {
        const Circle mean = {{0.0, 0.0}, 0.5 * (longHalf + shortHalf)};
        return {{Arc{mean, {arc.startDeg, arc.endDeg}}}, 1};
    }
    const Oval oval = Oval::of(longHalf, shortHalf);
    const double jointDeg = oval.jointRad * kDegPerRad;
    if (arc.isWholeTurn) return cutByDirections(oval, -jointDeg, 360.0 - jointDeg);
    return cutByDirections(oval, ovalDirectionDeg(oval, arc.startDeg),
                           ovalDirectionDeg(oval, arc.endDeg));
}

} // namespace

extern "C" {

int32_t ca_elips(const DTPOINT *center, double a, double b, const double *angles, double rot,
                 DTPOINT *out_centers, double *out_radii, double *out_angles, uint32_t *count) {
    const Vec2 o = load(center);
    const double start = angles[0];
    const double end = angles[1];
    if (std::fabs(a - b) <= kOvalCircleLength) {
        store(o, out_centers);
        *out_radii = a;
        out_angles[0] = start; // on purpose neither reduced nor turned
        out_angles[1] = end;
        *count = 1;
        return 0;
    }
    const bool swaps = b > a;
    const double quarter = swaps ? kHalfPi : 0.0;
    const Oval oval = swaps ? Oval::of(b, a) : Oval::of(a, b);
    const auto chain = chainBetween(oval, start - quarter, end - quarter);
    for (std::size_t k = 0; k < chain.count; ++k) {
        const RadianArc arc = placed(chain.arcs[k], o, quarter, rot + quarter);
        store(arc.circle.center, &out_centers[k]);
        out_radii[k] = arc.circle.r;
        out_angles[2 * k] = arc.startRad;
        out_angles[2 * k + 1] = arc.endRad;
    }
    *count = static_cast<uint32_t>(chain.count);
    return 0;
}

int32_t ca_elip1(const DTPOINT *center, double a, double b, double rot, const double *angles,
                 DTPOINT *out_centers, double *out_radii, double *out_angles, uint16_t *count) {
    const auto arc = LongAxisArc::of(load(center), a, b, rot, {angles[0], angles[1]});
    *count = 0;
    if (!arc) return -1;
    const auto chain = ovalOf(*arc);
    for (std::size_t k = 0; k < chain.count; ++k) {
        const Arc &part = chain.arcs[k];
        const AngleRange range = arc->placed(part.range);
        store(arc->frame.toPlane(part.circle.center), &out_centers[k]);
        out_radii[k] = part.circle.r;
        out_angles[2 * k] = range.start;
        out_angles[2 * k + 1] = range.end;
    }
    *count = static_cast<uint16_t>(chain.count);
    return 0;
}

} // extern "C"
