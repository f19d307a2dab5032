/// The running sum by which an arc is divided, without its terms.
#pragma once

#include <cstdint>
#include <optional>

#include "ellipse/grid_sum.h"
#include "ellipse/speed.h"

namespace planegeo {

/// An arc cut into `count` steps of h degrees: samples at start + i h.
struct Steps {
    double start;
    double end;
    std::int64_t count;
    double h;

    double at(std::int64_t i) const { return start + static_cast<double>(i) * h; }
    /// Of an interior sample in the Simpson rule.
    static double weight(std::int64_t i) { return i % 2 == 1 ? 4.0 : 2.0; }
};

/// R(i) = h/3 (f(start) + f(end) + 4 f(t_1) + 2 f(t_2) + ... + w f(t_i)): both ends count from
/// the first step.
class RunningLength {
  public:
    RunningLength(const ArcSpeed &speed, const GridSum &length, const Steps &steps);

    /// The first interior step i with R(i) >= length. Nothing when no step reaches the length, or
    /// the search does not see it.
    ///
    /// Where R(i) equals the length to within the rounding of the sum taken step by step, it
    /// counts as reached. By symmetry that is so at half of a whole turn, and at every point of
    /// a circle; there the plain sum takes this step or the next as its rounding has it.
    std::optional<std::int64_t> firstReaching(double length) const;

  private:
    double at(std::int64_t i) const;
    double summand(std::int64_t i) const;
    double slack(std::int64_t i, double length) const;

    ArcSpeed speed_;
    Steps steps_;
    UnitSpeed unit_;
    double scale_;  ///< the longer half axis
    double endDeg_; ///< its end
    double third_;  ///< h / 3 in radians
    double base_ = 0.0;
};

} // namespace planegeo
