/// Simpson sums around an ellipse, however thin, without most of their samples.
#pragma once

#include <cstdint>

#include "ellipse/simpson.h"
#include "ellipse/tip_waves.h"
#include "ellipse/unit_speed.h"

namespace planegeo {

/// A range of more degrees counts as out of intervals without a walk.
inline constexpr double kLongestRangeDeg = 36000.0;
/// The same where one half axis exceeds the other by more than kThinRatio.
inline constexpr double kLongestThinRangeDeg = 1440.0;
inline constexpr double kThinRatio = 4.0;

/// A speed of an ellipse, summed over equidistant parameters.
class GridSum {
  public:
    GridSum(EllipseSpeed speed, double halfFirst, double halfSecond);

    const UnitSpeed &unit() const { return unit_; }
    double scale() const { return scale_; }
    /// An end of the longer axis.
    double endDeg() const { return endDeg_; }
    /// Whether the half axes have squares that neither over- nor underflow.
    bool isSized() const;
    double highest() const { return unit_.kind() == EllipseSpeed::arc ? scale_ : scale_ * 0.5; }

    double longestDeg() const {
        const bool isThin = !(unit_.b() * kThinRatio >= 1.0);
        return isThin ? kLongestThinRangeDeg : kLongestRangeDeg;
    }
    /// Whether a range is short enough to be summed; a NaN is not.
    bool takes(double spanDeg) const { return spanDeg <= longestDeg(); }
    /// The integral over [lo, hi] degrees that the plain steps reach: see refine(). `undecided`,
    /// too, where it is none for passes without samples.
    Integral integral(double lo, double hi) const;
    /// The same by samples. The sums of longer passes are nearer to exact ones than those over
    /// samples, and decide for themselves.
    Integral certain(double lo, double hi) const;
    /// The one or else the other.
    Integral settled(double lo, double hi) const {
        const Integral found = integral(lo, hi);
        return found.outcome != Refinement::undecided ? found : certain(lo, hi);
    }

  private:
    GridSum(EllipseSpeed speed, double halfFirst, double halfSecond, double a, double b);
    struct Grid {
        double lo;
        double h; ///< degrees
        double at(std::int64_t i) const { return lo + static_cast<double>(i) * h; }
    };
    struct Refined {
        Integral integral;
        bool isPrecise; ///< enough for the last pass
    };
    double roundings(double lo, double hi, std::int64_t n, double value) const;
    template <class Pass> Refined refined(double lo, double hi, Pass pass) const;
    std::int64_t stepsToClear(double deg, double h) const;
    Bounded passOverTips(double lo, double hi, std::int64_t n) const;
    double sample(double deg) const;
    double correction(const Offset &at, double h) const;
    double trapezoidsOfSamples(const Grid &grid, std::int64_t from, std::int64_t to) const;
    double smooth(const Grid &grid, std::int64_t from, std::int64_t to) const;
    double trapezoids(const Grid &grid, std::int64_t n) const;
    double simpsonOfSamples(double lo, double hi, std::int64_t n) const;

    double halfFirst_;
    double halfSecond_;
    double longer_;
    UnitSpeed unit_;
    double scale_;  ///< of the speed
    double endDeg_; ///< an end of the longer axis
};

} // namespace planegeo
