// Circular with elliptic arcs, two elliptic arcs, and repeated points.

#include <array>
#include <vector>

#include "support.h"

namespace {

using namespace support;

constexpr double kFull[] = {0.0, 360.0};
constexpr int16_t kUntouchedPoints = 4711;

struct Answer {
    int32_t status;
    int16_t count = kUntouchedPoints;
    std::array<DTPOINT, 4> at = {kUntouchedPoint, kUntouchedPoint, kUntouchedPoint,
                                 kUntouchedPoint};
};

/// The ellipse of axes 6 and 2 about the circle's centre, off the origin and turned by 30 degrees.
constexpr double kCenter[] = {10.0, -7.0};
Answer circleWith(const double *arc, const double *earc, double r = 2.0, double a = 6.0,
                  double b = 2.0) {
    Answer got{};
    auto &[p1, p2, p3, p4] = got.at;
    got.status =
        a2d_insce(kCenter, r, arc, kCenter, a, b, 30.0, earc, &p1, &p2, &p3, &p4, &got.count);
    return got;
}

/// The outputs hold (1, 2) before.
Answer cross(const DTELLIPSE &e, const DTELLIPSE &f) {
    Answer got{};
    auto &[p1, p2, p3, p4] = got.at;
    got.at.fill({1.0, 2.0});
    const double c1[] = {e.cx, e.cy}, c2[] = {f.cx, f.cy}, arc1[] = {e.start, e.end},
                 arc2[] = {f.start, f.end};
    got.status = a2d_ins2e(c1, c2, e.a, f.a, e.b, f.b, e.rot, f.rot, arc1, arc2, &p1, &p2, &p3, &p4,
                           &got.count);
    return got;
}

TEST(CircularWithEllipticArc, KeepsPointsOnBothArcs) {
    // In the ellipse's frame the points lie in the directions t, 180 - t, -t and 180 + t.
    const double t = std::asin(std::sqrt(0.625) / 2) / kRadPerDeg; // 23.28
    const double u = std::asin(std::sqrt(0.625)) / kRadPerDeg;     // its parameter, 52.24
    const DTPOINT center = {kCenter[0], kCenter[1]};
    const DTPOINT all[] = {polar(center, 2, 30 + t), polar(center, 2, 210 - t),
                           polar(center, 2, 30 - t), polar(center, 2, 210 + t)};
    struct Case {
        const char *about;
        double arc[2], earc[2];
        std::vector<int> want;
    };
    const Case cases[] = {
        {"all", {0, 360}, {0, 360}, {0, 1, 2, 3}},
        {"angles of the circle are the plane's", {50, 190}, {0, 360}, {0, 1}},
        {"those of the ellipse its own, parametric", {0, 360}, {50, 130}, {0, 1}},
        {"both", {100, 360}, {90, 400}, {1, 3}},
        {"none", {60, 180}, {0, 360}, {}},
        {"circle's slack, half", {30 + t + 0.5e-8, 100}, {0, 360}, {0}},
        {"circle's slack, twice", {30 + t + 2e-8, 100}, {0, 360}, {}},
        {"ellipse's slack, half", {0, 360}, {u + 0.5e-8, 90}, {0}},
        {"ellipse's slack, twice", {0, 360}, {u + 2e-8, 90}, {}},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.about);
        const Answer got = circleWith(c.arc, c.earc);
        EXPECT_EQ(got.status, 0);
        ASSERT_EQ(got.count, static_cast<int16_t>(c.want.size()));
        for (std::size_t i = 0; i < 4; ++i) {
            const DTPOINT want = i < c.want.size() ? all[c.want[i]] : kUntouchedPoint;
            EXPECT_TRUE(near(got.at[i], want, 20 * kEpsilon)) << i;
        }
    }
}

TEST(CircularWithEllipticArc, Refusals) {
    const double away[] = {60, 180};
    EXPECT_EQ(circleWith(kFull, kFull, 2, 2, 6).status, -1) << "second axis longer";
    EXPECT_EQ(circleWith(kFull, kFull, 2, 2, 6).count, kUntouchedPoints);
    EXPECT_EQ(circleWith(kFull, away, 1, 6, 1.8e-6).count, 2) << "a segment has no range";
    EXPECT_EQ(circleWith(away, kFull, 9).count, 0);
    const ToleranceGuard guard(3.0); // the second axis is 2
    EXPECT_EQ(circleWith(kFull, kFull, 2, 16).status, -1) << "axis below errdist";
    EXPECT_EQ(circleWith(kFull, kFull, 2, 16).count, kUntouchedPoints);
    EXPECT_EQ(circleWith(away, kFull, 2, 16).status, 0) << "no point on the circle's arc asks";
}

/// A circle that pokes out of the vertex of a large ellipse by one unit in the last place: two
/// points 1e-5 apart are one parameter.
TEST(CircularWithEllipticArc, LowersTheCountOfRepeatedPoints) {
    const double c[] = {0, 0}, e[] = {std::nextafter(-99999.0, -1e6), 0};
    Answer got{};
    auto &[p1, p2, p3, p4] = got.at;
    a2d_insce(c, 1, kFull, e, 2e5, 1.8e5, 0, kFull, &p1, &p2, &p3, &p4, &got.count);
    EXPECT_EQ(got.count, 1);
    EXPECT_TRUE(near(p1, {1, 0}, 1e-5));
    EXPECT_GT(p1.y, 1e-6);
    EXPECT_EQ(p2, kUntouchedPoint);
}

TEST(TwoEllipticArcs, CommonPointsComeBack) {
    Random random(605);
    for (int i = 0; i < 10000; ++i) {
        const double size = random.logUniform(10.0, 1e5);
        const auto axis = [&] { return size * random.logUniform(0.1, 1); };
        const DTPOINT center = random.point(size);
        const DTELLIPSE e = {0,      center.x, center.y, axis(),
                             axis(), 0,        360,      random.uniform(-360, 360)};
        DTELLIPSE f = {0, 0, 0, axis(), axis(), 0, 360, random.uniform(-360, 360)};
        const double t = random.angleDeg(), u = random.angleDeg();
        const DTPOINT p = at(e, t), q = at(f, u);
        f.cx = p.x - q.x, f.cy = p.y - q.y;
        const double slant = std::sin((std::atan2(at(e, t + 90).y - e.cy, at(e, t + 90).x - e.cx) -
                                       std::atan2(at(f, u + 90).y - f.cy, at(f, u + 90).x - f.cx)));
        if (std::fabs(slant) < 0.01) continue; // nearly touching
        const Answer got = cross(e, f);
        ASSERT_EQ(got.status, 0);
        ASSERT_GE(got.count, 1);
        // Coordinates within three sizes, rounded some ten times here and there.
        const double within = 3 * size * 2 * 10 * kEpsilon;
        double nearest = 1e300;
        for (std::size_t k = 0; k < static_cast<std::size_t>(got.count); ++k) {
            EXPECT_LE(offCurve(e, got.at[k]), within);
            EXPECT_LE(offCurve(f, got.at[k]), within);
            nearest = std::fmin(nearest, distance(got.at[k], p));
        }
        EXPECT_LE(nearest, within / std::fabs(slant));
        // Arcs that end short of the point lose it, arcs that begin at it do not.
        DTELLIPSE arc = f;
        arc.start = u + 1e-6, arc.end = u - 1e-6;
        EXPECT_EQ(cross(e, arc).count, got.count - 1);
        arc.start = u - 1e-6;
        EXPECT_EQ(cross(e, arc).count, got.count);
    }
}

TEST(TwoEllipticArcs, CodesAndOutputs) {
    const DTELLIPSE e = {0, 10, -7, 6, 2, 0, 360, 30};
    struct Case {
        const char *about;
        double DTELLIPSE::*field;
        double by;
        int32_t status;
    };
    const Case cases[] = {
        {"same", &DTELLIPSE::a, 0, 1},
        {"first axis within errdist", &DTELLIPSE::a, 0.24, 1},
        {"first axis errdist apart", &DTELLIPSE::a, 0.25, 0},
        {"second axis", &DTELLIPSE::b, 0.25, 0},
        {"rotation within", &DTELLIPSE::rot, 0.24, 1},
        {"rotation errdist apart", &DTELLIPSE::rot, 0.25, 0},
        {"half a turn further is not the same here", &DTELLIPSE::rot, 180, 0},
        {"squared distance of the centres not above errdist", &DTELLIPSE::cx, 0.5, 1},
        {"squared distance beyond", &DTELLIPSE::cx, 0.51, 0},
        {"ranges do not count", &DTELLIPSE::start, 90, 1},
        {"second ellipse without an axis", &DTELLIPSE::b, -2, -1},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.about);
        const ToleranceGuard quarter(0.25);
        DTELLIPSE f = e;
        f.*c.field += c.by;
        const Answer got = cross(e, f);
        EXPECT_EQ(got.status, c.status);
        if (c.status == 0) continue;
        EXPECT_EQ(got.count, 0);
        EXPECT_EQ(got.at[0], (DTPOINT{1, 2}));
    }
    // Beyond the count the caller's (1, 2) leaves the stretched frame too: y / 3, turned, moved.
    const DTELLIPSE far = {0, 100, 100, 6, 2, 0, 360, 0};
    const Answer none = cross(e, far);
    EXPECT_EQ(none.count, 0);
    const double c = std::cos(30 * kRadPerDeg), s = std::sin(30 * kRadPerDeg);
    EXPECT_TRUE(near(none.at[3], {10 + c - s * 2 / 3, -7 + s + c * 2 / 3}, 20 * kEpsilon));
    DTELLIPSE across = e;
    across.rot = 120;
    EXPECT_EQ(cross(e, across).count, 4);
}

TEST(RepeatedPoints, SquaredDistanceAndParameter) {
    const double c[] = {10, -7};
    const auto count = [&](std::vector<DTPOINT> local, std::vector<DTPOINT> *out = nullptr) {
        for (DTPOINT &p : local) {
            p = {c[0] + p.x, c[1] + p.y};
        }
        std::vector<DTPOINT> kept(4, kUntouchedPoint);
        const int32_t n = a2d_chk_distdeg(local.data(), static_cast<int32_t>(local.size()), c, 0, 6,
                                          2, kept.data());
        if (out != nullptr) *out = kept;
        return n;
    };
    EXPECT_EQ(count({{3, 0}, {3 + 0.9e-3, 0}}), 1) << "a thousandth apart on one ray";
    EXPECT_EQ(count({{3, 0}, {3 + 1.1e-3, 0}}), 2);
    EXPECT_EQ(count({{3, 0}, {3, 1e-9}}), 2) << "as near, 6e-8 degrees apart";
    EXPECT_EQ(count({{3, 1e-11}, {3, -1e-11}}), 1) << "across 0";
    EXPECT_EQ(count({{3, 0}}), -1);
    EXPECT_EQ(count({{3, 0}, {1, 0}, {2, 0}, {0, 1}, {0, 0.5}}), -1);
    std::vector<DTPOINT> out;
    EXPECT_EQ(count({{3, 0}, {0, 1}, {3 + 0.5e-3, 0}, {-3, 0}}, &out), 3);
    EXPECT_EQ(out[2], (DTPOINT{7, -7})) << "closed up, in order";
    EXPECT_EQ(out[3], kUntouchedPoint);
    EXPECT_EQ(count({{3, 0}, {3 + 0.6e-3, 0}, {3 + 1.2e-3, 0}}), 2)
        << "a dropped point drops no other";
    const ToleranceGuard guard(3.0);
    EXPECT_EQ(count({{3, 0}, {0, 1}}), -1) << "axis below errdist";
}

TEST(Conics, Aliases) {
    const double c2[] = {12, -6}, arc[] = {10, 300};
    DTPOINT p[4] = {}, q[4] = {};
    int16_t n = 0, m = 0;
    EXPECT_EQ(a2d_insce(kCenter, 3, arc, c2, 6, 2, 30, arc, p, p + 1, p + 2, p + 3, &n),
              ca_insce(kCenter, 3, arc, c2, 6, 2, 30, arc, q, q + 1, q + 2, q + 3, &m));
    EXPECT_TRUE(n > 0 && n == m && p[0] == q[0]);
    EXPECT_EQ(a2d_ins2e(kCenter, c2, 6, 7, 2, 3, 30, 80, arc, arc, p, p + 1, p + 2, p + 3, &n),
              ca_ins2e(kCenter, c2, 6, 7, 2, 3, 30, 80, arc, arc, q, q + 1, q + 2, q + 3, &m));
    EXPECT_TRUE(n > 0 && n == m && p[0] == q[0]);
}

} // namespace
