// Forecast of the rounds of a search by length.

#include "ellipse/length_forecast.h"

#include <algorithm>
#include <cmath>

#include "ellipse/angle_at_length.h"

namespace planegeo {

namespace {

constexpr double kThinnest = 0x1p-7;
/// Of thinner ellipses the Simpson rule's error is more than its first term.
constexpr double kThin = 0x1p-4;
/// Shorter ranges have no length, or almost: see refine().
constexpr double kShortestDeg = 4.1 * kSmallestStepDeg;
/// The first sum over a range of a shorter arc might settle by itself.
constexpr double kShortestLength = 4.0 * kSettledIntegral;
constexpr double kFarthestDeg = 36000.0;
/// With more of it a sum might not settle.
constexpr double kMostRounding = 0.25 * kSettledIntegral;
constexpr double kPreciseLength = 0x1p-10 * kReachedIntegral;

/// Steps of the second pass at most: a range of s degrees is first cut in more than s - 1 steps,
/// and in 4 or more.
double secondStepDeg(double span) { return span < 8.0 ? 0.625 : 0.5 * span / (span - 1.0); }

double power4(double x) { return (x * x) * (x * x); }

} // namespace

// Mostly the second pass settles. It is off the integral by h^4 / 180 [ f''' ], a tenth more for
// the terms after, and the waves of the tips, which are less still: see SimpsonPasses. With
// f = sqrt g,
//     |f'''| = |f'| (1 + 3 b^2 / f^4) <= sqrt(1 - b^2) (1 + 0.86 / b^2).
// Over a thin ellipse it is off by less than h^4 / 72 of the way that f''' goes up and down, which
// is four times that in every half turn.
// Each pass after is 16 times nearer, so that the first two within kSettledIntegral settle.
LengthForecast::LengthForecast(const GridSum &sum, Limits first, double wanted, bool movesLower)
    : movesLower_(movesLower) {
    const UnitSpeed &unit = sum.unit();
    const double b = unit.b();
    const bool isNear = std::fabs(first.lo) <= kFarthestDeg && std::fabs(first.hi) <= kFarthestDeg;
    if (unit.kind() != EllipseSpeed::arc || !(b >= kThinnest) || !sum.isSized() || !isNear) return;

    const double outwards = movesLower ? -1.0 : 1.0;
    const double kept = (movesLower ? first.hi : first.lo) - sum.endDeg();
    const double goal = lengthAt(unit, Offset::ofDegrees(kept)) + outwards * (wanted / sum.scale());
    const auto reached = angleAtLength(unit, goal, kPreciseLength / sum.scale());
    if (!reached) return;
    isUsable_ = true;
    goalDeg_ = *reached + sum.endDeg();
    fastest_ = sum.scale();
    slowest_ = b * fastest_;
    atGoal_ = fastest_ * std::sqrt(unit.square(Rotation::ofDegrees(*reached)));
    longestDeg_ = sum.longestDeg();
    const double third = std::sqrt((1.0 - b) * (1.0 + b)) * (1.0 + 0.86 / (b * b));
    const double unitOff = fastest_ * third * power4(kRadPerDeg);
    ofEnds_ = unitOff * (b >= kThin ? 2.5 / 180.0 : 2.0 * 4.0 / 72.0);
    ofHalfTurn_ = unitOff * (b >= kThin ? 0.0 : 4.0 / 72.0);
    passLength_ = 4.0;
    for (double off = 17.0 * offIntegral(longestDeg_); off > kSettledIntegral; off /= 16.0) {
        passLength_ *= 2.0;
    }
}

/// Positive where the range is too long, radians.
double LengthForecast::fromGoal(const Limits &range) const {
    const double deg = movesLower_ ? goalDeg_ - range.lo : range.hi - goalDeg_;
    return deg * kRadPerDeg;
}

/// Of the speed near the goal.
LengthForecast::Band LengthForecast::speedWithin(double rad) const {
    const double change = (fastest_ - slowest_) * rad;
    return {std::max(slowest_, atGoal_ - change), std::min(fastest_, atGoal_ + change)};
}

bool LengthForecast::tells(const Limits &range) const {
    const double span = range.hi - range.lo;
    return span >= kShortestDeg && span <= longestDeg_ &&
           span * kRadPerDeg * slowest_ >= kShortestLength && rounding(range) <= kMostRounding;
}

/// How far at most the second pass is from the integral.
double LengthForecast::offIntegral(double span) const {
    return (ofEnds_ + ofHalfTurn_ * (span / 180.0)) * power4(secondStepDeg(span));
}

/// The rounding of a settled sum, as in GridSum.
double LengthForecast::rounding(const Limits &range) const {
    const double span = range.hi - range.lo;
    const double rad = span * kRadPerDeg;
    const double farthest = (std::fabs(range.lo) + std::fabs(range.hi)) * kRadPerDeg;
    const double roundings = passLength_ * span * rad + (64.0 + 32.0 * farthest) * (rad + 4.0);
    return kUnitRoundoff * fastest_ * roundings;
}

/// How far at most a settled sum is from the integral.
double LengthForecast::slack(const Limits &range) const {
    return kPreciseLength + offIntegral(range.hi - range.lo) + rounding(range);
}

Verdict LengthForecast::verdict(const Limits &now, const Limits *before) const {
    constexpr Verdict kDoubtful = {false, false, false, true};
    if (!isUsable_ || !tells(now) || (before && !tells(*before))) return kDoubtful;
    const double off = slack(now);
    const double rad = fromGoal(now);
    const Band speed = speedWithin(std::fabs(rad));
    const double least = std::fabs(rad) * speed.low - off;
    const double most = std::fabs(rad) * speed.high + off;
    Verdict verdict = {most <= kReachedIntegral, false, rad < 0.0, false};
    if (verdict.reached) return verdict;
    if (!(least > kReachedIntegral)) return kDoubtful;
    if (!before) return verdict;

    const double radBefore = fromGoal(*before);
    const double moved = std::fabs(rad - radBefore);
    const Band between = speedWithin(std::max(std::fabs(rad), std::fabs(radBefore)));
    const double offBoth = off + slack(*before);
    verdict.stalled = moved * between.high + offBoth < kStalledIntegral;
    verdict.doubtful = !verdict.stalled && !(moved * between.low - offBoth >= kStalledIntegral);
    return verdict;
}

} // namespace planegeo
