// The feet of perpendiculars from a point to an ellipse, their order and fall-backs.

#include <vector>

#include "support.h"

using namespace support;

namespace {

/// Half axes 5 and 3 (c^2 = 16), turned and off the origin.
constexpr DTELLIPSE kEllipse = {0, 7, -3, 10, 6, 0, 360, 30};

struct Answer {
    int32_t result;
    DTPOINT out[4] = {kUntouchedPoint, kUntouchedPoint, kUntouchedPoint, kUntouchedPoint};
    double distance = kUntouched;
    uint32_t count = kUntouchedCount;
};
Answer nearest(const DTELLIPSE &e, DTPOINT p) {
    Answer got{};
    got.result = a2dEllpsPer(&p, &e, got.out, &got.distance);
    return got;
}
Answer all(const DTELLIPSE &e, DTPOINT p) {
    Answer got{};
    got.result = a2dEllpsPerPnts(&p, &e, got.out);
    return got;
}
using Counted = int32_t (*)(const DTPOINT *, const DTELLIPSE *, DTPOINT *, uint32_t *);
Answer counted(Counted f, const DTELLIPSE &e, DTPOINT p) {
    Answer got{};
    got.result = f(&p, &e, got.out, &got.count);
    return got;
}

/// How far the line from the foot to p is from a right angle: p's distance from the normal there.
double offNormal(const DTELLIPSE &e, DTPOINT foot, DTPOINT p) {
    const DTPOINT center = {e.cx, e.cy};
    DTPOINT f, q;
    pnt_std(&foot, &center, -e.rot, &f);
    pnt_std(&p, &center, -e.rot, &q);
    const double nx = f.x / (e.a * e.a), ny = f.y / (e.b * e.b);
    return std::fabs((q.x - f.x) * ny - (q.y - f.y) * nx) / std::hypot(nx, ny);
}

void expectPoints(const Answer &got, const std::vector<DTPOINT> &want, DTPOINT rest) {
    for (std::size_t i = 0; i < 4; ++i) {
        const DTPOINT wanted = i < want.size() ? want[i] : rest;
        EXPECT_TRUE(near(got.out[i], wanted, 50 * kEpsilon)) << i;
    }
}

} // namespace

TEST(NearestFoot, bySituation) {
    const double y = 3 * std::sqrt(1 - 0.0625); // beside (0.8, 0) and its image
    struct {
        const char *about;
        DTPOINT p;
        std::vector<DTPOINT> want;
        double distance;
    } cases[] = {
        {"centre", {0, 0}, {{0, 3}, {0, -3}}, 3},
        {"within errdist of it", {4e-7, 4e-7}, {{0, 3}, {0, -3}}, 3},
        {"second axis", {0, -0.2}, {{0, -3}}, 2.8},
        {"second axis, outside", {5e-7, 7}, {{0, 3}}, 4},
        {"first axis, inside the evolute", {0.8, 0}, {{1.25, y}, {1.25, -y}}, std::hypot(0.45, y)},
        {"first axis, beyond it", {-3.3, 0}, {{-5, 0}}, 1.7},
        {"first axis, outside", {9, 5e-7}, {{5, 0}}, 4},
    };
    for (auto &c : cases) {
        SCOPED_TRACE(c.about);
        const Answer got = nearest(kEllipse, placed(kEllipse, c.p));
        EXPECT_EQ(got.result, static_cast<int32_t>(c.want.size()));
        EXPECT_NEAR(got.distance, c.distance, 20 * kEpsilon);
        for (DTPOINT &p : c.want) {
            p = placed(kEllipse, p);
        }
        if (c.want.size() == 1) c.want.push_back({0, 0});
        expectPoints(got, c.want, kUntouchedPoint);
    }
}

TEST(AllFeet, onTheAxesInOrder) {
    const double y = 3 * std::sqrt(1 - 0.0625), x = 5 * std::sqrt(1 - 0.0625);
    struct {
        const char *about;
        DTPOINT p;
        std::vector<DTPOINT> want;
    } cases[] = {
        {"centre", {0, 0}, {{5, 0}, {0, 3}, {-5, 0}, {0, -3}}},
        {"second axis inside", {0, 4.0 / 3}, {{0, 3}, {0, -3}, {x, -0.75}, {-x, -0.75}}},
        {"second axis at the evolute's cusp", {0, 16.0 / 3}, {{0, 3}, {0, -3}}},
        {"first axis inside", {-0.8, 0}, {{5, 0}, {-5, 0}, {-1.25, y}, {-1.25, -y}}},
        {"first axis at the evolute's cusp", {3.2, 0}, {{5, 0}, {-5, 0}}},
    };
    for (auto &c : cases) {
        SCOPED_TRACE(c.about);
        const Answer got = all(kEllipse, placed(kEllipse, c.p));
        EXPECT_EQ(got.result, static_cast<int32_t>(c.want.size()));
        for (DTPOINT &p : c.want) {
            p = placed(kEllipse, p);
        }
        expectPoints(got, c.want, {0, 0});
    }
    const DTELLIPSE exact = {0, 0, 0, 10, 6, 0, 360, 0};
    EXPECT_EQ(all(exact, {3.2, 0}).result, 2) << "the cusp itself";
    EXPECT_EQ(all(exact, {0, 16.0 / 3}).result, 2);
    EXPECT_EQ(all({0, 0, 0, 30, 20, 0, 360, 0}, {1.8, 6.4}).result, 2) << "cubes of 3/5 and 4/5";
}

TEST(AllFeet, codesAndWhatIsCleared) {
    struct {
        const char *about;
        double a, b;
        int32_t code;
    } const cases[] = {
        {"circle", 6, 6, -2},
        {"second axis longer", 6, 7, -2},
        {"half of errdist longer", 6 + 0.5e-6, 6, -2},
        {"twice errdist longer", 6 + 2e-6, 6, 2},
        {"axis of errdist", 6, 1e-6, -1},
        {"first axis of errdist", 1e-6, 6, -1},
        {"NaN", kNaN, 6, 0},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.about);
        const DTELLIPSE e = {0, 7, -3, c.a, c.b, 0, 360, 30};
        const DTPOINT p = {11, 2};
        EXPECT_EQ(all(e, p).result, c.code);
        EXPECT_EQ(nearest(e, p).result, c.code == 2 ? 1 : c.code);
        if (c.code > 0) continue;
        expectPoints(all(e, p), {}, {0, 0});
        expectPoints(nearest(e, p), {{0, 0}, {0, 0}}, kUntouchedPoint);
        EXPECT_EQ(nearest(e, p).distance, kUntouched);
    }
    EXPECT_EQ(all(kEllipse, {kInfinity, 1}).result, 0);
    const ToleranceGuard guard(-1); // lets a circle pass, whose quartic has no leading coefficient
    EXPECT_EQ(all({0, 0, 0, 6, 6, 0, 0, 0}, {4, 2}).result, -2);
    EXPECT_EQ(nearest({0, 0, 0, 6, 6, 0, 0, 0}, {4, 2}).result, 0);
    const DTELLIPSE upright = {0, 0, 0, 5.8, 6, 0, 0, 0}; // its quartic has one, and four roots
    const Answer got = all(upright, {0.05, 0.02});
    EXPECT_EQ(got.result, 4);
    EXPECT_EQ(got.out[2], nearest(upright, {0.05, 0.02}).out[0]);
    const double x[] = {got.out[2].x, got.out[3].x, got.out[0].x, got.out[1].x};
    EXPECT_TRUE(x[0] > 0 && 0 > x[1] && x[1] > x[2] && x[2] > x[3]) << "lower pair first";
    for (const DTPOINT foot : got.out) {
        EXPECT_LT(offCurve(upright, foot), 20 * kEpsilon);
        EXPECT_LT(offNormal(upright, foot, {0.05, 0.02}), 100 * kEpsilon);
    }
}

/// The feet are on the curve and square, in the order nearest, farthest, and across the first axis
/// the one nearer to its end; four inside the evolute and two outside it.
TEST(AllFeet, ofGeneralPoints) {
    Random random(711);
    for (int i = 0; i < 30000; ++i) {
        const double size = random.logUniform(1e-2, 1e5);
        const double thickness =
            i % 3 ? random.uniform(0.1, 0.98) : 1 - random.logUniform(1e-4, 0.1);
        const DTPOINT o = random.point(size);
        const DTELLIPSE e = {0, o.x, o.y, size, size * thickness, 0, 0, random.angleDeg()};
        const double a = e.a / 2, b = e.b / 2, evolute = (a - b) * (a + b), t = random.angleDeg();
        const double out = random.logUniform(1e-3, 1e3) * (i % 2 ? 1 : -1); // of the evolute
        const double scale = out > 0 ? 1 + out : 1 / (1 - out);
        const DTPOINT local = {scale * evolute / a * std::pow(cosd(t), 3),
                               scale * evolute / b * std::pow(sind(t), 3)};
        if (std::fmin(std::fabs(local.x), std::fabs(local.y)) < 2e-6) continue;
        const DTPOINT p = placed(e, local);
        const Answer got = all(e, p);
        ASSERT_EQ(got.result, out > 0 ? 2 : 4);
        // The normal of a rounded foot turns most at the ends of the first axis.
        const double reach = std::hypot(p.x, p.y) + 4 * size;
        const double within = 20 * kEpsilon * reach;
        for (int k = 0; k < got.result; ++k) {
            ASSERT_LT(offCurve(e, got.out[k]), within);
            ASSERT_LT(offNormal(e, got.out[k], p),
                      within / (thickness * thickness) * (1 + distance(p, got.out[k]) / size));
        }
        const auto d = [&](int k) { return distance(got.out[k], p); };
        for (int k = 1; k < got.result; ++k) {
            ASSERT_LE(d(0), d(k) + within);
            ASSERT_GE(d(1), d(k) - within);
        }
        ASSERT_TRUE(got.result == 2 || d(2) >= d(3) - within);
        const Answer one = nearest(e, p);
        ASSERT_EQ(one.result, 1);
        ASSERT_EQ(one.out[0], got.out[0]);
        ASSERT_NEAR(one.distance, d(0), within);
    }
}

TEST(FeetOnArc, keepsTheirOrder) {
    struct {
        const char *about;
        double start, end;
        std::vector<double> wantDeg;
    } const cases[] = {
        {"all of the centre", 0, 360, {0, 90, 180, 270}},
        {"an end belongs to the arc", 90, 200, {90, 180}},
        {"across 0", 260, 10, {0, 270}},
        {"none", 100, 170, {}},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.about);
        DTELLIPSE e = kEllipse;
        e.start = c.start, e.end = c.end;
        const DTPOINT p = {e.cx, e.cy};
        Answer got{};
        got.result = a2dEllpsArcPerPnts(&p, &e, got.out);
        std::vector<DTPOINT> want;
        for (const double deg : c.wantDeg)
            want.push_back(at(e, deg));
        EXPECT_EQ(got.result, static_cast<int32_t>(want.size()));
        expectPoints(got, want, kUntouchedPoint);
        // The same with its fall-back, the nearest sample: here the start of the arc.
        const Answer replaced = counted(a2d_PerEP2, e, p);
        EXPECT_EQ(replaced.result, 0);
        EXPECT_EQ(replaced.count, want.empty() ? 1 : want.size());
        if (want.empty()) want.push_back(at(e, 100));
        expectPoints(replaced, want, c.start == 0 ? DTPOINT{0, 0} : kUntouchedPoint);
    }
}

TEST(FeetOrFallBack, circlesRefusalsAndPointsOnTheArc) {
    const DTELLIPSE circle = {0, 7, -3, 4, 4, 300, 20, 45}; // in the plane from 345 to 65
    const DTPOINT east = {9, -3}, west = {5, -3}, p = {12, -3};
    const Answer whole = counted(a2d_PerEP, circle, p), arc = counted(a2d_PerEP2, circle, p);
    EXPECT_EQ(whole.result, 0);
    EXPECT_EQ(whole.count, 2U);
    expectPoints(whole, {west, east}, {0, 0}); // on from p through the centre
    EXPECT_EQ(arc.count, 1U);
    expectPoints(arc, {east, east}, kUntouchedPoint);
    const Answer off = counted(a2d_PerEP2, circle, {7, -9});
    EXPECT_EQ(off.result, 0);
    EXPECT_EQ(off.count, 0U);
    expectPoints(off, {{0, 0}, {0, 0}}, kUntouchedPoint);
    for (const DTPOINT &center : {DTPOINT{7, -3}, DTPOINT{7 + 9e-7, -3 - 9e-7}}) {
        const Answer none = counted(a2d_PerEP, circle, center);
        EXPECT_EQ(none.result, -1);
        EXPECT_EQ(none.count, kUntouchedCount);
        expectPoints(none, {{0, 0}, {0, 0}}, {0, 0});
        EXPECT_EQ(counted(a2d_PerEP2, circle, center).result, -1);
    }
    const DTELLIPSE thin = {0, 7, -3, 4, 1e-7, 0, 90, 0};
    EXPECT_EQ(counted(a2d_PerEP, thin, p).result, -1);
    EXPECT_EQ(counted(a2d_PerEP2, thin, p).result, -1);
    EXPECT_EQ(counted(a2d_PerEP2, thin, p).count, kUntouchedCount);

    // Without a foot on the arc: a point within errdist of it stands for itself.
    DTELLIPSE e = kEllipse;
    e.start = 10, e.end = 30;
    const DTPOINT beside = at(e, 30 + 5e-6); // 4e-7 beyond the end
    EXPECT_EQ(counted(a2d_PerEP2, e, beside).out[0], beside);
    EXPECT_EQ(counted(a2d_PerEP, {0, 0, 0, kNaN, 1, 10, 30, 0}, beside).count, 1U);
}

TEST(PolarProjection, takesThePolarAngleForAParameter) {
    constexpr uint32_t kReversed = PLANEGEO_ATTR_REVERSED,
                       kBoth = kReversed | PLANEGEO_ATTR_CLOCKWISE;
    struct {
        const char *about;
        uint32_t attr;
        double start, end, deg; // deg: of the point projected
        int32_t want;
    } const cases[] = {
        {"first axis", 0, 0, 90, 0, 0},
        {"within", 0, 0, 90, 45, 0},
        {"off", 0, 0, 90, 135, 1},
        {"the arc's angles are polar here", 0, 0, 40, 45, 0},
        {"reversed", kReversed, 0, 90, 135, 0},
        {"reversed: ends kept", kReversed, 0, 90, 90, 0},
        {"both bits: as none", kBoth, 0, 90, 135, 1},
        {"wraps", 0, 300, 60, 0, 0},
        {"wraps, off", 0, 300, 60, 180, 1},
        {"an end at 0 is 360", 0, 200, 5e-7, 270, 0},
        {"an end beyond 1e-6 is not", 0, 0, 2e-6, 270, 1},
        {"negative start, raised", 0, -90, 10, 270, 0},
        {"negative start and end, both raised", 0, -90, -10, 300, 0},
        {"start below a turn", 0, -400, 10, 0, 1},
        {"negative end alone", 0, 10, -10, 90, 1},
        {"half of 1e-8 before the start", 0, 90 + 0.5e-8, 100, 90, 0},
        {"twice 1e-8 before the start", 0, 90 + 2e-8, 100, 90, 1},
        {"half of 1e-8 beyond the end", 0, 10, 90 - 0.5e-8, 90, 0},
        {"twice 1e-8 beyond the end", 0, 10, 90 - 2e-8, 90, 1},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.about);
        const DTELLIPSE e = {c.attr, 7, -3, 10, 6, c.start, c.end, 30};
        const DTPOINT p = placed(e, {2 * cosd(c.deg), 2 * sind(c.deg)});
        DTPOINT out = kUntouchedPoint;
        EXPECT_EQ(a2d_perle(&p, &e, &out), c.want);
        EXPECT_TRUE(near(out, at(e, c.deg), 20 * kEpsilon));
    }
    DTPOINT out = kUntouchedPoint;
    const DTPOINT atCenter = {7 + 9e-7, -3 - 9e-7}, beside = {7 + 1.1e-6, -3};
    EXPECT_EQ(a2d_perle(&atCenter, &kEllipse, &out), -1);
    const DTELLIPSE thin = {0, 0, 0, 10, 1e-6, 0, 360, 0}, upright = {0, 0, 0, 1e-6, 10, 0, 360, 0};
    EXPECT_EQ(a2d_perle(&beside, &thin, &out), -1);
    EXPECT_EQ(a2d_perle(&beside, &upright, &out), -1);
    EXPECT_EQ(out, kUntouchedPoint);
    EXPECT_EQ(a2d_perle(&beside, &kEllipse, &out), 0);
    DTELLIPSE quarter = {0, 7, -3, 10, 6, 0, 90, 1e-8};
    EXPECT_EQ(a2d_perle(&beside, &quarter, &out), 0) << "below its start by all of the slack";
    quarter.rot = -360.00000001;
    EXPECT_EQ(a2d_perle(&beside, &quarter, &out), 1) << "a turn and all of the slack beyond";
    quarter.rot = -30;
    EXPECT_EQ(a2d_perle(&beside, &quarter, &out), 0) << "in the plane below 0";
}
