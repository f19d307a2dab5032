// The running Simpson sum in closed form, and its inverse.

#include "ellipse/running_length.h"

#include <algorithm>

#include "ellipse/angle_at_length.h"

namespace planegeo {

namespace {

/// Steps for one sample of the pass that settles, when it is the fourth or an earlier one.
constexpr double kStepsPerSample = 125.0;
/// So much of a step of the slowest stretch is near enough to be found by single steps.
constexpr double kCloseSteps = 0x1p-4;
/// Terms of the sum that are taken one by one to reach the step from the inverse.
constexpr std::int64_t kMostPlainSteps = 16;

} // namespace

// The weights 4 and 2 are 3 and an alternating 1. With x_i = t_i + h/2, F the length, f and f'
// its derivatives, and h in radians,
//     h (f(t_1) + ... + f(t_i))      = [F - h^2/24 f' + ...] from x_0 to x_i
//     f(t_1) - f(t_2) + ... -+ f(t_i) = 1/2 f(x_0) - (-1)^i / 2 f(x_i) + ...
// (the midpoint rule and its alternating sister), so that
//     R(i) = h/3 (f(start) + f(end)) + r(i) - r(0),
//     r(i) = F(x_i) - h/3 (3h/24 f'(x_i) + (-1)^i / 2 f(x_i)).
RunningLength::RunningLength(const ArcSpeed &speed, const GridSum &length, const Steps &steps)
    : speed_(speed), steps_(steps), unit_(length.unit()), scale_(length.scale()),
      endDeg_(length.endDeg()), third_(steps.h * kThirdRadPerDeg) {
    base_ = third_ * (speed_(steps.start) + speed_(steps.end)) - at(0);
}

double RunningLength::at(std::int64_t i) const {
    const double deg = steps_.start + (static_cast<double>(i) + 0.5) * steps_.h;
    const Offset x = Offset::ofDegrees(deg - endDeg_);
    const double f = std::sqrt(unit_.square(x.turn));
    const double slope = unit_.bend(x.turn) / f;
    const double alternating = i % 2 == 1 ? -0.5 * f : 0.5 * f;
    return base_ + scale_ * (lengthAt(unit_, x) - third_ * (0.375 * third_ * slope + alternating));
}

double RunningLength::summand(std::int64_t i) const {
    return third_ * (Steps::weight(i) * speed_(steps_.at(i)));
}

// In roundings u: adding up i terms costs the plain sum at most i/2 u of its value, adding up the
// length that is divided one per sample of its last pass, their evaluation, the quotient and the
// integral some 64; the angle T of a sample 32T u of the longer half axis, which the speed and its
// derivative do not exceed. The expansions leave out h/3 (-1)^i h^2/16 f'' and much less, and the
// second derivative is at most a half axis in units of the other one, in units of the longer one.
double RunningLength::slack(std::int64_t i, double length) const {
    const double farthest = (std::fabs(steps_.start) + std::fabs(steps_.end)) * kRadPerDeg;
    const double h = 3.0 * third_;
    const double additions =
        static_cast<double>(i) * 0.5 + static_cast<double>(steps_.count) / kStepsPerSample;
    return kUnitRoundoff * ((additions + 64.0) * length + (64.0 + 32.0 * farthest) * scale_) +
           third_ * h * h / 7.0 * (scale_ / unit_.b());
}

std::optional<std::int64_t> RunningLength::firstReaching(double length) const {
    const double close = kCloseSteps * third_ * unit_.b();
    const auto x = angleAtLength(unit_, (length - base_) / scale_, close);
    if (!x) return std::nullopt;
    const double guess = (*x + endDeg_ - steps_.start) / steps_.h;
    const std::int64_t end = steps_.count - 1;
    auto i = std::clamp(static_cast<std::int64_t>(guess), std::int64_t{1}, end);
    const double wanted = length - slack(i, length);
    double sum = at(i);
    const std::int64_t last = std::min(i + kMostPlainSteps, end);
    while (sum < wanted && i < last) {
        sum += summand(++i);
    }
    if (sum < wanted) return std::nullopt;
    const std::int64_t first = std::max(i - kMostPlainSteps, std::int64_t{1});
    for (; i > first; --i) {
        sum -= summand(i);
        if (sum < wanted) return i;
    }
    return i == 1 ? std::optional(i) : std::nullopt;
}

} // namespace planegeo
