// Where a line meets a circle, an arc, a segment of the line.

#include <vector>

#include "support.h"

using namespace support;

namespace {

constexpr DTPOINT kCenter = {3, -2}; // off the origin, so that a forgotten shift shows

DTPOINT shifted(DTPOINT p) { return kCenter + p; }

/// Any of the functions that write two points and a count; the line is relative to the centre.
template <class Call> Crossing answer(DTPOINT a1, DTPOINT a2, Call call) {
    Crossing got;
    a1 = shifted(a1), a2 = shifted(a2);
    got.status = call(&a1, &a2, &got.out1, &got.out2, &got.count);
    return got;
}

Crossing lineArc(uint32_t mode, DTPOINT a1, DTPOINT a2, double r, const double *angles) {
    return answer(a1, a2, [=](auto *p, auto *q, auto... outputs) {
        return a2d_lin_arc(mode, p, q, &kCenter, r, angles, outputs...);
    });
}

Crossing lineCircle(DTPOINT a1, DTPOINT a2, double r) {
    return answer(a1, a2, [=](auto *p, auto *q, auto... outputs) {
        return cross_lin_cir(p, q, &kCenter, r, outputs...);
    });
}

void expectSame(const char *name, const Crossing &got, const Crossing &want, int32_t status) {
    EXPECT_EQ(got.status, status) << name;
    EXPECT_EQ(got.count, want.count) << name;
    EXPECT_EQ(got.out1, want.out1) << name;
    EXPECT_EQ(got.out2, want.out2) << name;
}

} // namespace

TEST(LineCircle, tellsTangentFromSecantOnBothSidesOfTheTolerance) {
    for (const double off : {2e-6, 0.5e-6, -0.5e-6, -2e-6}) {
        const double y = -2 - off; // below the centre
        const Crossing got = lineCircle({-5, y}, {1, y}, 2);
        ASSERT_EQ(got.count, off > 1e-6 ? 0 : off > -1e-6 ? 1 : 2) << off;
        const double half = got.count == 2 ? std::sqrt(4 - y * y) : 0;
        // The root of a difference of 8e-6 that is known to some roundings of 4.
        const double within = half > 0 ? 64 * kEpsilon / half : 32 * kEpsilon;
        const bool none = got.count == 0;
        EXPECT_TRUE(near(got.out1, none ? kUntouchedPoint : shifted({half, y}), within)) << off;
        EXPECT_TRUE(near(got.out2, none ? kUntouchedPoint : shifted({-half, y}), within)) << off;
    }
    const ToleranceGuard half(0.5);
    EXPECT_EQ(lineCircle({-5, 2.25}, {1, 2.25}, 2).count, 1);
    EXPECT_EQ(lineCircle({-5, 2.5}, {1, 2.5}, 2).count, 0) << "errdist itself";
    EXPECT_EQ(lineCircle({-5, 1.5}, {1, 1.5}, 2).count, 2) << "on the other side";
}

TEST(LineCircle, doesNotCheckItsInput) {
    const Crossing pointLine = lineCircle({1, 1}, {1, 1}, 2);
    EXPECT_EQ(pointLine.count, 2);
    EXPECT_FALSE(std::isfinite(pointLine.out1.x) || std::isfinite(pointLine.out2.x));
    EXPECT_EQ(lineCircle({-5, 0}, {5, 0}, -2).count, 0);
    EXPECT_EQ(lineCircle({-5, 0}, {5, 0}, 0).count, 1);
}

TEST(LineArc, keepsPointsOfCirclesOfAnySizeAnywhere) {
    const ToleranceGuard fine(1e-120);
    struct {
        const char *about;
        DTPOINT center;
        double r, start, end;
        double side; ///< of the centre, where the point lies that is kept
    } const cases[] = {
        {"a centre far beyond the radius", {1e12, 0}, 1, 90, 270, -1},
        {"far up", {0, -1e12}, 1, 90, 270, -1},
        {"a radius next to nothing", {0, 0}, 1e-92, 90, 270, -1},
        {"a start that is not reduced", {0, 0}, 2, 1000, 10, 1},
    };
    for (const auto &c : cases) {
        const DTPOINT a1 = {c.center.x - 4, c.center.y}, a2 = {c.center.x + 4, c.center.y};
        const double angles[] = {c.start, c.end};
        DTPOINT p, q;
        uint16_t count = 9;
        EXPECT_EQ(a2d_lin_arc(3, &a1, &a2, &c.center, c.r, angles, &p, &q, &count), 0) << c.about;
        ASSERT_EQ(count, 1) << c.about;
        EXPECT_EQ(p, (DTPOINT{c.center.x + c.side * c.r, c.center.y})) << c.about;
    }
}

TEST(LineArc, keepsByArcAndSegment) {
    const double h = std::sqrt(3.0); // x = 1 on the circle of radius 2
    const double q = std::sqrt(2.0);
    const double s = 1e-8 * kRadPerDeg * 2; // 1e-8 degrees on it
    struct {
        const char *about;
        uint32_t mode;
        DTPOINT a1, a2;
        double start, end;
        std::vector<DTPOINT> want;
    } const cases[] = {
        {"further along the line first", 0, {-4, 0}, {4, 0}, 0, 0, {{2, 0}, {-2, 0}}},
        {"reversed, the order too", 0, {4, 0}, {-4, 0}, 0, 0, {{-2, 0}, {2, 0}}},
        {"slanted, both ahead", 0, {-5.2, -1.6}, {-3.6, -0.8}, 0, 0, {{1.2, 1.6}, {-2, 0}}},
        {"miss", 0, {-4, 2 + 2e-6}, {4, 2 + 2e-6}, 0, 0, {}},
        {"mode 0 ignores both ends", 0, {0, 0}, {3, 0}, 80, 90, {{2, 0}, {-2, 0}}},
        {"mode 7 is no set of bits", 7, {0, 0}, {3, 0}, 80, 90, {{2, 0}, {-2, 0}}},
        {"arc keeps the first", 1, {1, -4}, {1, 4}, 0, 90, {{1, h}}},
        {"arc keeps the second", 1, {1, 4}, {1, -4}, 0, 90, {{1, h}}},
        {"arc keeps a touch once", 1, {-4, 2}, {4, 2}, 0, 90, {{0, 2}}},
        {"arc drops a touch", 1, {-4, 2}, {4, 2}, 100, 200, {}},
        {"ends half of 1e-8 apart: all", 1, {1, -4}, {1, 4}, 30, 30 + 0.5e-8, {{1, h}, {1, -h}}},
        {"a full circle at its seam", 1, {-4, 0}, {4, 0}, 0, 360, {{2, 0}, {-2, 0}}},
        {"ends 1e-8 apart: an arc", 1, {1, -4}, {1, 4}, 0, 1e-8, {}},
        {"a turn below 0", 1, {1, -4}, {1, 4}, -640, -280 + 0.5e-8, {{1, h}, {1, -h}}},
        {"across 0 up to the point", 1, {-4, 0}, {4, 0}, 270, 0, {{2, 0}}},
        {"across 0 to 45.5", 1, {-4, -4}, {4, 4}, 270, 45.5, {{q, q}}},
        {"across 0 but short of 45", 1, {-4, -4}, {4, 4}, 270, 44.5, {}},
        {"an end two slacks before the start", 1, {-4, 0}, {4, 0}, 2e-8, 0, {{2, 0}, {-2, 0}}},
        {"an end one slack before the point", 1, {0, -4}, {0, 4}, 0, 90 - 1e-8, {{0, 2}}},
        {"negative ends are raised", 1, {0, 4}, {0, -4}, -90, -1, {{0, -2}}},
        {"-720 is raised once only", 1, {-4, 0}, {4, 0}, -720, -630, {}},
        {"start 0.5e-8 past the point", 1, {-4, 0}, {4, 0}, 0.5e-8, 90, {{2, 0}}},
        {"start 2e-8 past the point", 1, {-4, 0}, {4, 0}, 2e-8, 90, {}},
        {"end 0.5e-8 before the point", 1, {0, 4}, {0, -4}, 180, 270 - 0.5e-8, {{0, -2}}},
        {"end 2e-8 before the point", 1, {0, 4}, {0, -4}, 180, 270 - 2e-8, {}},
        {"0.5e-8 below 360 is 0", 1, {-4, -0.5 * s}, {4, -0.5 * s}, 0, 0.5, {{2, -0.5 * s}}},
        {"2e-8 below 360 does not", 1, {-4, -2 * s}, {4, -2 * s}, 0, 90, {}},
        {"segment keeps the first", 2, {0, 0}, {4, 0}, 170, 190, {{2, 0}}},
        {"segment keeps the second", 2, {-4, 0}, {0, 0}, 170, 190, {{-2, 0}}},
        {"segment 0.5e-6 short", 2, {0, 0}, {2 - 0.5e-6, 0}, 0, 0, {{2, 0}}},
        {"segment 2e-6 short", 2, {0, 0}, {2 - 2e-6, 0}, 0, 0, {}},
        {"both filters", 3, {1, -4}, {1, 0}, 0, 360, {{1, -h}}},
        {"each filter drops one", 3, {1, -4}, {1, 0}, 0, 90, {}},
    };
    for (const auto &c : cases) {
        const double angles[2] = {c.start, c.end};
        const Crossing got = lineArc(c.mode, c.a1, c.a2, 2, angles);
        EXPECT_EQ(got.status, 0) << c.about;
        ASSERT_EQ(got.count, c.want.size()) << c.about;
        const bool none = c.want.empty();
        EXPECT_TRUE(near(got.out1, none ? DTPOINT{} : shifted(c.want.front()), 32 * kEpsilon))
            << c.about;
        EXPECT_TRUE(near(got.out2, none ? DTPOINT{} : shifted(c.want.back()), 32 * kEpsilon))
            << c.about;
    }
}

TEST(LineArc, rejectsARadiusOrALineWithoutSize) {
    const Crossing rejected = {1, {0, 0}, {0, 0}, 0};
    expectSame("radius 0", lineArc(0, {1, 2}, {9, 2}, 0, nullptr), rejected, 1);
    expectSame("negative radius", lineArc(0, {1, 2}, {9, 2}, -1, nullptr), rejected, 1);
    expectSame("box", lineArc(0, {1, 2}, {1 + 0.9e-6, 2 + 0.9e-6}, 5, nullptr), rejected, 1);
    EXPECT_EQ(lineArc(0, {1, 0.25}, {1 + 2e-6, 0.25}, 0.5, nullptr).count, 2);
}

TEST(LineArc, theOtherNamesAnswerAsTheirModes) {
    const double arcs[][2] = {{0, 90}, {300, 60}, {270, 45}, {0, 360}};
    const struct {
        const char *name;
        decltype(&ca_inslc) function;
        uint32_t mode;
        bool foundOrNot;
    } filtered[] = {{"ca_crslc2", ca_crslc2, 1, true},
                    {"sb_inslc", sb_inslc, 1, false},
                    {"ca_inslc", ca_inslc, 3, false},
                    {"a2d_inslc", a2d_inslc, 3, false}};
    const DTPOINT lines[][2] = {
        {{1, -4}, {1, 4}}, {{1, 4}, {1, -4}}, {{1, 0}, {0, 0}}, {{8, 8}, {9, 8}}, {{1, 1}, {1, 1}}};
    for (const auto &line : lines) {
        for (std::size_t i = 0; i < 16; ++i) {
            const auto &f = filtered[i / 4];
            const auto &arc = arcs[i % 4];
            const Crossing want = lineArc(f.mode, line[0], line[1], 2, arc);
            const Crossing got = answer(line[0], line[1], [&](auto *p, auto *q, auto... outputs) {
                return f.function(p, q, &kCenter, 2, arc, outputs...);
            });
            expectSame(f.name, got, want, !f.foundOrNot ? want.status : want.count ? 0 : 2071);
        }
        const Crossing all = lineArc(0, line[0], line[1], 2, nullptr);
        const Crossing plain = answer(line[0], line[1], [](auto *p, auto *q, auto... outputs) {
            return ca_crslc(p, q, &kCenter, 2, outputs...);
        });
        expectSame("ca_crslc", plain, all, all.count ? 0 : 2071);
        const DTPOINT a1 = shifted(line[0]), a2 = shifted(line[1]);
        DTPOINT pair[2] = {kUntouchedPoint, kUntouchedPoint};
        const int32_t count = a2dCrsLC(&a1, &a2, &kCenter, 2, pair);
        expectSame("a2dCrsLC", {count, pair[0], pair[1], all.count}, all, all.count);
    }
}

TEST(LineArc, outputsMayBeTheInputs) {
    DTPOINT a1 = {-1, -2}, a2 = {7, -2};
    uint16_t count = 0;
    EXPECT_EQ(a2d_lin_arc(2, &a1, &a2, &kCenter, 2, nullptr, &a2, &a1, &count), 0);
    EXPECT_EQ(a2, (DTPOINT{5, -2}));
    EXPECT_EQ(a1, (DTPOINT{1, -2}));
}
