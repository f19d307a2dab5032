// Waves of the samples about the ends of the longer axis.

#include "ellipse/tip_waves.h"

#include <cmath>

namespace planegeo {

namespace {

/// A wave with a factor below e^-kLost is none.
constexpr double kLost = 34.0;
constexpr double kLostWave = 0x1p-49;
/// Terms of the hypergeometric series below it are left out.
constexpr double kSmallTerm = 0x1p-60;
constexpr int kMostTerms = 40;
constexpr double kLongestStepDeg = 1.25;

} // namespace

TipWaves::TipWaves(const UnitSpeed &speed, double lo, double hi, bool isPeriodic)
    : speed_(speed), lo_(lo) {
    if (decay(kLongestStepDeg) > kLost) return;
    firstTip_ = 180.0 * std::floor(lo / 180.0) + 180.0;
    tips_ = isPeriodic ? static_cast<int>((hi - lo) / 180.0)
                       : static_cast<int>(std::ceil((hi - firstTip_) / 180.0));
}

/// The first wave in steps 2h has less than e^-decay of its factor, as r < e^-2b.
double TipWaves::decay(double h) const { return 180.0 * speed_.b() / h; }

/// Of the m-th waves of all tips, in steps of h degrees.
double TipWaves::phaseSum(double h, int m) const {
    double sum = 0.0;
    for (int i = 0; i < tips_; ++i) {
        const double steps = m * ((firstTip_ - lo_ + 180.0 * i) / h);
        sum += std::cos(2.0 * kPi * (steps - std::floor(steps)));
    }
    return sum;
}

/// `power` being r^k. The series is that of a mean of sqrt(1 + X t), so its terms alternate about
/// the sum and the first that is left out bounds the error.
Bounded TipWaves::wave(double k, double power) const {
    const double b = speed_.b();
    if (speed_.kind() == EllipseSpeed::sector) return {kPi * b * power, 0.0};
    const double perK = 1.0 / k;
    const double gammas =
        perK * std::sqrt(perK) *
        (1.0 + perK * (3.0 / 8.0 + perK * (25.0 / 128.0 + perK * 105.0 / 1024.0)));
    const double factor = std::sqrt(kPi * b) * gammas * power; // 4 J but for the series
    const double x = (1.0 - b) * (1.0 - b) / (4.0 * b);
    double sum = 1.0;
    double term = 1.0;
    for (int j = 0; j < kMostTerms; ++j) {
        const double next = -term * x * (j - 0.5) * (j + 1.5) / ((k + 1.0 + j) * (j + 1.0));
        if (std::fabs(next) * factor < kSmallTerm || std::fabs(next) > std::fabs(term)) break;
        sum += term = next;
    }
    return {-factor * sum, factor * std::fabs(term)};
}

/// The rule is a third of 4 sums in steps h less one in steps 2h; a wave of the former is the
/// one of the latter with twice the m.
Bounded TipWaves::simpson(double h) const {
    if (tips_ <= 0) return {0.0, 0.0};
    const double b = speed_.b();
    Bounded sum = {0.0, tips_ * b * kLostWave};
    if (decay(h) > kLost) return sum;
    const double ratio = std::pow((1.0 - b) / (1.0 + b), 90.0 / h);
    double power = 1.0;
    for (int m = 1; (m - 1) * decay(h) <= kLost; ++m) {
        power *= ratio;
        const Bounded one = wave(m * 90.0 / h, power);
        sum.value += (m % 2 == 0 ? 1.0 : -1.0 / 3.0) * phaseSum(2.0 * h, m) * one.value;
        sum.uncertainty += tips_ * one.uncertainty;
    }
    return sum;
}

} // namespace planegeo
