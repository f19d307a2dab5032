// Division of elliptic arcs into pieces of equal length: from a fine table kept between calls,
// and from a polyline of whole degrees without any state.

#include <algorithm>
#include <array>
#include <memory>
#include <new>

#include "ellipse/frame.h"
#include "ellipse/simpson.h"
#include "ellipse/speed.h"
#include "planegeo.h"

namespace {

using namespace planegeo;

constexpr std::int32_t kNoSuchPoint = 1;
constexpr std::int32_t kNoTable = 1;
constexpr std::int32_t kReversedRange = -1;
constexpr std::int32_t kOutOfIntervals = -2;

// The kept division.

/// The largest interval count that is still refined.
constexpr std::int64_t kLongestPass = 2147483647;
/// A span above it, a thousand turns, is out of intervals without a walk.
constexpr double kLongestSpanDeg = 360000.0;
constexpr double kThirdRadPerDeg = 0.005817764173314432;
/// A table of more entries counts as one that cannot be allocated.
constexpr std::int32_t kMostPieces = 1 << 24;

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
};

/// Kept from the first call for an arc to that for its last point.
Division kept = {};

/// Walks the arc in steps of at most kSmallestStepDeg and notes the parameter at which the
/// running Simpson sum first shows each whole number of pieces. Both end samples are counted
/// from the start, and a number passed over in one step is not noted later: its entry, like one
/// that the sum does not reach, keeps the end of the arc.
void noteParameters(const ArcSpeed &speed, Division &division) {
    const double start = division.arc.start;
    const double span = division.arc.end - start;
    const std::int64_t count = evenIntervals(span / kSmallestStepDeg);
    const double h = span / static_cast<double>(count);
    const double third = h * kThirdRadPerDeg;
    const double ends = third * (speed(start) + speed(division.arc.end));
    double sum = 0.0;
    std::int32_t next = 1;
    for (std::int64_t i = 1; i < count && next < division.n; ++i) {
        const double t = start + static_cast<double>(i) * h;
        sum += (i % 2 == 1 ? 4.0 : 2.0) * speed(t);
        const double pieces = std::trunc((third * sum + ends) / division.piece);
        if (pieces == static_cast<double>(next)) {
            division.parameters[static_cast<std::size_t>(next - 1)] = t;
            ++next;
        }
    }
}

/// Divides an arc whose start is not above its end. Returns the code.
std::int32_t divide(Division &division) {
    const Arc &arc = division.arc;
    const ArcSpeed speed = ArcSpeed::of(arc.a * 0.5, arc.b * 0.5);
    std::fill_n(division.parameters.get(), division.n, arc.end);
    division.piece = 0.0;
    if (!(arc.end - arc.start <= kLongestSpanDeg)) return kOutOfIntervals;
    const auto sample = [&speed](double deg, double &value) {
        value = speed(deg);
        return 0;
    };
    const Integral length = simpson(sample, arc.start, arc.end, kLongestPass);
    division.piece = length.value / division.n;
    if (division.piece != 0.0) noteParameters(speed, division);
    return length.outcome == Refinement::outOfIntervals ? kOutOfIntervals : 0;
}

// The division without state.

constexpr std::size_t kMostSamples = 362;

/// A rounding apart from kRadPerDeg, and kept so.
Rotation turn(double deg) { return Rotation::ofRadians(deg * kPi / 180.0); }

/// The arc at every whole degree from its start, the end only where it is one of them.
struct Polyline {
    std::size_t count = 0;
    std::array<Vec2, kMostSamples> points;
    double length = 0.0;

    double segment(std::size_t i) const { return plainLength(points[i + 1] - points[i]); }
};

Vec2 pointAt(const EllipseFrame &frame, double parameterDeg) {
    const Rotation t = turn(parameterDeg);
    return frame.toPlane({frame.halfFirst * t.c, frame.halfSecond * t.s});
}

/// False when the arc has more samples than the polyline holds.
bool sample(const EllipseFrame &frame, double start, double end, Polyline &line) {
    for (double t = start; t <= end; t += 1.0) {
        if (line.count == kMostSamples) return false;
        line.points[line.count++] = pointAt(frame, t);
    }
    for (std::size_t i = 0; i + 1 < line.count; ++i) {
        line.length += line.segment(i);
    }
    return true;
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

int32_t ca_elpdn(const DTPOINT *center, double a, double b, double rot, const double *angles,
                 int32_t n, int32_t k, DTPOINT *out, double *len) {
    if (n <= 0 || k <= 0) return kNoSuchPoint;
    const double start = angles[0];
    const double end = angles[1];
    if (start > end) return kNoSuchPoint;
    const EllipseFrame frame = {load(center), turn(rot), a * 0.5, b * 0.5};
    Polyline line;
    if (!sample(frame, start, end, line)) return kNoSuchPoint;

    const double piece = line.length / n;
    *len = piece;
    if (k == n) {
        store(pointAt(frame, end), out);
        return 0;
    }
    const double target = k * piece;
    double sum = 0.0;
    for (std::size_t i = 0; i + 1 < line.count; ++i) {
        const double segment = line.segment(i);
        sum += segment;
        if (!(sum > target)) continue;
        // The rest beyond the target decides how often the segment's ends are weighted: the
        // rule is not the interpolation along the segment, and hosts have stored its points.
        double rest = sum - target;
        if (rest < kShortRestLength) rest += kShortRestLength;
        const double m = std::trunc(segment / rest);
        store((line.points[i + 1] * m + line.points[i] * (m - 1.0)) / (2.0 * m - 1.0), out);
        return 0;
    }
    return kNoSuchPoint;
}

} // extern "C"
