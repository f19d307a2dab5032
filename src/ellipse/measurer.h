/// Integrals over ranges as the measuring functions ask for them.
#pragma once

#include <optional>

#include "ellipse/grid_sum.h"
#include "ellipse/simpson.h"
#include "planegeo.h"

namespace planegeo {

/// A range of degrees and the integral over it.
struct Measured {
    double lo;
    double hi;
    Integral integral;
};

/// Those of a host's integrand over samples; those of the library's own, whose samples nobody can
/// count, by passes without samples at first and on demand by sums that decide.
class Measurer {
  public:
    explicit Measurer(PLANEGEO_INTEGRAND integrand) : integrand_(integrand) {}
    Measurer(EllipseSpeed speed, double halfFirst, double halfSecond)
        : sum_(std::in_place, speed, halfFirst, halfSecond) {}

    Measured operator()(double lo, double hi);
    void makeCertain(Measured &m);
    /// Whether so many sums that decide took so long that a search had better end.
    bool hasSummedEnough() const;

    /// What the integrand does not exceed; infinite for a host's own.
    double highest() const;
    /// The library's own integrand, nothing for a host's.
    const std::optional<GridSum> &own() const { return sum_; }

  private:
    Integral summed(double lo, double hi);

    PLANEGEO_INTEGRAND integrand_ = nullptr;
    std::optional<GridSum> sum_;
    std::int64_t summedSamples_ = 0;
    int sums_ = 0;
};

} // namespace planegeo
