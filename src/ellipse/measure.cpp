// Length and area of elliptic arcs by the Simpson rule, and the arc of a given length.
//
// Lengths are integrals over the parameter, areas over the polar angle; both read the half axes
// from the process-wide table. Refinement settles at kSettledIntegral, an absolute difference.

#include <limits>
#include <optional>

#include "base/settings.h"
#include "ellipse/convert.h"
#include "ellipse/grid_sum.h"
#include "ellipse/simpson.h"
#include "ellipse/speed.h"
#include "planegeo.h"

namespace {

using namespace planegeo;

constexpr std::int32_t kReversedLimits = -1;
constexpr std::int32_t kGaveUp = -1;
constexpr std::int32_t kOutOfIntervals = -2;

/// The largest interval count whose double is still a 32-bit count.
constexpr std::int64_t kLongestPass = 1073741823;
/// A search that has taken so many samples gives up. A range of s degrees takes at least 3s of
/// them, and is reached by ranges every 5 degrees: it has then grown by less than
/// kFarthestStretchDeg.
constexpr std::int64_t kMostSearchSamples = std::int64_t{1} << 28;
constexpr double kFarthestStretchDeg = 36000.0;
/// A search gives up, too, after so many sums around an ellipse (see GridSum) with so many samples
/// in the plain steps: some hundredths of a second.
constexpr std::int64_t kMostSummedSamples = std::int64_t{1} << 24;
constexpr int kFewSums = 192;
/// Whole turns are taken off a limit of the library's own integrands that lies farther.
constexpr double kFarLimitDeg = 36000.0;
constexpr double kFirstSearchStepDeg = 10.0;
constexpr int kMostStalls = 10;
constexpr double kInfinity = std::numeric_limits<double>::infinity();

double halfFirst() { return settings.simpsonParameters[0]; }
double halfSecond() { return settings.simpsonParameters[1]; }

std::int32_t arcSpeed(double parameterDeg, double *value) {
    *value = ArcSpeed::of(halfFirst(), halfSecond())(parameterDeg);
    return 0;
}

std::int32_t sectorSpeed(double polarDeg, double *value) {
    *value = SectorSpeed::of(halfFirst(), halfSecond())(polarDeg);
    return 0;
}

Integral sampled(PLANEGEO_INTEGRAND integrand, double lo, double hi) {
    const auto sample = [integrand](double deg, double &value) { return integrand(deg, &value); };
    return sampledIntegral(sample, lo, hi, kLongestPass);
}

/// What an integrand does not exceed; infinite for a host's own.
double highestOf(PLANEGEO_INTEGRAND integrand) {
    const double longer = std::fmax(std::fabs(halfFirst()), std::fabs(halfSecond()));
    if (integrand == arcSpeed || integrand == ca_lengelp) return longer;
    if (integrand == ca_AreaElp) return longer * longer * 0.5;
    return kInfinity;
}

struct FoundLimit {
    bool found;
    std::int32_t code; ///< when found 0 or kOutOfIntervals, else kGaveUp or the integrand's own
    double limit;
};

/// A range of degrees and the integral over it.
struct Measured {
    double lo;
    double hi;
    Integral integral;
};

/// Integrals over ranges: those of a host's integrand over samples; those of the library's own,
/// whose samples nobody can count, by passes without samples at first and on demand by sums that
/// decide.
class Measurer {
  public:
    explicit Measurer(PLANEGEO_INTEGRAND integrand) : integrand_(integrand) {
        if (integrand == arcSpeed || integrand == ca_lengelp) {
            sum_.emplace(EllipseSpeed::arc, halfFirst(), halfSecond());
        } else if (integrand == ca_AreaElp) {
            sum_.emplace(EllipseSpeed::sector, halfFirst(), halfSecond());
        }
    }

    Measured operator()(double lo, double hi) {
        if (!sum_) return {lo, hi, sampled(integrand_, lo, hi)};
        const double span = hi - lo;
        if (!sum_->takes(span)) return {lo, hi, {Refinement::outOfIntervals}};
        if (std::fabs(lo) > kFarLimitDeg) {
            lo = std::fmod(lo, 360.0);
            hi = lo + span;
        }
        const Integral byPasses = sum_->integral(lo, hi);
        if (byPasses.outcome != Refinement::undecided) return {lo, hi, byPasses};
        return {lo, hi, summed(lo, hi)};
    }
    bool hasSummedEnough() const {
        return summedSamples_ >= kMostSummedSamples && sums_ >= kFewSums;
    }
    void makeCertain(Measured &m) {
        if (m.integral.uncertainty > 0.0) m.integral = summed(m.lo, m.hi);
    }

  private:
    Integral summed(double lo, double hi) {
        const Integral found = sum_->certain(lo, hi);
        summedSamples_ += found.samples;
        ++sums_;
        return found;
    }

    PLANEGEO_INTEGRAND integrand_;
    std::optional<GridSum> sum_;
    std::int64_t summedSamples_ = 0;
    int sums_ = 0;
};

/// What the search sees in the integral over its range and that over the range before.
struct Progress {
    bool reached;
    bool stalled;
    bool doubtful; ///< an uncertain integral lies too near to a decision

    static Progress of(const Integral &now, const Integral &before, double wanted) {
        const double s = now.value;
        const double change = s - before.value;
        return {std::fabs(s - wanted) <= kReachedIntegral,
                std::fabs(s) < kStalledIntegral || std::fabs(change) < kStalledIntegral,
                isOpen(s - wanted, kReachedIntegral, now.uncertainty) ||
                    isOpen(s, kStalledIntegral, now.uncertainty) ||
                    isOpen(change, kStalledIntegral, now.uncertainty + before.uncertainty)};
    }
};

/// Moves one limit until the integral is the wanted one, by steps that halve at each change of
/// direction. The search begins as if after a shrink, so its very first stretch is half a step.
FoundLimit searchLimit(Measurer measure, double lo, double hi, double wanted, bool movesLower) {
    double &moved = movesLower ? lo : hi;
    const double outwards = movesLower ? -1.0 : 1.0;
    double step = kFirstSearchStepDeg;
    bool stretched = false;
    Measured before = {lo, hi, {Refinement::done}};
    int stalls = 0;
    std::int32_t code = 0;
    for (std::int64_t samples = 0; samples < kMostSearchSamples && !measure.hasSummedEnough();) {
        Measured now = measure(lo, hi);
        Progress progress = Progress::of(now.integral, before.integral, wanted);
        if (progress.doubtful) {
            measure.makeCertain(now);
            measure.makeCertain(before);
            progress = Progress::of(now.integral, before.integral, wanted);
        }
        const Integral &found = now.integral;
        if (found.outcome == Refinement::refused) return {false, found.code, moved};
        if (found.outcome == Refinement::outOfIntervals) code = kOutOfIntervals; // to the end
        samples += found.samples;

        if (progress.reached) return {true, code, moved};
        stalls = progress.stalled ? stalls + 1 : 0;
        if (stalls == kMostStalls) break;
        before = now;

        const bool tooShort = found.value <= wanted; // a NaN counts as too long
        if (tooShort != stretched) step *= 0.5;
        stretched = tooShort;
        const double from = moved;
        moved += stretched ? outwards * step : -outwards * step;
        // A limit that stays where it is repeats the round. A number then stalls to the end;
        // others would go round for ever. Nothing is infinitely long.
        if ((moved == from && !std::isfinite(found.value)) || wanted == kInfinity) break;
    }
    return {false, kGaveUp, moved};
}

FoundLimit searchLimit(PLANEGEO_INTEGRAND integrand, double lo, double hi, double wanted,
                       bool movesLower) {
    const double farthest = std::fabs(hi - lo) + kFarthestStretchDeg;
    if (wanted > highestOf(integrand) * farthest) return {false, kGaveUp, 0.0}; // 57 times over
    return searchLimit(Measurer(integrand), lo, hi, wanted, movesLower);
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

} // namespace

extern "C" {

int32_t ca_lengelp(double deg, double *value) { return arcSpeed(deg, value); }

int32_t ca_AreaElp(double deg, double *value) { return sectorSpeed(deg, value); }

int32_t ca_Simpson(PLANEGEO_INTEGRAND integrand, double lower, double upper, double *result) {
    *result = 0.0;
    if (lower > upper) return kReversedLimits;
    const Integral found = Measurer(integrand)(lower, upper).integral;
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
    const auto polar = [ellipse](double parameterDeg) {
        return polarOfParameter(ellipse->a, ellipse->b, parameterDeg);
    };
    const Range range = measuredRange({polar(ellipse->start), polar(ellipse->end)});
    *length = Measurer(arcSpeed)(range.start, range.end).integral.value;
    return 0;
}

int32_t ca_ElpLen2(DTELLIPSE *ellipse, double wanted, int32_t which) {
    const bool movesStart = which == 0;
    Range range = {ellipse->start, ellipse->end};
    const FoundLimit search = searchLimit(arcSpeed, range.start, range.end, wanted, movesStart);
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
