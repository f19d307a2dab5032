// Where a point lies to an ellipse, and its nearest point on an elliptic arc: sampled and true.

#include "plain_distance.h"
#include "support.h"

using namespace support;

namespace {

struct Answer {
    double distance;
    DTPOINT out = kUntouchedPoint;
};
using Function = double (*)(const DTPOINT *, double, double, double, const double *,
                            const DTPOINT *, DTPOINT *);
Answer ask(Function f, const DTELLIPSE &e, DTPOINT p) {
    const DTPOINT center = {e.cx, e.cy};
    const double angles[2] = {e.start, e.end};
    Answer answer{};
    answer.distance = f(&center, e.a, e.b, e.rot, angles, &p, &answer.out);
    return answer;
}

/// Random ellipses from circles to a million times longer than wide.
DTELLIPSE anyEllipse(Random &random) {
    const double size = random.logUniform(1e-3, 1e5);
    const double ratios[] = {1.0, 1.0 + random.logUniform(1e-9, 1.0), random.logUniform(1, 1e6)};
    const DTPOINT o = random.point(size);
    DTELLIPSE e = {0, o.x, o.y, size, size / ratios[random.bits() % 3], 0, 360, random.angleDeg()};
    if (random.bits() % 2) std::swap(e.a, e.b);
    return e;
}

} // namespace

TEST(EllipseSide, byAFourthPowerOfLength) {
    const DTELLIPSE e = {0, 10, -20, 4, 2, 77, 78, 30};
    const DTELLIPSE small = {0, 10, -20, 0.2, 0.1, 0, 0, 30};
    const DTELLIPSE large = {0, 0, 0, 100000, 50000, 0, 0, 0};
    struct {
        const char *about;
        DTELLIPSE e;
        DTPOINT local;
        int32_t want;
    } const cases[] = {
        {"first axis's end", e, {2, 0}, 0},
        {"second axis's end", e, {0, -1}, 0},
        {"value 0.5e-4 outside", e, {0, std::sqrt(1 + 0.125e-4)}, 0},
        {"value 2e-4 outside", e, {0, std::sqrt(1 + 0.5e-4)}, 1},
        {"value 0.5e-4 inside", e, {0, std::sqrt(1 - 0.125e-4)}, 0},
        {"value 2e-4 inside", e, {0, std::sqrt(1 - 0.5e-4)}, 2},
        {"centre", e, {0, 0}, 2},
        {"small: a point clearly outside is on it", small, {0.13, 0}, 0},
        {"large and on it to the last bit", large, {30000, 20000}, 0},
        {"large, the next double above", large, {30000, 20000 + 0x1p-38}, 1},
        {"NaN", e, {kNaN, 0}, 2},
    };
    for (const auto &c : cases) {
        const DTPOINT p = placed(c.e, c.local);
        EXPECT_EQ(a2d_distpe(&p, &c.e), c.want) << c.about;
    }
}

TEST(SampledDistance, isThatOfThePlainSteps) {
    const auto plainly = [](const DTPOINT *c, double a, double b, double rot, const double *angles,
                            const DTPOINT *p,
                            DTPOINT *out) { return plain::dstpp(*c, a, b, rot, angles, *p, out); };
    Random random(731);
    for (int i = 0; i < 12000; ++i) {
        DTELLIPSE e = anyEllipse(random);
        if (random.bits() % 3) {
            e.start = random.uniform(-400, 400);
            e.end = random.uniform(-400, 800);
        }
        if (random.bits() % 3 == 0) {
            if (i % 2) e.start = std::floor(e.start);
            e.end = e.start + std::floor(e.end - e.start); // rounded, as the samples before it are
        }
        const double a = e.a / 2, b = e.b / 2, t = random.angleDeg() * kRadPerDeg;
        const double evolute = (a - b) * (a + b), share = random.logUniform(1e-12, 10);
        const double tie = (e.start + 7 + (i % 4 < 2 ? 0.5 : 0.05)) * kRadPerDeg;
        const DTPOINT locals[] = {
            random.point(e.a),
            {(a + share * b) * std::cos(tie), (b + share * a) * std::sin(tie)},
            {a * std::cos(t) * (1 + share), b * std::sin(t) * (1 + share)},
            {evolute / a * std::pow(std::cos(t), 3), -evolute / b * std::pow(std::sin(t), 3)},
            {0, random.uniform(-a, a)},
            {random.uniform(-a, a), 0},
            {0, 0},
            {a * share, b / share},
        };
        const DTPOINT p = placed(e, locals[random.bits() % 8]);
        const Answer got = ask(ca_dstpp, e, p), want = ask(plainly, e, p);
        ASSERT_EQ(got.distance, want.distance);
        ASSERT_EQ(got.out, want.out);
    }
}

TEST(SampledDistance, knownSamplesAndOddRanges) {
    struct {
        const char *about;
        double start, end;
        DTPOINT p;
        double wantDeg;
    } const cases[] = {
        {"far along the first axis", 0, 360, {9, 0}, 0},
        {"tenths, not hundredths", 10, 360, {5 * cosd(50.53), 7 * sind(50.53)}, 50.5},
        {"on the curve, off the arc", 10, 90, {2, 0}, 10},
        {"of equal ones the first", 90, 270, {0, 0}, 90},
        {"the end is reached by whole steps only", 0, 45.05, {-3, 9}, 45},
        {"a start above the end crosses 0", 350.5, 10, {3, 0}, 0},
        {"by as many turns as it takes", 1080, 10, {3, 0}, 0},
        {"sums reach an end that the difference does not", 1.1, 4.1, {4, 1}, 4.1},
        {"equal ends are one sample", 30, 30, {-5, 1}, 30},
        {"more than a turn", 0, 1e300, {0, 3}, 90},
        {"steps that change nothing", 1e17, 2e17, {0, 3}, 1e17},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.about);
        const DTELLIPSE e = {0, 7, -3, 4, 2, c.start, c.end, 20};
        const double t = c.wantDeg * kRadPerDeg;
        const DTPOINT p = placed(e, c.p), want = placed(e, {2 * std::cos(t), std::sin(t)});
        const Answer got = ask(ca_dstpp, e, p);
        EXPECT_TRUE(near(got.out, want, 20 * kEpsilon));
        EXPECT_NEAR(got.distance, distance(p, want), 20 * kEpsilon);
        const DTPOINT center = {e.cx, e.cy};
        EXPECT_EQ(ca_dstpe(&center, e.a, e.b, e.rot, &e.start, &p), got.distance);
    }
}

TEST(SampledDistance, zerosPointsOnTheArcAndNoAngles) {
    const DTELLIPSE circle = {0, 0, -1, 2, 2, 0, 360, 0};
    EXPECT_EQ(ask(ca_dstpp, circle, {0, 3}).out, (DTPOINT{0, 0})) << "both snapped, in the plane";
    const DTPOINT on = {1 - 4e-7, -1}; // twice that, and below 1e-6, by the focal distances
    EXPECT_EQ(ask(ca_dstpp, circle, on).out, on);
    EXPECT_EQ(ask(ca_dstpp, circle, on).distance, 0.0);
    EXPECT_GT(ask(ca_dstpp, circle, {1 - 6e-7, -1}).distance, 0.0);
    const Answer noAngle = ask(ca_dstpp, {0, 0, 0, 2, 2, kNaN, 360, 0}, {5, 5});
    EXPECT_TRUE(std::isnan(noAngle.distance));
    EXPECT_EQ(noAngle.out, (DTPOINT{0, 0}));
    EXPECT_TRUE(std::isnan(ask(ca_dstpp, {0, 0, 0, 2, 2, -kInfinity, 0, 0}, {5, 5}).distance));
}

TEST(NearestPoint, knownAnswers) {
    const double half = std::sqrt(0.5);
    struct {
        const char *about;
        double a, b, start, end;
        DTPOINT p, want;
    } const cases[] = {
        {"beyond the first axis", 4, 2, 0, 360, {5, 0}, {2, 0}},
        {"beyond the second axis", 4, 2, 0, 360, {0, -5}, {0, -1}},
        {"first axis shorter", 2, 4, 0, 360, {0, 5}, {0, 2}},
        {"circle", 2, 2, 0, 360, {3, 3}, {half, half}},
        {"equal ends: the whole ellipse", 4, 2, 77, 77, {5, 0}, {2, 0}},
        {"off the arc: its start", 4, 2, 90, 270, {3, 1}, {0, 1}},
        {"off the arc: its end", 4, 2, 90, 270, {3, -1}, {0, -1}},
        {"off a wide arc: its start", 4, 2, 90, 330, {1, 0.9}, {0, 1}},
        {"beyond a narrow arc: its end", 4, 2, 0, 90, {-1, 2}, {0, 1}},
        {"across 0", 4, 2, -90, 90, {5, 0}, {2, 0}},
        {"the arc without the nearest point: the other minimum", 4, 2, 190, 350, {0, 0.2}, {0, -1}},
        {"there, but with an end nearer", 4, 2, 190, 350, {-1.9, 0.1}, {2 * cosd(190), sind(190)}},
        {"the segment's inside", 4, 0, 0, 360, {1, 1}, {1, 0}},
        {"the segment's end", 4, 0, 0, 360, {-3, 1}, {-2, 0}},
        {"its lower arc alone", 4, 0, 180, 360, {1, 1}, {1, 0}},
        {"a segment along the second axis", 0, 4, 0, 360, {1, 1}, {0, 1}},
        {"a point", 0, 0, 0, 360, {3, 4}, {0, 0}},
        {"an arc hardly longer than nothing", 4, 2, 90, 90 + 1e-7, {0, -3}, {0, 1}},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.about);
        const DTELLIPSE e = {0, 7, -3, c.a, c.b, c.start, c.end, 20};
        const DTPOINT p = placed(e, c.p), want = placed(e, c.want);
        const Answer got = ask(a2d_dstpp, e, p);
        const double slack = c.end - c.start < 1e-6 ? 1e-8 : 20 * kEpsilon;
        EXPECT_TRUE(near(got.out, want, slack));
        EXPECT_NEAR(got.distance, distance(p, want), slack);
        const DTPOINT center = {e.cx, e.cy};
        EXPECT_EQ(a2d_dstpe(&center, e.a, e.b, e.rot, &e.start, &p), got.distance);
    }
}

TEST(NearestPoint, hardlyOffTheCentreOfACircle) {
    const Answer got = ask(a2d_dstpp, {0, 0, 0, 2, 2, 0, 360, 0}, {0, 1e-170});
    EXPECT_TRUE(near(got.out, {0, 1}, kEpsilon));
    EXPECT_EQ(got.distance, 1.0);
}

TEST(NearestPoint, withinErrdistIsThePointItself) {
    const ToleranceGuard guard(1e-3);
    const DTELLIPSE e = {0, 0, 0, 4, 2, 0, 360, 0};
    EXPECT_EQ(ask(a2d_dstpp, e, {2.0005, 0}).distance, 0.0);
    EXPECT_EQ(ask(a2d_dstpp, e, {2.0005, 0}).out, (DTPOINT{2.0005, 0}));
    EXPECT_EQ(ask(a2d_dstpp, e, {2.002, 0}).out, (DTPOINT{2, 0}));
    EXPECT_TRUE(std::isnan(ask(a2d_dstpp, e, {kNaN, 0}).distance));
}

/// A circle that touches the ellipse from inside and is not larger than its sharpest bend has no
/// nearer point, nor has one outside: the normal's points up to there belong to their foot.
TEST(NearestPoint, comesBackFromItsNormal) {
    Random random(732);
    for (int i = 0; i < 40000; ++i) {
        DTELLIPSE e = anyEllipse(random);
        const double a = e.a / 2, b = e.b / 2, t = random.angleDeg();
        const double c = std::cos(t * kRadPerDeg), s = std::sin(t * kRadPerDeg);
        const double sharpest = std::fmin(a * a / b, b * b / a);
        const double size = std::fmax(a, b), inverse = 1 / std::hypot(b * c, a * s);
        const double along =
            i % 2 ? -sharpest * random.uniform(0, 1) : size * random.logUniform(1e-6, 10);
        const DTPOINT local = {a * c + along * b * c * inverse, b * s + along * a * s * inverse};
        e.start = t - random.uniform(0, 350);
        e.end = random.uniform(t, e.start + 359);
        const DTPOINT p = placed(e, local);
        // Some ten roundings of the coordinates.
        const double within = 10 * kEpsilon * (size + std::fabs(along) + std::hypot(e.cx, e.cy));
        const Answer got = ask(a2d_dstpp, e, p);
        if (got.distance == 0.0) {
            ASSERT_LT(std::fabs(along), 1e-6 + within);
            continue;
        }
        ASSERT_NEAR(got.distance, std::fabs(along), within) << e.a << " " << e.b << " " << t;
        ASSERT_NEAR(distance(got.out, p), got.distance, within);
    }
}
