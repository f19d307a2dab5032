// All roots at once by the iteration of Durand and Kerner.

#include <limits>

#include "polynomial.h"

using namespace support;

namespace {

struct Answer {
    int32_t status;
    std::vector<double> c;
    std::vector<double> out;
};

Answer dka(const std::vector<double> &c, double eps, double maxiter) {
    Answer answer = {0, c, std::vector<double>(2 * (c.size() - 1), kUntouched)};
    const auto n = static_cast<int32_t>(c.size()) - 1;
    answer.status = amaDKA(answer.c.data(), n, eps, maxiter, answer.out.data());
    return answer;
}

double distanceTo(Root root, const std::vector<Root> &roots) {
    double nearest = kInfinity;
    for (const Root &other : roots) {
        nearest = std::min(nearest, std::abs(root - other));
    }
    return nearest;
}

} // namespace

TEST(DKA, findsAllRootsAndNormalisesTheCoefficientsInPlace) {
    const Answer got = dka({2, -12, 22, -12}, 1e-12, 500);
    EXPECT_EQ(got.status, 0);
    EXPECT_EQ(got.c, (std::vector<double>{2, -6, 11, -6}));
    for (const double root : {1.0, 2.0, 3.0}) {
        EXPECT_LE(distanceTo(root, pairs(got.out)), 100 * kEpsilon);
    }
    for (const Root &root : pairs(got.out)) {
        EXPECT_EQ(root.imag(), 0.0);
    }
}

TEST(DKA, startsOnACircleThatTheSecondCoefficientDoesNotWiden) {
    // R = 3 |8|^(1/3) = 6 over 3 |4|^(1/2) as well; a third of a turn apart, from a quarter of one.
    const Answer got = dka({1, 1e6, 4, 8}, 1e-12, -1);
    EXPECT_EQ(got.status, -1);
    for (int k = 0; k < 3; ++k) {
        const Root want = std::polar(6.0, (120.0 * k + 30.0) * kRadPerDeg);
        EXPECT_LE(std::abs(pairs(got.out)[static_cast<std::size_t>(k)] - want), 40 * kEpsilon) << k;
    }
}

TEST(DKA, succeedsWithoutConvergingWhenAnyRootLooksReal) {
    const std::vector<double> c = {1, 0, 0, 1, 1};
    EXPECT_EQ(dka(c, 1e-300, 500).status, -1);                // two pairs, and no residual so small
    EXPECT_EQ(dka({1, 0, 0, 0, -1}, 0x1p-900, 0).status, -1); // one sweep: nothing real yet
    const Answer wide = dka(c, 1e4, -1); // a bound whose root exceeds the circle
    EXPECT_EQ(wide.status, 0);
    EXPECT_EQ(wide.out[1], 0.0);
    EXPECT_NE(wide.out[0], 0.0);
}

TEST(DKA, makesOneSweepMoreThanItsBudgetSays) {
    const std::vector<double> c = {1, 0, -3, 1, -4};
    const auto none = dka(c, 1e-12, -0.5).out, one = dka(c, 1e-12, 0).out;
    EXPECT_NE(none, one);
    EXPECT_EQ(dka(c, 1e-12, 0.9).out, one);
    EXPECT_NE(dka(c, 1e-12, 1).out, one);
    EXPECT_EQ(dka(c, 1e-12, kNaN).out, none);
    EXPECT_EQ(dka(c, 1e-12, -kInfinity).out, none);
}

// Of x^2 + 1 the first values are 1 + 4i, whose modulus is 4.123.
TEST(DKA, measuresValuesByTheirModulus) {
    for (const double bound : {3.9, 4.01, 4.12, 4.13, 8.1}) {
        const bool isFirstSweepLast =
            dka({1, 0, 1}, bound, 500).out == dka({1, 0, 1}, bound, 0).out;
        EXPECT_EQ(isFirstSweepLast, bound > 4.125) << bound;
    }
}

TEST(DKA, answersForDegreesAtTheEnds) {
    EXPECT_EQ(dka({2, 3}, 1e-12, 500).out, (std::vector<double>{-1.5, 0}));
    EXPECT_EQ(dka({2, 3}, 1e-12, -1).out, (std::vector<double>{0, 0})); // the circle is a point
    EXPECT_EQ(dka({5}, 1e-12, 500).status, 0);
    EXPECT_EQ(dka({5}, 1e-12, -1).status, -1);
    EXPECT_EQ(dka({5}, 0, 500).status, -1);
    EXPECT_EQ(dka({0, 3}, 1e-12, 500).c, (std::vector<double>{0, 3}));
    EXPECT_EQ(dka({0, 3}, 1e-12, 500).status, -1);
    for (const int32_t n : {201, std::numeric_limits<int32_t>::max()}) {
        double c = 2.0, out = kUntouched;
        EXPECT_EQ(amaDKA(&c, n, 1e-12, 500, &out), -1) << n;
        EXPECT_EQ(out, kUntouched);
    }
    double c = 2.0, out = kUntouched;
    EXPECT_EQ(amaDKA(&c, std::numeric_limits<int32_t>::min(), 1e-12, 500, &out), 0);
    EXPECT_EQ(out, kUntouched);
}

TEST(DKA, countsNaNAsNoLargeValue) {
    for (const std::vector<double> &c : {std::vector<double>{1, 3, 0}, {1, 0, kNaN}}) {
        const Answer got = dka(c, 1e-12, 500);
        EXPECT_EQ(got.status, 0);
        EXPECT_TRUE(std::isnan(got.out[0]) && std::isnan(got.out[3]));
    }
}

// About 4, 2, 1, -5 the sweeps end in a period of two, never below a bound of zero.
TEST(DKA, carriesRootsThatRepeatToTheEndOfAnyBudget) {
    const auto c = polynomialOf({2, 4, 1, -5});
    const auto even = dka(c, 0.0, 2000).out, odd = dka(c, 0.0, 2001).out;
    ASSERT_NE(even, odd);
    EXPECT_EQ(dka(c, 0.0, 2002).out, even);
    EXPECT_EQ(dka(c, 0.0, 1e15).out, even);
    EXPECT_EQ(dka(c, 0.0, 1e15 + 1).out, odd);
    EXPECT_EQ(dka(c, 0.0, 1e300).out, dka(c, 0.0, kInfinity).out);
}

// A root of high multiplicity never settles: its sweeps wander among roundings.
TEST(DKA, endsAnUnsettledRunAtItsLimitOfSweeps) {
    const struct {
        std::vector<double> c;
        int limit; // sweeps, of which a budget makes one more
    } cases[] = {{polynomialOf(std::vector<Root>(19, 0.05)), 10'000'000 / (19 * 35)},
                 {polynomialOf(std::vector<Root>(130, 0.01)), 18'000'000 / (130 * 146)}};
    for (const auto &[c, limit] : cases) {
        const auto atLimit = dka(c, 0.0, limit - 1).out;
        ASSERT_NE(dka(c, 0.0, limit - 2).out, atLimit);
        EXPECT_EQ(dka(c, 0.0, limit).out, atLimit);
        EXPECT_EQ(dka(c, 0.0, kInfinity).out, atLimit);
    }
}

// x^120 - 1 needs some 740 sweeps; 10^7 products are 612.
TEST(DKA, leavesTheHighestDegreesTimeToConverge) {
    std::vector<double> c(121, 0.0);
    c.front() = 1;
    c.back() = -1;
    const Answer got = dka(c, 1e-12, kInfinity);
    EXPECT_EQ(got.status, 0);
    for (std::size_t k = 0; k < 120; ++k) {
        EXPECT_NEAR(std::hypot(got.out[2 * k], got.out[2 * k + 1]), 1.0, 1e-12) << k;
    }
}

// Roots a distance apart are known to the rounding of the value there over the slope: the product
// of the distances. Clusters lose what their gaps lose.
TEST(DKA, findsRootsAsPreciselyAsTheCoefficientsHoldThem) {
    Random random(44);
    for (int i = 0; i < 400; ++i) {
        const double size = random.logUniform(1e-2, 1e2);
        const double gap = i % 2 ? 1e-5 : 0.1;
        std::vector<Root> roots = {size};
        roots.emplace_back(size * (1 + gap));
        const int pairsOfRoots = i % 4;
        for (int k = 0; k < pairsOfRoots; ++k) {
            roots.emplace_back(-size * (0.3 + 0.3 * k), size * random.uniform(0.4, 1));
        }
        const auto c = polynomialOf(roots);
        // Over a slope of at least gap * size^(n - 1), some n^2 roundings of terms that each stay
        // below 4^n size^n.
        const double n = static_cast<double>(c.size() - 1);
        const double within = n * n * kEpsilon * std::pow(4.0, n) / gap * size;
        const Answer got = dka(c, 0.0, 1000);
        for (const Root &root : roots) {
            EXPECT_LE(distanceTo(root, pairs(got.out)), within) << i;
        }
    }
}
