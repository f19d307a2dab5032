// Forecast of the rounds of a search by length.

#include "ellipse/length_forecast.h"

#include <algorithm>
#include <cmath>

#include "ellipse/angle_at_length.h"

namespace planegeo {

namespace {

/// Thinner ellipses need more of the Simpson rule's error than its first term.
constexpr double kThinnest = 0x1p-4;
/// Shorter ranges have no length, or almost: see refine().
constexpr double kShortestDeg = 4.1 * kSmallestStepDeg;
/// The first sum over a range of a shorter arc might settle by itself.
constexpr double kShortestLength = 4.0 * kSettledIntegral;
constexpr double kFarthestDeg = 36000.0;
constexpr double kPreciseLength = 0x1p-10 * kReachedIntegral;
/// A larger uncertainty leaves nothing to tell.
constexpr double kMostSlack = 0.5 * kReachedIntegral;

/// Steps of the second pass at most: a range of s degrees is first cut in more than s - 1 steps,
/// and in 4 or more.
double secondStepDeg(double span) { return span < 8.0 ? 0.625 : 0.5 * span / (span - 1.0); }

double power4(double x) { return (x * x) * (x * x); }

} // namespace

// Mostly the second pass settles. It is off the integral by h^4 / 180 [ f''' ], a tenth more for
// the terms after, and the waves of the tips, which are less still: see SimpsonPasses. With
// f = sqrt g,
//     |f'''| = |f'| (1 + 3 b^2 / f^4) <= sqrt(1 - b^2) (1 + 0.86 / b^2).
// Each pass after is 16 times nearer, so that the first two within kSettledIntegral settle.
LengthForecast::LengthForecast(const GridSum &sum, Limits first, double wanted, bool movesLower)
    : movesLower_(movesLower) {
    const UnitSpeed &unit = sum.unit();
    const double b = unit.b();
    const bool isNear = std::fabs(first.lo) <= kFarthestDeg && std::fabs(first.hi) <= kFarthestDeg;
    if (unit.kind() != EllipseSpeed::arc || !(b >= kThinnest) || !sum.isSized() || !isNear) return;

    const double outwards = movesLower ? -1.0 : 1.0;
    const double kept = (movesLower ? first.hi : first.lo) - sum.endDeg();
    const double goal = lengthAt(unit, kept) + outwards * (wanted / sum.scale());
    const auto reached = angleAtLength(unit, goal, kPreciseLength / sum.scale());
    if (!reached) return;
    isUsable_ = true;
    goalDeg_ = reached->deg + sum.endDeg();
    missing_ = kPreciseLength;
    fastest_ = sum.scale();
    slowest_ = b * fastest_;
    atGoal_ = fastest_ * std::sqrt(unit.square(reached->turn));
    longestDeg_ = sum.longestDeg();
    const double third = std::sqrt((1.0 - b) * (1.0 + b)) * (1.0 + 0.86 / (b * b));
    fourthOrder_ = fastest_ * third * (2.5 / 180.0) * power4(kRadPerDeg);
    passLength_ = 4.0;
    for (double off = 17.0 * fourthOrder_ * power4(secondStepDeg(0.0)); off > kSettledIntegral;
         off /= 16.0) {
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
           span * kRadPerDeg * slowest_ >= kShortestLength;
}

/// How far at most a settled sum is from the integral, by the rule and by rounding (as in GridSum).
double LengthForecast::slack(const Limits &range) const {
    const double span = range.hi - range.lo;
    const double rad = span * kRadPerDeg;
    const double farthest = (std::fabs(range.lo) + std::fabs(range.hi)) * kRadPerDeg;
    const double roundings = passLength_ * span * rad + (64.0 + 32.0 * farthest) * (rad + 4.0);
    return missing_ + fourthOrder_ * power4(secondStepDeg(span)) +
           kUnitRoundoff * fastest_ * roundings;
}

Verdict LengthForecast::verdict(const Limits &now, const Limits *before) const {
    constexpr Verdict kDoubtful = {false, false, false, true};
    if (!isUsable_ || !tells(now) || (before && !tells(*before))) return kDoubtful;
    const double off = slack(now);
    if (!(off < kMostSlack)) return kDoubtful;

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
