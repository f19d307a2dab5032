// A point and a line: side, on the segment, foot, distance along, kept end; the parallel.

#include "support.h"

using namespace support;

namespace {

constexpr DTPOINT kA = {10, 20}, kB = {14, 20}; // four units eastwards

DTPOINT fromA(DTPOINT p) { return kA + p; }

} // namespace

TEST(OnLine, asksTheEndsFirstThenLengthDistanceAndExtent) {
    struct {
        const char *about;
        DTPOINT p1, p2, q;
        int32_t want;
    } const cases[] = {
        {"between", {0, 0}, {4, 0}, {1, 0}, 0},
        {"at an end", {0, 0}, {4, 0}, {4, 0}, 0},
        {"0.5e-6 beyond the end", {0, 0}, {4, 0}, {4 + 0.5e-6, 0}, 0},
        {"2e-6 beyond the end", {0, 0}, {4, 0}, {4 + 2e-6, 0}, 1},
        {"1.5e-6 before the start", {0, 0}, {4, 0}, {-1.5e-6, 0}, 1},
        {"0.5e-6 beside", {0, 0}, {4, 0}, {2, 0.5e-6}, 0},
        {"2e-6 beside", {0, 0}, {4, 0}, {2, -2e-6}, 1},
        {"beside an end, both ways", {0, 0}, {4, 0}, {4 + 0.8e-6, 0.8e-6}, 1},
        {"no length, elsewhere", {1, 1}, {1, 1}, {2, 1}, -1},
        {"no length, at the end", {1, 1}, {1, 1}, {1, 1}, 0},
        {"shorter than the tolerance", {1, 1}, {1 + 0.5e-6, 1}, {3, 1}, -1},
    };
    for (const auto &c : cases) {
        const DTPOINT p1 = fromA(c.p1), p2 = fromA(c.p2), q = fromA(c.q);
        EXPECT_EQ(a2d_onlin(&p1, &p2, &q), c.want) << c.about;
        EXPECT_EQ(ca_onlin(&p1, &p2, &q), c.want) << c.about;
    }
    const DTPOINT close = fromA({1.8, 0}), off = fromA({0.9, 0.5});
    const ToleranceGuard wide(1.0);
    EXPECT_EQ(a2d_onlin(&kA, &close, &off), 0) << "further than errdist from both ends";
    const ToleranceGuard vast(1e300);
    EXPECT_EQ(a2d_onlin(&kA, &close, &off), 0) << "everything is within that of an end";
    const ToleranceGuard none(0.0);
    EXPECT_EQ(a2d_onlin(&kA, &kB, &kA), 1) << "nothing is on a line within no tolerance";
    const ToleranceGuard boundless(1e200);
    const DTPOINT far = fromA({-1e150, 7});
    EXPECT_EQ(a2d_onlin(&kA, &kB, &far), 0) << "all is within a tolerance of any length";
}

TEST(SideOfLine, comparesTheRawCrossProduct) {
    struct {
        const char *about;
        DTPOINT a2, p;
        int32_t status;
        uint16_t want;
    } const cases[] = {
        {"left", {1, 0}, {0, 1}, 0, 65535},
        {"right", {1, 0}, {0, -1}, 0, 1},
        {"on, beyond the end", {1, 0}, {5, 0}, 0, 0},
        {"0.5e-6 left of a unit line", {1, 0}, {0, 0.5e-6}, 0, 0},
        {"0.5e-6 left of a line of length 4", {4, 0}, {0, 0.5e-6}, 0, 65535},
        {"coincident", {0.5e-6, 0.5e-6}, {0, 1}, 1, kUntouchedCount},
        {"apart in one coordinate", {0, 2e-6}, {1, 0}, 0, 1},
    };
    for (const auto &c : cases) {
        const DTPOINT a2 = fromA(c.a2), p = fromA(c.p);
        uint16_t side = kUntouchedCount;
        EXPECT_EQ(ca_posln(&kA, &a2, &p, &side), c.status) << c.about;
        EXPECT_EQ(side, c.want) << c.about;
    }
}

TEST(Perpendicular, givesFootDistanceAndWhetherOnTheSegment) {
    struct {
        const char *about;
        DTPOINT p, foot;
        double dist;
        int32_t want;
    } const cases[] = {
        {"left", {1, 3}, {1, 0}, 3, 0},
        {"right", {1, -3}, {1, 0}, 3, 0},
        {"beyond the end", {6, 1}, {6, 0}, 1, 1},
        {"before the start", {-1, 0}, {-1, 0}, 0, 1},
        {"beyond, product 0.5e-6", {4 + 1.25e-7, 1}, {4 + 1.25e-7, 0}, 1, 0},
        {"beyond, product 2e-6", {4 + 5e-7, 1}, {4 + 5e-7, 0}, 1, 1},
    };
    for (const auto &c : cases) {
        const DTPOINT p = fromA(c.p);
        DTPOINT foot = kUntouchedPoint;
        double dist = kUntouched;
        EXPECT_EQ(ca_perln(&kA, &kB, &p, &foot, &dist), c.want) << c.about;
        EXPECT_TRUE(near(foot, fromA(c.foot), 8 * kEpsilon)) << c.about;
        EXPECT_NEAR(dist, c.dist, 4 * kEpsilon) << c.about;
    }
    DTPOINT foot = kUntouchedPoint;
    double dist = kUntouched;
    EXPECT_EQ(ca_perln(&kA, &kA, &kB, &foot, &dist), -1);
    EXPECT_EQ(foot, kUntouchedPoint);
    EXPECT_EQ(dist, 0.0);
}

TEST(Perpendicular, standsOnTheLineWhereverItLies) {
    Random random(32);
    for (int i = 0; i < 2000; ++i) {
        const double size = random.logUniform(1e-2, 1e6), turn = random.angleDeg();
        const DTPOINT on = random.point(size);
        const double height = random.uniform(-1.0, 1.0) * size;
        const DTPOINT p = polar(on, height, turn + 90.0);
        const double back = random.uniform(-1.0, 1.0);
        const DTPOINT a1 = polar(on, back * size, turn), a2 = polar(a1, size, turn);
        DTPOINT foot = kUntouchedPoint;
        double dist = kUntouched;
        ca_perln(&a1, &a2, &p, &foot, &dist);
        EXPECT_TRUE(near(foot, on, 64 * kEpsilon * size));
        EXPECT_NEAR(dist, std::fabs(height), 64 * kEpsilon * size);
    }
}

TEST(Parallel, movesToTheRightForPositiveSides) {
    struct {
        const char *about;
        DTPOINT direction;
        double d;
        int16_t side;
        DTPOINT offset;
    } const cases[] = {
        {"right of east is south", {4, 0}, 2, 1, {0, -2}},
        {"left of east is north", {4, 0}, 2, -1, {0, 2}},
        {"right of north is east", {0, 4}, 2, 1, {2, 0}},
        {"another side scales", {3, 4}, 5, 2, {8, -6}},
        {"side 0 stays", {3, 4}, 5, 0, {0, 0}},
    };
    for (const auto &c : cases) {
        const DTPOINT a2 = fromA(c.direction), want1 = fromA(c.offset);
        DTPOINT out1 = kUntouchedPoint, out2 = kUntouchedPoint;
        EXPECT_EQ(ca_palds(&kA, &a2, c.d, c.side, &out1, &out2), 0) << c.about;
        EXPECT_TRUE(near(out1, want1, 32 * kEpsilon)) << c.about;
        EXPECT_TRUE(near({out2.x - out1.x, out2.y - out1.y}, c.direction, 32 * kEpsilon))
            << c.about;
    }
    const DTPOINT close = fromA({0.5e-6, -0.5e-6});
    DTPOINT out1 = kUntouchedPoint, out2 = kUntouchedPoint;
    EXPECT_EQ(ca_palds(&kA, &close, 1, 1, &out1, &out2), 1);
    EXPECT_EQ(out1, kUntouchedPoint);
    EXPECT_EQ(out2, kUntouchedPoint);
    const ToleranceGuard none(0.0);
    EXPECT_EQ(ca_palds(&kA, &kA, 1, 1, &out1, &out2), 0);
    EXPECT_EQ(out1, fromA({0, -1})) << "no direction counts as east";
    for (const double size : {1.5e308, 5e-324}) {
        const DTPOINT origin = {0, 0}, far = {size, size};
        EXPECT_EQ(ca_palds(&origin, &far, 1, 1, &out1, &out2), 0);
        EXPECT_TRUE(near(out1, {std::sqrt(0.5), -std::sqrt(0.5)}, 4 * kEpsilon))
            << "a length that is no normal number has a direction all the same";
    }
}

TEST(DistanceAlong, stopsAtTheEnd) {
    struct {
        const char *about;
        DTPOINT start, end;
        double dist;
        int32_t want;
        DTPOINT out;
    } const cases[] = {
        {"on the way", {1, 1}, {4, 5}, 2.5, 1, {2.5, 3}},
        {"less than a unit", {1, 1}, {1.375, 1.5}, 0.3125, 1, {1.1875, 1.25}},
        {"at the start", {1, 1}, {4, 5}, 0, 1, {1, 1}},
        {"beyond the end", {1, 1}, {4, 5}, 6, 1, {4, 5}},
        {"no length", {1, 1}, {1, 1}, 0, 1, {1, 1}},
        {"negative", {1, 1}, {4, 5}, -1e-300, 0, kUntouchedPoint},
    };
    for (const auto &c : cases) {
        DTPOINT out = kUntouchedPoint;
        EXPECT_EQ(ca_DistAlongbyLineFromSpnt(&c.start, &c.end, c.dist, &out), c.want) << c.about;
        EXPECT_EQ(out, c.out) << c.about;
    }
    DTPOINT out = kUntouchedPoint;
    EXPECT_EQ(ca_DistAlongbyLineFromSpnt(nullptr, &kB, 1, &out), 0);
    EXPECT_EQ(ca_DistAlongbyLineFromSpnt(&kA, nullptr, 1, &out), 0);
    EXPECT_EQ(out, kUntouchedPoint);
}

TEST(KeptEndOfLine, isTheStartOnlyForTheFlagOne) {
    struct {
        const char *about;
        int32_t flag;
        DTLINE elem;
        int32_t want;
        DTPOINT out;
    } const cases[] = {
        {"the end by default", 0, {0, 1, 0, 3, 0}, 1, {3, 0}},
        {"the start for 1", 1, {0, 1, 0, 3, 0}, 1, {1, 0}},
        {"2 is not 1", 2, {0, 1, 0, 3, 0}, 1, {3, 0}},
        {"the chosen end lies beyond; no other", 0, {0, 1, 0, 9, 0}, 0, kUntouchedPoint},
        {"the chosen start lies before", 1, {0, -1, 0, 3, 0}, 0, kUntouchedPoint},
        {"the attribute word is not read", 0, {PLANEGEO_ATTR_REVERSED, 1, 0, 3, 0}, 1, {3, 0}},
        {"0.5e-6 off the line", 0, {0, 1, 0.5e-6, 3, 0}, 1, {3, 0}},
        {"2e-6 off the line", 0, {0, 1, 2e-6, 3, 0}, -1, kUntouchedPoint},
        {"the other end off the line", 0, {0, 1, 0, 3, -2e-6}, -1, kUntouchedPoint},
    };
    const DTLINE cut = {0, 0, 0, 4, 0};
    for (const auto &c : cases) {
        const StartendGuard flag(c.flag);
        DTPOINT out = kUntouchedPoint;
        EXPECT_EQ(a2d_InsDl(&c.elem, &cut, &out), c.want) << c.about;
        EXPECT_EQ(out, c.out) << c.about;
    }
    const DTLINE point = {0, 1, 0, 1, 0}, elem = {0, 1, 0, 1, 0};
    DTPOINT out = kUntouchedPoint;
    EXPECT_EQ(a2d_InsDl(&elem, &point, &out), -1) << "a cut without length";
}

TEST(ProjectionAgainstSegment, setsABitPerEnd) {
    struct {
        const char *about;
        DTPOINT p1, p2, p3;
        int32_t want;
    } const cases[] = {
        {"between", {0, 0}, {4, 0}, {1, 5}, 3},
        {"beyond the end", {0, 0}, {4, 0}, {5, 5}, 1},
        {"before the start", {0, 0}, {4, 0}, {-1, 5}, 2},
        {"beyond the end of an upright one", {0, 0}, {0, 4}, {5, 5}, 1},
        {"at the end", {0, 0}, {4, 0}, {4, 0}, 3},
        {"0.5e-6 beyond the end", {0, 0}, {4, 0}, {4 + 0.5e-6, 0}, 3},
        {"2e-6 beyond the end", {0, 0}, {4, 0}, {4 + 2e-6, 0}, 1},
        {"0.5e-6 before the start is half its own distance away", {0, 0}, {4, 0}, {-0.5e-6, 0}, 2},
        {"beside the start, far", {0, 0}, {4, 0}, {0.5e-6, 7}, 3},
        {"beside the start, behind it", {0, 0}, {4, 0}, {-0.5e-6, 7}, 2},
        {"past the end: one that is passed forgives nothing", {0, 0}, {4, 0}, {4 + 0.5e-6, 7}, 1},
        {"past both ends of a short one, in reach", {0, 0}, {1e-7, 0}, {0.5e-6, 7}, 3},
        {"before both", {0, 0}, {1e-7, 0}, {-0.5e-6, 7}, 3},
        {"no length", {1, 1}, {1, 1}, {3, 3}, 3},
    };
    for (const auto &c : cases) {
        const DTPOINT p1 = fromA(c.p1), p2 = fromA(c.p2), p3 = fromA(c.p3);
        EXPECT_EQ(a2d_Chk3pnt(&p1, &p2, &p3), c.want) << c.about;
    }
}
