// Lines against the ellipse at the origin: touching by its fixed tolerances, points, their order.

#include "support.h"

namespace {

using namespace support;

Crossing cross(DTPOINT p1, DTPOINT p2, double a, double b) {
    Crossing answer;
    answer.status = a2d_insLStandardE(&p1, &p2, a, b, &answer.out1, &answer.out2, &answer.count);
    return answer;
}
int32_t touches(DTPOINT p1, DTPOINT p2, double a, double b, DTPOINT *out) {
    *out = kUntouchedPoint;
    return a2d_IsElpTangentLine(&p1, &p2, a, b, out);
}

TEST(StandardLine, TouchesByItsOwnTolerances) {
    struct Case {
        const char *about;
        DTPOINT p1, p2;
        double a, b;
        int32_t status;
        DTPOINT want;
    };
    const double root = std::sqrt(5.0), h = root / 2;
    // x + y = root touches axes 4, 2 at (4, 1) / root
    const Case cases[] = {
        {"horizontal above", {7, 1}, {-3, 1}, 4, 2, 0, {0, 1}},
        {"horizontal below", {7, -1}, {-3, -1}, 4, 2, 0, {0, -1}},
        {"within 1e-6: the axis end itself", {7, 1 + 0.9e-6}, {-3, 1 + 0.9e-6}, 4, 2, 0, {0, 1}},
        {"beyond 1e-6", {7, 1 + 1.1e-6}, {-3, 1 + 1.1e-6}, 4, 2, -1, {}},
        {"vertical right", {2, 9}, {2, 8}, 4, 2, 0, {2, 0}},
        {"vertical left", {-2, 9}, {-2, 8}, 4, 2, 0, {-2, 0}},
        {"vertical within", {1, 9}, {1, 8}, 4, 2, -1, {}},
        {"hardly sloped: squares decide", {7, 1 + 0.9e-6}, {-3, 1 + 0.92e-6}, 4, 2, -1, {}},
        {"sloped", {root, 0}, {0, root}, 4, 2, 0, {4 / root, 1 / root}},
        {"rising", {-root, 0}, {0, root}, 4, 2, 0, {-4 / root, 1 / root}},
        {"sloped, told in short", {h + 0.5, h - 0.5}, {h, h}, 4, 2, 0, {4 / root, 1 / root}},
        {"through the centre", {1, 3}, {-1, -3}, 4, 2, -1, {}},
        {"a circle's diameter", {0.3, 0.7}, {-0.3, -0.7}, 4, 4, -1, {}},
        {"second axis longer", {root, 0}, {0, root}, 2, 4, 0, {1 / root, 4 / root}},
        {"negative first axis has no foci", {root, 0}, {0, root}, -4, 2, -1, {}},
        {"no first axis", {-1, 0}, {1, 2}, 0, 2, -1, {}},
        {"shorter than errdist: 0 away from all", {9, 9}, {9 + 1e-7, 9 + 1e-7}, 4, 1e-3, -1, {}},
        {"NaN", {kNaN, 1}, {0, 1}, 4, 2, -1, {}},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.about);
        DTPOINT out;
        EXPECT_EQ(touches(c.p1, c.p2, c.a, c.b, &out), c.status);
        EXPECT_TRUE(near(out, c.status == 0 ? c.want : kUntouchedPoint, 8 * kEpsilon));
    }
}

/// A line at distance d from the centre with the normal (cos, sin) leaves the focal test by
/// d^2 - A^2 cos^2 - B^2 sin^2, whatever the size of the squares.
TEST(StandardLine, DecidesSmallDifferencesOfLargeSquares) {
    Random random(602);
    for (int i = 0; i < 20000; ++i) {
        const double size = random.logUniform(1.0, 1e5);
        const double halfA = size, halfB = size * random.logUniform(0.1, 0.99);
        // A normal with few bits and points on it keep the line's own rounding out of the way.
        const double x = std::ldexp(std::floor(random.uniform(200, 800)), -10);
        const double y = 1.0 - x * x / 2;
        const double length2 = x * x + y * y;
        const double support2 = halfA * halfA * x * x + halfB * halfB * y * y;
        const double rounded = 8 * kEpsilon * (halfA * halfA + support2 / length2);
        for (const double off : {0.3e-6, -0.3e-6, 3e-6, -3e-6}) {
            if (rounded > 0.5e-6) continue;
            const double d = std::sqrt(support2 + off * length2); // x X + y Y = d
            DTPOINT out;
            const int32_t status = touches({d / x, 0}, {0, d / y}, 2 * halfA, 2 * halfB, &out);
            EXPECT_EQ(status, std::fabs(off) < 1e-6 ? 0 : -1) << size << " " << off;
        }
    }
    // One unit in the last place of 1e10 is 2e-6: the squares themselves cannot tell these apart.
    DTPOINT out;
    EXPECT_EQ(touches({125000, 0}, {0, 93750}, 150000, 150000, &out), 0); // 3-4-5: distance 75000
    EXPECT_TRUE(near(out, {45000, 60000}, 60000 * 4 * kEpsilon));
    EXPECT_EQ(touches({125000, 0}, {0, 93750 + 0x1p-36}, 150000, 150000, &out), -1);
}

TEST(StandardLine, PointsAndTheirOrder) {
    struct Case {
        const char *about;
        DTPOINT p1, p2;
        double a, b;
        uint16_t count;
        DTPOINT want1, want2;
    };
    const double half = std::sqrt(0.5), x = 0.01 + 2e-6; // a little outside
    const Case cases[] = {
        {"greater x first", {-4, -2}, {4, 2}, 4, 2, 2, {2 * half, half}, {-2 * half, -half}},
        {"whatever the direction", {4, 2}, {-4, -2}, 4, 2, 2, {2 * half, half}, {-2 * half, -half}},
        {"vertical: greater y first", {0, -9}, {0, -8}, 4, 2, 2, {0, 1}, {0, -1}},
        {"horizontal", {-9, 0}, {-8, 0}, 4, 2, 2, {2, 0}, {-2, 0}},
        {"the greater root at x = 0", {0, 1}, {-2, 0}, 4, 2, 2, {0, 1}, {-2, 0}},
        {"second axis longer", {-3, 0}, {3, 0}, 2, 4, 2, {1, 0}, {-1, 0}},
        {"touches exactly", {1.25, 0}, {0, 0.9375}, 1.5, 1.5, 1, {0.45, 0.6}, {}},
        {"misses", {0, 3}, {6, 0}, 4, 2, 0, {}, {}},
        {"vertical misses", {3, 5}, {3, 6}, 4, 2, 0, {}, {}},
        {"vertical at A touches", {2, 5}, {2, 6}, 4, 2, 1, {2, 0}, {}},
        {"vertical, by length^6", {x, 5}, {x, 6}, 0.02, 0.02, 1, {x, 0}, {}},
        {"every vertical line near a small ellipse", {1, 5}, {1, 6}, 0.02, 0.02, 1, {1, 0}, {}},
        {"first axis zero, vertical line", {3, 5}, {3, 6}, 0, 2, 1, {3, 0}, {}},
        {"first axis zero, sloped line", {-1, -1}, {1, 1}, 0, 2, 0, {}, {}},
        {"NaN axis", {-1, -1}, {1, 1}, kNaN, 2, 0, {}, {}},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.about);
        const Crossing got = cross(c.p1, c.p2, c.a, c.b);
        EXPECT_EQ(got.status, 0);
        EXPECT_EQ(got.count, c.count);
        EXPECT_TRUE(near(got.out1, c.want1, 8 * kEpsilon));
        EXPECT_TRUE(near(got.out2, c.want2, 8 * kEpsilon));
    }
    const ToleranceGuard guard(0.5); // chords of 0.45 and 0.55 at the end of a circle
    EXPECT_EQ(
        cross({std::sqrt(1 - 0.225 * 0.225), 0}, {std::sqrt(1 - 0.225 * 0.225), 1}, 2, 2).count, 1);
    EXPECT_EQ(
        cross({std::sqrt(1 - 0.275 * 0.275), 0}, {std::sqrt(1 - 0.275 * 0.275), 1}, 2, 2).count, 2);
    EXPECT_EQ(cross({0, 1.2728}, {1.2728, 0}, 2, 2).count, 2); // chord 0.87
    EXPECT_EQ(cross({0, 1.38}, {1.38, 0}, 2, 2).count, 1);     // chord 0.44
    EXPECT_EQ(cross({-1, 0}, {1, 0}, 1e160, 1.0).status, -1) << "1 / A^2 is zero";
    // Where products of squares overflow the plain quadratic is left.
    const Crossing huge = cross({0, 1e80}, {-2e80, 0}, 4e80, 2e80);
    EXPECT_EQ(huge.count, 2);
    EXPECT_TRUE(near(huge.out1, {0, 1e80}, 8e80 * kEpsilon));
    EXPECT_TRUE(near(huge.out2, {-2e80, 0}, 8e80 * kEpsilon));
    EXPECT_EQ(cross({0, 3e80}, {6e80, 0}, 4e80, 2e80).count, 0);
}

/// Both points lie on the ellipse and the line; the ends of every chord come back.
TEST(StandardLine, ChordsComeBack) {
    Random random(603);
    for (int i = 0; i < 20000; ++i) {
        const double size = random.logUniform(1.0, 1e5);
        const double halfA = size, halfB = size * random.logUniform(0.01, 10);
        const double t1 = random.angleDeg(), t2 = t1 + random.uniform(60, 300);
        const DTPOINT p = {halfA * std::cos(t1 * kRadPerDeg), halfB * std::sin(t1 * kRadPerDeg)};
        const DTPOINT q = {halfA * std::cos(t2 * kRadPerDeg), halfB * std::sin(t2 * kRadPerDeg)};
        const Crossing got = cross(p, q, 2 * halfA, 2 * halfB);
        ASSERT_EQ(got.count, 2);
        const bool inOrder = p.x > q.x;
        // A few roundings; a chord over 60 degrees doubles those across it.
        const double within = 20 * kEpsilon * std::fmax(halfA, halfB);
        EXPECT_TRUE(near(got.out1, inOrder ? p : q, within));
        EXPECT_TRUE(near(got.out2, inOrder ? q : p, within));
    }
}

} // namespace
