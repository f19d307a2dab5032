// Equations of degree one to four in closed form, and the complex square root.

#include <initializer_list>

#include "polynomial.h"

using namespace support;

namespace {

using Solver = int32_t (*)(const double *, double *);

struct Case {
    const char *about;
    std::vector<double> c;
    int32_t want;
    std::vector<Root> roots;
};

std::vector<double> solved(Solver solver, const std::vector<double> &c, int32_t want,
                           const char *about) {
    std::vector<double> out(2 * (c.size() - 1), kUntouched);
    EXPECT_EQ(solver(c.data(), out.data()), want) << about;
    return out;
}

// The roots here are of size 1 to 10; some 20 roundings separate them from the coefficients.
void check(Solver solver, std::initializer_list<Case> cases) {
    for (const Case &c : cases) {
        const std::vector<Root> got = pairs(solved(solver, c.c, c.want, c.about));
        ASSERT_EQ(got.size(), c.roots.size()) << c.about;
        for (std::size_t k = 0; k < got.size(); ++k) {
            EXPECT_LE(std::abs(got[k] - c.roots[k]), 200 * kEpsilon)
                << c.about << ", root " << k << " is " << got[k];
            if (c.roots[k].imag() == 0.0) {
                EXPECT_EQ(got[k].imag(), 0.0) << c.about;
            }
        }
    }
}

Solver solverOf(std::size_t degree) {
    if (degree == 2) return amaSolveEquationOf2ndD;
    return degree == 3 ? amaSolveEquationOf3rdD : amaSolveEquationOf4thD;
}

const double kHalfRoot3 = std::sqrt(3.0) / 2;

} // namespace

TEST(LinearEquation, tellsNoRootFromEveryRoot) {
    double x = kUntouched;
    const double every[] = {0.0, -0.0}, none[] = {-0.0, 3.0}, one[] = {4.0, 3.0};
    EXPECT_EQ(amaSolveLinerEquation(every, &x), 0);
    EXPECT_EQ(amaSolveLinerEquation(none, &x), -1);
    EXPECT_EQ(x, kUntouched);
    EXPECT_EQ(amaSolveLinerEquation(one, &x), 1);
    EXPECT_EQ(x, -0.75);
}

TEST(QuadraticEquation, ordersAndCountsItsRoots) {
    check(amaSolveEquationOf2ndD,
          {
              {"the greater root first", {1, -5, 6}, 2, {3, 2}},
              {"also under a negative lead", {-2, 10, -12}, 2, {3, 2}},
              {"a double root counts twice", {1, -2, 1}, 2, {1, 1}},
              {"the positive imaginary part first", {2, 4, 4}, 0, {{-1, 1}, {-1, -1}}},
          });
}

TEST(CubicEquation, keepsTheOrderOfItsBranch) {
    check(amaSolveEquationOf3rdD,
          {
              {"Cardano, r > 0", {1, 0, 0, -1}, 1, {1, {-0.5, kHalfRoot3}, {-0.5, -kHalfRoot3}}},
              {"Cardano, r < 0", {1, 0, 0, 1}, 1, {-1, {0.5, -kHalfRoot3}, {0.5, kHalfRoot3}}},
              {"Cardano, r = 0", {1, 0, 1, 0}, 1, {0, {0, -1}, {0, 1}}},
              {"greatest first, then by the cosines", {1, 0, -7, 6}, 3, {2, -3, 1}},
              {"shifted and scaled", {2, -24, 82, -60}, 3, {6, 1, 5}},
              {"the simple root stands twice", {1, 0, -3, 2}, 3, {-2, -2, 1}},
              {"a triple root", {1, -6, 12, -8}, 3, {2, 2, 2}},
          });
}

TEST(QuarticEquation, keepsTheOrderOfItsBranch) {
    const double h = std::sqrt(15.0) / 2;
    check(amaSolveEquationOf4thD,
          {
              {"biquadratic, squares positive", {1, 0, -5, 0, 4}, 4, {2, -2, 1, -1}},
              {"biquadratic, one square positive", {1, 0, -3, 0, -4}, 2, {2, -2, {0, 1}, {0, -1}}},
              {"both negative: by size", {1, 0, 5, 0, 4}, 0, {{0, 1}, {0, -1}, {0, 2}, {0, -2}}},
              {"squares complex", {1, 0, 0, 0, 4}, 0, {{1, 1}, {-1, -1}, {1, -1}, {-1, 1}}},
              {"biquadratic about -1", {1, 4, 1, -6, 0}, 4, {1, -3, 0, -2}},
              {"both factors real, the lower sum first", {1, -1, -7, 1, 6}, 4, {-1, -2, 3, 1}},
              {"both complex", {1, -2, 6, -2, 5}, 0, {{0, 1}, {0, -1}, {1, 2}, {1, -2}}},
              {"only the first factor real", {1, 2, 3, 2, -8}, 2, {1, -2, {-0.5, h}, {-0.5, -h}}},
              {"only the second: it comes first",
               {1, -2, 3, -2, -8},
               2,
               {2, -1, {0.5, h}, {0.5, -h}}},
          });
}

// Roots of a biquadratic stand in exactly opposite pairs, those of two factors do not.
TEST(QuarticEquation, ignoresALinearTermBelowBothTolerances) {
    struct {
        const char *about;
        double p, q, r;
        bool ignored;
    } const cases[] = {
        {"half the ratio", -5.0, 0.5 * 5e-12, 4.0, true},
        {"twice the ratio", -5.0, -2.0 * 5e-12, 4.0, false},
        {"half the term", -1e8, -0.5 * 1e-5, 1.0, true},
        {"twice the term, however small the ratio", -1e8, 2.0 * 1e-5, 1.0, false},
        {"no quadratic term, no ratio", 0.0, 1e-6, -16.0, false},
    };
    for (const auto &c : cases) {
        double out[8];
        const double quartic[] = {1.0, 0.0, c.p, c.q, c.r};
        amaSolveEquationOf4thD(quartic, out);
        EXPECT_EQ(out[0] == -out[2], c.ignored) << c.about << ": " << out[0] << ", " << out[2];
    }
}

// The resolvent's root is p itself as far as doubles tell: there is no factor, and the linear
// term falls away however clearly it stands there.
TEST(QuarticEquation, fallsBackOnTheBiquadraticWithoutAFactor) {
    check(amaSolveEquationOf4thD, {{"-1e-6 is a root, 0 is reported twice",
                                    {1, 0, 1e6, 1, 0},
                                    2,
                                    {0, 0, {0, 1e3}, {0, -1e3}}}});
}

TEST(ClosedForms, refuseOnlyALeadingCoefficientOfExactlyZero) {
    for (std::size_t degree = 2; degree <= 4; ++degree) {
        std::vector<double> c(degree + 1, 1.0);
        c[0] = -0.0;
        const std::vector<double> untouched(2 * degree, kUntouched);
        EXPECT_EQ(solved(solverOf(degree), c, -1, "zero"), untouched);
        c[0] = 1e-300;
        std::vector<double> out = untouched;
        EXPECT_NE(solverOf(degree)(c.data(), out.data()), -1);
        EXPECT_NE(out[2 * degree - 1], kUntouched);
    }
}

TEST(ClosedForms, takeTheRemainingBranchOnNaN) {
    const int32_t want[] = {0, 3, 0};
    for (std::size_t degree = 2; degree <= 4; ++degree) {
        std::vector<double> c(degree + 1, 1.0);
        c[degree] = kNaN;
        const auto out = solved(solverOf(degree), c, want[degree - 2], "NaN");
        EXPECT_TRUE(std::isnan(out[0] + out[1]) && std::isnan(out[2] + out[3]));
    }
}

// 1.3, 1.3, 5.5: rounding takes the cosine of the angle beyond 1, and it is not clamped.
TEST(CubicEquation, doesNotClampTheCosine) {
    const auto out =
        solved(amaSolveEquationOf3rdD, {1, -8.1, 15.99, -9.2950000000000017}, 3, "beyond 1");
    EXPECT_TRUE(std::isnan(out[0]) && std::isnan(out[2]) && std::isnan(out[4]));
    EXPECT_EQ(out[1], 0.0);
}

TEST(ClosedForms, mayWriteOverTheCoefficients) {
    double shared[8] = {1, 0, -5, 0, 4};
    EXPECT_EQ(amaSolveEquationOf4thD(shared, shared), 4);
    EXPECT_EQ(std::vector<double>(shared, shared + 8),
              (std::vector<double>{2, 0, -2, 0, 1, 0, -1, 0}));
}

// Chosen roots of all magnitudes give coefficients; the roots found must give these back. Roots
// right of zero pair up against roots left of it, so that no step of Cardano's or Ferrari's divides
// by less than a hundredth of what it was computed from: a hundred roundings, a hundredfold.
TEST(ClosedForms, giveRootsThatMultiplyOutToTheCoefficients) {
    Random random(41);
    for (int i = 0; i < 3000; ++i) {
        const std::size_t degree = 2 + static_cast<std::size_t>(i % 3);
        double size = random.logUniform(1e-3, 1e3);
        std::vector<Root> roots;
        for (std::size_t left = degree; left > 0; size = -size) {
            const bool pair = left > 1 && random.uniform(0, 1) < 0.5;
            roots.emplace_back(size * random.uniform(0.2, 1),
                               pair ? size * random.uniform(0.1, 1) : 0);
            if (!pair && left > 1) roots.emplace_back(size * random.uniform(0.2, 1));
            left -= std::min<std::size_t>(left, 2);
        }
        const auto c = polynomialOf(roots, random.uniform(1, 2));
        std::vector<double> out(2 * degree);
        ASSERT_GE(solverOf(degree)(c.data(), out.data()), 0);
        EXPECT_LE(reconstructionError(c, pairs(out)), 1e4 * kEpsilon) << "degree " << degree;
    }
}

TEST(ComplexRoot, isThePrincipalOne) {
    struct {
        const char *about;
        Root z, want;
    } const cases[] = {
        {"positive", {4, 0}, {2, 0}},
        {"negative", {-4, 0}, {0, 2}},
        {"negative with a negative zero: not below the cut", {-4, -0.0}, {0, 2}},
        {"above", {0, 2}, {1, 1}},
        {"below", {0, -2}, {1, -1}},
        {"left above", {-3, 4}, {1, 2}},
        {"left below", {-3, -4}, {1, -2}},
        {"its square would overflow", {3e300, 4e300}, {2e150, 1e150}},
    };
    for (const auto &c : cases) {
        const DTCOMPLEX got = ama_c_sqrt({c.z.real(), c.z.imag()});
        EXPECT_LE(std::abs(Root(got.re, got.im) - c.want), 4 * kEpsilon * std::abs(c.want))
            << c.about;
    }
}
