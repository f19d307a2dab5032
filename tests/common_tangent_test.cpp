// The common tangents of two ellipses: how many, their order, that they touch.

#include "support.h"

using namespace support;

namespace {

Tangents tangents(const Ellipse &e, const Ellipse &f) {
    return tangentsOf([&](auto... outputs) {
        return a2d_tch2e(&e.center, &f.center, e.a, f.a, e.b, f.b, e.rot, f.rot, outputs...);
    });
}

/// By how much the line through two points misses touching an ellipse.
double miss(const Ellipse &e, DTPOINT p, DTPOINT q) {
    const double length = distance(p, q);
    const double x = (p.y - q.y) / length, y = (q.x - p.x) / length;
    const double turn = e.rot * kRadPerDeg, c = std::cos(turn), s = std::sin(turn);
    const double reach = std::hypot(e.a / 2 * (x * c + y * s), e.b / 2 * (y * c - x * s));
    return std::fabs(std::fabs((e.center.x - p.x) * x + (e.center.y - p.y) * y) - reach);
}

} // namespace

TEST(EllipseTangents, countsAndCodes) {
    const Ellipse wide = {{3, -2}, 4, 2, 0};
    const auto at = [](double x, double y, double a, double b, double rot) {
        return Ellipse{{3 + x, -2 + y}, a, b, rot};
    };
    struct {
        const char *about;
        Ellipse e, f;
        int32_t status;
        int count;
    } const cases[] = {
        {"apart", wide, at(5, 0, 4, 2, 90), 0, 4},
        {"apart, side by side", at(0, 0, 20, 1, 45), at(2, -2, 20, 1, 45), 0, 4},
        {"crossing twice", wide, at(2, 0, 4, 2, 0), 0, 2},
        {"crossing four times", wide, at(0, 0, 4, 2, 90), 0, 4},
        {"touching from outside: outer ones alone", wide, at(4, 0, 4, 2, 0), 0, 2},
        {"apart by half of errdist", wide, at(4 + 0.5e-6, 0, 4, 2, 0), 0, 2},
        {"apart by twice errdist", wide, at(4 + 2e-6, 0, 4, 2, 0), 0, 4},
        {"crossing by half of errdist", wide, at(4 - 0.5e-6, 0, 4, 2, 0), 0, 2},
        {"inside", wide, at(0.1, 0, 1, 0.5, 30), 2, 0},
        {"around", at(0.1, 0, 1, 0.5, 30), wide, 2, 0},
        {"inside, touching", wide, at(1, 0, 2, 1, 0), 2, 0},
        {"inside, touching twice", wide, at(0, 0, 2, 2, 0), 2, 0},
        {"the same", wide, wide, 1, 0},
        {"the same, its axes exchanged", wide, at(0, 0, 2, 4, 270), 1, 0},
        {"circles are the same in any rotation", at(0, 0, 2, 2, 0), at(0, 0, 2, 2, 33), 1, 0},
        {"the same but for half of errdist", wide, at(0.5e-6, 0, 4, 2, 0), 1, 0},
        {"moved by twice errdist", wide, at(2e-6, 0, 4, 2, 0), 0, 2},
        {"second axis of errdist", wide, at(5, 0, 4, 1e-6, 0), -1, 0},
        {"first axis of errdist", at(5, 0, 1e-6, 4, 0), wide, -1, 0},
        {"axes a little longer", at(5, 0, 1.5e-6, 1.5e-6, 0), wide, 0, 4},
        {"negative axis", at(0, 0, -4, 2, 0), at(5, 0, 4, 2, 0), -1, 0},
        {"NaN", wide, at(kNaN, 0, 4, 2, 0), -1, 0},
        {"infinite", wide, at(5, 0, 4, kInfinity, 0), -1, 0},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.about);
        const Tangents got = tangents(c.e, c.f);
        EXPECT_EQ(got.status, c.status);
        EXPECT_EQ(got.count, c.count);
        for (int i = 0; i < 8; ++i) {
            EXPECT_EQ(got.t[i] == kUntouchedPoint, i >= 2 * c.count);
        }
    }
}

TEST(EllipseTangents, fourOuterOnesByTheirNormals) {
    const Ellipse first = {{3, -2}, 4, 2, 30};
    const Tangents got = tangents(first, {{3, -2}, 2, 4, 30});
    ASSERT_EQ(got.count, 4);
    const double wide = 4 / std::sqrt(5.0), close = 1 / std::sqrt(5.0);
    const DTPOINT on1[] = {{-wide, -close}, {wide, -close}, {wide, close}, {-wide, close}};
    for (std::size_t i = 0; i < 4; ++i) {
        const DTPOINT on2 = {on1[i].x / 4, on1[i].y * 4};
        EXPECT_TRUE(near(got.t[2 * i], first.placed(on1[i]), 20 * kEpsilon)) << i;
        EXPECT_TRUE(near(got.t[2 * i + 1], first.placed(on2), 20 * kEpsilon)) << i;
    }
}

TEST(EllipseTangents, ofCirclesAreThoseOfCircles) {
    Random random(741);
    for (int i = 0; i < 5000; ++i) {
        const DTPOINT c1 = random.point(10), c2 = random.point(10);
        const double r1 = random.uniform(0.1, 5), r2 = i % 4 ? random.uniform(0.1, 5) : r1;
        const Tangents got = tangents({c1, 2 * r1, 2 * r1, random.angleDeg()},
                                      {c2, 2 * r2, 2 * r2, random.angleDeg()});
        const Tangents want =
            tangentsOf([&](auto... outputs) { return ca_cctan(&c1, r1, &c2, r2, outputs...); });
        ASSERT_EQ(got.count, want.count);
        const double d = distance(c1, c2);
        // The contacts of circles that nearly touch turn by the root of a rounding.
        const double apart = std::fmin(std::fabs(d - r1 - r2), std::fabs(d - std::fabs(r1 - r2)));
        for (int k = 0; k < 2 * want.count; ++k) {
            ASSERT_TRUE(near(got.t[k], want.t[k], 100 * kEpsilon * 10 / std::sqrt(apart / 10)));
        }
    }
}

/// Every line touches both ellipses in its two points; how many there are follows from the way
/// the pair was made.
TEST(EllipseTangents, touchBoth) {
    Random random(742);
    for (int i = 0; i < 20000; ++i) {
        const auto thickness = [&] { return random.bits() % 3 ? random.logUniform(1e-3, 1) : 1.0; };
        const double size = random.logUniform(0.01, 1e4);
        Ellipse e = {random.point(size), size, size * thickness(), random.angleDeg()};
        Ellipse f = {e.center, size * random.logUniform(0.1, 10), 0, random.angleDeg()};
        f.b = f.a * thickness();
        const double apart = (e.a + f.a) / 2 * (1 + random.logUniform(1e-3, 1e4));
        const int kind = i % 3;
        if (kind == 0) f.center = polar(e.center, apart, random.angleDeg()); // apart
        if (kind == 1) f.a = e.a * 0.99 * e.b / e.a, f.b = f.a * 0.5; // within, whatever the turn
        if (kind == 2) f.center = polar(e.center, apart / 4, random.angleDeg());
        if (random.bits() % 2) std::swap(e.a, e.b), e.rot += 90;
        if (random.bits() % 2) std::swap(e, f);
        const Tangents got = tangents(e, f);
        ASSERT_TRUE(kind != 0 || got.count == 4);
        ASSERT_TRUE(kind != 1 || got.status == 2);
        for (std::size_t k = 0; k < got.count; ++k) {
            const DTPOINT p = got.t[2 * k], q = got.t[2 * k + 1];
            const double coordinates = std::hypot(p.x, p.y) + std::hypot(q.x, q.y);
            // Some roundings of the points; along the line they make up for a short distance.
            const double within = 20 * kEpsilon * (coordinates + e.a + e.b + f.a + f.b);
            ASSERT_LE(miss(e, p, q), within);
            ASSERT_LE(miss(f, p, q), within);
        }
        ASSERT_EQ(tangents(f, e).count, got.count) << "swapped";
    }
}
