/// The passes of the Simpson rule over a range of an ellipse, all of them from one integral.
#pragma once

#include <array>

#include "ellipse/tip_waves.h"
#include "ellipse/unit_speed.h"

namespace planegeo {

/// A sum over equidistant samples has beside the integral, by Euler and Maclaurin, the sum of
///     B_2k / (2k)! h^2k [ f^(2k-1) ]
/// over both ends, and the waves of the tips between. The Simpson rule of steps h is a third of
/// 4 such sums in steps h less one in steps 2h, so that its term k has the factor (4 - 4^k) / 3.
///
/// The first term left out bounds what follows. No derivative of order j exceeds j! M / d^j, d
/// being the distance from the singularities and M the largest |f| that near: the distance is at
/// least min(sqrt g, 1/2), and M there 2.4 d with the arc's speed; with the sector's, a pole of
/// residue b / 4, M is b / d. So in steps h the term k is at most
///     |B_2k| / 2k (h / d)^2k    times 2.4 d^2 or b,
/// more than the wave of a tip at that distance, too. B_14 / 14 is 1/12, B_10 / 10 is 1/132.
class SimpsonPasses {
  public:
    /// Of more degrees than kShortestRangeDeg, from an end of the longer axis.
    SimpsonPasses(const UnitSpeed &speed, double lo, double hi);

    double integral() const { return integral_; }
    /// The pass of steps h, degrees. Of its waves those below a tolerance are left out.
    Bounded operator()(double h, double tolerance);
    /// Whether in such steps, and in shorter ones, it is the integral to rounding.
    bool isIntegral(double h) const { return isPeriodic_ && waves_.areLost(h); }

  private:
    double leftOut(double h) const;

    bool isPeriodic_; ///< whole half turns: what both ends add cancels
    TipWaves waves_;
    std::size_t corrections_ = 1;
    bool isArc_;
    double b_;
    double integral_;
    std::array<double, kCorrections - 1> terms_ = {}; ///< factors of h^4, h^6, ..., radians
    double nearest_ = 0.0; ///< the square of the distance from the singularities
};

/// Shorter ranges begin with longer steps than a degree, or are cut in four.
inline constexpr double kShortestRangeDeg = 5.0;
/// The thinnest ellipse whose waves are worth their terms.
inline constexpr double kThinnestPasses = 0x1p-7;

} // namespace planegeo
