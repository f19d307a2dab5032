// Degree trigonometry, arc ranges and the test whether they hold an angle.

#include "support.h"

#include "base/angle.h"

using namespace support;

namespace {

// The reduction as hosts have always had it: one turn at a time.
double reducedByTurns(double deg) {
    while (deg > 359.99999999)
        deg -= 360.0;
    while (deg < -359.99999999)
        deg += 360.0;
    return deg < 0.0 ? deg + 360.0 : deg;
}

struct Ends {
    double start, end;
};

Ends normalisedByTurns(Ends range, bool &equal) {
    Ends out = {reducedByTurns(range.start), reducedByTurns(range.end)};
    equal = std::fabs(out.end - out.start) < 1e-8;
    if (equal) {
        out.end = out.start + 360.0;
    } else if (out.start > out.end) {
        out.end += 360.0;
    }
    if (out.end > 360.0) out = {out.start - 360.0, out.end - 360.0};
    return out;
}

} // namespace

TEST(Trigonometry, takesAndGivesDegrees) {
    EXPECT_NEAR(sind(30.0), 0.5, kEpsilon);
    EXPECT_NEAR(cosd(-60.0), 0.5, kEpsilon);
    EXPECT_NEAR(tand(225.0), 1.0, 4 * kEpsilon);
    EXPECT_NEAR(asind(-0.5), -30.0, 30 * kEpsilon);
    EXPECT_NEAR(acosd(-0.5), 120.0, 120 * kEpsilon);
    EXPECT_EQ(atand(1.0), 45.0);
    EXPECT_EQ(atand(-kInfinity), -90.0);
}

TEST(Trigonometry, clampsArgumentsOfTheInverses) {
    EXPECT_EQ(asind(1.0000001), 90.0);
    EXPECT_EQ(asind(-kInfinity), -90.0);
    EXPECT_EQ(acosd(-2.0), 180.0);
    EXPECT_EQ(acosd(2.0), 0.0);
    EXPECT_TRUE(std::isnan(asind(kNaN)));
    EXPECT_TRUE(std::isnan(acosd(kNaN)));
}

TEST(Trigonometry, directionsCountFromXWithYFirst) {
    struct {
        const char *about;
        double y, x, want;
    } const cases[] = {
        {"both zero", 0.0, 0.0, 0.0},
        {"negative zeros are zeros", -0.0, -0.0, 0.0},
        {"second quadrant", 1.0, -1.0, 135.0},
        {"negative angles are raised by a turn", -1.0, 0.0, 270.0},
        {"opposite", 0.0, -1.0, 180.0},
        {"so little below x that the sum rounds to 360", -1e-300, 1.0, 360.0},
    };
    for (const auto &c : cases) {
        EXPECT_EQ(atan2d(c.y, c.x), c.want) << c.about;
    }
    EXPECT_TRUE(std::signbit(atan2d(-0.0, 1.0)));
}

TEST(StdSedeg, normalisesInPlace) {
    struct {
        const char *about;
        double start, end, wantStart, wantEnd;
        int32_t want;
    } const cases[] = {
        {"crossing 0 starts negative", 350, 10, -10, 10, 0},
        {"equal ends are a circle that ends at the end", 10, 10, -350, 10, 1},
        {"0 to 360 stays", 0, 360, 0, 360, 1},
        {"start above 360", 720, 90, 0, 90, 0},
        {"negative start", -30, 30, -30, 30, 0},
        {"ends 0.5e-8 apart are equal", 10, 10 + 0.5e-8, -350, 10, 1},
        {"ends 2e-8 apart are an arc", 10, 10 + 2e-8, 10, 10 + 2e-8, 0},
        {"an end of exactly 360 wraps to 0 and back", 90, 360, 90, 360, 0},
        {"a value just below 360 keeps itself", 359.999999995, 90, 359.999999995 - 360, 90, 0},
    };
    for (const auto &c : cases) {
        double start = c.start, end = c.end;
        EXPECT_EQ(a2d_StdSedeg(&start, &end), c.want) << c.about;
        EXPECT_EQ(start, c.wantStart) << c.about;
        EXPECT_EQ(end, c.wantEnd) << c.about;
    }
}

TEST(StdSedeg, reachesTheDoubleThatSubtractingTurnByTurnReaches) {
    Random random(11);
    for (int i = 0; i < 3000; ++i) {
        const double size = random.logUniform(1.0, 3.6e6);
        const double turns = 360.0 * std::floor(size);
        const double ends[] = {turns, i % 2 ? turns - 5e-9 : 5e-9 - turns,
                               random.uniform(-size, size)};
        const Ends range = {random.uniform(-size, size), ends[i % 3]};
        bool equal = false;
        const Ends want = normalisedByTurns(range, equal);
        Ends got = range;
        EXPECT_EQ(a2d_StdSedeg(&got.start, &got.end), equal ? 1 : 0);
        ASSERT_EQ(got.start, want.start) << range.start << " " << range.end;
        ASSERT_EQ(got.end, want.end) << range.start << " " << range.end;
        ASSERT_EQ(std::signbit(got.start), std::signbit(want.start));
    }
}

TEST(StdSedeg, endsForAnglesThatNoTurnReduces) {
    for (const double angle : {1e300, -1e300, 0x1p57, kInfinity, -kInfinity, kNaN}) {
        double start = angle, end = 90.0;
        EXPECT_EQ(a2d_StdSedeg(&start, &end), 0);
        EXPECT_EQ(std::isnan(start), !std::isfinite(angle)) << angle;
        EXPECT_EQ(a2d_ChkDegr(0.0, 90.0, kInfinity), 0) << "no comparison turns a NaN away";
    }
}

TEST(ChkDegr, holdsBothEndsWithSlack) {
    struct {
        const char *about;
        double start, end, angle;
        int32_t want;
    } const cases[] = {
        {"across 0", 350, 10, 0, 0},
        {"opposite of across 0", 350, 10, 180, 1},
        {"end plus half the slack", 10, 20, 20 + 0.5e-8, 0},
        {"end plus twice the slack", 10, 20, 20 + 2e-8, 1},
        {"start less half the slack", 10, 20, 10 - 0.5e-8, 0},
        {"start less twice the slack", 10, 20, 10 - 2e-8, 1},
        {"start at 0, angle just below 360", 0, 90, 360 - 0.5e-8, 0},
        {"end at 360, angle just above 0", 270, 360, 0.5e-8, 0},
        {"end one slack below 360, angle at 0", 90, 359.99999999, 0, 0},
        {"a full circle holds all", 45, 45, 200, 0},
        {"360 is 0", 0, 90, 360, 0},
        {"angles are reduced", 370, -340, 735, 0},
        {"clockwise is off", 10, 90, 5, 1},
        {"wrap edge accepts everything", 360 - 0.5e-8, 0, 123, 0},
        {"just above the wrap edge does not", 360 - 2e-8, 0, 123, 1},
    };
    for (const auto &c : cases) {
        EXPECT_EQ(a2d_ChkDegr(c.start, c.end, c.angle), c.want) << c.about;
    }
}

TEST(GetBedeg, exchangesWhenTheSensesDiffer) {
    double start = kUntouched, end = kUntouched;
    a2d_GetBedeg(1, 1, 30, 60, &start, &end);
    EXPECT_EQ(start, 30);
    EXPECT_EQ(end, 60);
    a2d_GetBedeg(1, -1, 30, 60, &start, &end);
    EXPECT_EQ(start, 60);
    EXPECT_EQ(end, 30);
}

// The bound on which every short cut by a coarse direction rests.
TEST(CoarseDirection, isWithinItsBoundAllRound) {
    for (int i = 1; i < 72000; ++i) {
        const double rad = 0.005 * i * planegeo::kRadPerDeg;
        for (const double size : {1e-100, 1.0, 1e100}) {
            const planegeo::Vec2 v = {size * std::cos(rad), size * std::sin(rad)};
            ASSERT_NEAR(planegeo::coarseDirectionDeg(v), planegeo::directionDeg(v),
                        planegeo::kCoarseDeg)
                << 0.005 * i;
        }
    }
}
