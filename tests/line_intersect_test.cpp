// Where two lines meet.

#include "support.h"

using namespace support;

namespace {

struct Lines {
    DTPOINT a1, a2, b1, b2;
};

} // namespace

TEST(CrossLines, comparesTheRawDeterminant) {
    struct {
        const char *about;
        Lines in;
        int32_t status;
        DTPOINT want;
    } const cases[] = {
        {"crossing", {{0, 0}, {1, 1}, {0, 1}, {1, 0}}, 1, {0.5, 0.5}},
        {"beyond both segments", {{0, 0}, {1, 0}, {5, 2}, {5, 1}}, 1, {5, 0}},
        {"parallel", {{0, 0}, {1, 0}, {0, 1}, {1, 1}}, 0, kUntouchedPoint},
        {"determinant 0.5e-6", {{0, 0}, {1, 0}, {0, 0}, {1, 0.5e-6}}, 0, kUntouchedPoint},
        {"determinant 1e-6", {{0, 0}, {1, 0}, {0, 0}, {1, 1e-6}}, 1, {0, 0}},
        {"perpendicular but short", {{3, 4}, {3.0005, 4}, {3, 4}, {3, 4.001}}, 0, kUntouchedPoint},
    };
    for (const auto &c : cases) {
        DTPOINT out = kUntouchedPoint;
        EXPECT_EQ(a2dCrs2L(&c.in.a1, &c.in.a2, &c.in.b1, &c.in.b2, &out), c.status) << c.about;
        EXPECT_EQ(out, c.want) << c.about;
    }
}

TEST(CrossSegments, tellsOnBothOutsideAndParallel) {
    struct {
        const char *about;
        Lines in;
        int32_t status;
        DTPOINT want;
    } const cases[] = {
        {"crossing inside", {{1, 1}, {5, 5}, {1, 5}, {5, 1}}, 0, {3, 3}},
        {"slanted", {{0, 0}, {6, 3}, {1, 5}, {5, -3}}, 0, {2.8, 1.4}},
        {"outside the first only", {{0, 0}, {1, 0}, {3, -1}, {3, 1}}, 1, {3, 0}},
        {"outside the second only", {{3, -1}, {3, 1}, {0, 0}, {1, 0}}, 1, {3, 0}},
        {"meeting at ends", {{0, 0}, {2, 0}, {2, 0}, {2, 3}}, 0, {2, 0}},
        {"0.5e-6 short of the other", {{-2, 0}, {-0.5e-6, 0}, {0, -1}, {0, 1}}, 0, {0, 0}},
        {"the second 1.5e-6 short", {{0, -1}, {0, 1}, {-2, 0}, {-1.5e-6, 0}}, 1, {0, 0}},
        {"1.5e-6 short of the other", {{-2, 0}, {-1.5e-6, 0}, {0, -1}, {0, 1}}, 1, {0, 0}},
        {"parallel", {{7, 0}, {8, 0}, {7, 1}, {9, 1}}, 2, {0, 0}},
        {"both quotients small", {{0, 1}, {1, 1}, {0, 1}, {1, 1 + 0.5e-6}}, 2, {0, 0}},
        {"only one quotient small", {{0, 1}, {10, 1}, {0, 1}, {1e-7, 1 + 1e-6}}, 0, {0, 1}},
    };
    for (const auto &c : cases) {
        DTPOINT out = kUntouchedPoint;
        EXPECT_EQ(a2d_ins2l(&c.in.a1, &c.in.a2, &c.in.b1, &c.in.b2, &out), c.status) << c.about;
        EXPECT_TRUE(near(out, c.want, 8 * kEpsilon)) << c.about;
        DTPOINT alias = kUntouchedPoint;
        EXPECT_EQ(ca_ins2l(&c.in.a1, &c.in.a2, &c.in.b1, &c.in.b2, &alias), c.status) << c.about;
        EXPECT_EQ(alias, out) << c.about;
    }
}

TEST(CrossSegments, aSegmentWithoutLengthIsNotParallel) {
    const DTPOINT p = {1, 1}, a = {0, 0}, b = {2, 0};
    DTPOINT out = kUntouchedPoint;
    EXPECT_EQ(a2d_ins2l(&p, &p, &a, &b, &out), 1);
    EXPECT_FALSE(std::isfinite(out.x));
}

TEST(CrossSegments, noLinesAreParallelWithoutATolerance) {
    const ToleranceGuard none(0.0);
    const DTPOINT a1 = {0, 0}, a2 = {1, 0}, b1 = {0, 1}, b2 = {1, 1};
    DTPOINT out = kUntouchedPoint;
    EXPECT_EQ(a2d_ins2l(&a1, &a2, &b1, &b2, &out), 1);
}

TEST(CrossDirections, solvesByTangentsAndNormalisesInPlace) {
    struct {
        const char *about;
        double p[4], angles[2];
        int32_t status;
        DTPOINT want;
        double wantAngles[2];
    } const cases[] = {
        {"general", {1, 2, 5, 2}, {45, 135}, 0, {3, 4}, {45, 135}},
        {"turns are taken off", {1, 2, 5, 2}, {405, -225}, 0, {3, 4}, {45, 135}},
        {"first vertical", {2, 7, -1, 3}, {90, 45}, 0, {2, 6}, {90, 45}},
        {"first vertical downwards", {2, 7, 0, 0}, {-90, 45}, 0, {2, 2}, {270, 45}},
        {"second vertical", {-1, 3, 2, 7}, {45, 270}, 0, {2, 6}, {45, 270}},
        {"0.5e-8 off it", {2, 7, 0, 0}, {90 + 0.5e-8, 45}, 0, {2, 2}, {90 + 0.5e-8, 45}},
        {"equal directions", {0, 0, 1, 1}, {370, 10}, 2070, kUntouchedPoint, {10, 10}},
        {"0.5e-8 apart", {0, 0, 1, 1}, {9, 9 + 0.5e-8}, 2070, kUntouchedPoint, {9, 9 + 0.5e-8}},
        {"360 stays 360", {0, 1, 1, 0}, {360, 45}, 0, {2, 1}, {360, 45}},
        {"720 becomes 360", {0, 1, 1, 0}, {720, 45}, 0, {2, 1}, {360, 45}},
        {"-360 becomes 0", {0, 1, 1, 0}, {-360, 45}, 0, {2, 1}, {0, 45}},
    };
    for (const auto &c : cases) {
        double rec[6] = {c.p[0], c.p[1], c.p[2], c.p[3], kUntouched, kUntouched};
        double angles[2] = {c.angles[0], c.angles[1]};
        EXPECT_EQ(aatCalCrs2l(rec, angles), c.status) << c.about;
        EXPECT_TRUE(near({rec[4], rec[5]}, c.want, 64 * kEpsilon)) << c.about;
        EXPECT_NEAR(angles[0], c.wantAngles[0], 1e-13) << c.about;
        EXPECT_NEAR(angles[1], c.wantAngles[1], 1e-13) << c.about;
        EXPECT_EQ(rec[0], c.p[0]) << c.about;
    }
}

TEST(CrossDirections, doesNotSeeOppositeDirections) {
    double rec[6] = {0, 0, 0, 5, kUntouched, kUntouched};
    double flat[2] = {0, 360};
    EXPECT_EQ(aatCalCrs2l(rec, flat), 0);
    EXPECT_GT(std::fabs(rec[4]), 1e15) << "tangents equal up to rounding";
    double upright[2] = {90, 270};
    rec[2] = 1.0;
    EXPECT_EQ(aatCalCrs2l(rec, upright), 0);
    EXPECT_EQ(rec[4], 0.0);
    EXPECT_GT(std::fabs(rec[5]), 1e15);
}

TEST(CrossDirections, endsForAnglesOutOfReach) {
    double rec[6] = {0, 0, 1, 1, kUntouched, kUntouched};
    double angles[2] = {1e300, -kInfinity};
    EXPECT_EQ(aatCalCrs2l(rec, angles), 0);
    EXPECT_TRUE(angles[0] >= 0.0 && angles[0] <= 360.0);
    EXPECT_TRUE(std::isnan(angles[1]));
}
