// All passes of the Simpson rule from one integral.

#include "ellipse/simpson_passes.h"

#include <algorithm>
#include <cmath>

namespace planegeo {

namespace {

/// B_2k / (2k)! (4 - 4^k) / 3, k = 2 to 6.
constexpr std::array<double, kCorrections - 1> kFactors = {
    -1.0 / 720.0 * -4.0, 1.0 / 30240.0 * -20.0, -1.0 / 1209600.0 * -84.0, 1.0 / 47900160.0 * -340.0,
    -691.0 / 1307674368000.0 * -1364.0};

/// Few corrections do so far from the singularities, squared.
constexpr double kFar = 0.1;

bool isWholeHalfTurns(double deg) { return deg == 180.0 * std::floor(deg / 180.0); }

} // namespace

SimpsonPasses::SimpsonPasses(const UnitSpeed &speed, double lo, double hi)
    : isPeriodic_(isWholeHalfTurns(hi - lo)), waves_(speed, lo, hi, isPeriodic_),
      isArc_(speed.kind() == EllipseSpeed::arc), b_(speed.b()) {
    if (isPeriodic_) {
        integral_ = (hi - lo) / 180.0 * speed.integralOfHalfTurn();
        return;
    }
    const Offset start = Offset::ofDegrees(lo);
    const Offset end = Offset::ofDegrees(hi);
    integral_ = speed.integralBetween(start, end);
    nearest_ = std::min({speed.square(start.turn), speed.square(end.turn), 0.25});
    corrections_ = nearest_ >= kFar ? kFewCorrections : kCorrections;
    const OddDerivatives atStart = speed.derivatives(start.turn, corrections_);
    const OddDerivatives atEnd = speed.derivatives(end.turn, corrections_);
    for (std::size_t k = 0; k < terms_.size(); ++k) {
        terms_[k] = kFactors[k] * (atEnd[k + 1] - atStart[k + 1]);
    }
}

/// At both ends together the rule has 2 (4^k - 4) / 3 h^2k, less than 0.7 (2h)^2k.
double SimpsonPasses::leftOut(double h) const {
    const double ratio = 4.0 * h * h / nearest_;
    const double fourth = (ratio * ratio) * (ratio * ratio);
    const double size = (isArc_ ? 2.4 * nearest_ : b_) * 0.7 * ratio * fourth;
    return corrections_ == kFewCorrections ? size / 132.0 : size * ratio * ratio / 12.0;
}

Bounded SimpsonPasses::operator()(double hDeg, double tolerance) {
    const Bounded waves = waves_.simpson(hDeg, tolerance);
    if (isPeriodic_) return {integral_ + waves.value, waves.uncertainty};
    const double h = hDeg * kRadPerDeg;
    const double square = h * h;
    double sum = 0.0;
    for (std::size_t k = corrections_ - 1; k > 0; --k) {
        sum = (sum + terms_[k - 1]) * square;
    }
    return {integral_ + (sum * square + waves.value), leftOut(h) + waves.uncertainty};
}

} // namespace planegeo
