/// What equidistant samples see of the sharp ends of an ellipse.
#pragma once

#include "ellipse/unit_speed.h"

namespace planegeo {

/// A value, and how far at most it is from the right one.
struct Bounded {
    double value;
    double uncertainty;
};

/// A sum in steps h over a range is the integral, a correction at both ends (see SimpsonPasses),
/// and for each end of the longer axis within, a tip at t, a wave in where the samples lo + i h
/// fall beside it. The contour of
///     2 Re of the integral of f(u) e^(2 pi i m (u - lo) / h),    m = 1, 2, ...
/// which is what the sum has beside the integral, passes round the cut above the tip. With
/// k = pi m / h, r = (1 - b) / (1 + b) and theta = 2 pi (t - lo) / h that is
///     -4 J(k) cos m theta    with the arc's speed,    pi b r^k cos m theta    with the sector's,
/// where J is, along the cut from the singularity d = artanh b above the tip on,
///     J(k) = integral of sqrt((1 - b^2) (sinh^2 y - sinh^2 d)) e^(-2ky) dy
///          = sqrt(pi b) / 4 Gamma(k - 1/2) / Gamma(k + 1) r^k F(-1/2, 3/2; k + 1; -X),
///     X = (1 - b)^2 / 4b.
class TipWaves {
  public:
    /// Degrees from an end of the longer axis. With `isPeriodic` the range has whole half turns.
    TipWaves(const UnitSpeed &speed, double lo, double hi, bool isPeriodic);

    /// What they add to the Simpson rule in steps of h degrees, below 1.25; waves below a tolerance
    /// are left out.
    Bounded simpson(double h, double tolerance);
    /// Whether they are all below rounding in such steps.
    bool areLost(double h) const;

  private:
    /// Longer ranges of ellipses that have waves are refused: see GridSum::takes().
    static constexpr std::size_t kMostTips = 8;
    using Cosines = std::array<double, kMostTips>;

    void turnTo(double h);
    double factor(double k) const;
    Bounded wave(double k, double factor, double tolerance) const;

    UnitSpeed speed_;
    double lo_;
    double firstTip_ = 0.0;
    std::size_t tips_ = 0; ///< 0 where no step sees them
    double k_ = 0.0;       ///< of the last steps
    double ratio_ = 0.0;   ///< r^k
    Cosines cosines_ = {}; ///< of theta
};

} // namespace planegeo
