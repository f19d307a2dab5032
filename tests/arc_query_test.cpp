// The ends and extents of an arc, how a point lies to it, the arc turned, and its cut.

#include "support.h"

using namespace support;

namespace {

constexpr DTPOINT kCenter = {3, -2};

DTPOINT shifted(DTPOINT p) { return kCenter + p; }

} // namespace

TEST(ArcEnds, areAskedInRadians) {
    const double angles[2] = {0.5 * kPi, kPi};
    DTPOINT start, end;
    EXPECT_EQ(ca_arccd(&kCenter, 2, angles, &start, &end), 0);
    EXPECT_TRUE(near(start, shifted({0, 2}), 8 * kEpsilon));
    EXPECT_TRUE(near(end, shifted({-2, 0}), 8 * kEpsilon));
}

TEST(ArcBox, takesInTheAxisDirectionsOfTheRange) {
    const double h = 2 * std::sqrt(0.5);
    struct {
        double start, end;
        DTPOINT max, min;
    } const cases[] = {
        {0, 90, {2, 2}, {0, 0}},       {45, 135, {h, 2}, {-h, h}}, {-45, 45, {2, h}, {h, -h}},
        {-315, -225, {h, 2}, {-h, h}}, {0, 360, {2, 2}, {-2, -2}}, {-350, 10, {2, 2}, {-2, -2}},
        {315, 405, {2, h}, {h, -h}},   {315, 45, {h, h}, {h, -h}}, // not normalised: the ends only
    };
    for (const auto &c : cases) {
        DTPOINT max, min;
        EXPECT_EQ(ca_arcXY(&kCenter, 2, c.start, c.end, &max, &min), 0);
        EXPECT_TRUE(near(max, shifted(c.max), 8 * kEpsilon)) << c.start << ", " << c.end;
        EXPECT_TRUE(near(min, shifted(c.min), 8 * kEpsilon)) << c.start << ", " << c.end;
    }
    DTPOINT max, min;
    ca_arcXY(&kCenter, 0, 10, 100, &max, &min);
    EXPECT_EQ(max, kCenter) << "no radius";
    ca_arcXY(&kCenter, kNaN, 0, 90, &max, &min);
    EXPECT_EQ(max, (DTPOINT{-1e20, -1e20}));
    EXPECT_EQ(min, (DTPOINT{1e20, 1e20}));
}

TEST(OnArcRange, asksTheDirectionOnly) {
    struct {
        const char *about;
        double start, end, deg;
        int32_t status;
    } const cases[] = {
        {"inside", 0, 90, 45, 0},
        {"a turn up", 364.5, 370, 5, 0},
        {"a turn down", -370, -354.5, 5, 0},
        {"180 stays", 170, 190, 180, 0},
        {"above 180 is negative", -100, -80, 270, 0},
        {"outside", 0, 90, 135, 1},
        {"equal ends hold only their direction", 30, 30, 200, 1},
        {"0.5e-6 before", 20, 90, 20 - 0.5e-6, 0},
        {"2e-6 before", 20, 90, 20 - 2e-6, 1},
        {"0.5e-6 beyond", 20, 90, 90 + 0.5e-6, 0},
        {"2e-6 beyond", 20, 90, 90 + 2e-6, 1},
    };
    for (const auto &c : cases) {
        const DTPOINT point = polar(kCenter, 7, c.deg);
        double ang = kUntouched;
        EXPECT_EQ(ca_onarc(&kCenter, 2, c.start, c.end, &point, &ang), c.status) << c.about;
        EXPECT_NEAR(ang, c.deg > 180 ? c.deg - 360 : c.deg, 1e4 * kEpsilon) << c.about;
    }
    double ang = kUntouched;
    EXPECT_EQ(ca_onarc(&kCenter, 2, 350, 370, &kCenter, &ang), 0) << "the centre is at 0";
    EXPECT_EQ(ca_onarc(&kCenter, 2, 10, 20, &kCenter, &ang), 1);
    EXPECT_EQ(ang, 0);
}

TEST(SideOfCircle, asksErrdist) {
    for (const double off : {0.5e-6, -0.5e-6, 2e-6, -2e-6}) {
        const DTPOINT point = shifted({0, 2 + off});
        uint16_t side = kUntouchedCount;
        EXPECT_EQ(ca_posar(&kCenter, 2, &point, &side), 0);
        EXPECT_EQ(side, std::fabs(off) < 1e-6 ? 0 : off > 0 ? 1 : 65535) << off;
    }
    uint16_t side = kUntouchedCount;
    EXPECT_EQ(ca_posar(&kCenter, 0, &kCenter, &side), 1);
    EXPECT_EQ(ca_posar(&kCenter, -2, &kCenter, &side), 1);
    EXPECT_EQ(side, kUntouchedCount);
}

TEST(TurnedArc, keepsAnglesWithinATurnAndFullCirclesWhole) {
    const double turn = 2 * kPi;
    struct {
        const char *about;
        double start, end, rot, wantStart, wantEnd;
    } const cases[] = {
        {"lowered when the end passes a turn", 5, 6, 1, 6 - turn, 7 - turn},
        {"lowered when the start alone does", 6, 1, 1, 7 - turn, 2 - turn},
        {"raised when the start passes back", -6, -5, -1, turn - 7, turn - 6},
        {"raised when the end alone does", -5, -6, -1, turn - 6, turn - 7},
        {"lowered once only", 0.5, 1, 15, 15.5 - turn, 16 - turn},
        {"no extent is a full circle", 1, 1, 1, 0, turn},
        {"0.5e-7 short of a turn", 1, 1 + turn - 0.5e-7, 1, 0, turn},
        {"2e-7 short of a turn", 1, 1 + turn - 2e-7, 1, 2 - turn, 2 - 2e-7},
        {"a turn of 1e-7 is none", 1, 1, 1e-7, 1, 1},
        {"a turn of 2e-7", 1, 1, -2e-7, 0, turn},
        {"a start at the whole turn stays", 0, -1, turn, turn, turn - 1},
    };
    for (const auto &c : cases) {
        DTPOINT center = shifted({2, 0});
        const DTPOINT before = center;
        double angles[2] = {c.start, c.end}, r = 5;
        EXPECT_EQ(ca_rvarc(&center, r, angles, &kCenter, c.rot, &center, &r, angles), 0);
        EXPECT_NEAR(angles[0], c.wantStart, 32 * kEpsilon) << c.about;
        EXPECT_NEAR(angles[1], c.wantEnd, 32 * kEpsilon) << c.about;
        EXPECT_EQ(r, 5);
        const DTPOINT want = c.rot == 1e-7 ? before : polar(kCenter, 2, c.rot / kRadPerDeg);
        EXPECT_TRUE(near(center, want, 64 * kEpsilon)) << c.about << ", in place";
    }
}

TEST(AlongArc, reachesAnAngle) {
    struct {
        const char *about;
        double r, start, end, dist, want; // kUntouched where the input is invalid
    } const cases[] = {
        {"inside", 2, 300, 390, kPi / 2, 345},
        {"nothing", 2, 30, 120, 0, 30},
        {"no extent", 2, 30, 30, 1, 30},
        {"beyond the end", 1, 30, 120, 2, 120},
        {"a whole turn", 1, -10, 350, kPi, 170},
        {"negative distance", 1, 0, 90, -1e-9, kUntouched},
        {"radius 0", 0, 0, 90, 1, kUntouched},
        {"start above end", 1, 90, 0, 1, kUntouched},
        {"more than a turn", 1, 0, 360.5, 1, kUntouched},
    };
    for (const auto &c : cases) {
        double ang = kUntouched;
        const int32_t got = ca_DistAlongbyArcFromSpnt(&kCenter, c.r, c.start, c.end, c.dist, &ang);
        EXPECT_EQ(got, c.want == kUntouched ? 0 : 1) << c.about;
        EXPECT_NEAR(ang, c.want, 360 * kEpsilon) << c.about;
    }
    double ang = kUntouched;
    EXPECT_EQ(ca_DistAlongbyArcFromSpnt(nullptr, 1, 0, 90, 1, &ang), 0);
    EXPECT_EQ(ca_DistAlongbyArcFromSpnt(&kCenter, 1, 0, 90, 1, nullptr), 0);
}

TEST(KeptEndOfArc, followsFlagAndAttributeBits) {
    constexpr uint32_t kRev = 0x20000000, kCw = 0x10000000, kOther = 0xcfffffff;
    constexpr double kNone = kUntouched; // the end asked for is off the cutting arc
    struct {
        const char *about;
        int32_t flag;
        uint32_t elemAttr, cutAttr;
        double cutStart, cutEnd;
        double want; // the element runs from 40 to 130
    } const cases[] = {
        {"end", 0, 0, 0, 120, 140, 130},
        {"start", 1, 0, 0, 30, 50, 40},
        {"only 1 keeps the start", 2, 0, 0, 120, 140, 130},
        {"reversed end is the start", 0, kRev, 0, 30, 50, 40},
        {"reversed start is the end", 1, kRev, 0, 120, 140, 130},
        {"other bits mean nothing", 0, kOther, kOther, 120, 140, 130},
        {"the other end does not help", 0, 0, 0, 30, 50, kNone},
        {"nor for the start", 1, 0, 0, 120, 140, kNone},
        {"full circle: the end in spite of the flag", 1, 0, 0, 7, 367, 130},
        {"full circle, reversed: the start", 1, kRev, 0, 0, 360, 40},
        {"0.5e-8 short of full", 1, 0, 0, 0, 360 - 0.5e-8, 130},
        {"2e-8 short of full asks the flag", 1, 0, 0, 0, 360 - 2e-8, 40},
        {"equal angles ask the flag, and hold all", 1, 0, 0, 7, 7, 40},
        {"cut reversed runs from its end", 0, 0, kRev, 140, 120, 130},
        {"cut clockwise too", 0, 0, kCw, 140, 120, 130},
        {"cut with both bits does not", 0, 0, kRev | kCw, 120, 140, 130},
        {"cut across 0 by its bit", 0, 0, kCw, 120, 140, kNone},
        {"the end 0.5e-8 beyond the cut", 0, 0, 0, 100, 130 - 0.5e-8, 130},
        {"the end 2e-8 beyond the cut", 0, 0, 0, 100, 130 - 2e-8, kNone},
    };
    for (const auto &c : cases) {
        const StartendGuard flag(c.flag);
        const DTARC elem = {c.elemAttr, kCenter.x, kCenter.y, 2, 40, 130};
        const DTARC cut = {c.cutAttr, kCenter.x, kCenter.y, 2, c.cutStart, c.cutEnd};
        DTPOINT out = kUntouchedPoint;
        EXPECT_EQ(a2d_InsDc(&elem, &cut, &out), c.want == kNone ? 0 : 1) << c.about;
        const DTPOINT want = c.want == kNone ? kUntouchedPoint : polar(kCenter, 2, c.want);
        EXPECT_TRUE(near(out, want, 8 * kEpsilon)) << c.about;
    }
    const DTARC elem = {0, 3, -2, 2, 40, 130};
    const DTARC off[] = {
        {0, 3 + 2e-6, -2, 2, 0, 360}, {0, 3, -2 + 2e-6, 2, 0, 360}, {0, 3, -2, 2 + 2e-6, 0, 360}};
    for (const DTARC &cut : off)
        EXPECT_EQ(a2d_InsDc(&elem, &cut, nullptr), -1);
    const DTARC near = {0, 3 + 0.5e-6, -2 - 0.5e-6, 2 + 0.5e-6, 0, 360};
    DTPOINT out;
    EXPECT_EQ(a2d_InsDc(&elem, &near, &out), 1);
}
