// Where a line meets a circle, an arc, a segment of the line.

#include <vector>

#include "support.h"

using namespace support;

namespace {

constexpr DTPOINT kCenter = {3, -2}; // off the origin, so that a forgotten shift shows

DTPOINT shifted(DTPOINT p) { return {p.x + kCenter.x, p.y + kCenter.y}; }

struct Answer {
    int32_t status;
    DTPOINT out1 = kUntouchedPoint, out2 = kUntouchedPoint;
    uint16_t count = kUntouchedCount;
};

Answer lineArc(uint32_t mode, DTPOINT a1, DTPOINT a2, double r, const double *angles) {
    Answer answer;
    a1 = shifted(a1), a2 = shifted(a2);
    answer.status =
        a2d_lin_arc(mode, &a1, &a2, &kCenter, r, angles, &answer.out1, &answer.out2, &answer.count);
    return answer;
}

Answer lineCircle(DTPOINT a1, DTPOINT a2, double r) {
    Answer answer;
    a1 = shifted(a1), a2 = shifted(a2);
    answer.status = cross_lin_cir(&a1, &a2, &kCenter, r, &answer.out1, &answer.out2, &answer.count);
    return answer;
}

} // namespace

TEST(LineCircle, tellsTangentFromSecantOnBothSidesOfTheTolerance) {
    struct {
        const char *about;
        double y;
        uint16_t count;
    } const cases[] = {
        {"2e-6 outside", 2 + 2e-6, 0},
        {"0.5e-6 outside touches", 2 + 0.5e-6, 1},
        {"0.5e-6 inside touches", 2 - 0.5e-6, 1},
        {"2e-6 inside", 2 - 2e-6, 2},
        {"below the centre", -2 - 0.5e-6, 1},
    };
    for (const auto &c : cases) {
        const Answer got = lineCircle({-5, c.y}, {1, c.y}, 2);
        EXPECT_EQ(got.status, 0) << c.about;
        EXPECT_EQ(got.count, c.count) << c.about;
        if (c.count == 0) {
            EXPECT_EQ(got.out1, kUntouchedPoint) << c.about;
            EXPECT_EQ(got.out2, kUntouchedPoint) << c.about;
        }
        if (c.count == 1) {
            // On the line, not on the circle. Of the coordinates some roundings are lost.
            EXPECT_TRUE(near(got.out1, shifted({0, c.y}), 32 * kEpsilon)) << c.about;
            EXPECT_EQ(got.out2, got.out1) << c.about;
        }
        if (c.count == 2) {
            const double half = std::sqrt(4 - c.y * c.y);
            // The square root of a difference of 8e-6 that is known to some roundings of 4.
            const double within = 64 * kEpsilon / half;
            EXPECT_TRUE(near(got.out1, shifted({half, c.y}), within)) << c.about;
            EXPECT_TRUE(near(got.out2, shifted({-half, c.y}), within)) << c.about;
        }
    }
    const ToleranceGuard coarse(1e-3);
    EXPECT_EQ(lineCircle({-5, 2 + 0.5e-3}, {1, 2 + 0.5e-3}, 2).count, 1) << "errdist is asked";
}

TEST(LineCircle, doesNotCheckItsInput) {
    const Answer pointLine = lineCircle({1, 1}, {1, 1}, 2);
    EXPECT_EQ(pointLine.count, 2);
    EXPECT_FALSE(std::isfinite(pointLine.out1.x) || std::isfinite(pointLine.out2.x));
    EXPECT_EQ(lineCircle({-5, 0}, {5, 0}, -2).count, 0);
    EXPECT_EQ(lineCircle({-5, 0}, {5, 0}, 0).count, 1);
}

TEST(LineArc, keepsByArcAndSegment) {
    const double h = std::sqrt(3.0); // circle of radius 2 against x = 1 and y = -1
    const double s = 1e-8 * kRadPerDeg * 2;
    struct {
        const char *about;
        uint32_t mode;
        DTPOINT a1, a2;
        double start, end;
        std::vector<DTPOINT> want;
    } const cases[] = {
        {"further along the line first", 0, {-4, 0}, {4, 0}, 0, 0, {{2, 0}, {-2, 0}}},
        {"reversed, the order too", 0, {4, 0}, {-4, 0}, 0, 0, {{-2, 0}, {2, 0}}},
        {"touch", 0, {-4, 2}, {4, 2}, 0, 0, {{0, 2}}},
        {"miss", 0, {-4, 2 + 2e-6}, {4, 2 + 2e-6}, 0, 0, {}},
        {"mode 0 ignores both ends", 0, {0, 0}, {3, 0}, 80, 90, {{2, 0}, {-2, 0}}},
        {"mode 4 filters nothing", 4, {0, 0}, {3, 0}, 80, 90, {{2, 0}, {-2, 0}}},
        {"mode 7 is no set of bits", 7, {0, 0}, {3, 0}, 80, 90, {{2, 0}, {-2, 0}}},
        {"arc keeps the first", 1, {1, -4}, {1, 4}, 0, 90, {{1, h}}},
        {"arc keeps the second", 1, {1, 4}, {1, -4}, 0, 90, {{1, h}}},
        {"arc keeps none", 1, {1, 4}, {1, -4}, 100, 200, {}},
        {"arc drops a touch", 1, {-4, 2}, {4, 2}, 100, 200, {}},
        {"equal ends are the circle", 1, {1, -4}, {1, 4}, 30, 30, {{1, h}, {1, -h}}},
        {"ends half of 1e-8 apart too", 1, {1, -4}, {1, 4}, 30, 30 + 0.5e-8, {{1, h}, {1, -h}}},
        {"0 to 360 is the circle", 1, {1, -4}, {1, 4}, 0, 360, {{1, h}, {1, -h}}},
        {"0 to half of 1e-8 above 360", 1, {1, -4}, {1, 4}, 0, 360 + 0.5e-8, {{1, h}, {1, -h}}},
        {"across 0", 1, {-4, 0}, {4, 0}, 270, 90, {{2, 0}}},
        {"a negative start is raised", 1, {-4, 0}, {4, 0}, -90, 90, {{2, 0}}},
        {"-720 is raised once only", 1, {-4, 0}, {4, 0}, -720, -630, {}},
        {"400 is not reduced", 1, {1, -4}, {1, 4}, 400, 440, {{1, h}}},
        {"start 0.5e-8 past the point", 1, {-4, 0}, {4, 0}, 0.5e-8, 90, {{2, 0}}},
        {"start 2e-8 past the point", 1, {-4, 0}, {4, 0}, 2e-8, 90, {}},
        {"end 0.5e-8 before the point", 1, {0, 4}, {0, -4}, 180, 270 - 0.5e-8, {{0, -2}}},
        {"end 2e-8 before the point", 1, {0, 4}, {0, -4}, 180, 270 - 2e-8, {}},
        {"just below 360 counts as 0", 1, {-4, -0.5 * s}, {4, -0.5 * s}, 0, 90, {{2, -0.5 * s}}},
        {"2e-8 below 360 does not", 1, {-4, -2 * s}, {4, -2 * s}, 0, 90, {}},
        {"segment keeps the first", 2, {0, 0}, {4, 0}, 170, 190, {{2, 0}}},
        {"segment keeps the second", 2, {-4, 0}, {0, 0}, 170, 190, {{-2, 0}}},
        {"segment within the circle", 2, {-1, 0}, {1, 0}, 0, 0, {}},
        {"ends 0.5e-6 short", 2, {0, 0}, {2 - 0.5e-6, 0}, 0, 0, {{2, 0}}},
        {"ends 2e-6 short", 2, {0, 0}, {2 - 2e-6, 0}, 0, 0, {}},
        {"both filters", 3, {1, -4}, {1, 0}, 0, 360, {{1, -h}}},
        {"each filter drops one", 3, {1, -4}, {1, 0}, 0, 90, {}},
    };
    for (const auto &c : cases) {
        const double angles[2] = {c.start, c.end};
        const Answer got = lineArc(c.mode, c.a1, c.a2, 2, angles);
        EXPECT_EQ(got.status, 0) << c.about;
        ASSERT_EQ(got.count, c.want.size()) << c.about;
        const DTPOINT first = c.want.empty() ? DTPOINT{0, 0} : shifted(c.want.front());
        const DTPOINT last = c.want.empty() ? DTPOINT{0, 0} : shifted(c.want.back());
        EXPECT_TRUE(near(got.out1, first, 32 * kEpsilon)) << c.about;
        EXPECT_TRUE(near(got.out2, last, 32 * kEpsilon)) << c.about;
    }
}

TEST(LineArc, rejectsARadiusOrALineWithoutSize) {
    struct {
        const char *about;
        DTPOINT a2;
        double r;
        int32_t status;
    } const cases[] = {
        {"radius 0", {9, 2}, 0, 1},
        {"negative radius", {9, 2}, -1, 1},
        {"points 0.9e-6 apart in x and in y", {1 + 0.9e-6, 2 + 0.9e-6}, 5, 1},
        {"points 2e-6 apart", {1 + 2e-6, 2}, 5, 0},
    };
    for (const auto &c : cases) {
        const Answer got = lineArc(0, {1, 2}, c.a2, c.r, nullptr);
        EXPECT_EQ(got.status, c.status) << c.about;
        EXPECT_EQ(got.count, c.status == 0 ? 2 : 0) << c.about;
        if (c.status == 1) {
            EXPECT_EQ(got.out1, (DTPOINT{0, 0})) << c.about;
            EXPECT_EQ(got.out2, (DTPOINT{0, 0})) << c.about;
        }
    }
}

TEST(LineArc, theOtherNamesAnswerAsTheirModes) {
    const double angles[2] = {0, 90};
    const DTPOINT lines[][2] = {
        {{4, -6}, {4, 4}}, {{4, 4}, {4, -6}}, {{1, 0}, {0, 0}}, {{8, 8}, {9, 8}}, {{1, 1}, {1, 1}}};
    for (const auto &line : lines) {
        const DTPOINT *a1 = &line[0], *a2 = &line[1];
        const auto want = [&](uint32_t mode) {
            Answer answer;
            answer.status = a2d_lin_arc(mode, a1, a2, &kCenter, 2, angles, &answer.out1,
                                        &answer.out2, &answer.count);
            return answer;
        };
        const auto expectSame = [](const char *name, const Answer &got, const Answer &mode,
                                   int32_t status) {
            EXPECT_EQ(got.status, status) << name;
            EXPECT_EQ(got.count, mode.count) << name;
            EXPECT_EQ(got.out1, mode.out1) << name;
            EXPECT_EQ(got.out2, mode.out2) << name;
        };
        const auto found = [](const Answer &mode) { return mode.count > 0 ? 0 : 2071; };
        Answer got;
        DTPOINT pair[2] = {kUntouchedPoint, kUntouchedPoint};
        const int32_t number = a2dCrsLC(a1, a2, &kCenter, 2, pair);
        expectSame("a2dCrsLC", {0, pair[0], pair[1], static_cast<uint16_t>(number)}, want(0), 0);
        got.status = ca_crslc(a1, a2, &kCenter, 2, &got.out1, &got.out2, &got.count);
        expectSame("ca_crslc", got, want(0), found(want(0)));
        got.status = ca_crslc2(a1, a2, &kCenter, 2, angles, &got.out1, &got.out2, &got.count);
        expectSame("ca_crslc2", got, want(1), found(want(1)));
        got.status = sb_inslc(a1, a2, &kCenter, 2, angles, &got.out1, &got.out2, &got.count);
        expectSame("sb_inslc", got, want(1), want(1).status);
        got.status = ca_inslc(a1, a2, &kCenter, 2, angles, &got.out1, &got.out2, &got.count);
        expectSame("ca_inslc", got, want(3), want(3).status);
        got.status = a2d_inslc(a1, a2, &kCenter, 2, angles, &got.out1, &got.out2, &got.count);
        expectSame("a2d_inslc", got, want(3), want(3).status);
    }
}

TEST(LineArc, outputsMayBeTheInputs) {
    DTPOINT a1 = {-1, -2}, a2 = {7, -2}, center = kCenter;
    uint16_t count = 0;
    EXPECT_EQ(a2d_lin_arc(2, &a1, &a2, &center, 2, nullptr, &a2, &a1, &count), 0);
    EXPECT_EQ(a2, (DTPOINT{5, -2}));
    EXPECT_EQ(a1, (DTPOINT{1, -2}));
}

TEST(LineCircle, findsTheEndsOfAChosenChord) {
    Random random(31);
    for (int i = 0; i < 3000; ++i) {
        const double r = random.logUniform(1e-2, 1e5);
        const DTPOINT center = random.point(10 * r);
        const double turn = random.angleDeg(), open = random.uniform(5.0, 175.0);
        const DTPOINT ahead = polar(center, r, turn), behind = polar(center, r, turn + open);
        // Points of the chord's line, both before, on or behind it, in its direction.
        const double s = random.uniform(-3, 3), t = s + random.uniform(0.1, 3);
        const auto along = [&](double k) {
            return DTPOINT{behind.x + k * (ahead.x - behind.x),
                           behind.y + k * (ahead.y - behind.y)};
        };
        const DTPOINT a1 = along(s), a2 = along(t);
        Answer got;
        cross_lin_cir(&a1, &a2, &center, r, &got.out1, &got.out2, &got.count);
        ASSERT_EQ(got.count, 2) << i;
        // Coordinates of 15 r, reached over up to 30 times the distance of a1 and a2, against
        // a circle met at 2.5 degrees or more.
        const double within = 15 * r * kEpsilon * 30 / std::sin(2.5 * kRadPerDeg);
        EXPECT_TRUE(near(got.out1, ahead, within)) << i;
        EXPECT_TRUE(near(got.out2, behind, within)) << i;
    }
}

TEST(LineCircle, aFarEndOfTheLineCostsNoDigits) {
    const DTPOINT center = {0.3, 0.7}, a1 = {-1e9, 0.7}, a2 = {0.3, 0.7};
    Answer got;
    cross_lin_cir(&a1, &a2, &center, 1, &got.out1, &got.out2, &got.count);
    EXPECT_TRUE(near(got.out1, {1.3, 0.7}, 4 * kEpsilon));
    EXPECT_TRUE(near(got.out2, {-0.7, 0.7}, 4 * kEpsilon));
}
