// Division of elliptic arcs into pieces of equal length, from a fine table kept between calls.

#include <algorithm>
#include <memory>
#include <new>

#include "ellipse/frame.h"
#include "ellipse/grid_sum.h"
#include "ellipse/running_length.h"
#include "ellipse/simpson.h"
#include "ellipse/speed.h"
#include "planegeo.h"

namespace {

using namespace planegeo;

constexpr std::int32_t kNoSuchPoint = 1;
constexpr std::int32_t kNoTable = 1;
constexpr std::int32_t kReversedRange = -1;
constexpr std::int32_t kOutOfIntervals = -2;

/// More steps than these are not walked, more pieces not looked for one by one.
constexpr std::int64_t kMostWalkedSteps = 1'440'000;
constexpr std::int32_t kMostSoughtPieces = 1 << 16;
/// A span above it, a hundred turns, is out of intervals without a walk.
constexpr double kLongestSpanDeg = 36000.0;
/// The same above kLongestThinRangeDeg where the shorter axis is less of the longer one.
constexpr double kThinnestOfManyTurns = 0.2236;
/// Steps in a thinner ellipse are not short beside its sharp ends.
constexpr double kThinnestSought = 0x1p-10;
/// Steps of the running sum in a piece, on average, from which on they are not walked.
constexpr std::int64_t kStepsPerPiece = 64;
/// A table of more entries counts as one that cannot be allocated.
constexpr std::int32_t kMostPieces = 1 << 20;

struct Arc {
    Vec2 center;
    double a;
    double b;
    double rot;
    double start;
    double end;

    EllipseFrame frame() const { return EllipseFrame::of(center, a, b, rot); }
};

bool isSameArc(const Arc &p, const Arc &q) {
    const auto sameLength = [](double l, double m) {
        return std::fabs(l - m) <= kSameEllipseLength;
    };
    const auto sameAngle = [](double l, double m) { return std::fabs(l - m) <= kSameEllipseDeg; };
    return sameLength(p.center.x, q.center.x) && sameLength(p.center.y, q.center.y) &&
           sameLength(p.a, q.a) && sameLength(p.b, q.b) && sameAngle(p.rot, q.rot) &&
           sameAngle(p.start, q.start) && sameAngle(p.end, q.end);
}

/// The division of one arc into n pieces. `parameters` holds that of division point k at k - 1;
/// without it there is no division.
struct Division {
    Arc arc;
    std::int32_t n;
    double piece;
    std::unique_ptr<double[]> parameters;

    bool serves(const Arc &other, std::int32_t count) const {
        return parameters && isSameArc(arc, other) && n == count;
    }
    void clear() { std::fill_n(parameters.get(), n, arc.end); }
    void note(std::int32_t k, double t) { parameters[static_cast<std::size_t>(k) - 1] = t; }
};

/// Kept from the first call for an arc to that for its last point.
Division kept = {};

// The parameters are those at which the running Simpson sum over steps of at most
// kSmallestStepDeg first shows each whole number of pieces. A number passed over in one step is
// not noted later: its entry, like one that the sum does not reach, keeps the end of the arc.

void noteByWalking(const ArcSpeed &speed, const Steps &steps, Division &division) {
    const double third = steps.h * kThirdRadPerDeg;
    const double ends = third * (speed(steps.start) + speed(steps.end));
    division.clear();
    double sum = 0.0;
    std::int32_t next = 1;
    for (std::int64_t i = 1; i < steps.count && next < division.n; ++i) {
        const double t = steps.at(i);
        sum += Steps::weight(i) * speed(t);
        const double pieces = std::trunc((third * sum + ends) / division.piece);
        if (pieces == static_cast<double>(next)) division.note(next++, t);
    }
}

/// The same without the walk. False where a number of pieces is not found, or pieces are so
/// short that a step might pass over one.
bool noteByIntegral(const ArcSpeed &speed, const GridSum &sum, const Steps &steps,
                    Division &division) {
    if (!(sum.isSized() && sum.unit().b() >= kThinnestSought)) return false;
    if (division.n > kMostSoughtPieces || division.n * kStepsPerPiece > steps.count) return false;
    const RunningLength running(speed, sum, steps);
    for (std::int32_t k = 1; k < division.n; ++k) {
        const auto i = running.firstReaching(k * division.piece);
        if (!i) return false;
        division.note(k, steps.at(*i));
    }
    return true;
}

Integral lengthOf(const Arc &arc, const GridSum &sum) {
    const bool isThin = !(sum.isSized() && sum.unit().b() >= kThinnestOfManyTurns);
    if (isThin && arc.end - arc.start > kLongestThinRangeDeg) return {Refinement::outOfIntervals};
    return sum.settled(arc.start, arc.end);
}

/// Divides an arc whose start is not above its end. Returns the code.
std::int32_t divide(Division &division) {
    const Arc &arc = division.arc;
    division.clear();
    const double span = arc.end - arc.start;
    if (!(span <= kLongestSpanDeg)) return kOutOfIntervals;

    const ArcSpeed speed = ArcSpeed::of(arc.a * 0.5, arc.b * 0.5);
    const GridSum sum(EllipseSpeed::arc, arc.a * 0.5, arc.b * 0.5);
    const Integral length = lengthOf(arc, sum);
    division.piece = length.value / division.n;
    if (division.piece > 0.0 && std::isfinite(division.piece)) {
        const std::int64_t count = evenIntervals(span / kSmallestStepDeg);
        const Steps steps = {arc.start, arc.end, count, span / static_cast<double>(count)};
        if (!noteByIntegral(speed, sum, steps, division)) {
            if (count > kMostWalkedSteps) {
                division.piece = 0.0;
                division.clear();
                return kOutOfIntervals;
            }
            noteByWalking(speed, steps, division);
        }
    }
    return length.outcome == Refinement::outOfIntervals ? kOutOfIntervals : 0;
}

} // namespace

extern "C" {

int32_t a2d_elpdn(const DTPOINT *center, double a, double b, double rot, const double *angles,
                  int32_t n, int32_t k, DTPOINT *out, double *len) {
    if (k > n) {
        kept = {};
        return kNoSuchPoint;
    }
    if (k < 1) return kNoSuchPoint;
    const Arc arc = {load(center), a, b, rot, angles[0], angles[1]};
    std::int32_t code = 0;
    if (!kept.serves(arc, n)) {
        kept = {arc, n, 0.0, nullptr};
        if (n > kMostPieces) return kNoTable;
        if (arc.start > arc.end) return kReversedRange;
        kept.parameters.reset(new (std::nothrow) double[static_cast<std::size_t>(n)]);
        if (!kept.parameters) return kNoTable;
        code = divide(kept);
    }
    *len = kept.piece;
    store(arc.frame().at(kept.parameters[static_cast<std::size_t>(k) - 1]), out);
    if (k == n) kept = {};
    return code;
}

} // extern "C"
