// The search for a limit, round by round.

#include "ellipse/limit_search.h"

#include <cmath>
#include <limits>
#include <optional>

#include "ellipse/length_forecast.h"

namespace planegeo {

namespace {

/// A search that has taken so many samples gives up. A range of s degrees takes at least 3s of
/// them, and is reached by ranges every 5 degrees: it has then grown by less than
/// kFarthestStretchDeg.
constexpr std::int64_t kMostSearchSamples = std::int64_t{1} << 28;
constexpr double kFarthestStretchDeg = 36000.0;
constexpr double kFirstSearchStepDeg = 10.0;
constexpr int kMostStalls = 10;
constexpr double kInfinity = std::numeric_limits<double>::infinity();

/// A range, measured where the forecast leaves a doubt.
struct Round {
    Limits limits;
    std::optional<Measured> measured;

    const Integral &integral() const { return measured->integral; }
};

/// What the search sees in the integral over its range and that over the range before.
Verdict verdictOf(const Integral &now, const Integral &before, double wanted) {
    const double s = now.value;
    const double change = s - before.value;
    return {std::fabs(s - wanted) <= kReachedIntegral,
            std::fabs(s) < kStalledIntegral || std::fabs(change) < kStalledIntegral,
            s <= wanted, // a NaN counts as too long
            isOpen(s - wanted, kReachedIntegral, now.uncertainty) ||
                isOpen(s, kStalledIntegral, now.uncertainty) ||
                isOpen(change, kStalledIntegral, now.uncertainty + before.uncertainty)};
}

Verdict measuredVerdict(Measurer &measure, Round &now, Round &before, double wanted) {
    for (Round *round : {&now, &before}) {
        if (!round->measured) round->measured = measure(round->limits.lo, round->limits.hi);
    }
    const Verdict verdict = verdictOf(now.integral(), before.integral(), wanted);
    if (!verdict.doubtful) return verdict;
    measure.makeCertain(*now.measured);
    measure.makeCertain(*before.measured);
    return verdictOf(now.integral(), before.integral(), wanted);
}

} // namespace

FoundLimit searchLimit(Measurer measure, double lo, double hi, double wanted, bool movesLower) {
    const double farthest = std::fabs(hi - lo) + kFarthestStretchDeg;
    if (wanted > measure.highest() * farthest) return {false, kGaveUp, 0.0}; // 57 times over
    const LengthForecast forecast =
        measure.own() ? LengthForecast(*measure.own(), {lo, hi}, wanted, movesLower)
                      : LengthForecast();
    double &moved = movesLower ? lo : hi;
    const double outwards = movesLower ? -1.0 : 1.0;
    double step = kFirstSearchStepDeg;
    bool stretched = false;
    Round before = {{lo, hi}, Measured{lo, hi, {Refinement::done}}};
    int stalls = 0;
    std::int32_t code = 0;
    bool isFirst = true;
    for (std::int64_t samples = 0; samples < kMostSearchSamples && !measure.hasSummedEnough();) {
        Round now = {{lo, hi}, std::nullopt};
        Verdict verdict = forecast.verdict(now.limits, isFirst ? nullptr : &before.limits);
        isFirst = false;
        if (verdict.doubtful) verdict = measuredVerdict(measure, now, before, wanted);
        if (now.measured) {
            const Integral &found = now.integral();
            if (found.outcome == Refinement::refused) return {false, found.code, moved};
            if (found.outcome == Refinement::outOfIntervals) code = kOutOfIntervals; // to the end
            samples += found.samples;
        } else {
            samples += 3 * evenIntervals(hi - lo);
        }

        if (verdict.reached) return {true, code, moved};
        stalls = verdict.stalled ? stalls + 1 : 0;
        if (stalls == kMostStalls) break;

        if (verdict.tooShort != stretched) step *= 0.5;
        stretched = verdict.tooShort;
        const double from = moved;
        moved += stretched ? outwards * step : -outwards * step;
        // A limit that stays where it is repeats the round. A number then stalls to the end;
        // others would go round for ever. Nothing is infinitely long.
        const bool isNumber = !now.measured || std::isfinite(now.integral().value);
        if ((moved == from && !isNumber) || wanted == kInfinity) break;
        before = now;
    }
    return {false, kGaveUp, moved};
}

} // namespace planegeo
