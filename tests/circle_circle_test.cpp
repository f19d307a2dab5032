// Where two circles meet, and two arcs.

#include <vector>

#include "support.h"

using namespace support;

namespace {

constexpr DTPOINT kOrigin = {-4, 3}; // where the tables have their (0, 0)

DTPOINT shifted(DTPOINT p) { return {p.x + kOrigin.x, p.y + kOrigin.y}; }

using ArcFunction = int32_t (*)(const DTPOINT *, const DTPOINT *, double, double, const double *,
                                const double *, DTPOINT *, DTPOINT *, uint16_t *);
constexpr ArcFunction kArcFunctions[] = {a2d_ins2c, ca_ins2c};

struct ArcInput {
    DTPOINT center;
    double r;
    double angles[2];
};

struct Answer {
    int32_t status;
    DTPOINT out1 = kUntouchedPoint, out2 = kUntouchedPoint;
    uint16_t count = kUntouchedCount;
};

Answer crossArcs(ArcFunction function, const ArcInput &one, const ArcInput &other) {
    Answer answer;
    const DTPOINT c1 = shifted(one.center), c2 = shifted(other.center);
    answer.status = function(&c1, &c2, one.r, other.r, one.angles, other.angles, &answer.out1,
                             &answer.out2, &answer.count);
    return answer;
}

enum class Without { points, cleared, untouched };

void expectAnswer(const Answer &got, const std::vector<DTPOINT> &want, Without without,
                  double within, const char *about) {
    ASSERT_EQ(got.count, want.size()) << about;
    if (want.empty()) {
        const DTPOINT rest = without == Without::cleared ? DTPOINT{0, 0} : kUntouchedPoint;
        EXPECT_EQ(got.out1, rest) << about;
        EXPECT_EQ(got.out2, rest) << about;
    } else {
        EXPECT_TRUE(near(got.out1, shifted(want.front()), within)) << about;
        EXPECT_TRUE(near(got.out2, shifted(want.back()), within)) << about;
    }
}

} // namespace

TEST(CrossCircles, countsAndOrdersThePoints) {
    const double h = std::sqrt(3.0) / 2;
    struct {
        const char *about;
        double r1;
        DTPOINT c2;
        double r2;
        std::vector<DTPOINT> want;
    } const cases[] = {
        {"right of the direction first", 1, {1, 0}, 1, {{0.5, -h}, {0.5, h}}},
        {"up, right is east", 1, {0, 1}, 1, {{h, 0.5}, {-h, 0.5}}},
        {"different radii", 5, {4, 0}, 3, {{4, -3}, {4, 3}}},
        {"equal radii touch midway", 1, {2, 0}, 1, {{1, 0}}},
        {"midway also 0.5e-6 apart", 1, {2 + 0.5e-6, 0}, 1, {{1 + 0.25e-6, 0}}},
        {"2e-6 apart", 1, {2 + 2e-6, 0}, 1, {}},
        {"touch from outside", 2, {0, 3}, 1, {{0, 2}}},
        {"from outside, 0.5e-6 apart", 2, {0, 3 + 0.5e-6}, 1, {{0, 2 + 0.5e-6 * 2 / 3}}},
        {"from outside, 2e-6 apart", 2, {0, 3 + 2e-6}, 1, {}},
        {"touch from inside", 2, {1, 0}, 1, {{2, 0}}},
        {"from inside, the other larger", 1, {-1, 0}, 2, {{1, 0}}},
        {"from inside, 0.5e-6 short", 2, {1 - 0.5e-6, 0}, 1, {{2 - 1e-6, 0}}},
        {"2e-6 within", 2, {1 - 2e-6, 0}, 1, {}},
        {"apart", 1, {5, 0}, 1, {}},
        {"one in the other", 5, {1, 0}, 1, {}},
        {"equal circles", 1, {0, 0}, 1, {}},
        {"centres 0.5e-6 apart", 1, {0.5e-6, 0}, 1, {}},
    };
    for (const auto &c : cases) {
        const DTPOINT c1 = kOrigin, c2 = shifted(c.c2);
        double out[4] = {kUntouched, kUntouched, kUntouched, kUntouched};
        const int32_t count = a2dCrs2C(&c1, c.r1, &c2, c.r2, out);
        ASSERT_EQ(static_cast<std::size_t>(count), c.want.size()) << c.about;
        for (std::size_t i = 0; i < 2; ++i) {
            const DTPOINT got = {out[2 * i], out[2 * i + 1]};
            if (i < c.want.size()) {
                EXPECT_TRUE(near(got, shifted(c.want[i]), 32 * kEpsilon)) << c.about;
            } else {
                EXPECT_EQ(got, kUntouchedPoint) << c.about;
            }
        }
    }
    EXPECT_EQ(a2dCrs2C(&kOrigin, 2, &kOrigin, 2, nullptr), 0) << "nothing is written";
}

TEST(CrossCircles, crossesJustInsideATouch) {
    double out[4];
    const DTPOINT c1 = {0, 0}, outer = {3 - 2e-6, 0}, inner = {1 + 2e-6, 0};
    EXPECT_EQ(a2dCrs2C(&c1, 2, &outer, 1, out), 2);
    EXPECT_EQ(a2dCrs2C(&c1, 2, &inner, 1, out), 2);
    const ToleranceGuard coarse(1.0);
    EXPECT_EQ(a2dCrs2C(&c1, 2, &outer, 1, out), 2) << "errdist is not asked";
}

TEST(CrossArcs, meetsOneCircleOnlyAtSharedEnds) {
    const double turn = 360.0 / (6.283185307179586 * 2); // degrees of one unit on the circle
    struct {
        const char *about;
        ArcInput one, other;
        std::vector<DTPOINT> want;
    } const cases[] = {
        {"end meets start", {{0, 0}, 2, {0, 90}}, {{0, 0}, 2, {90, 180}}, {{0, 2}}},
        {"start meets end", {{0, 0}, 2, {90, 180}}, {{0, 0}, 2, {0, 90}}, {{0, 2}}},
        {"both: the start of the first comes first",
         {{0, 0}, 2, {0, 180}},
         {{0, 0}, 2, {180, 360}},
         {{2, 0}, {-2, 0}}},
        {"overlap without shared ends", {{0, 0}, 2, {0, 90}}, {{0, 0}, 2, {45, 180}}, {}},
        {"equal starts are no meeting", {{0, 0}, 2, {0, 90}}, {{0, 0}, 2, {0, 180}}, {}},
        {"-90 is 270", {{0, 0}, 2, {180, 270}}, {{0, 0}, 2, {-90, 0}}, {{0, -2}}},
        {"0.5e-6 apart along the circle",
         {{0, 0}, 2, {0, 90}},
         {{0, 0}, 2, {90 + 0.5e-6 * turn, 180}},
         {{0, 2}}},
        {"2e-6 degrees and more than 1e-6 along it apart",
         {{0, 0}, 40, {0, 90}},
         {{0, 0}, 40, {90 + 2e-6, 180}},
         {}},
        {"0.5e-6 degrees apart on a large circle",
         {{0, 0}, 4e5, {0, 90}},
         {{0, 0}, 4e5, {90 + 0.5e-6, 180}},
         {{0, 4e5}}},
        {"centres and radii within errdist",
         {{0, 0}, 2, {0, 90}},
         {{0.5e-6, 0.5e-6}, 2 + 0.5e-6, {90, 180}},
         {{0, 2}}},
        {"concentric", {{0, 0}, 2, {0, 90}}, {{0, 0}, 2 + 2e-6, {90, 180}}, {}},
    };
    for (const auto &c : cases) {
        for (const ArcFunction function : kArcFunctions) {
            const Answer got = crossArcs(function, c.one, c.other);
            EXPECT_EQ(got.status, 0) << c.about;
            expectAnswer(got, c.want, Without::untouched, 64 * kEpsilon * (c.one.r + 5), c.about);
        }
    }
}

TEST(CrossArcs, keepsThePointsOnBothRanges) {
    // Radii 5 and 3, centres 4 apart: points (4, -3), (4, 3), straight below and above c2.
    const double full[2] = {0, 360};
    const double up = std::atan2(3.0, 4.0) / kRadPerDeg; // direction of (4, 3) from c1
    struct {
        const char *about;
        double range1[2], range2[2];
        std::vector<DTPOINT> want;
    } const cases[] = {
        {"full circles", {0, 360}, {10, 10}, {{4, -3}, {4, 3}}},
        {"only the second on arc 1", {0, 90}, {0, 360}, {{4, 3}}},
        {"only the first on arc 2", {0, 360}, {180, 300}, {{4, -3}}},
        {"none on both", {0, 90}, {180, 300}, {}},
        {"0.00005 degrees beyond the end", {0, up - 0.00005}, {0, 360}, {{4, 3}}},
        {"0.0002 degrees beyond the end", {0, up - 0.0002}, {0, 360}, {}},
        {"0.00005 degrees before the start", {up + 0.00005, 90}, {0, 360}, {{4, 3}}},
        {"0.0002 degrees before the start", {up + 0.0002, 90}, {0, 360}, {}},
        {"across 0", {270, 90}, {0, 360}, {{4, -3}, {4, 3}}},
        {"negative start", {-90, 90}, {0, 360}, {{4, -3}, {4, 3}}},
        {"-720 to -630 is raised twice, to 0 to 90", {-720, -630}, {0, 360}, {{4, 3}}},
    };
    for (const auto &c : cases) {
        for (const ArcFunction function : kArcFunctions) {
            const ArcInput one = {{0, 0}, 5, {c.range1[0], c.range1[1]}};
            const ArcInput other = {{4, 0}, 3, {c.range2[0], c.range2[1]}};
            const Answer got = crossArcs(function, one, other);
            EXPECT_EQ(got.status, 0) << c.about;
            expectAnswer(got, c.want, Without::cleared, 64 * kEpsilon, c.about);
        }
    }
    // The slack does not reach back across 0: a touch 0.00003 degrees below the x axis of c1.
    const double below = 359.99997;
    const ArcInput one = {{0, 0}, 2, {0, 90}};
    const DTPOINT away = polar({0, 0}, 3, below);
    const ArcInput other = {away, 1, {full[0], full[1]}};
    expectAnswer(crossArcs(a2d_ins2c, one, other), {}, Without::cleared, 0, "back across 0");
}

TEST(CrossArcs, differInWhatIsAFullCircle) {
    const ArcInput nearlyFull = {{0, 0}, 5, {90, 90 + 0.5e-8}}; // far from both points
    const ArcInput other = {{4, 0}, 3, {0, 360}};
    EXPECT_EQ(crossArcs(a2d_ins2c, nearlyFull, other).count, 2);
    EXPECT_EQ(crossArcs(ca_ins2c, nearlyFull, other).count, 0);
    const ArcInput notQuiteFull = {{0, 0}, 5, {90, 90 + 2e-8}};
    EXPECT_EQ(crossArcs(a2d_ins2c, notQuiteFull, other).count, 0);
}

TEST(CrossArcs, touchWithinErrdistAndLeaveOutputsWhereCirclesMiss) {
    struct {
        const char *about;
        double r1;
        DTPOINT c2;
        double r2;
        std::vector<DTPOINT> want;
    } const cases[] = {
        {"0.5e-6 apart, from the larger", 2, {3 + 0.5e-6, 0}, 1, {{2, 0}}},
        {"0.5e-6 apart, the other larger", 1, {0, 3 + 0.5e-6}, 2, {{0, 1 + 0.5e-6}}},
        {"2e-6 apart", 2, {3 + 2e-6, 0}, 1, {}},
        {"0.5e-6 within", 2, {1 - 0.5e-6, 0}, 1, {{2, 0}}},
        {"2e-6 within", 2, {1 - 2e-6, 0}, 1, {}},
        {"apart", 2, {9, 0}, 1, {}},
    };
    for (const auto &c : cases) {
        for (const ArcFunction function : kArcFunctions) {
            const Answer got = crossArcs(function, {{0, 0}, c.r1, {0, 0}}, {c.c2, c.r2, {0, 360}});
            EXPECT_EQ(got.status, 0) << c.about;
            expectAnswer(got, c.want, Without::untouched, 32 * kEpsilon, c.about);
        }
    }
}

TEST(CrossArcs, rejectIdenticalArcsBeforeBadRadii) {
    struct {
        const char *about;
        ArcInput one, other;
        int32_t status;
    } const cases[] = {
        {"identical", {{1, 1}, 2, {10, 20}}, {{1, 1}, 2, {10, 20}}, 1},
        {"within errdist", {{1, 1}, 2, {10, 20}}, {{1 + 0.5e-6, 1}, 2, {10, 20 + 0.5e-6}}, 1},
        {"another end is another arc", {{1, 1}, 2, {10, 20}}, {{1, 1}, 2, {10, 20 + 2e-6}}, 0},
        {"-350 is 10", {{1, 1}, 2, {10, 20}}, {{1, 1}, 2, {-350, -340}}, 1},
        {"r1 zero", {{1, 1}, 0, {10, 20}}, {{5, 1}, 2, {10, 20}}, 1},
        {"r2 negative", {{1, 1}, 2, {10, 20}}, {{5, 1}, -2, {10, 20}}, 1},
    };
    for (const auto &c : cases) {
        for (const ArcFunction function : kArcFunctions) {
            const Answer got = crossArcs(function, c.one, c.other);
            EXPECT_EQ(got.status, c.status) << c.about;
            expectAnswer(got, {}, Without::untouched, 0, c.about);
        }
    }
}

TEST(CrossCircles, findTheEndsOfAChosenChord) {
    Random random(32);
    for (int i = 0; i < 3000; ++i) {
        const double size = random.logUniform(1e-2, 1e5);
        const DTPOINT c1 = random.point(10 * size), c2 = random.point(10 * size);
        const DTPOINT right = random.point(10 * size);
        const double d = distance(c1, c2);
        const double offset =
            ((right.x - c1.x) * (c2.y - c1.y) - (right.y - c1.y) * (c2.x - c1.x)) / d;
        if (d < size || std::fabs(offset) < size) continue;
        const double r1 = distance(c1, right), r2 = distance(c2, right);
        double out[4];
        ASSERT_EQ(a2dCrs2C(&c1, r1, &c2, r2, out), 2) << i;
        // Radii of 30 sizes, known to some roundings, that meet at a sine of 1/30 or more.
        const double within = 30 * size * kEpsilon * 10 * 30;
        const DTPOINT points[2] = {{out[0], out[1]}, {out[2], out[3]}}; // right, then left
        EXPECT_TRUE(near(points[offset > 0 ? 0 : 1], right, within)) << i;
        for (const DTPOINT &p : points) {
            EXPECT_NEAR(distance(p, c1), r1, within) << i;
            EXPECT_NEAR(distance(p, c2), r2, within) << i;
        }
        double swapped[4];
        ASSERT_EQ(a2dCrs2C(&c2, r2, &c1, r1, swapped), 2) << i;
        EXPECT_TRUE(near({swapped[0], swapped[1]}, points[1], within)) << i;
    }
}

TEST(CrossCircles, aSmallCircleAcrossALargeOneKeepsItsDigits) {
    // Half the chord is the small radius to 1e-18; squaring the large radius would lose it.
    const DTPOINT c1 = {0, 0}, c2 = {1e6, 0};
    double out[4];
    ASSERT_EQ(a2dCrs2C(&c1, 1e6, &c2, 1e-3, out), 2);
    EXPECT_NEAR(out[1], -1e-3, 1e-15);
    EXPECT_NEAR(out[3], 1e-3, 1e-15);
}
