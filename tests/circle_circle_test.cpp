// Where two circles meet, and two arcs.

#include <vector>

#include "support.h"

using namespace support;

namespace {

constexpr DTPOINT kOrigin = {-4, 3}; // where the tables have their (0, 0)

DTPOINT shifted(DTPOINT p) { return kOrigin + p; }

struct Arc {
    DTPOINT center;
    double r;
    double angles[2];
};

enum class Without { points, cleared, untouched };

/// Both arc functions, or one of them.
void expectArcs(const char *about, const Arc &one, const Arc &other, int32_t status,
                const std::vector<DTPOINT> &want, Without rest = Without::points,
                const std::vector<decltype(&a2d_ins2c)> &functions = {a2d_ins2c, ca_ins2c}) {
    const DTPOINT c1 = shifted(one.center), c2 = shifted(other.center);
    const double within = 64 * kEpsilon * (one.r + 5);
    for (const auto function : functions) {
        DTPOINT first = rest == Without::cleared ? DTPOINT{0, 0} : kUntouchedPoint, last = first;
        if (!want.empty()) first = shifted(want.front()), last = shifted(want.back());
        DTPOINT out1 = kUntouchedPoint, out2 = kUntouchedPoint;
        uint16_t count = kUntouchedCount;
        const int32_t got =
            function(&c1, &c2, one.r, other.r, one.angles, other.angles, &out1, &out2, &count);
        EXPECT_EQ(got, status) << about;
        EXPECT_EQ(count, want.size()) << about;
        EXPECT_TRUE(near(out1, first, within)) << about;
        EXPECT_TRUE(near(out2, last, within)) << about;
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
        {"slanted", 5, {6, 3}, std::sqrt(10.0), {{5, 0}, {3, 4}}},
        {"slanted, the other way", std::sqrt(10.0), {-6, -3}, 5, {{-3, 1}, {-1, -3}}},
        {"equal radii touch midway", 1, {2 + 0.5e-6, 0}, 1, {{1 + 0.25e-6, 0}}},
        {"touch from outside", 2, {0, 5 + 0.5e-6}, 3, {{0, 2 + 0.5e-6 * 2 / 5}}},
        {"2e-6 apart", 2, {0, 5 + 2e-6}, 3, {}},
        {"touch from inside", 5, {2 - 0.5e-6, 0}, 3, {{5 - 0.5e-6 * 5 / 2, 0}}},
        {"from inside, the other larger", 1, {-1, 0}, 2, {{1, 0}}},
        {"2e-6 within", 2, {1 - 2e-6, 0}, 1, {}},
        {"equal circles", 1, {0, 0}, 1, {}},
        {"centres 0.5e-6 apart", 1, {0.5e-6, 0}, 1, {}},
    };
    const ToleranceGuard notAsked(1.0);
    for (const auto &c : cases) {
        const DTPOINT c1 = kOrigin, c2 = shifted(c.c2);
        double out[4] = {kUntouched, kUntouched, kUntouched, kUntouched};
        const int32_t count = a2dCrs2C(&c1, c.r1, &c2, c.r2, out);
        ASSERT_EQ(static_cast<std::size_t>(count), c.want.size()) << c.about;
        for (std::size_t i = 0; i < 2; ++i) {
            const DTPOINT want = i < c.want.size() ? shifted(c.want[i]) : kUntouchedPoint;
            EXPECT_TRUE(near({out[2 * i], out[2 * i + 1]}, want, 32 * kEpsilon)) << c.about;
        }
    }
    double out[4];
    const DTPOINT c1 = {0, 0}, outer = {3 - 2e-6, 0}, inner = {1 + 2e-6, 0};
    EXPECT_EQ(a2dCrs2C(&c1, 2, &outer, 1, out), 2) << "just before touching";
    EXPECT_EQ(a2dCrs2C(&c1, 2, &inner, 1, out), 2) << "just before touching from inside";
}

TEST(CrossArcs, meetsOneCircleOnlyAtSharedEnds) {
    const double turn = 360.0 / (6.283185307179586 * 2); // degrees of one unit on the circle
    struct {
        const char *about;
        double r, range1[2], range2[2];
        std::vector<DTPOINT> want;
    } const cases[] = {
        {"end meets start", 2, {0, 90}, {90, 180}, {{0, 2}}},
        {"start meets end", 2, {90, 180}, {0, 90}, {{0, 2}}},
        {"the start of the first comes first", 2, {0, 180}, {180, 360}, {{2, 0}, {-2, 0}}},
        {"overlap without shared ends", 2, {0, 90}, {45, 180}, {}},
        {"equal starts are no meeting", 2, {0, 90}, {0, 180}, {}},
        {"-90 is 270", 2, {180, 270}, {-90, 0}, {{0, -2}}},
        {"0.5e-6 along the circle", 2, {0, 90}, {90 + 0.5e-6 * turn, 180}, {{0, 2}}},
        {"2e-6 degrees and 1.4e-6 along it", 40, {0, 90}, {90 + 2e-6, 180}, {}},
        {"0.5e-6 degrees, 3e-3 along it", 4e5, {0, 90}, {90 + 0.5e-6, 180}, {{0, 4e5}}},
    };
    for (const auto &c : cases) {
        const Arc one = {{0, 0}, c.r, {c.range1[0], c.range1[1]}};
        // Centres and radii are equal within errdist.
        const Arc other = {{0.5e-6, -0.5e-6}, c.r + 0.5e-6, {c.range2[0], c.range2[1]}};
        expectArcs(c.about, one, other, 0, c.want, Without::untouched);
    }
    expectArcs("radii 2e-6 apart", {{0, 0}, 2, {0, 90}}, {{0, 0}, 2 + 2e-6, {90, 180}}, 0, {},
               Without::untouched);
    const ToleranceGuard exact(0.5);
    expectArcs("errdist itself is too far", {{0, 0}, 99, {0, 90}}, {{0, 0}, 99, {90.5, 180}}, 0, {},
               Without::untouched);
    expectArcs("also from a whole turn", {{0, 0}, 99, {0, 90}}, {{0, 0}, 99, {180, 359.5}}, 0, {},
               Without::untouched);
}

TEST(CrossArcs, keepsThePointsOnBothRanges) {
    // Radii 5 and 3, centres 4 apart: points (4, -3), (4, 3), straight below and above c2.
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
        {"0.00005 beyond the end", {0, up - 0.00005}, {0, 360}, {{4, 3}}},
        {"0.0002 beyond the end", {0, up - 0.0002}, {0, 360}, {}},
        {"0.00005 before the start", {up + 0.00005, 90}, {0, 360}, {{4, 3}}},
        {"0.0002 before the start", {up + 0.0002, 90}, {0, 360}, {}},
        {"across 0 up to the point", {300, up}, {0, 360}, {{4, -3}, {4, 3}}},
        {"across 0 but short of it", {300, up - 0.5}, {0, 360}, {{4, -3}}},
        {"an end two slacks before the start", {2e-4, 0}, {0, 360}, {}},
        {"a whole turn far below 0", {-1000, -640}, {0, 360}, {{4, -3}, {4, 3}}},
        {"-720 to -630 is raised twice, to 0 to 90", {-720, -630}, {0, 360}, {{4, 3}}},
    };
    for (const auto &c : cases) {
        const Arc one = {{0, 0}, 5, {c.range1[0], c.range1[1]}};
        const Arc other = {{4, 0}, 3, {c.range2[0], c.range2[1]}};
        expectArcs(c.about, one, other, 0, c.want, Without::cleared);
    }
    const DTPOINT below = polar({0, 0}, 3, 359.99997);
    expectArcs("the slack does not reach back across 0", {{0, 0}, 2, {0, 90}}, {below, 1, {0, 360}},
               0, {}, Without::cleared);
    // The touch so little below the x axis that its direction is exactly 360, which counts as 0.
    const DTPOINT c1 = {0, 0}, c2 = {3, -1e-17};
    const double quarter[2] = {0, 90}, full[2] = {0, 360};
    DTPOINT out1, out2;
    uint16_t count = 0;
    EXPECT_EQ(a2d_ins2c(&c1, &c2, 2, 1, quarter, full, &out1, &out2, &count), 0);
    EXPECT_EQ(count, 1);
    // A point a rounding below the x axis would lie at 360, off an arc that starts at 0.
    expectArcs("exact on a grid", {{0, 0}, 1, {0, 90}}, {{1, 1}, 1, {180, 270}}, 0,
               {{1, 0}, {0, 1}});
}

TEST(CrossArcs, differInWhatIsAFullCircle) {
    const Arc nearly = {{0, 0}, 5, {90, 90 + 0.5e-8}}, notQuite = {{0, 0}, 5, {0, 1e-8}};
    const Arc other = {{4, 0}, 3, {0, 360}};
    expectArcs("by 1e-8", nearly, other, 0, {{4, -3}, {4, 3}}, {}, {a2d_ins2c});
    expectArcs("exactly", nearly, other, 0, {}, Without::cleared, {ca_ins2c});
    expectArcs("neither", notQuite, other, 0, {}, Without::cleared);
}

TEST(CrossArcs, touchWithinErrdistFromTheLargerCircle) {
    struct {
        const char *about;
        double r1;
        DTPOINT c2;
        double r2;
        std::vector<DTPOINT> want;
    } const cases[] = {
        {"0.5e-6 apart, equal: from the first", 2, {4 + 0.5e-6, 0}, 2, {{2, 0}}},
        {"0.5e-6 apart, the other larger", 1, {0, 3 + 0.5e-6}, 2, {{0, 1 + 0.5e-6}}},
        {"2e-6 apart", 2, {3 + 2e-6, 0}, 1, {}},
        {"0.5e-6 within", 2, {1 - 0.5e-6, 0}, 1, {{2, 0}}},
        {"0.5e-6 within, the other larger", 1, {1 - 0.5e-6, 0}, 2, {{-1 - 0.5e-6, 0}}},
        {"2e-6 within", 2, {1 - 2e-6, 0}, 1, {}},
        {"concentric", 2, {0, 0}, 1, {}},
    };
    for (const auto &c : cases) {
        expectArcs(c.about, {{0, 0}, c.r1, {0, 0}}, {c.c2, c.r2, {0, 360}}, 0, c.want,
                   Without::untouched);
    }
    const ToleranceGuard half(0.5); // itself too far
    const Arc other = {{0.5, 0}, 1, {0, 360}};
    expectArcs("from inside", {{0, 0}, 2, {0, 0}}, other, 0, {}, Without::untouched);
    expectArcs("from outside", {{3, 0}, 1, {0, 0}}, other, 0, {}, Without::untouched);
    const double s = std::sqrt(15.0) / 4;
    expectArcs("of the centres", {{0, 0}, 1, {0, 0}}, other, 0, {{0.25, -s}, {0.25, s}});
}

TEST(CrossArcs, rejectIdenticalArcsAndBadRadii) {
    const Arc one = {{1, 1}, 2, {10, 20}};
    struct {
        const char *about;
        Arc other;
        int32_t status;
    } const cases[] = {
        {"within errdist", {{1.24, 1}, 2, {10, 20.24}}, 1},
        {"another end is another arc", {{1, 1}, 2, {10, 20.25}}, 0},
        {"another start", {{1, 1}, 2, {9.75, 20}}, 0},
        {"another radius", {{1, 1}, 2.25, {10, 20}}, 0},
        {"another centre", {{1, 9}, 2, {10, 20}}, 0},
        {"-350 is 10", {{1, 1}, 2, {-350, -340}}, 1},
        {"radius zero", {{5, 1}, 0, {10, 20}}, 1},
        {"radius negative", {{5, 1}, -2, {10, 20}}, 1},
    };
    for (const auto &c : cases) {
        const ToleranceGuard quarter(0.25);
        expectArcs(c.about, one, c.other, c.status, {}, Without::untouched);
        expectArcs(c.about, c.other, one, c.status, {}, Without::untouched);
    }
}
