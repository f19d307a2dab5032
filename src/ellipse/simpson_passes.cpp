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

bool isWholeHalfTurns(double deg) { return deg == 180.0 * std::floor(deg / 180.0); }

} // namespace

SimpsonPasses::SimpsonPasses(const UnitSpeed &speed, double lo, double hi)
    : waves_(speed, lo, hi, isWholeHalfTurns(hi - lo)), isArc_(speed.kind() == EllipseSpeed::arc),
      b_(speed.b()) {
    if (isWholeHalfTurns(hi - lo)) {
        integral_ = (hi - lo) / 180.0 * speed.integralOfHalfTurn();
        return;
    }
    const Offset start = Offset::ofDegrees(lo);
    const Offset end = Offset::ofDegrees(hi);
    integral_ = speed.integralBetween(start, end);
    const OddDerivatives atStart = speed.derivatives(start.turn);
    const OddDerivatives atEnd = speed.derivatives(end.turn);
    for (std::size_t k = 0; k < terms_.size(); ++k) {
        terms_[k] = kFactors[k] * (atEnd[k + 1] - atStart[k + 1]);
    }
    nearest_ = std::min({speed.square(start.turn), speed.square(end.turn), 0.25});
}

/// At both ends together: 2 (16384 / 3 + 4 / 3) H^14 = 0.7 (2H)^14.
double SimpsonPasses::leftOut(double h) const {
    if (nearest_ == 0.0) return 0.0;
    const double ratio = 4.0 * h * h / nearest_;
    const double cube = ratio * ratio * ratio;
    return cube * cube * (isArc_ ? 0.14 * 4.0 * h * h : 0.06 * b_ * ratio);
}

Bounded SimpsonPasses::operator()(double hDeg) const {
    const double h = hDeg * kRadPerDeg;
    const double square = h * h;
    double sum = 0.0;
    for (std::size_t k = terms_.size(); k > 0; --k) {
        sum = (sum + terms_[k - 1]) * square;
    }
    const Bounded waves = waves_.simpson(hDeg);
    return {integral_ + (sum * square + waves.value), leftOut(h) + waves.uncertainty};
}

} // namespace planegeo
