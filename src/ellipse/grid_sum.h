/// Simpson sums around an ellipse, however thin, without most of their samples.
#pragma once

#include <cstdint>

#include "ellipse/simpson.h"

namespace planegeo {

/// What is summed: see ArcSpeed and SectorSpeed.
enum class EllipseSpeed { arc, sector };

/// A range of more degrees counts as out of intervals without a walk.
inline constexpr double kLongestRangeDeg = 36000.0;
/// The same where one half axis exceeds the other by more than kThinRatio.
inline constexpr double kLongestThinRangeDeg = 1440.0;
inline constexpr double kThinRatio = 4.0;

/// A speed of an ellipse, summed over equidistant parameters.
///
/// With b <= 1 the shorter half axis in units of the longer one and u the angle from an end of the
/// longer one, both speeds are made of g = b^2 cos^2 u + sin^2 u: as sqrt(g), and as b^2 / 2g.
/// Their singularities lie above and below those ends, artanh b away. In steps h, a sum some steps
/// away from all of them is the integral with a correction at both ends (Euler and Maclaurin)
///     h (f_0 / 2 + f_1 + ... + f_n / 2) = [ F + sum of B_2k h^2k / (2k)! f^(2k-1) ]
/// to rounding, so that only samples near to one need be taken.
class GridSum {
  public:
    GridSum(EllipseSpeed speed, double halfFirst, double halfSecond);

    /// Whether a range is short enough to be summed; a NaN is not.
    bool takes(double spanDeg) const {
        const bool isThin = !(b_ * kThinRatio >= 1.0);
        return spanDeg <= (isThin ? kLongestThinRangeDeg : kLongestRangeDeg);
    }
    /// The integral over [lo, hi] degrees that the plain steps reach: see refine(). The sums of
    /// longer passes are nearer to exact ones than those over samples, and decide for themselves.
    Integral integral(double lo, double hi) const;

  private:
    struct Grid {
        double lo;
        double h; ///< degrees
        double at(std::int64_t i) const { return lo + static_cast<double>(i) * h; }
    };
    double sample(double deg) const;
    double offsetDeg(double deg) const;
    double arcTo(double deg) const;
    double sectorBetween(double fromDeg, double toDeg) const;
    double integralBetween(double fromDeg, double toDeg) const;
    double correction(double deg, double h) const;
    double trapezoidsOfSamples(const Grid &grid, std::int64_t from, std::int64_t to) const;
    double smooth(const Grid &grid, std::int64_t from, std::int64_t to) const;
    double trapezoids(const Grid &grid, std::int64_t n) const;
    double simpsonOfSamples(double lo, double hi, std::int64_t n) const;

    EllipseSpeed speed_;
    double halfFirst_;
    double halfSecond_;
    double b_;      ///< the shorter half axis in units of the longer one
    double scale_;  ///< of the speed
    double endDeg_; ///< an end of the longer axis
};

} // namespace planegeo
