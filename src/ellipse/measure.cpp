// Length and area of elliptic arcs by the Simpson rule, and the arc of a given length.
//
// Lengths are integrals over the parameter, areas over the polar angle; both read the half axes
// from the process-wide table. Refinement settles at kSettledIntegral, an absolute difference.

#include "base/angle.h"
#include "base/settings.h"
#include "ellipse/simpson.h"
#include "ellipse/speed.h"
#include "planegeo.h"

namespace {

using namespace planegeo;

constexpr std::int32_t kGaveUp = -1;
constexpr std::int32_t kOutOfIntervals = -2;

/// The largest interval count whose double is still a 32-bit count.
constexpr std::int64_t kLongestPass = 1073741823;
/// A search that has asked its integrand so often gives up. With a sample per degree and two
/// passes per range it has then stretched the range to some eighty turns.
constexpr std::int64_t kMostSearchSamples = std::int64_t{1} << 28;
constexpr double kFirstSearchStepDeg = 10.0;
constexpr int kMostStalls = 10;

double halfFirst() { return settings.simpsonParameters[0]; }
double halfSecond() { return settings.simpsonParameters[1]; }

Integral integral(PLANEGEO_INTEGRAND integrand, double lo, double hi) {
    const auto sample = [integrand](double deg, double &value) { return integrand(deg, &value); };
    return simpson(sample, lo, hi, kLongestPass);
}

struct FoundLimit {
    bool found;
    std::int32_t code; ///< when found 0 or kOutOfIntervals, else kGaveUp or the integrand's own
    double limit;
};

/// Moves one limit until the integral is the wanted one, by steps that halve at each change of
/// direction. The search begins as if after a shrink, so its very first stretch is half a step.
FoundLimit searchLimit(PLANEGEO_INTEGRAND integrand, double lo, double hi, double wanted,
                       bool movesLower) {
    double &moved = movesLower ? lo : hi;
    const double outwards = movesLower ? -1.0 : 1.0;
    double step = kFirstSearchStepDeg;
    bool stretched = false;
    double before = 0.0;
    int stalls = 0;
    std::int32_t code = 0;
    for (std::int64_t samples = 0; samples < kMostSearchSamples;) {
        const Integral found = integral(integrand, lo, hi);
        if (found.outcome == Refinement::refused) return {false, found.code, moved};
        if (found.outcome == Refinement::outOfIntervals) code = kOutOfIntervals; // to the end
        samples += found.samples;

        const double s = found.value;
        if (std::fabs(s - wanted) <= kSettledIntegral) return {true, code, moved};
        const bool stalled =
            std::fabs(s) < kStalledIntegral || std::fabs(s - before) < kStalledIntegral;
        stalls = stalled ? stalls + 1 : 0;
        if (stalls == kMostStalls) break;
        before = s;

        const bool tooShort = s <= wanted; // a NaN counts as too long
        if (tooShort != stretched) step *= 0.5;
        stretched = tooShort;
        const double from = moved;
        moved += stretched ? outwards * step : -outwards * step;
        // A limit that stays where it is repeats the round: it stalls to the end, or goes round
        // for ever on a NaN.
        if (moved == from) break;
    }
    return {false, kGaveUp, moved};
}

struct Range {
    double start;
    double end;

    bool isWholeTurn() const { return std::fabs(end - start) > kWholeTurnDeg; }
};

constexpr Range kWholeTurn = {0.0, 360.0};

/// The range as the length functions understand it: anticlockwise from start to end, ending at
/// 360 or below; equal ends are an empty range, unlike everywhere else.
Range measuredRange(Range range) {
    if (range.isWholeTurn()) return kWholeTurn;
    range = {reducedKeeping360(range.start), reducedKeeping360(range.end)};
    if (range.start > range.end) range.end += 360.0;
    if (range.end > 360.0) range = {range.start - 360.0, range.end - 360.0};
    return range.isWholeTurn() ? kWholeTurn : range;
}

double polarDeg(const DTELLIPSE &e, double parameterDeg) {
    const Rotation t = Rotation::ofDegrees(parameterDeg);
    return directionDeg({e.a * t.c, e.b * t.s});
}

} // namespace

extern "C" {

int32_t ca_lengelp(double deg, double *value) {
    *value = ArcSpeed::of(halfFirst(), halfSecond())(deg);
    return 0;
}

int32_t ca_AreaElp(double deg, double *value) {
    *value = SectorSpeed::of(halfFirst(), halfSecond())(deg);
    return 0;
}

int32_t ca_Simpson(PLANEGEO_INTEGRAND integrand, double lower, double upper, double *result) {
    *result = 0.0;
    if (lower > upper) return -1;
    const Integral found = integral(integrand, lower, upper);
    if (found.outcome == Refinement::refused) return found.code;
    if (found.outcome == Refinement::outOfIntervals) return kOutOfIntervals;
    *result = found.value;
    return 0;
}

int32_t ca_Simpson2(PLANEGEO_INTEGRAND integrand, double *lower, double *upper, double wanted,
                    int32_t which) {
    const FoundLimit search = searchLimit(integrand, *lower, *upper, wanted, which == 0);
    if (search.found) *(which == 0 ? lower : upper) = search.limit;
    return search.code;
}

int32_t ca_ElpLen(const DTELLIPSE *ellipse, double *length) {
    // Polar limits under an integrand of the parameter, on purpose: hosts have stored such lengths.
    const Range polar =
        measuredRange({polarDeg(*ellipse, ellipse->start), polarDeg(*ellipse, ellipse->end)});
    ca_Simpson(ca_lengelp, polar.start, polar.end, length);
    return 0;
}

int32_t ca_ElpLen2(DTELLIPSE *ellipse, double wanted, int32_t which) {
    const bool movesStart = which == 0;
    Range range = {ellipse->start, ellipse->end};
    const FoundLimit search = searchLimit(ca_lengelp, range.start, range.end, wanted, movesStart);
    if (!search.found) return kGaveUp;
    (movesStart ? range.start : range.end) = search.limit;
    range = measuredRange(range);
    if (movesStart) {
        ellipse->start = range.start;
    } else {
        ellipse->end = range.end;
    }
    return 0;
}

} // extern "C"
