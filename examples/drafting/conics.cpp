#include "conics.h"

#include <algorithm>
#include <cmath>

namespace draft {

namespace {

constexpr double kQuarterDeg = 90.0;
constexpr double kHalfTurnDeg = 180.0;
/// Directions of axes closer than this are one; the library's own slack for rotations.
constexpr double kSameRotationDeg = 1e-8;
/// A point found on a curve lies on it to some thousand roundings of the curve's size.
constexpr double kRoundingShare = 1e-12;

/// Names the ellipse from an axis a quarter turn further back.
DTELLIPSE axesExchanged(const DTELLIPSE &e) {
    return {e.attr,
            e.cx,
            e.cy,
            e.b,
            e.a,
            e.start - kQuarterDeg,
            e.end - kQuarterDeg,
            e.rot + kQuarterDeg};
}

void normalise(double &start, double &end, bool closed) {
    if (closed) {
        start = 0.0;
        end = 2.0 * kHalfTurnDeg;
    } else {
        a2d_StdSedeg(&start, &end);
    }
}

} // namespace

DTELLIPSE canonical(const DTELLIPSE &ellipse) {
    DTELLIPSE e = ellipse.a < ellipse.b ? axesExchanged(ellipse) : ellipse;
    const double halfTurns = std::floor(e.rot / kHalfTurnDeg);
    e.rot -= halfTurns * kHalfTurnDeg;
    e.start += halfTurns * kHalfTurnDeg;
    e.end += halfTurns * kHalfTurnDeg;
    normalise(e.start, e.end, isClosed(ellipse));
    return e;
}

std::optional<DTARC> asArc(const DTELLIPSE &e) {
    if (std::fabs(e.a - e.b) >= ca_geterrdist()) return {};
    DTARC arc = {e.attr, e.cx, e.cy, e.a / 2.0, e.start + e.rot, e.end + e.rot};
    normalise(arc.start, arc.end, isClosed(e));
    return arc;
}

bool areOnOneEllipse(const DTELLIPSE &a, const DTELLIPSE &b) {
    const double turn = std::fabs(a.rot - b.rot);
    const bool areAligned = std::min(turn, kHalfTurnDeg - turn) < kSameRotationDeg;
    return areAligned && isTogether({a.cx, a.cy}, {b.cx, b.cy}) &&
           std::fabs(a.a - b.a) < ca_geterrdist() && std::fabs(a.b - b.b) < ca_geterrdist();
}

bool isNear(const DTARC &circle, DTPOINT p) {
    const DTPOINT center = {circle.cx, circle.cy};
    const double within = std::max(ca_geterrdist(), circle.r * kRoundingShare);
    return std::fabs(ca_dstpt(&center, &p) - circle.r) < within;
}

bool isNear(const DTELLIPSE &e, DTPOINT p) {
    const DTPOINT center = {e.cx, e.cy};
    double deg = 0.0;
    if (a2d_elpdeg(&p, &center, e.a, e.b, e.rot, &deg) != 0) return false;
    const DTPOINT onCurve = pointAt(e, deg);
    return ca_dstpt(&onCurve, &p) < std::max(ca_geterrdist(), (e.a + e.b) * kRoundingShare);
}

PairFrame::PairFrame(DTPOINT origin, double size) : origin_(origin), scale_(1.0) {
    // A power of two, so that scaling rounds nothing.
    if (size > 0.0 && size < 1.0) scale_ = std::exp2(std::ceil(-std::log2(size)));
}

DTARC PairFrame::in(const DTARC &arc) const {
    return {arc.attr,
            (arc.cx - origin_.x) * scale_,
            (arc.cy - origin_.y) * scale_,
            arc.r * scale_,
            arc.start,
            arc.end};
}

DTELLIPSE PairFrame::in(const DTELLIPSE &e) const {
    return {e.attr,
            (e.cx - origin_.x) * scale_,
            (e.cy - origin_.y) * scale_,
            e.a * scale_,
            e.b * scale_,
            e.start,
            e.end,
            e.rot};
}

DTPOINT PairFrame::out(DTPOINT p) const {
    return {origin_.x + p.x / scale_, origin_.y + p.y / scale_};
}

} // namespace draft
