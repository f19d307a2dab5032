// One real root by Newton's method.

#include <limits>

#include "polynomial.h"

using namespace support;

namespace {

int32_t newton(const std::vector<double> &c, double &x) {
    x = kUntouched;
    return amaNewtonRaphson(c.data(), static_cast<int32_t>(c.size()) - 1, &x);
}

} // namespace

TEST(Newton, findsARootFromTheMeanOfTheCoefficients) {
    struct {
        const char *about;
        std::vector<double> c;
        int32_t want;
        double root;
    } const cases[] = {
        {"from 1 to 2", {1, 0, -4}, 0, 2},
        {"the nearest of three", {1, -6, 11, -6}, 0, 1},
        {"slope 0: a second-order step to the right",
         {-8, 9, 0, -1},
         0,
         (1 + std::sqrt(33.0)) / 16},
        {"slope 0 and no such step: the stationary point, not a root", {-2, 1, 0, 1}, 0, 0},
        {"slope 0 on a root", {1, -1, 0, 0}, 0, 0},
    };
    for (const auto &c : cases) {
        double x;
        EXPECT_EQ(newton(c.c, x), c.want) << c.about;
        EXPECT_NEAR(x, c.root, 8 * kEpsilon) << c.about;
    }
}

TEST(Newton, measuresStepsAgainstTheLargestCoefficient) {
    double x;
    EXPECT_EQ(newton({1, 0, 0, -1e30}, x), 0); // the root is 1e10, a step of 1e14 small enough
    EXPECT_GT(x, 1e13);
}

// Steps about this root go to and fro and never get tiny: the first small one was the last then, as
// it falls short of the root by more than rounding and by less than 1e-6.
TEST(Newton, fallsBackOnTheFirstSmallStep) {
    double x;
    EXPECT_EQ(newton({1, 5, 4, -5}, x), 0);
    const double error = std::fabs(x - -2.2738905549642174);
    EXPECT_GT(error, 1e-12);
    EXPECT_LT(error, 1e-11);
}

TEST(Newton, leavesTheLastIterateWhereItFails) {
    double x;
    EXPECT_EQ(newton({1, 0, 1}, x), -2);
    EXPECT_TRUE(std::isfinite(x) && x != kUntouched);
    EXPECT_EQ(newton({1, 0, kNaN}, x), -2);
    EXPECT_TRUE(std::isnan(x));
}

TEST(Newton, refusesDegreesAndLeadsWithoutTouchingTheOutput) {
    const double c[] = {0.0, 1.0, 2.0};
    for (const int32_t n : {2, 1, 0, -1, 201, std::numeric_limits<int32_t>::max(),
                            std::numeric_limits<int32_t>::min()}) {
        double x = kUntouched;
        EXPECT_EQ(amaNewtonRaphson(n == 2 ? c : c + 1, n, &x), -1) << n;
        EXPECT_EQ(x, kUntouched) << n;
    }
}
