// The ends and the extents of an arc, how a point lies to it, and the arc turned.

#include "circle/arc_query.h"

#include <algorithm>
#include <array>
#include <limits>
#include <utility>

#include "base/settings.h"

namespace planegeo {

RadianArc turned(const RadianArc &arc, Vec2 pivot, double turnRad) {
    if (std::fabs(turnRad) <= kNoTurnRad) return arc;
    const Rotation turn = Rotation::ofRadians(turnRad);
    const Circle circle = {turn.apply(arc.circle.center - pivot) + pivot, arc.circle.r};

    const double span = arc.endRad - arc.startRad;
    if (std::fabs(span) <= kFullSpanSlackRad || std::fabs(span - kTwoPi) <= kFullSpanSlackRad) {
        return {circle, 0.0, kTwoPi};
    }
    double start = arc.startRad + turnRad;
    double end = arc.endRad + turnRad;
    if (start > kTwoPi || end > kTwoPi) {
        start -= kTwoPi;
        end -= kTwoPi;
    }
    if (start < -kTwoPi || end < -kTwoPi) {
        start += kTwoPi;
        end += kTwoPi;
    }
    return {circle, start, end};
}

} // namespace planegeo

namespace {

using namespace planegeo;

struct Box {
    Vec2 max = {-kEmptyBoxLength, -kEmptyBoxLength};
    Vec2 min = {kEmptyBoxLength, kEmptyBoxLength};

    void widen(Vec2 p) {
        max = {std::max(max.x, p.x), std::max(max.y, p.y)};
        min = {std::min(min.x, p.x), std::min(min.y, p.y)};
    }
};

/// The axis directions from -360 to 360 degrees that a range holds, ends included: a bit for each,
/// that of 0 degrees first.
unsigned heldAxes(AngleRange range) {
    if (!(range.start <= range.end)) return 0;
    const auto nearest = [](double deg) { return static_cast<int>(deg / 90.0 + 4.5) - 4; };
    const double start = smaller(larger(range.start, -361.0), 361.0);
    const double end = smaller(larger(range.end, -361.0), 361.0);
    int first = nearest(start), last = nearest(end);
    first += 90.0 * first < start ? 1 : 0;
    last -= 90.0 * last > end ? 1 : 0;
    const unsigned quarters = (1U << (last + 5)) - (1U << (first + 4)); // that of -360 first
    return (quarters | quarters >> 4 | quarters >> 8) & 15U;
}

/// How far an arc reaches from its centre by the axis directions that it holds, in radii; NaN,
/// which widens nothing, where it holds none.
struct Reach {
    Vec2 low;
    Vec2 high;

    static constexpr Reach of(unsigned held) {
        constexpr double kNothing = std::numeric_limits<double>::quiet_NaN();
        constexpr Vec2 kAxes[] = {{1.0, 0.0}, {0.0, 1.0}, {-1.0, 0.0}, {0.0, -1.0}};
        Reach reach = {{kNothing, kNothing}, {kNothing, kNothing}};
        for (unsigned i = 0; i < 4; ++i) {
            if ((held >> i & 1U) == 0) continue;
            if (!(reach.low.x < kAxes[i].x)) reach.low.x = kAxes[i].x;
            if (!(reach.low.y < kAxes[i].y)) reach.low.y = kAxes[i].y;
            if (!(reach.high.x > kAxes[i].x)) reach.high.x = kAxes[i].x;
            if (!(reach.high.y > kAxes[i].y)) reach.high.y = kAxes[i].y;
        }
        return reach;
    }
};

template <std::size_t... held>
constexpr std::array<Reach, sizeof...(held)> reaches(std::index_sequence<held...>) {
    return {Reach::of(held)...};
}

/// The ends, and every axis direction in between. A start above the end holds none of these.
Box extents(const Arc &arc) {
    static constexpr auto kReaches = reaches(std::make_index_sequence<16>());
    const auto [center, r] = arc.circle;
    Box box;
    box.widen(arc.circle.at(Rotation::ofDegrees(arc.range.start)));
    box.widen(arc.circle.at(Rotation::ofDegrees(arc.range.end)));
    unsigned held = heldAxes(arc.range);
    if (r == 0.0 && held != 0) held = 1; // of zeros of either sign the first counts
    const Reach &reach = kReaches[held];
    box.widen(center + r * reach.low);
    box.widen(center + r * reach.high);
    return box;
}

/// Apart from AngleRange on purpose: the range is taken as it stands, and the angle tried a turn
/// down and up.
bool isInOpenRange(double deg, AngleRange range) {
    const double first = range.start - kOnArcSlackDeg;
    const double last = range.end + kOnArcSlackDeg;
    const auto isBetween = [=](double angle) { return (first < angle) & (angle < last); };
    return isBetween(deg) | isBetween(deg - 360.0) | isBetween(deg + 360.0);
}

} // namespace

extern "C" {

int32_t ca_arccd(const DTPOINT *center, double r, const double *angles, DTPOINT *pstart,
                 DTPOINT *pend) {
    const Circle circle = {load(center), r};
    const double endRad = angles[1];
    store(circle.at(Rotation::ofRadians(angles[0])), pstart);
    store(circle.at(Rotation::ofRadians(endRad)), pend);
    return 0;
}

int32_t ca_arcXY(const DTPOINT *center, double r, double start, double end, DTPOINT *pmax,
                 DTPOINT *pmin) {
    const Box box = extents({{load(center), r}, {start, end}});
    store(box.max, pmax);
    store(box.min, pmin);
    return 0;
}

int32_t ca_onarc(const DTPOINT *center, double, double start, double end, const DTPOINT *point,
                 double *ang) {
    const double direction = directionDeg(load(point) - load(center));
    const double deg = loweredIf(direction > 180.0, direction);
    *ang = deg;
    return isInOpenRange(deg, {start, end}) ? 0 : 1;
}

int32_t ca_posar(const DTPOINT *center, double r, const DTPOINT *point, uint16_t *side) {
    if (r <= 0.0) return 1;
    const double distance = plainLength(load(center) - load(point));
    if (std::fabs(r - distance) < distanceTolerance()) {
        *side = 0;
    } else {
        *side = r > distance ? 65535 : 1;
    }
    return 0;
}

int32_t ca_rvarc(const DTPOINT *center, double r, const double *angles, const DTPOINT *pivot,
                 double rot, DTPOINT *out_center, double *out_r, double *out_angles) {
    const RadianArc arc = turned({{load(center), r}, angles[0], angles[1]}, load(pivot), rot);
    store(arc.circle.center, out_center);
    *out_r = arc.circle.r;
    out_angles[0] = arc.startRad;
    out_angles[1] = arc.endRad;
    return 0;
}

} // extern "C"
