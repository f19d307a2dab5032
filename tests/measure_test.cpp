// Length and area by the Simpson rule: which points are asked, what is answered, how it ends.

#include <algorithm>
#include <functional>
#include <vector>

#include "plain_measure.h"
#include "support.h"

namespace {

using namespace support;

/// The integrand of these tests: what it answers, and where it was asked.
struct Probe {
    std::function<int32_t(double, double *)> answer;
    std::vector<double> asked;
    std::size_t count = 0;
    bool keeps = true;
};
Probe probe;

int32_t probed(double deg, double *value) {
    if (probe.keeps) probe.asked.push_back(deg);
    ++probe.count;
    return probe.answer(deg, value);
}

PLANEGEO_INTEGRAND answering(const std::function<double(double)> &value) {
    probe = {[value](double deg, double *out) { return *out = value(deg), 0; }, {}};
    return probed;
}
PLANEGEO_INTEGRAND failingAt(double where, int32_t code) {
    probe = {[=](double deg, double *out) { return *out = 1.0, deg == where ? code : 0; }, {}};
    return probed;
}

DTELLIPSE arc(double a, double b, double start, double end) {
    return {0, 3.0, -2.0, a, b, start, end, 25.0};
}
double measured(const DTELLIPSE &e) {
    const HalfAxesGuard axes(e.a / 2, e.b / 2);
    double length = kUntouched;
    EXPECT_EQ(ca_ElpLen(&e, &length), 0);
    return length;
}

TEST(Integrand, speedAndSector) {
    const HalfAxesGuard axes(3.0, 2.0);
    double value = kUntouched;
    EXPECT_EQ(ca_lengelp(0.0, &value), 0);
    EXPECT_DOUBLE_EQ(value, 2.0) << "at the first axis the point moves along the second";
    EXPECT_EQ(ca_lengelp(90.0, &value), 0);
    EXPECT_DOUBLE_EQ(value, 3.0);
    EXPECT_EQ(ca_AreaElp(0.0, &value), 0);
    EXPECT_DOUBLE_EQ(value, 4.5) << "half the square of the half axis under the ray";
    EXPECT_EQ(ca_AreaElp(90.0, &value), 0);
    EXPECT_DOUBLE_EQ(value, 2.0);
}

TEST(Simpson, asksTheEndsThenThePointsOfEachPass) {
    double result = kUntouched;
    EXPECT_EQ(ca_Simpson(answering([](double) { return 2.0; }), 10.0, 12.5, &result), 0);
    EXPECT_NEAR(result, 5.0 * kRadPerDeg, 1e-15);
    const std::vector<double> want = {10.0,   12.5,    10.625, 11.25,   11.875, 10.3125,
                                      10.625, 10.9375, 11.25,  11.5625, 11.875, 12.1875};
    EXPECT_EQ(probe.asked, want) << "2.5 degrees: at least 4 intervals, then twice as many";
}

struct CountCase {
    const char *about;
    double lo, hi;
    std::function<double(double)> value;
    int32_t code;
    double result;
    std::size_t calls;
};

TEST(Simpson, counts) {
    const auto one = [](double) { return 1.0; };
    const CountCase cases[] = {
        {"lower above upper asks nobody", 2, 1, one, -1, 0, 0},
        {"equal limits ask both ends", 7, 7, one, 0, 0, 2},
        {"half of 0.004 degrees is nothing", 0, 0.002, one, 0, 0, 2},
        {"twice 0.004 degrees is measured", 0, 0.008, [](double) { return 1e9; }, 0,
         1e9 * 0.008 * kRadPerDeg, 2 + 3 + 7},
        {"a first sum of half 1e-6 is accepted at once", 0, 10,
         [](double) { return 0.5e-6 / (10 * kRadPerDeg); }, 0, 0.5e-6, 2 + 9},
        {"one of twice 1e-6 is not", 0, 10, [](double) { return 2e-6 / (10 * kRadPerDeg); }, 0,
         2e-6, 2 + 9 + 19},
        {"an odd count is raised", 0, 5.9, one, 0, 5.9 * kRadPerDeg, 2 + 5 + 11},
        {"NaN ends by the step limit", 0, 5, [](double) { return kNaN; }, 0, kNaN,
         2 + 6 * 1023 - 10},
        {"more degrees than intervals", 0, 3e9, one, -2, 0, 2},
        {"an infinite range", 0, kInfinity, one, -2, 0, 2},
        {"a NaN limit", kNaN, 1, one, -2, 0, 2},
    };
    for (const CountCase &c : cases) {
        SCOPED_TRACE(c.about);
        double result = kUntouched;
        EXPECT_EQ(ca_Simpson(answering(c.value), c.lo, c.hi, &result), c.code);
        EXPECT_TRUE(std::isnan(c.result) ? std::isnan(result)
                                         : std::fabs(result - c.result) <= 1e-12 * c.result);
        EXPECT_EQ(probe.count, c.calls);
    }
}

TEST(Simpson, theIntegrandsCodeEndsIt) {
    double result = kUntouched;
    EXPECT_EQ(ca_Simpson(failingAt(1.0, 7), 1.0, 9.0, &result), 7);
    EXPECT_EQ(probe.count, 1u) << "the upper end is not asked after the lower has failed";
    EXPECT_EQ(ca_Simpson(failingAt(9.0, -2), 1.0, 9.0, &result), -2);
    EXPECT_EQ(probe.count, 2u);
    EXPECT_EQ(ca_Simpson(failingAt(1.5, 9), 1.0, 9.0, &result), 9);
    EXPECT_EQ(probe.count, 2u + 7u + 1u) << "the first new point of the second pass";
    EXPECT_EQ(result, 0.0);
}

TEST(Simpson, knownIntegrals) {
    const HalfAxesGuard axes(5.0, 3.0);
    double result;
    EXPECT_EQ(ca_Simpson(ca_lengelp, 0.0, 360.0, &result), 0);
    EXPECT_NEAR(result, 4.0 * 5.0 * std::comp_ellint_2(0.8), 1e-6);
    EXPECT_EQ(ca_Simpson(ca_AreaElp, 0.0, 360.0, &result), 0);
    EXPECT_NEAR(result, 15.0 * kPi, 1e-6);
    EXPECT_EQ(ca_Simpson(ca_lengelp, 90.0 - 40.0, 90.0, &result), 0);
    EXPECT_NEAR(result, 5.0 * std::ellint_2(0.8, 40.0 * kRadPerDeg), 1e-6);
    EXPECT_EQ(ca_Simpson(ca_AreaElp, -20.0, 40.0, &result), 0);
    const auto swept = [](double deg) { // A B / 2 times the parameter of the polar angle
        return 7.5 * std::atan2(5.0 * std::sin(deg * kRadPerDeg), 3.0 * std::cos(deg * kRadPerDeg));
    };
    EXPECT_NEAR(result, swept(40.0) - swept(-20.0), 1e-6);
}

TEST(Simpson, ownIntegrandsHaveALongestRange) {
    double result;
    for (const PLANEGEO_INTEGRAND own : {ca_lengelp, ca_AreaElp}) {
        const HalfAxesGuard round(4.0, 1.0);
        EXPECT_EQ(ca_Simpson(own, 0.0, 36000.0, &result), 0);
        EXPECT_EQ(ca_Simpson(own, 0.0, 36001.0, &result), -2);
        const HalfAxesGuard thin(1.0, 4.1);
        EXPECT_EQ(ca_Simpson(own, 0.0, 1440.0, &result), 0);
        EXPECT_EQ(ca_Simpson(own, 0.0, 1441.0, &result), -2);
        EXPECT_EQ(result, 0.0);
    }
}

// Without a second axis the speed has no series, nor with one that is lost beside the first.
TEST(Simpson, samplesTheLibrarysIntegrandsOverAFewTurnsOnly) {
    for (const double second : {0.0, 1e-18}) {
        const HalfAxesGuard axes(100.0, second);
        double result = kUntouched;
        EXPECT_EQ(ca_Simpson(ca_lengelp, -256.0, 256.0, &result), 0);
        EXPECT_NEAR(result, 400.0 + 200.0 * (1.0 - std::cos(76.0 * kRadPerDeg)), 1e-5);
        EXPECT_EQ(ca_Simpson(ca_lengelp, 0.0, 1e8, &result), -2);
        EXPECT_EQ(result, 0.0);
        double lo = 0.0, hi = 1e5;
        EXPECT_EQ(ca_Simpson2(ca_lengelp, &lo, &hi, 1000.0, 1), -1);
        EXPECT_EQ(hi, 1e5);
    }
}

// Axes whose lengths are too long for the series to tell them to 1e-6.
TEST(Simpson2, givesUpALongWalkOfFineRangesOnly) {
    const HalfAxesGuard axes(137.0, 450.0);
    double lo = 0.0, hi = 36000.0;
    EXPECT_EQ(ca_Simpson2(ca_lengelp, &lo, &hi, 1.0, 1), -1);
    EXPECT_EQ(hi, 36000.0);
    hi = 2000.0;
    EXPECT_EQ(ca_Simpson2(ca_lengelp, &lo, &hi, 1.0, 1), 0);
    EXPECT_NEAR(hi, 1.0 / 450.0 / kRadPerDeg, 1e-4);
}

struct SearchCase {
    const char *about;
    double lo, hi, wanted;
    int32_t which;
    std::function<double(double)> value;
    int32_t code;
    double limit; ///< of the moved end
};

TEST(LimitSearch, movesOneEnd) {
    const auto degree = [](double) { return 1.0 / kRadPerDeg; }; // integrals in degrees
    const auto nan = [](double) { return kNaN; };
    const SearchCase cases[] = {
        {"shrinks the end", 0, 90, 45, 1, degree, 0, 45},
        {"any other value moves the end", 0, 90, 45, -3, degree, 0, 45},
        {"shrinks the start", 0, 90, 45, 0, degree, 0, 45},
        {"stretches the end past a turn", 0, 90, 405, 1, degree, 0, 405},
        {"stretches the start below 0", 10, 20, 100, 0, degree, 0, -80},
        {"half of 1e-6 off is there", 0, 10, 10.0 + 0.5e-6, 1, degree, 0, 10},
        {"an empty range is a wanted 0", 5, 4, 0.5e-6, 1, degree, 0, 4},
        {"a negative length stalls", 0, 30, -1, 1, degree, -1, 0},
        {"NaN is never reached", 0, 30, kNaN, 1, degree, -1, 0},
        {"nothing to integrate", 0, 30, 1, 1, [](double) { return 0.0; }, -1, 0},
        {"a NaN integrand ends", 0, 30, 1, 1, nan, -1, 0},
        {"a NaN integrand ends below 0", 0, 30, -1, 0, nan, -1, 0},
        {"a NaN shrinks past it", 0, 120, 20, 1,
         [](double deg) { return deg > 60 ? kNaN : 1.0 / kRadPerDeg; }, 0, 20},
        {"an infinite range stalls", 0, kInfinity, 1, 1, degree, -1, 0},
        {"not settled is 0, and remembered", 0, kInfinity, 0.5e-6, 1, degree, -2, kInfinity},
    };
    for (const SearchCase &c : cases) {
        SCOPED_TRACE(c.about);
        double lo = c.lo, hi = c.hi;
        const PLANEGEO_INTEGRAND integrand = answering(c.value);
        probe.keeps = false;
        EXPECT_EQ(ca_Simpson2(integrand, &lo, &hi, c.wanted, c.which), c.code);
        const bool found = c.code != -1;
        const double wantLo = found && c.which == 0 ? c.limit : c.lo;
        const double wantHi = found && c.which != 0 ? c.limit : c.hi;
        EXPECT_NEAR(lo, wantLo, 1e-6);
        EXPECT_TRUE(hi == wantHi || std::fabs(hi - wantHi) <= 1e-6) << hi;
        EXPECT_TRUE(hi == c.hi || (found && c.which != 0));
        EXPECT_TRUE(lo == c.lo || (found && c.which == 0));
    }
    double lo = 0.0, hi = 90.0;
    EXPECT_EQ(ca_Simpson2(failingAt(90.0, 5), &lo, &hi, 1.0, 1), 5);
    EXPECT_EQ(hi, 90.0);
}

int32_t one(double, double *value) { return *value = 1.0, 0; }

TEST(LimitSearch, aLengthOutOfReachEnds) {
    struct Case {
        PLANEGEO_INTEGRAND integrand;
        double axes, wanted;
    };
    for (const Case &c :
         {Case{one, 0.0, kInfinity}, Case{one, 0.0, 1e12}, Case{ca_lengelp, 1.0, 1e12},
          Case{ca_lengelp, 1e-3, 5.0}, Case{ca_AreaElp, 1e-3, 1.0}, Case{ca_lengelp, 0.0, 1.0}}) {
        const HalfAxesGuard axes(c.axes, 0.5 * c.axes);
        double lo = 0.0, hi = 30.0;
        EXPECT_EQ(ca_Simpson2(c.integrand, &lo, &hi, c.wanted, 1), -1);
        EXPECT_EQ(hi, 30.0);
    }
    const HalfAxesGuard axes(1.0, 1.0); // within reach, thirty turns away
    double lo = 0.0, hi = 30.0;
    EXPECT_EQ(ca_Simpson2(ca_lengelp, &lo, &hi, 10800.0 * kRadPerDeg, 1), 0);
    EXPECT_NEAR(hi, 10800.0, 1e-6 / kRadPerDeg);
}

TEST(LimitSearch, stepsOfTheSearch) {
    const auto degree = [](double) { return 1.0 / kRadPerDeg; };
    double lo = 0.0, hi = 20.0;
    EXPECT_EQ(ca_Simpson2(answering(degree), &lo, &hi, 27.5, 1), 0);
    std::vector<double> ends;
    for (std::size_t i = 1; i < probe.asked.size(); ++i) {
        if (probe.asked[i - 1] == 0.0) ends.push_back(probe.asked[i]);
    }
    EXPECT_EQ(ends, (std::vector<double>{20.0, 25.0, 30.0, 27.5}))
        << "the first stretch is of 5, the next keeps it, the shrink halves it";
    lo = 0.0, hi = 50.0;
    EXPECT_EQ(ca_Simpson2(answering(degree), &lo, &hi, 35.0, 1), 0);
    EXPECT_EQ(hi, 35.0) << "40, 30 by steps of 10, then 35";
    lo = 1000.0, hi = 0.0;
    EXPECT_EQ(ca_Simpson2(failingAt(-1.0, 0), &lo, &hi, 1.0, 1), -1) << "an empty range";
    EXPECT_EQ(probe.count, 2u * 10u) << "ten rounds of nothing, both ends asked in each";
    lo = -40.0, hi = 40.0;
    EXPECT_EQ(
        ca_Simpson2(answering([](double t) { return std::exp(-0.01 * t * t); }), &lo, &hi, 1.0, 1),
        -1);
    EXPECT_EQ(std::count(probe.asked.begin(), probe.asked.end(), -40.0), 11)
        << "one round, and ten without progress";
    lo = 0.0, hi = 0.0; // 0.004 degrees have 7e-5, less have nothing
    EXPECT_EQ(ca_Simpson2(answering([](double) { return 1.0; }), &lo, &hi, 1e-5, 1), -1);
    EXPECT_EQ(std::count(probe.asked.begin(), probe.asked.end(), probe.asked.back()), 11)
        << "one round more than nothing, and ten of an end that no longer moves";
}

TEST(Length, knownArcs) {
    EXPECT_NEAR(measured(arc(10, 6, 0, 360)), 20.0 * std::comp_ellint_2(0.8), 1e-6);
    EXPECT_NEAR(measured(arc(10, 6, 0, 90)), 5.0 * std::comp_ellint_2(0.8), 1e-6);
    EXPECT_NEAR(measured(arc(6, 6, 30, 100)), 3.0 * 70.0 * kRadPerDeg, 1e-12);
    EXPECT_NEAR(measured(arc(6, 6, 300, 40)), 3.0 * 100.0 * kRadPerDeg, 1e-12);
    EXPECT_EQ(measured(arc(10, 6, 50, 50)), 0.0) << "equal ends are no whole turn here";
    EXPECT_EQ(measured(arc(10, 6, 0, 0.002)), 0.0);
    EXPECT_EQ(measured(arc(0, 0, 0, 360)), 0.0);
    const double degree = kRadPerDeg, half = std::atan2(3.0, 5.0) / degree;
    const double want =
        plain::simpson([](double t) { return plain::speed(5, 3, t); }, 0, half).value;
    EXPECT_NEAR(measured(arc(10, 6, 0, 45)), want, 1e-13) << "polar limits, not 45 degrees";
}

TEST(Length, aWholeTurnIsWrittenFromZero) {
    for (const auto &[a, b] : {std::pair{10.0, 1e-5},
                               {1e-7, 10.0},
                               {10.0, -6.0},
                               {-10.0, 6.0},
                               {10.0, 0.0},
                               {1e-300, 1e-300}}) {
        const DTELLIPSE e = arc(a, b, 0, 360);
        EXPECT_NEAR(measured(e), plain::length(e, a / 2, b / 2), 1e-10) << a << " " << b;
    }
    const double whole = 20.0 * std::comp_ellint_2(0.8);
    EXPECT_NEAR(measured(arc(10, 6, 0, 359.9999995)), whole, 1e-5);
    for (int i = 0; i < 18; ++i) {
        const double start = 10.0 + 20.0 * i;
        const double length = measured(arc(10, 6, start, start + 360.0));
        EXPECT_TRUE(length == 0.0 || std::fabs(length - whole) < 1e-6) << start;
    }
}

TEST(LengthTo, movesAndNormalises) {
    const HalfAxesGuard axes(1.0, 1.0);
    DTELLIPSE e = arc(2, 2, 0, 90);
    EXPECT_EQ(ca_ElpLen2(&e, kPi / 4, 1), 0);
    EXPECT_EQ(e.start, 0.0);
    EXPECT_NEAR(e.end, 45.0, 1e-6 / kRadPerDeg);
    e = arc(2, 2, 10, 20);
    EXPECT_EQ(ca_ElpLen2(&e, 50.0 * kRadPerDeg, 0), 0);
    EXPECT_NEAR(e.start, -30.0, 1e-6 / kRadPerDeg) << "330 to 20, written as a crossing of 0";
    EXPECT_EQ(e.end, 20.0);
    e = arc(2, 2, 10, 20);
    EXPECT_EQ(ca_ElpLen2(&e, 2.0 * kPi, 1), 0);
    EXPECT_EQ(e.end, 360.0) << "a whole turn becomes (0, 360), and of it only the end is stored";
    EXPECT_EQ(e.start, 10.0);
    const DTELLIPSE before = e;
    EXPECT_EQ(ca_ElpLen2(&e, -5.0, 1), -1);
    EXPECT_EQ(ca_ElpLen2(&e, 1e300, 0), -1);
    EXPECT_EQ(e.start, before.start);
    EXPECT_EQ(e.end, before.end);
}

} // namespace
