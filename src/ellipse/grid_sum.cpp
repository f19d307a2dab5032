// The Simpson rule over a range of an ellipse: by passes that have no samples, by trapezoid sums
// that have few, and by all of them.

#include "ellipse/grid_sum.h"

#include <algorithm>
#include <array>

#include "ellipse/simpson_passes.h"
#include "ellipse/speed.h"

namespace planegeo {

namespace {

/// Farther limits would make the rounding of a sample's angle the larger error.
constexpr double kFarthestLimitDeg = 1000000.0;
/// A sum known to less of its value is not told.
constexpr double kPrecise = 0x1p-43;
/// A longer integral is not accepted at once, nor does rounding below keep it from settling.
constexpr double kClearlyLong = 4.0 * kSettledIntegral;
constexpr double kClearRounding = 0.25 * kSettledIntegral;
/// Of what settles, the least that a first pass is told to.
constexpr double kRough = 0x1p-10;

/// So many steps from a singularity the first term left out is below B_14 / 14 10^-13 of a sample.
constexpr double kFarSteps = 10.0;
/// So many steps of the Simpson rule, whose coarser sum has twice as long ones.
constexpr double kClearSteps = 14.0;
/// Passes of so many steps are cheap enough to be summed sample by sample, which decides as the
/// plain steps do where rounding does.
constexpr std::int64_t kMostSampledSteps = 2048;
/// Steps end at kSmallestStepDeg long before.
constexpr std::int64_t kNoLongestPass = std::int64_t{1} << 40;
/// B_2k / (2k)!, k = 1 to 6.
constexpr std::array<double, kCorrections> kBernoulliFactors = {
    1.0 / 12.0,       -1.0 / 720.0,     1.0 / 30240.0,
    -1.0 / 1209600.0, 1.0 / 47900160.0, -691.0 / 1307674368000.0};

} // namespace

GridSum::GridSum(EllipseSpeed speed, double halfFirst, double halfSecond)
    : GridSum(speed, halfFirst, halfSecond, std::fabs(halfFirst), std::fabs(halfSecond)) {}

GridSum::GridSum(EllipseSpeed speed, double halfFirst, double halfSecond, double a, double b)
    : halfFirst_(halfFirst), halfSecond_(halfSecond), longer_(std::max(a, b)),
      unit_(speed, std::min(b, a) / longer_), // in these orders NaN for either being NaN
      scale_(speed == EllipseSpeed::arc ? longer_ : longer_ * longer_),
      endDeg_(a >= b ? 0.0 : 90.0) {}

bool GridSum::isSized() const {
    return unit_.b() * longer_ >= kLeastHalfAxis && longer_ <= kGreatestHalfAxis;
}

double GridSum::sample(double deg) const {
    if (unit_.kind() == EllipseSpeed::arc) return ArcSpeed::of(halfFirst_, halfSecond_)(deg);
    return SectorSpeed::of(halfFirst_, halfSecond_)(deg);
}

/// What a sum that starts or ends at an angle has beside the integral.
double GridSum::correction(const Offset &at, double h) const {
    const OddDerivatives f = unit_.derivatives(at.turn, kCorrections);
    const double step2 = h * h * (kRadPerDeg * kRadPerDeg);
    double sum = 0.0;
    for (std::size_t k = kCorrections; k > 0; --k) {
        sum = (sum + kBernoulliFactors[k - 1] * f[k - 1]) * step2;
    }
    return sum;
}

double GridSum::smooth(const Grid &grid, std::int64_t from, std::int64_t to) const {
    if (from == to) return 0.0;
    const Offset start = Offset::ofDegrees(grid.at(from) - endDeg_);
    const Offset end = Offset::ofDegrees(grid.at(to) - endDeg_);
    return scale_ * (unit_.integralBetween(start, end) +
                     (correction(end, grid.h) - correction(start, grid.h)));
}

double GridSum::trapezoidsOfSamples(const Grid &grid, std::int64_t from, std::int64_t to) const {
    if (from == to) return 0.0;
    double sum = 0.5 * (sample(grid.at(from)) + sample(grid.at(to)));
    for (std::int64_t i = from + 1; i < to; ++i) {
        sum += sample(grid.at(i));
    }
    return sum * (grid.h * kRadPerDeg);
}

double GridSum::trapezoids(const Grid &grid, std::int64_t n) const {
    const double nearDeg = kFarSteps * grid.h;
    if (unit_.b() * kDegPerRad >= nearDeg) return smooth(grid, 0, n);
    double sum = 0.0;
    std::int64_t done = 0;
    double end = endDeg_ + 180.0 * std::ceil((grid.lo - nearDeg - endDeg_) / 180.0);
    for (; end - nearDeg < grid.at(n); end += 180.0) {
        const auto index = [&](double steps) {
            return std::clamp(static_cast<std::int64_t>(steps), done, n);
        };
        const std::int64_t from = index(std::floor((end - nearDeg - grid.lo) / grid.h));
        const std::int64_t to = index(std::ceil((end + nearDeg - grid.lo) / grid.h));
        sum += smooth(grid, done, from) + trapezoidsOfSamples(grid, from, to);
        done = to;
    }
    return sum + smooth(grid, done, n);
}

double GridSum::simpsonOfSamples(double lo, double hi, std::int64_t n) const {
    const double h = (hi - lo) / static_cast<double>(n);
    double sum = 0.0;
    for (std::int64_t i = 1; i < n; ++i) {
        sum += (i % 2 == 1 ? 4.0 : 2.0) * sample(lo + static_cast<double>(i) * h);
    }
    return (sample(lo) + sample(hi) + sum) * h * kPi / 540.0; // h / 3 in radians
}

/// An even number of steps from an end of a range, `deg` off a tip on the way in, until the
/// expansions do: so many steps from the singularities all terms left out are some roundings.
std::int64_t GridSum::stepsToClear(double deg, double h) const {
    const double far = kClearSteps * h;
    const double flank = unit_.b() * kDegPerRad;
    if (flank >= far) return 0;
    const double clear = std::sqrt((far - flank) * (far + flank));
    if (std::fabs(deg) >= clear) return 0;
    return 2 * static_cast<std::int64_t>(std::ceil((clear - deg) / (2.0 * h)));
}

/// A pass with samples where an end is near to a tip.
Bounded GridSum::passOverTips(double lo, double hi, std::int64_t n) const {
    const double h = (hi - lo) / static_cast<double>(n);
    const std::int64_t first = stepsToClear(Offset::ofDegrees(lo - endDeg_).deg, h);
    const std::int64_t last = stepsToClear(-Offset::ofDegrees(hi - endDeg_).deg, h);
    if (first + last >= n) return {simpsonOfSamples(lo, hi, n), 0.0};
    const double from = lo + static_cast<double>(first) * h;
    const double to = hi - static_cast<double>(last) * h;
    const Bounded middle = SimpsonPasses(unit_, from - endDeg_, to - endDeg_)(h, kUnitRoundoff);
    double value = scale_ * middle.value;
    if (first > 0) value += simpsonOfSamples(lo, from, first);
    if (last > 0) value += simpsonOfSamples(to, hi, last);
    return {value, scale_ * middle.uncertainty};
}

/// The sum over samples has n of its value for the additions, none of its terms being negative; and
/// for a term some 64, 32T for its angle, T being the larger limit. No speed of the unit ellipse
/// exceeds 1, nor does it change by more in a half turn.
double GridSum::roundings(double lo, double hi, std::int64_t n, double value) const {
    const double farthest = (std::fabs(lo) + std::fabs(hi)) * kRadPerDeg;
    const double ofTerms = (64.0 + 32.0 * farthest) * ((hi - lo) * kRadPerDeg + 4.0);
    return kUnitRoundoff * (static_cast<double>(n) * value + scale_ * ofTerms);
}

template <class Pass> GridSum::Refined GridSum::refined(double lo, double hi, Pass pass) const {
    const double span = hi - lo;
    Bounded last = {0.0, 0.0};
    bool isPrecise = true;
    const Integral found = refine(span, kNoLongestPass, [&](std::int64_t n) -> SimpsonSum {
        last = pass(n);
        isPrecise = last.uncertainty <= kPrecise * last.value;
        return {last.value, roundings(lo, hi, n, last.value) + last.uncertainty};
    });
    return {isPrecise ? found : Integral{Refinement::undecided}, isPrecise};
}

Integral GridSum::integral(double lo, double hi) const {
    const double span = hi - lo;
    const bool isNear = std::fabs(lo) <= kFarthestLimitDeg && std::fabs(hi) <= kFarthestLimitDeg;
    const bool isLong = span > kShortestRangeDeg;
    if (!(unit_.b() >= kThinnestPasses && isLong && isNear && isSized())) {
        return {Refinement::undecided};
    }
    SimpsonPasses passes(unit_, lo - endDeg_, hi - endDeg_);
    const std::int64_t first = evenIntervals(span);
    const double secondStep = span / static_cast<double>(2 * first);
    const double value = scale_ * passes.integral();
    if (passes.isIntegral(secondStep) && value > kClearlyLong) {
        // The second pass settles, or else the third at the same value.
        const double rounding = roundings(lo, hi, 2 * first, value);
        if (rounding < kClearRounding) return {Refinement::done, value, rounding, 0, 3 * first};
    }
    // The first pass only serves to see whether the second settles.
    const double rough = std::fmax(kRough * kSettledIntegral / scale_, kUnitRoundoff);
    const Refined bare = refined(lo, hi, [&](std::int64_t n) -> Bounded {
        const Bounded sum =
            passes(span / static_cast<double>(n), n == first ? rough : kUnitRoundoff);
        return {scale_ * sum.value, scale_ * sum.uncertainty};
    });
    if (bare.isPrecise) return bare.integral;
    return refined(lo, hi, [&](std::int64_t n) { return passOverTips(lo, hi, n); }).integral;
}

Integral GridSum::certain(double lo, double hi) const {
    const double span = hi - lo;
    if (!takes(span)) return {Refinement::outOfIntervals};
    const double start = std::fmod(lo, 360.0);
    const auto trapezoidsOf = [&](std::int64_t n) {
        return trapezoids({start, span / static_cast<double>(n)}, n);
    };
    double last = sample(lo);
    std::int64_t coarseCount = 0;
    double coarse = 0.0;
    return refine(span, kNoLongestPass, [&](std::int64_t n) -> SimpsonSum {
        if (!std::isfinite(last)) return {last, 0.0}; // more samples do not mend it
        if (n <= kMostSampledSteps) return {last = simpsonOfSamples(lo, hi, n), 0.0};
        if (coarseCount != n / 2) coarse = trapezoidsOf(n / 2);
        const double fine = trapezoidsOf(n);
        last = (4.0 * fine - coarse) / 3.0;
        coarse = fine;
        coarseCount = n;
        return {last, 0.0};
    });
}

} // namespace planegeo
