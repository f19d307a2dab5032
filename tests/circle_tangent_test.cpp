// Where tangents touch circles.

#include <vector>

#include "support.h"

using namespace support;

namespace {

constexpr DTPOINT kOrigin = {-4, 3};

DTPOINT shifted(DTPOINT p) { return kOrigin + p; }

Tangents commonTangents(DTPOINT c1, double r1, DTPOINT c2, double r2) {
    return tangentsOf([&](auto... outputs) { return ca_cctan(&c1, r1, &c2, r2, outputs...); });
}

} // namespace

TEST(PointTangents, touchRightThenLeftAndNeverFromInside) {
    const double h = std::sqrt(3.0);
    struct {
        DTPOINT point;
        std::vector<DTPOINT> want;
    } const cases[] = {
        {{4, 0}, {{1, -h}, {1, h}}},
        {{0, 4}, {{h, 1}, {-h, 1}}},
        {{2, 0}, {}}, // on the circle, exactly
        {{1, 0}, {}},
        {{0, 0}, {}},
        {{2 + 1e-9, 0}, {{2, 0}, {2, 0}}}, // no tolerance: two contacts 1e-4 apart
    };
    for (const auto &c : cases) {
        const DTPOINT point = shifted(c.point);
        const double within = c.point.x == 2 + 1e-9 ? 1e-4 : 8 * kEpsilon;
        DTPOINT out1 = kUntouchedPoint, out2 = kUntouchedPoint;
        uint16_t count = kUntouchedCount;
        EXPECT_EQ(ca_pctan(&kOrigin, 2, &point, &out1, &out2, &count), 0);
        ASSERT_EQ(count, c.want.size()) << c.point;
        EXPECT_TRUE(near(out1, count ? shifted(c.want[0]) : DTPOINT{}, within)) << c.point;
        EXPECT_TRUE(near(out2, count ? shifted(c.want[1]) : DTPOINT{}, within)) << c.point;
    }
}

TEST(CommonTangents, comeInPairsAndOrder) {
    const double h = std::sqrt(3.0) / 2;
    struct {
        const char *about;
        double r1;
        DTPOINT c2;
        double r2;
        std::vector<DTPOINT> want;
    } const cases[] = {
        {"apart",
         1,
         {4, 0},
         1,
         {{0, -1}, {4, -1}, {0, 1}, {4, 1}, {0.5, -h}, {3.5, h}, {0.5, h}, {3.5, -h}}},
        {"overlapping", 1, {1, 0}, 1, {{0, -1}, {1, -1}, {0, 1}, {1, 1}}},
        {"touching from outside", 1, {2, 0}, 1, {{0, -1}, {2, -1}, {0, 1}, {2, 1}}},
        {"one inside the other", 2, {0.5, 0}, 1, {}},
        {"the first inside the other", 1, {0.5, 0}, 2, {}},
        {"inside, squares 0.9e-6 apart", 2, {1 + 0.45e-6, 0}, 1, {}},
        {"concentric", 2, {0.9e-6, 0.9e-6}, 2, {}},
        {"radius 0", 0, {4, 0}, 1, {}},
        {"the other radius 0", 1, {4, 0}, 0, {}},
    };
    for (const auto &c : cases) {
        const Tangents got = commonTangents(kOrigin, c.r1, shifted(c.c2), c.r2);
        EXPECT_EQ(got.status, c.want.empty() ? 1 : 0) << c.about;
        ASSERT_EQ(got.count * 2U, c.want.size()) << c.about;
        for (std::size_t i = 0; i < 8; ++i) {
            const DTPOINT want = i < c.want.size() ? shifted(c.want[i]) : kUntouchedPoint;
            EXPECT_TRUE(near(got.t[i], want, 16 * kEpsilon)) << c.about << " t" << i + 1;
        }
    }
    EXPECT_EQ(commonTangents({0, 0}, 2, {1 + 2e-6, 0}, 1).count, 2) << "squares 4e-6 apart";
}

TEST(CommonTangents, standOnTheRadii) {
    Random random(35);
    for (int i = 0; i < 3000; ++i) {
        const double size = random.logUniform(1e-2, 1e5);
        const DTPOINT c1 = random.point(10 * size), c2 = random.point(10 * size);
        const double r1 = size * random.uniform(0.1, 5), r2 = size * random.uniform(0.1, 5);
        const double d = distance(c1, c2);
        if (std::fabs(d - std::fabs(r1 - r2)) < 0.1 * size) continue;
        if (std::fabs(d - r1 - r2) < 0.1 * size) continue;
        const Tangents got = commonTangents(c1, r1, c2, r2);
        ASSERT_EQ(got.count, d < std::fabs(r1 - r2) ? 0 : d < r1 + r2 ? 2 : 4) << i;
        const DTPOINT *t = got.t;
        for (int k = 0; k < got.count; ++k, t += 2) {
            const DTPOINT on1 = t[0], on2 = t[1];
            const double within = 1e3 * kEpsilon * size; // roots of differences above size^2 / 100
            EXPECT_NEAR(distance(on1, c1), r1, within) << i;
            EXPECT_NEAR(distance(on2, c2), r2, within) << i;
            const double ux = on2.x - on1.x, uy = on2.y - on1.y;
            EXPECT_NEAR(ux * (on1.x - c1.x) + uy * (on1.y - c1.y), 0, 30 * size * within) << i;
            EXPECT_NEAR(ux * (on2.x - c2.x) + uy * (on2.y - c2.y), 0, 30 * size * within) << i;
            // The side of the centres: outer lines first right, then left; inner ones cross.
            const double side1 = ux * (c1.y - on1.y) - uy * (c1.x - on1.x);
            const double side2 = ux * (c2.y - on2.y) - uy * (c2.x - on2.x);
            EXPECT_EQ(side1 > 0, k % 2 == 0) << i;
            EXPECT_EQ(side2 > 0, k < 2 ? k == 0 : k == 3) << i;
        }
    }
}
