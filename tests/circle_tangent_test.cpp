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
    const DTPOINT m = {-119.0 / 169, 120.0 / 169}, w = {120.0 / 169, 119.0 / 169}; // two normals
    const auto at1 = [](DTPOINT n) { return DTPOINT{0.85 * n.x, 0.85 * n.y}; };
    const auto at2 = [](DTPOINT n) { return DTPOINT{0.5 + 0.35 * n.x, 1.2 + 0.35 * n.y}; };
    const std::vector<DTPOINT> unequal = {{0.85, 0}, {0.85, 1.2},       at1(m),    at2(m),
                                          at1(w),    at2({-w.x, -w.y}), {0, 0.85}, {0.5, 0.85}};
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
        {"of two sizes, slanted", 0.85, {0.5, 1.2}, 0.35, unequal},
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
