// Integrals of the host's integrand and of the library's own.

#include "ellipse/measurer.h"

#include <limits>

namespace planegeo {

namespace {

/// The largest interval count whose double is still a 32-bit count.
constexpr std::int64_t kLongestPass = 1073741823;
/// A search gives up after so many sums around an ellipse (see GridSum) with so many samples in the
/// plain steps: some hundredths of a second.
constexpr std::int64_t kMostSummedSamples = std::int64_t{1} << 24;
constexpr int kFewSums = 192;
/// Whole turns are taken off a limit of the library's own integrands that lies farther.
constexpr double kFarLimitDeg = 36000.0;

Integral sampled(PLANEGEO_INTEGRAND integrand, double lo, double hi) {
    const auto sample = [integrand](double deg, double &value) { return integrand(deg, &value); };
    return sampledIntegral(sample, lo, hi, kLongestPass);
}

} // namespace

Measured Measurer::operator()(double lo, double hi) {
    if (!sum_) return {lo, hi, sampled(integrand_, lo, hi)};
    const double span = hi - lo;
    if (!sum_->takes(span)) return {lo, hi, {Refinement::outOfIntervals}};
    if (std::fabs(lo) > kFarLimitDeg) {
        lo = std::fmod(lo, 360.0);
        hi = lo + span;
    }
    const Integral byPasses = sum_->integral(lo, hi);
    if (byPasses.outcome != Refinement::undecided) return {lo, hi, byPasses};
    return {lo, hi, summed(lo, hi)};
}

void Measurer::makeCertain(Measured &m) {
    if (m.integral.uncertainty > 0.0) m.integral = summed(m.lo, m.hi);
}

bool Measurer::hasSummedEnough() const {
    return summedSamples_ >= kMostSummedSamples && sums_ >= kFewSums;
}

double Measurer::highest() const {
    return sum_ ? sum_->highest() : std::numeric_limits<double>::infinity();
}

Integral Measurer::summed(double lo, double hi) {
    const Integral found = sum_->certain(lo, hi);
    summedSamples_ += found.samples;
    ++sums_;
    return found;
}

} // namespace planegeo
