// Lines against ellipses in any position, elliptic arcs, and the end to keep.

#include <vector>

#include "support.h"

namespace {

using namespace support;

/// Rotated, off the origin, axes 6 and 2.
constexpr DTELLIPSE kEllipse = {0, 10.0, -7.0, 6.0, 2.0, 0.0, 0.0, 30.0};

Crossing cross(const DTELLIPSE &e, DTPOINT p1, DTPOINT p2, const double *arc = nullptr) {
    Crossing answer;
    const DTPOINT center = {e.cx, e.cy};
    answer.status = arc != nullptr ? a2d_insl1(&p1, &p2, &center, e.a, e.b, e.rot, arc,
                                               &answer.out1, &answer.out2, &answer.count)
                                   : a2d_insle(&p1, &p2, &center, e.a, e.b, e.rot, &answer.out1,
                                               &answer.out2, &answer.count);
    return answer;
}

/// A few hundred roundings of the coordinates, and the root of a near tangent's h.
constexpr double kWithin = 1e-12;
constexpr DTPOINT kNone = {0.0, 0.0};

TEST(LineEllipse, CountsAndOrder) {
    struct Case {
        const char *about;
        DTPOINT p1, p2; // in the ellipse's frame
        std::vector<DTPOINT> want;
    };
    const Case cases[] = {
        {"p1's side comes first", {5, 0}, {-4, 0}, {{3, 0}, {-3, 0}}},
        {"also when p1 lies on the far side of both", {-5, 0}, {-4, 0}, {{-3, 0}, {3, 0}}},
        {"infinite, not the segment", {0, 9}, {0, 8}, {{0, 1}, {0, -1}}},
        {"touches across", {-4, 1}, {5, 1}, {{0, 1}}},
        {"the tolerance applies stretched by 3", {-4, 1 + 0.3e-6}, {5, 1 + 0.3e-6}, {{0, 1}}},
        {"0.4e-6 is 1.2e-6 there", {-4, 1 + 0.4e-6}, {5, 1 + 0.4e-6}, {}},
        {"not stretched along", {3 + 0.9e-6, 4}, {3 + 0.9e-6, 5}, {{3, 0}}},
        {"1.1e-6 past the end", {3 + 1.1e-6, 4}, {3 + 1.1e-6, 5}, {}},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.about);
        const Crossing got = cross(kEllipse, placed(kEllipse, c.p1), placed(kEllipse, c.p2));
        EXPECT_EQ(got.status, 0);
        ASSERT_EQ(got.count, c.want.size());
        const auto want = [&](std::size_t i) {
            return i < c.want.size() ? placed(kEllipse, c.want[i]) : kNone;
        };
        const double within = got.count == 1 ? 1e-6 : kWithin;
        EXPECT_TRUE(near(got.out1, want(0), within));
        EXPECT_TRUE(near(got.out2, want(1), within));
        const DTPOINT p1 = placed(kEllipse, c.p1), p2 = placed(kEllipse, c.p2), center = {10, -7};
        const double whole[] = {0, 360};
        Crossing same;
        uint32_t count = 0;
        EXPECT_EQ(a2d_CrsLE(&p1, &p2, &center, 6, 2, 30, &same.out1, &same.out2, &count, 1e-6), 0);
        EXPECT_TRUE(count == got.count && same.out1 == got.out1 && same.out2 == got.out2);
        same = cross(kEllipse, p1, p2, whole);
        EXPECT_TRUE(same.count == got.count && same.out1 == got.out1 && same.out2 == got.out2);
    }
}

TEST(LineEllipse, DegenerateInputLeavesThePoints) {
    struct Case {
        const char *about;
        double a, b;
        DTPOINT p1, p2;
    };
    const Case cases[] = {
        {"first axis zero", 0, 2, {50, 50}, {60, 60}},
        {"second axis zero, even if the line misses", 6, 0, {50, 50}, {60, 60}},
        {"line of length zero", 6, 2, {10, -7}, {10, -7}},
        {"line shorter than errdist", 6, 2, {10, -7}, {10 + 0.9e-6, -7}},
        {"direction 1e-7 after the stretch", 1e-3, 1e4, {10, -9}, {10, -5}},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.about);
        const Crossing got = cross({0, 10, -7, c.a, c.b, 0, 0, 0}, c.p1, c.p2);
        EXPECT_EQ(got.status, -1);
        EXPECT_EQ(got.count, 0);
        EXPECT_EQ(got.out1, kUntouchedPoint);
        EXPECT_EQ(got.out2, kUntouchedPoint);
        const double arc[] = {0, 90};
        EXPECT_EQ(cross({0, 10, -7, c.a, c.b, 0, 0, 0}, c.p1, c.p2, arc).status, -1);
        DTPOINT out[2];
        uint32_t count;
        const DTPOINT o = {10, -7};
        EXPECT_EQ(a2d_CrsLE(&c.p1, &c.p2, &o, c.a, c.b, 0, out, out + 1, &count, 1e-6), 1);
    }
    const DTPOINT center = {10, -7}, p1 = {10, -7}, p2 = {10 + 0.9e-6, -7};
    DTPOINT out1, out2;
    uint32_t count = 99;
    EXPECT_EQ(a2d_CrsLE(&p1, &p2, &center, 0, 2, 0, &out1, &out2, &count, 1e-6), 1);
    EXPECT_EQ(count, 0u);
    EXPECT_EQ(a2d_CrsLE(&p1, &p2, &center, 6, 2, 0, &out1, &out2, &count, 0.8e-6), 0);
    EXPECT_EQ(count, 2u) << "its own tolerance, not errdist";
}

TEST(LineEllipse, ArcKeepsItsPoints) {
    const DTPOINT first = at(kEllipse, 40), second = at(kEllipse, 200);
    const DTPOINT p1 = {first.x * 2 - second.x, first.y * 2 - second.y};
    struct Case {
        const char *about;
        double arc[2];
        std::vector<DTPOINT> want;
    };
    const Case cases[] = {
        {"equal ends are the whole", {77, 77}, {first, second}},
        {"both, across 0", {190, 60}, {first, second}},
        {"first: the ends are parametric, its polar angle is 15.6", {30, 60}, {first}},
        {"second moves up", {180, 210}, {second}},
        {"second at the very end", {190, 200}, {second}},
        {"none", {50, 190}, {}},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.about);
        const Crossing got = cross(kEllipse, p1, second, c.arc);
        EXPECT_EQ(got.status, 0);
        ASSERT_EQ(got.count, c.want.size());
        EXPECT_TRUE(near(got.out1, !c.want.empty() ? c.want[0] : kNone, kWithin));
        EXPECT_TRUE(near(got.out2, c.want.size() > 1 ? c.want[1] : kNone, kWithin));
    }
    const double away[] = {100, 200};
    const Crossing tangent =
        cross(kEllipse, placed(kEllipse, {-4, 1}), placed(kEllipse, {5, 1}), away);
    EXPECT_EQ(tangent.count, 0);
    EXPECT_EQ(tangent.out1, kNone);

    const double right[] = {300, 60};
    const Crossing end = cross({0, 10, -7, 6, 2, 0, 0, 0}, {0, -7}, {20, -7}, right);
    EXPECT_EQ(end.count, 1) << "a direction that snaps";
    EXPECT_EQ(end.out1, (DTPOINT{13, -7}));

    // On a circle the angles are plain: both sides of the slack, away from the snapping.
    const DTELLIPSE circle = {0, 10, -7, 4, 4, 0, 0, 0};
    const DTPOINT from = polar({10, -7}, 9, 30), to = polar({10, -7}, 5, 210);
    const double kept[] = {30 + 0.5e-8, 90}, dropped[] = {30 + 2e-8, 90};
    EXPECT_EQ(cross(circle, from, to, kept).count, 1);
    EXPECT_EQ(cross(circle, from, to, dropped).count, 0);
}

/// Where short cuts have their limits: sizes, thickness, whole turns.
TEST(LineEllipse, ArcsOutOfAllProportion) {
    const struct {
        double a, b, rot, start, end;
    } cases[] = {{0.1, 2, 30, 30, 60},   {6, 0.1, 30, 30, 60},   {4e8, 3e8, 30, 30, 60},
                 {1e8, 3e8, 30, 30, 60}, {6e3, 2, 30, 30, 60},   {2, 6e3, 30, 30, 60},
                 {6, 2, 360030, 30, 60}, {6, 2, 30, 360030, 60}, {6, 2, 30, 30, 360060}};
    for (const auto &c : cases) {
        const DTELLIPSE e = {0, 10, -7, c.a, c.b, 0, 0, c.rot};
        const DTPOINT first = at(e, 40), second = at(e, 200);
        const double arc[] = {c.start, c.end};
        const Crossing got =
            cross(e, {first.x * 2 - second.x, first.y * 2 - second.y}, second, arc);
        ASSERT_EQ(got.count, 1) << c.a << " " << c.b;
        EXPECT_TRUE(near(got.out1, first, 1e-9 * (c.a + c.b)));
    }
    const double whole[] = {0, 360};
    const DTELLIPSE vast = {0, 0, 0, 4e160, 2e160, 0, 0, 0};
    EXPECT_EQ(cross(vast, {-9e160, 0}, {9e160, 0}).count, 2);
    EXPECT_EQ(cross(vast, {-9e160, 0}, {9e160, 0}, whole).count, 2);
}

TEST(LineEllipse, ChordsComeBack) {
    Random random(601);
    for (int i = 0; i < 20000; ++i) {
        const double size = random.logUniform(1e-3, 1e5);
        const DTPOINT c = random.point(3 * size);
        const DTELLIPSE e = {
            0, c.x, c.y, size, size * random.logUniform(0.1, 10), 0, 0, random.angleDeg()};
        const double t1 = random.angleDeg(), t2 = t1 + random.uniform(30, 330);
        const DTPOINT first = at(e, t1), second = at(e, t2);
        const double before = random.uniform(-5, 0), behind = random.uniform(0.1, 5);
        const DTPOINT d = {second.x - first.x, second.y - first.y};
        const DTPOINT p1 = {first.x + d.x * before, first.y + d.y * before};
        const Crossing got = cross(e, p1, {p1.x + d.x * behind, p1.y + d.y * behind});
        ASSERT_EQ(got.count, 2);
        // Coordinates within 40 sizes, rounded some ten times; a chord over 30 degrees magnifies
        // the error of its distance from the centre by less than 1 / sin 15 = 4, an axis ratio
        // by 10.
        const double within = 40 * size * 10 * 4 * 10 * kEpsilon;
        EXPECT_TRUE(near(got.out1, first, within));
        EXPECT_TRUE(near(got.out2, second, within));
        const double arc[] = {t2 - 1, t1 - 1};
        EXPECT_TRUE(near(cross(e, p1, second, arc).out1, second, within));
    }
}

TEST(LineEllipse, EndToKeep) {
    constexpr uint32_t rev = PLANEGEO_ATTR_REVERSED, clock = PLANEGEO_ATTR_CLOCKWISE;
    struct Case {
        const char *about;
        int32_t flag;
        uint32_t attr1, attr2;
        int32_t status;
        double start, end, rot; // of the cutting ellipse; e1 runs from 20 to 70
        double keptDeg;
    };
    const Case cases[] = {
        {"flag 0 keeps the end", 0, 0, 0, 1, 60, 80, 30, 70},
        {"only 1 is special", 2, 0, 0, 1, 60, 80, 30, 70},
        {"flag 1 keeps the start", 1, 0, 0, 1, 10, 30, 30, 20},
        {"the bit exchanges them: end", 1, rev, 0, 1, 60, 80, 30, 70},
        {"the bit exchanges them: start", 0, rev, 0, 1, 10, 30, 30, 20},
        {"the other bit of e1 is not read", 0, clock, 0, 1, 60, 80, 30, 70},
        {"that end is elsewhere", 0, 0, 0, 0, 10, 30, 30, 0},
        {"that start is elsewhere", 1, 0, 0, 0, 60, 80, 30, 0},
        {"one bit of e2 turns its range round", 0, 0, rev, 1, 80, 60, 30, 70},
        {"so does the other", 0, 0, clock, 0, 60, 80, 30, 0},
        {"both leave it", 0, 0, rev | clock, 1, 60, 80, 30, 70},
        {"rotations that differ by 180", 0, 0, 0, 1, 240, 260, 210, 70},
        {"... shift the range", 0, 0, 0, 0, 60, 80, 210, 0},
        {"by 90 never", 0, 0, 0, -1, 60, 80, 120, 0},
        {"half the slack of the rotation", 0, 0, 0, 1, 60, 80, 30 + 0.5e-8, 70},
        {"twice", 0, 0, 0, -1, 60, 80, 30 + 2e-8, 0},
        {"a full e2 does not ask the flag: end", 1, 0, 0, 1, 5, 365, 30, 70},
        {"a full e2 does not ask the flag: start", 1, rev, 0, 1, 5, 365, 30, 20},
        {"full is 360 to 1e-8; 2e-8 more leaves next to nothing", 1, 0, 0, 0, 5, 365 + 2e-8, 30, 0},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.about);
        const StartendGuard guard(c.flag);
        DTELLIPSE e1 = kEllipse, e2 = kEllipse;
        e1.attr = c.attr1, e1.start = 20, e1.end = 70;
        e2.attr = c.attr2, e2.start = c.start, e2.end = c.end, e2.rot = c.rot;
        DTPOINT out = kUntouchedPoint;
        EXPECT_EQ(a2d_InsDe(&e1, &e2, &out), c.status);
        EXPECT_TRUE(near(out, c.status == 1 ? at(e1, c.keptDeg) : kUntouchedPoint, kWithin));
    }
    for (double DTELLIPSE::*field :
         {&DTELLIPSE::cx, &DTELLIPSE::cy, &DTELLIPSE::a, &DTELLIPSE::b}) {
        DTELLIPSE other = kEllipse;
        DTPOINT out;
        other.*field += 0.5e-6;
        EXPECT_NE(a2d_InsDe(&kEllipse, &other, &out), -1);
        other.*field += 1.5e-6;
        EXPECT_EQ(a2d_InsDe(&kEllipse, &other, &out), -1);
    }
}

TEST(LineEllipse, Aliases) {
    const DTPOINT p1 = {20, 1}, p2 = {0, -12}, center = {10, -7};
    const Crossing got = cross(kEllipse, p1, p2);
    for (auto alias : {ca_insle, a2d_insle2}) {
        DTPOINT out1, out2;
        uint16_t count;
        EXPECT_EQ(alias(&p1, &p2, &center, 6, 2, 30, &out1, &out2, &count), got.status);
        EXPECT_TRUE(count == got.count && out1 == got.out1 && out2 == got.out2);
    }
}

} // namespace
