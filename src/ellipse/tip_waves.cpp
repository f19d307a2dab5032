// Waves of the samples about the ends of the longer axis.

#include "ellipse/tip_waves.h"

#include <algorithm>
#include <cmath>

namespace planegeo {

namespace {

/// With a decay of so much a wave is less than kLostWave of an arc; of a sector, which has no small
/// factor else, with one of 6 more it is less than 3 b times that.
constexpr double kLost = 28.0;
constexpr double kLostOfSector = 34.0;
constexpr double kLostWave = 0x1p-48;
constexpr double kLongestStepDeg = 1.25;

} // namespace

TipWaves::TipWaves(const UnitSpeed &speed, double lo, double hi, bool isPeriodic)
    : speed_(speed), lo_(lo) {
    if (areLost(kLongestStepDeg)) return;
    firstTip_ = 180.0 * std::floor(lo / 180.0) + 180.0;
    const double tips = isPeriodic ? (hi - lo) / 180.0 : std::ceil((hi - firstTip_) / 180.0);
    tips_ = std::min(static_cast<std::size_t>(std::max(tips, 0.0)), kMostTips);
}

/// The first wave in steps 2h has less than e^-decay of its factor, as r < e^-2b.
bool TipWaves::areLost(double h) const {
    const double decay = 180.0 * speed_.b() / h;
    return decay > (speed_.kind() == EllipseSpeed::arc ? kLost : kLostOfSector);
}

/// For steps h: half the last steps double k and theta.
void TipWaves::turnTo(double h) {
    const double k = 90.0 / h;
    if (k == 2.0 * k_) {
        ratio_ *= ratio_;
        for (double &c : cosines_) {
            c = 2.0 * c * c - 1.0;
        }
    } else {
        ratio_ = std::pow((1.0 - speed_.b()) / (1.0 + speed_.b()), k);
        for (std::size_t i = 0; i < tips_; ++i) {
            const double steps = (firstTip_ - lo_ + 180.0 * static_cast<double>(i)) / (2.0 * h);
            cosines_[i] = std::cos(2.0 * kPi * (steps - std::floor(steps)));
        }
    }
    k_ = k;
}

/// 4 J(k) r^-k without the series, or pi b.
double TipWaves::factor(double k) const {
    const double b = speed_.b();
    if (speed_.kind() == EllipseSpeed::sector) return kPi * b;
    const double perK = 1.0 / k;
    return std::sqrt(kPi * b * perK) * perK *
           (1.0 + perK * (3.0 / 8.0 + perK * (25.0 / 128.0 + perK * 105.0 / 1024.0)));
}

/// Of size `factor`, to within a tolerance where it can be. The series is that of a mean of
/// sqrt(1 + X t), so its terms alternate about the sum, which lies between any two sums.
Bounded TipWaves::wave(double k, double factor, double tolerance) const {
    if (speed_.kind() == EllipseSpeed::sector) return {factor, 0.0};
    const double b = speed_.b();
    const double x = (1.0 - b) * (1.0 - b) / (4.0 * b);
    double sum = factor;
    double term = factor;
    for (double j = 0.0; std::fabs(term) > tolerance; ++j) {
        const double next = -term * x * (j - 0.5) * (j + 1.5) / ((k + 1.0 + j) * (j + 1.0));
        if (std::fabs(next) > std::fabs(term)) break;
        sum += term = next;
    }
    return {-sum, std::fabs(term)};
}

/// The rule is a third of 4 sums in steps h less one in steps 2h; a wave of the former is the
/// one of the latter with twice the m. As r^k is below 1/3, and the series below 1.3, twice the
/// factor of a wave bounds it and all after.
Bounded TipWaves::simpson(double h, double tolerance) {
    if (tips_ == 0) return {0.0, 0.0};
    const auto tips = static_cast<double>(tips_);
    if (areLost(h)) {
        const bool isArc = speed_.kind() == EllipseSpeed::arc;
        return {0.0, tips * kLostWave * (isArc ? 1.0 : 3.0 * speed_.b())};
    }
    turnTo(h);
    Bounded sum = {0.0, 0.0};
    Cosines now = cosines_; // of m theta
    Cosines before;         // of (m - 1) theta
    before.fill(1.0);
    double power = ratio_;
    for (int m = 1;; ++m, power *= ratio_) {
        const double size = factor(m * k_) * power;
        if (!(size > tolerance)) return {sum.value, sum.uncertainty + 2.0 * tips * size};
        const Bounded one = wave(m * k_, size, tolerance);
        double phases = 0.0;
        for (std::size_t i = 0; i < tips_; ++i) {
            phases += now[i];
            const double next = 2.0 * cosines_[i] * now[i] - before[i];
            before[i] = now[i];
            now[i] = next;
        }
        sum.value += (m % 2 == 0 ? 1.0 : -1.0 / 3.0) * phases * one.value;
        sum.uncertainty += tips * one.uncertainty;
    }
}

} // namespace planegeo
