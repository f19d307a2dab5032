// Turning, framing and mirroring of points, their distance and direction.

#include "support.h"

using namespace support;

TEST(TurnPoint, turnsAnticlockwiseAboutTheCentre) {
    const DTPOINT center = {1, 1}, point = {2, 1};
    DTPOINT out = kUntouchedPoint, alias = kUntouchedPoint;
    EXPECT_EQ(c_pnt(&center, &point, &out, 90), 0);
    EXPECT_TRUE(near(out, {1, 2}, 2 * kEpsilon));
    EXPECT_EQ(ca_rvpnt(&center, &point, &alias, 90), 0);
    EXPECT_EQ(alias, out);
}

TEST(TurnPoint, readsThePointAgainAfterStoringX) {
    const DTPOINT center = {1, 1};
    DTPOINT point = {3, 1};
    c_pnt(&center, &point, &point, 90);
    EXPECT_TRUE(near(point, {1, 1}, 4 * kEpsilon)) << "separate storage would give (1, 3)";
}

TEST(Frames, turnAfterTheShiftOneWayAndBeforeItTheOther) {
    const DTPOINT point = {3, 1}, origin = {1, 1};
    DTPOINT out = kUntouchedPoint;
    EXPECT_EQ(pnt_std(&point, &origin, 90, &out), 0);
    EXPECT_TRUE(near(out, {0, 2}, 4 * kEpsilon));
    EXPECT_EQ(pnt_formd(&point, &origin, 90, &out), 0);
    EXPECT_TRUE(near(out, {0, 4}, 4 * kEpsilon));
}

TEST(Frames, undoEachOtherWithOppositeAnglesAlsoInPlace) {
    Random random(21);
    for (int i = 0; i < 1000; ++i) {
        const double size = random.logUniform(1e-3, 1e6);
        const DTPOINT point = random.point(size), origin = random.point(size);
        const double angle = random.angleDeg();
        DTPOINT there = point;
        pnt_std(&there, &origin, -angle, &there);
        EXPECT_NEAR(ca_dstpt(&point, &origin), std::hypot(there.x, there.y), 8 * kEpsilon * size);
        pnt_formd(&there, &origin, angle, &there);
        EXPECT_TRUE(near(there, point, 16 * kEpsilon * size));
    }
}

TEST(Mirror, mapsAPointAcrossTheLine) {
    const DTPOINT a = {1, 1}, b = {3, 2}, point = {1, 6};
    DTPOINT out = kUntouchedPoint, reordered = kUntouchedPoint;
    EXPECT_EQ(pnt_mer(&point, &a, &b, &out), 0);
    EXPECT_EQ(out, (DTPOINT{5, -2}));
    EXPECT_EQ(ca_vmpnt(&a, &b, &point, &reordered), 0);
    EXPECT_EQ(reordered, out);
    EXPECT_EQ(pnt_mer(&point, &a, &a, &out), 0);
    EXPECT_FALSE(std::isfinite(out.x)) << "a line without direction is not guarded";
}

TEST(Direction, snapsToTheAxes) {
    constexpr double kHalfPi = 1.5707963267948966;
    struct {
        const char *about;
        DTPOINT to;
        double want;
    } const cases[] = {
        {"no direction", {0, 0}, 0},
        {"both components too short", {-0.5e-7, -0.5e-7}, 0},
        {"east", {1, 0.5e-7}, 0},
        {"east from below", {1, -0.5e-7}, 0},
        {"north", {-0.5e-7, 1}, kHalfPi},
        {"west", {-1, -0.5e-7}, 2 * kHalfPi},
        {"south", {0.5e-7, -1}, 4.71238898038469},
        {"twice the snap is not snapped", {1, 2e-7}, 2e-7},
        {"a negative angle is raised", {-1, -1}, 2.5 * kHalfPi},
    };
    for (const auto &c : cases) {
        const DTPOINT from = {8, -16}, to = {from.x + c.to.x, from.y + c.to.y};
        EXPECT_NEAR(ca_vcrad(&from, &to), c.want, c.to.y == 2e-7 ? 4e-15 : 0.0) << c.about;
    }
    const DTPOINT from = {0, 0}, noX = {kNaN, 0}, noY = {0, kNaN};
    EXPECT_TRUE(std::isnan(ca_vcrad(&from, &noX)) && std::isnan(ca_vcrad(&from, &noY)));
}

TEST(Distance, isThePlainRootOfTheSumOfSquares) {
    const DTPOINT p = {1, 2}, q = {4, 6}, far = {1e200, 0};
    EXPECT_EQ(ca_dstpt(&p, &q), 5.0);
    EXPECT_EQ(ca_dstpt(&p, &far), kInfinity) << "squares overflow, other than in a hypotenuse";
}
