// Length and area of elliptic arcs by the Simpson rule, and the arc of a given length.
//
// Lengths are integrals over the parameter, areas over the polar angle; both read the half axes
// from the process-wide table. Refinement settles at kSettledIntegral, an absolute difference.

#include "base/settings.h"
#include "ellipse/convert.h"
#include "ellipse/limit_search.h"
#include "ellipse/measurer.h"
#include "ellipse/speed.h"
#include "planegeo.h"

namespace {

using namespace planegeo;

constexpr std::int32_t kReversedLimits = -1;

double halfFirst() { return settings.simpsonParameters[0]; }
double halfSecond() { return settings.simpsonParameters[1]; }

Measurer measurerOf(EllipseSpeed speed) { return {speed, halfFirst(), halfSecond()}; }

Measurer measurerOf(PLANEGEO_INTEGRAND integrand) {
    if (integrand == ca_lengelp) return measurerOf(EllipseSpeed::arc);
    if (integrand == ca_AreaElp) return measurerOf(EllipseSpeed::sector);
    return Measurer(integrand);
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

/// Whether the ends are written 0 and 360 and have these as their polar angles. At 360 the sine is
/// a rounding below 0, and so is the angle, unless an axis makes too much or nothing of it.
bool isWrittenWhole(const DTELLIPSE &ellipse) {
    constexpr double kLeastAxis = 0x1p-900;
    constexpr double kMostRatio = 0x1p20;
    return ellipse.start == 0.0 && ellipse.end == 360.0 && ellipse.a > kLeastAxis &&
           ellipse.b > kLeastAxis && ellipse.a < ellipse.b * kMostRatio &&
           ellipse.b < ellipse.a * kMostRatio;
}

/// From parameters to polar limits under an integrand of the parameter, on purpose: hosts have
/// stored such lengths.
Range measuredRange(const DTELLIPSE &ellipse) {
    if (isWrittenWhole(ellipse)) return kWholeTurn;
    const auto polar = [&ellipse](double parameterDeg) {
        return polarOfParameter(ellipse.a, ellipse.b, parameterDeg);
    };
    return measuredRange(Range{polar(ellipse.start), polar(ellipse.end)});
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
    if (lower > upper) return kReversedLimits;
    const Integral found = measurerOf(integrand)(lower, upper).integral;
    if (found.outcome == Refinement::refused) return found.code;
    if (found.outcome == Refinement::outOfIntervals) return kOutOfIntervals;
    *result = found.value;
    return 0;
}

int32_t ca_Simpson2(PLANEGEO_INTEGRAND integrand, double *lower, double *upper, double wanted,
                    int32_t which) {
    const FoundLimit search =
        searchLimit(measurerOf(integrand), *lower, *upper, wanted, which == 0);
    if (search.found) *(which == 0 ? lower : upper) = search.limit;
    return search.code;
}

int32_t ca_ElpLen(const DTELLIPSE *ellipse, double *length) {
    const Range range = measuredRange(*ellipse);
    const GridSum sum(EllipseSpeed::arc, halfFirst(), halfSecond());
    *length = sum.settled(range.start, range.end).value;
    return 0;
}

int32_t ca_ElpLen2(DTELLIPSE *ellipse, double wanted, int32_t which) {
    const bool movesStart = which == 0;
    Range range = {ellipse->start, ellipse->end};
    const FoundLimit search =
        searchLimit(measurerOf(EllipseSpeed::arc), range.start, range.end, wanted, movesStart);
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
