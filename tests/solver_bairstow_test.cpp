// All roots by quadratic factors.

#include <limits>

#include "polynomial.h"

using namespace support;

namespace {

struct Answer {
    int32_t status;
    std::vector<double> out;
};

Answer bairstow(const std::vector<double> &c) {
    const auto n = static_cast<int32_t>(c.size()) - 1;
    Answer answer = {0, std::vector<double>(2 * (c.size() - 1), kUntouched)};
    answer.status = amaBairstaw(c.data(), n, answer.out.data());
    return answer;
}

/// The pairs with the second root of each complex factor made the conjugate of the first.
std::vector<Root> mended(const std::vector<double> &out) {
    std::vector<Root> roots = pairs(out);
    for (std::size_t k = 0; k + 1 < roots.size(); k += 2) {
        if (roots[k].imag() != 0.0) roots[k + 1] = std::conj(roots[k]);
    }
    return roots;
}

} // namespace

TEST(Bairstow, handsDegreesUpToFourToTheClosedForms) {
    double one[] = {kUntouched, kUntouched};
    const double linear[] = {2.0, 3.0};
    EXPECT_EQ(amaBairstaw(linear, 1, one), 0);
    EXPECT_EQ(one[0], -1.5);
    EXPECT_EQ(one[1], kUntouched); // no imaginary part

    const Answer quadratic = bairstow({1, 0, 1});
    EXPECT_EQ(quadratic.status, 0); // not the count
    EXPECT_EQ(quadratic.out, (std::vector<double>{0, 1, 0, -1}));
    EXPECT_EQ(bairstow({1, 0, -3, 2}).out, (std::vector<double>{-2, 0, -2, 0, 1, 0}));
    for (const std::vector<double> &c : {std::vector<double>{1, -2, 6, -2, 5}, {3, 1, -4, 1, -5}}) {
        double want[8];
        amaSolveEquationOf4thD(c.data(), want);
        EXPECT_EQ(bairstow(c).status, 0);
        EXPECT_EQ(bairstow(c).out, std::vector<double>(want, want + 8));
    }
}

TEST(Bairstow, refusesDegreesAndLeadsWithoutTouchingTheOutput) {
    for (std::size_t degree = 1; degree <= 6; ++degree) {
        std::vector<double> c(degree + 1, 1.0);
        c[0] = -0.0;
        EXPECT_EQ(bairstow(c).status, -1) << degree;
        EXPECT_EQ(bairstow(c).out, std::vector<double>(2 * degree, kUntouched)) << degree;
    }
    const double c[] = {1.0, 1.0};
    for (const int32_t n : {0, -1, -5, -6, 201, std::numeric_limits<int32_t>::max(),
                            std::numeric_limits<int32_t>::min()}) {
        double out = kUntouched;
        EXPECT_EQ(amaBairstaw(c, n, &out), -1) << n;
        EXPECT_EQ(out, kUntouched) << n;
    }
}

// Some hundred roundings of coefficients near 100, over slopes of some 10.
TEST(Bairstow, ordersFactorsLastFirstAndMirrorsTheSecondComplexRoot) {
    struct {
        const char *about;
        std::vector<Root> from, want;
    } const cases[] = {
        {"last quotient first, mirrored", {1, 2, -1, -3, {-1, 2}}, {{-1, 2}, {1, 2}, 1, -3, 2, -1}},
        {"the Newton root last", {1, 2, -1, -3, 4, -6, 0.5}, {4, -6, 2, -3, 1, -1, 0.5}},
    };
    for (const auto &c : cases) {
        const Answer got = bairstow(polynomialOf(c.from));
        EXPECT_EQ(got.status, 0) << c.about;
        const std::vector<Root> roots = pairs(got.out);
        for (std::size_t k = 0; k < roots.size(); ++k) {
            EXPECT_LE(std::abs(roots[k] - c.want[k]), 1000 * kEpsilon) << c.about << ", " << k;
        }
    }
}

TEST(Bairstow, takesASlightlyNegativeDiscriminantForReal) {
    for (const double discriminant : {-0.5e-4, -2e-4}) {
        const double half = std::sqrt(-discriminant) / 2;
        const Answer got = bairstow(polynomialOf({-4, -3, -2, 2, {-1.5, half}}));
        ASSERT_EQ(got.status, 0);
        const std::vector<Root> roots = pairs(got.out);
        const auto first = std::find_if(roots.begin(), roots.end(), [](Root root) {
            return std::fabs(root.real() + 1.5) < 0.1;
        });
        ASSERT_NE(first, roots.end());
        const Root want = discriminant > -1e-4 ? Root(-1.5 + half, 0) : Root(-1.5, half);
        EXPECT_LE(std::abs(*first - want), 1e-9) << discriminant;
    }
}

TEST(Bairstow, keepsTheBestFactorOfAllSearches) {
    // The second search never gets below the residual of the first and takes x^2 - 1 again.
    const Answer twice = bairstow(polynomialOf({6, 1, 5, 2, -3, -1}));
    EXPECT_EQ(twice.status, 0);
    EXPECT_EQ(std::vector<double>(twice.out.begin() + 4, twice.out.begin() + 8),
              std::vector<double>(twice.out.begin() + 8, twice.out.end()));
    // One coefficient of a factor that comes again is no repetition of its steps.
    EXPECT_EQ(bairstow({1, 0, 2, 0, 0, 0, -3}).status, 0);
    // A first factor without any rest leaves the best residual where it was.
    const Answer exact = bairstow({1, 0, 0, 0, 0, 0, -1});
    EXPECT_EQ(exact.status, -2);
    EXPECT_EQ(exact.out, std::vector<double>(12, kUntouched));
}

TEST(Bairstow, leavesWhatItHasWhereItFails) {
    EXPECT_EQ(bairstow({1, 0, 0, 0, 0, 0, kNaN}).status, -2);
    // x (x^6 - 1): the Newton root stands, its sixth-degree quotient has no factor.
    const Answer noFactor = bairstow({1, 0, 0, 0, 0, 0, -1, 0});
    EXPECT_EQ(noFactor.status, -2);
    EXPECT_EQ(noFactor.out[0], kUntouched);
    EXPECT_EQ(noFactor.out[12], 0.0);
    EXPECT_EQ(noFactor.out[13], 0.0);
    const Answer noRoot = bairstow({1, 0, 0, 0, 0, kInfinity});
    EXPECT_EQ(noRoot.status, -3);
    EXPECT_TRUE(std::isnan(noRoot.out[8]));
    EXPECT_EQ(noRoot.out[9], kUntouched);
}

TEST(Bairstow, doesNotChangeTheCoefficientsAndMayWriteOverThem) {
    const std::vector<double> c = polynomialOf({1, 2, -1, -3, 4});
    std::vector<double> shared = c, separate(10);
    shared.resize(10);
    amaBairstaw(c.data(), 5, separate.data());
    amaBairstaw(shared.data(), 5, shared.data());
    EXPECT_EQ(shared, separate);
    EXPECT_EQ(c, polynomialOf({1, 2, -1, -3, 4}));
}

// Most answers of degree five and, where roots are large, a good part of those of twenty and forty
// multiply out to the coefficients: as many as docs/accuracy.md says, and at high degrees enough to
// tell a wrong step.
TEST(Bairstow, givesFactorsThatMultiplyOutToTheCoefficients) {
    struct {
        int degree;
        double size;
        int atLeast; // of 500
    } const cases[] = {{5, 0.1, 450}, {5, 1, 450},   {5, 10, 450},
                       {6, 10, 425},  {20, 30, 200}, {40, 30, 10}};
    for (const auto &c : cases) {
        Random random(43);
        int right = 0;
        for (int i = 0; i < 500; ++i) {
            std::vector<Root> roots;
            for (int left = c.degree; left > 0;) {
                const bool pair = left > 1 && random.bits() % 2 == 0;
                roots.emplace_back(random.uniform(-c.size, c.size),
                                   pair ? random.uniform(0.01, 1) * c.size : 0.0);
                left -= pair ? 2 : 1;
            }
            const auto polynomial = polynomialOf(roots);
            const Answer got = bairstow(polynomial);
            right += got.status == 0 && reconstructionError(polynomial, mended(got.out)) < 1e-6;
        }
        EXPECT_GE(right, c.atLeast) << "degree " << c.degree << ", size " << c.size;
    }
}
