// A circle about the origin against an ellipse along the axes: counts, order, what is left beyond
// the count, and that rounding loses no point.

#include <algorithm>
#include <array>
#include <numeric>
#include <vector>

#include "support.h"

namespace {

using namespace support;

struct Shape {
    double ex, ey, a, b, r;
};
struct Answer {
    int32_t count;
    std::array<DTPOINT, 4> at;
};
Answer cross(const Shape &s) {
    Answer answer{};
    answer.at.fill(kUntouchedPoint);
    answer.count = a2dIntersectionEC(s.ex, s.ey, s.a, s.b, s.r, answer.at.data());
    return answer;
}

TEST(CircleEllipse, KnownAnswers) {
    struct Case {
        const char *about;
        Shape s;
        int32_t count;
        std::vector<DTPOINT> want; // all that is known of the four outputs
    };
    const double x = std::sqrt(3.375), y = std::sqrt(0.625), h = std::sqrt(8.0);
    const Case cases[] = {
        {"upper, right first", {0, 0, 3, 1, 2}, 4, {{x, y}, {-x, y}, {x, -y}, {-x, -y}}},
        {"a touch is one point", {3, 0, 2, 1, 1}, 1, {{1, 0}}},
        {"a touch on top of the circle", {0, 7, 4, 2, 5}, 1, {{0, 5}, {0, 0}}},
        {"roots 0.7e-6 off the real axis count", {3 + 0.75e-12, 0, 2, 1, 1}, 1, {}},
        {"1.4e-6 off it do not", {3 + 3e-12, 0, 2, 1, 1}, 0, {}},
        {"nested", {0.5, 0.25, 4, 3, 1}, 0, {}},
        {"a circle of radius a: right first", {6, 0, 5, 5 - 0.5e-6, 5}, 2, {{3, -4}, {3, 4}}},
        {"no circle beyond errdist", {6, 0, 5, 5 - 2e-6, 5}, 2, {}},
        {"second axis longer", {0, 0, 1, 3, 2}, -1001, {kUntouchedPoint}},
        {"first axis too short", {0, 0, 0.9e-6, 0.5e-6, 1}, -1001, {kUntouchedPoint}},
        {"first axis long enough", {3, 0, 1.1e-6, 0.5e-6, 3}, 1, {{3, 0}, {0, 0}}},
        {"radius too short", {0, 0, 3, 1, 0.9e-6}, -1001, {kUntouchedPoint}},
        {"segment through the circle", {0, 1, 5, 0, 3}, 2, {{h, 1}, {-h, 1}, {0, 0}}},
        {"segment that ends inside", {4, 1, 5, 0.9e-6, 3}, 1, {{h, 1}, {0, 0}}},
        {"segment within the circle", {0, 1, 2, 0, 3}, 0, {{0, 0}}},
        {"segment past the circle", {0, 4, 5, 0, 3}, 0, {{0, 0}}},
        {"segment end 0.9e-6 short still counts", {h - 5 - 0.9e-6, 1, 5, 0, 3}, 2, {{h, 1}}},
        {"segment end 1.1e-6 short does not", {h - 5 - 1.1e-6, 1, 5, 0, 3}, 1, {{-h, 1}}},
        {"touching segment, all to the right, on purpose", {9, 3, 2, 0, 3}, 1, {{0, 3}, {0, 0}}},
        {"touching segment, all to the left", {-9, 3, 2, 0, 3}, 0, {{0, 0}}},
        {"centre 0.9e-6 beside the axis: as if on it", {0.9e-6, 0, 3, 1, 2}, 4, {{x, y}, {-x, y}}},
        {"small, on purpose", {0.1, 0, 0.02, 0.01, 0.03}, 2, {{0.02, 0}, {-0.02, 0}, {0, 0}}},
        {"off the axis: x stays 0", {0.1, 0.09, 0.02, 0.01, 0.03}, 2, {{0, 0.12}, {0, 0.12}}},
        {"NaN", {kNaN, 0, 3, 1, 2}, 0, {{0, 0}}},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.about);
        const Answer got = cross(c.s);
        EXPECT_EQ(got.count, c.count);
        for (std::size_t i = 0; i < c.want.size(); ++i) {
            EXPECT_TRUE(near(got.at[i], c.want[i], 1e-12)) << i;
        }
    }
}

/// From the highest ordinate to the lowest.
std::vector<std::size_t> places(const Answer &answer) {
    std::vector<std::size_t> order(static_cast<std::size_t>(answer.count));
    std::iota(order.begin(), order.end(), 0);
    std::sort(order.begin(), order.end(),
              [&](std::size_t i, std::size_t j) { return answer.at[i].y > answer.at[j].y; });
    return order;
}

TEST(CircleEllipse, OrderIsThatOfTheQuartic) {
    using Places = std::vector<std::size_t>;
    EXPECT_EQ(places(cross({0.3, 0.2, 3, 1, 2})), (Places{2, 3, 0, 1})) << "lower factor first";
    EXPECT_EQ(places(cross({-0.3, -0.2, 3, 1, 2})), (Places{2, 3, 0, 1}));
    EXPECT_EQ(places(cross({0.3, 0, 3, 1, 2})), (Places{0, 2, 3, 1}))
        << "biquadratic: outer pair first";
    EXPECT_EQ(places(cross({0.3, 1e-13, 3, 1, 2})), (Places{0, 2, 3, 1})) << "linear term ignored";
    EXPECT_EQ(places(cross({0.3, 1e-10, 3, 1, 2})), (Places{2, 3, 0, 1})) << "not ignored";
    EXPECT_EQ(places(cross({6, 0, 5, 5 - 0.5e-6, 5})), (Places{1, 0})) << "as circles: right first";
    EXPECT_EQ(places(cross({6, 0, 5, 5 - 2e-6, 5})), (Places{0, 1}));
    EXPECT_EQ(places(cross({-2.3433310276428587, 1.718691177507303, 4, 1, 2.5})), (Places{0, 2, 1}))
        << "all but touching comes last";
    EXPECT_EQ(places(cross({3, 0.5, 2, 1, 2})), (Places{0, 1})) << "of two the upper first";
    EXPECT_EQ(places(cross({-3, -0.5, 2, 1, 2})), (Places{0, 1}));
}

TEST(CircleEllipse, EqualAxesAreNoCircleAtAToleranceOfZero) {
    const ToleranceGuard none(0.0);
    EXPECT_EQ(cross({3, 1, 2, 2, 2.5}).count, 0) << "the quartic has no leading term";
}

/// Ellipses with the circle through one of their points: that point comes back, all points lie on
/// both curves, whatever the quartic's own condition.
TEST(CircleEllipse, RoundingLosesNoPoint) {
    struct Kind {
        const char *about;
        Shape low, high; // factors of the size; the signs of ex and ey are random
    };
    const Kind kinds[] = {
        {"generic", {0, 0, 1, 0.2, 0}, {5, 5, 5, 0.95, 0}},
        {"flat", {0, 0, 1, 1e-4, 0}, {5, 5, 5, 1e-1, 0}},
        {"nearly round", {0, 0, 1, 0.999, 0}, {5, 5, 5, 0.999998, 0}},
        {"centre 1e-6 above the axis", {0, 1e-6, 1, 0.2, 0}, {5, 1e-6, 5, 0.95, 0}},
        {"centre 1e-9 above the axis", {0, 1e-9, 1, 0.2, 0}, {5, 1e-9, 5, 0.95, 0}},
        {"centre 1e-5 to 1e-3 beside the axis", {1e-5, 0, 1, 0.2, 0}, {1e-3, 5, 5, 0.95, 0}},
        {"circle a thousand times larger", {900, 900, 1, 0.2, 0}, {1000, 1000, 5, 0.95, 0}},
    };
    Random random(604);
    for (const Kind &kind : kinds) {
        SCOPED_TRACE(kind.about);
        for (int i = 0; i < 4000; ++i) {
            const auto pick = [&](double Shape::*field) {
                return random.uniform(kind.low.*field, kind.high.*field);
            };
            const auto sign = [&] { return random.uniform(-1, 1) < 0 ? -1.0 : 1.0; };
            Shape s = {sign() * pick(&Shape::ex), sign() * pick(&Shape::ey), pick(&Shape::a), 0, 0};
            s.b = s.a * pick(&Shape::b);
            const double t = random.angleDeg() * kRadPerDeg;
            const DTPOINT p = {s.ex + s.a * std::cos(t), s.ey + s.b * std::sin(t)};
            s.r = std::hypot(p.x, p.y);
            const DTPOINT normal = {std::cos(t) / s.a, std::sin(t) / s.b};
            const double sine =
                std::fabs(p.x * normal.y - p.y * normal.x) / (s.r * std::hypot(normal.x, normal.y));
            if (!(sine > 0.01) || std::fabs(s.ex) < 1e-6 || s.r < 0.01) continue; // nearly touching
            const Answer got = cross(s);
            ASSERT_GE(got.count, 1) << i;
            const DTELLIPSE e = {0, s.ex, s.ey, 2 * s.a, 2 * s.b, 0, 0, 0};
            const double size = std::max({s.a, s.r, std::fabs(s.ex), std::fabs(s.ey)});
            double nearest = 1e300;
            for (std::size_t k = 0; k < static_cast<std::size_t>(got.count); ++k) {
                EXPECT_NEAR(std::hypot(got.at[k].x, got.at[k].y), s.r, 4 * kEpsilon * size);
                EXPECT_LE(offCurve(e, got.at[k]), 8 * kEpsilon * size);
                nearest = std::fmin(nearest, distance(got.at[k], p));
            }
            // p and r are rounded; a crossing at a slant magnifies that.
            EXPECT_LE(nearest, 16 * kEpsilon * size / sine);
        }
    }
}

TEST(CircleEllipse, TouchesAreDecidedBeyondRounding) {
    // Centres apart by r + a along x: the coordinates are exact, so the touch is.
    for (const double unit : {1.0, 1024.0, 65536.0}) {
        EXPECT_EQ(cross({3 * unit, 0, 2 * unit, unit, unit}).count, 1) << unit;
        EXPECT_EQ(cross({1.5 * unit, 0, 2 * unit, 1.2 * unit, 0.5 * unit}).count, 1)
            << "inside, " << unit;
        EXPECT_EQ(cross({7 * unit, 0, 2 * unit, 2 * unit - 0x1p-16, 5 * unit}).count, 1)
            << "nearly round, " << unit;
        EXPECT_EQ(cross({0, 7 * unit, 4 * unit, 2 * unit, 5 * unit}).count, 1) << unit;
    }
}

} // namespace
