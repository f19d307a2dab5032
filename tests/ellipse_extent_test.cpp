// Points with a tangent of a given direction, and the boxes built from them.

#include <algorithm>

#include "support.h"

using namespace support;

namespace {

constexpr DTPOINT kCenter = {10, 20};
constexpr double kWhole[] = {0, 360};

DTPOINT fromCenter(DTPOINT p) { return kCenter + p; }
DTPOINT turned(DTPOINT local, double rot) { return Ellipse{kCenter, 0, 0, rot}.placed(local); }

} // namespace

TEST(TangentPoints, ofTheWholeEllipse) {
    const double s = std::sqrt(5.0);
    struct {
        const char *about;
        double rot, direction;
        DTPOINT first; // local; half axes 2 and 1
    } const cases[] = {
        {"along the first axis", 0, 0, {0, 1}},
        {"along the second", 0, 90, {2, 0}},
        {"slanted", 0, 45, {-4 / s, 1 / s}},
        {"slanted the other way", 0, 135, {4 / s, 1 / s}},
        {"measured from x, not from the axis", 30, 30, {0, 1}},
        {"along the second axis, from x", 30, 120, {2, 0}},
        {"the rotation beyond the direction", 200, 110, {2, 0}},
        {"turns too many", 0, 45 + 1800, {-4 / s, 1 / s}},
        {"turns too few", 0, 45 - 1800, {-4 / s, 1 / s}},
        {"720 is taken down to 360", 270, 720, {2, 0}},
        {"whole turns too few", 0, -1800, {0, 1}},
        {"0.5e-8 from the second axis", 0, 90 + 0.5e-8, {2, 0}},
    };
    for (const auto &c : cases) {
        DTPOINT p, q;
        EXPECT_EQ(ca_elaln(&kCenter, 4, 2, c.rot, c.direction, &p, &q), 1) << c.about;
        EXPECT_TRUE(near(p, turned(c.first, c.rot), 1e-13)) << c.about;
        EXPECT_TRUE(near(q, turned({-c.first.x, -c.first.y}, c.rot), 1e-13)) << c.about;
    }
    DTPOINT p, q;
    ca_elaln(&kCenter, 4, 2, 0, 270, &p, &q);
    EXPECT_TRUE(near(p, fromCenter({-2, 0}), 1e-13)) << "270 takes the sign of its tangent";
    ca_elaln(&kCenter, 4, 2, 0, kInfinity, &p, &q);
    EXPECT_TRUE(std::isnan(p.x)) << "ends";
}

TEST(TangentPoints, ofAnArcGiveWayToItsNearerEnd) {
    const double r = std::sqrt(3.0);
    struct {
        const char *about;
        double start, end, rot, direction;
        DTPOINT one, other; // local; half axes 2 and 1
    } const cases[] = {
        {"the lower point gives way to the end", 0, 120, 0, 0, {0, 1}, {-1, r / 2}},
        {"and to the start", 330, 120, 0, 0, {0, 1}, {r, -0.5}},
        {"to the end where both are as near", 30, 150, 0, 0, {0, 1}, {-r, 0.5}},
        {"both give way", 30, 60, 0, 90, {r, 0.5}, {1, r / 2}},
        {"rotated", 0, 120, 40, 40, {0, 1}, {-1, r / 2}},
        {"the end itself stays, and is the nearer for the other", 0, 90, 0, 0, {0, 1}, {0, 1}},
        {"0 to 0 is the whole turn", 0, 0, 0, 0, {0, 1}, {0, -1}},
        {"270", 0, 360, 0, 270, {2, 0}, {-2, 0}},
        {"180", 0, 360, 0, 180, {0, 1}, {0, -1}},
        {"a rotation of 360 is none", 0, 360, 360, 90, {2, 0}, {-2, 0}},
        {"nor is one of -360", 0, 360, -360, 90, {2, 0}, {-2, 0}},
        {"450 is lowered once", 0, 360, 0, 450, {2, 0}, {-2, 0}},
        {"the lower half, from 180", 180, 360, 0, 0, {2, 0}, {0, -1}},
        {"-90 is raised once", 0, 360, 0, -90, {2, 0}, {-2, 0}},
        {"a local direction of -90", 0, 360, 180, 90, {2, 0}, {-2, 0}},
    };
    for (const auto &c : cases) {
        const double angles[] = {c.start, c.end};
        DTPOINT p = kUntouchedPoint, q = kUntouchedPoint;
        EXPECT_EQ(ang_pnt(&kCenter, 4, 2, c.rot, angles, c.direction, &p, &q), 0) << c.about;
        EXPECT_TRUE(near(p, turned(c.one, c.rot), 1e-13)) << c.about;
        EXPECT_TRUE(near(q, turned(c.other, c.rot), 1e-13)) << c.about;
    }
    DTPOINT p, q;
    ang_pnt(&kCenter, 4, 2, -90, kWhole, 360, &p, &q);
    EXPECT_TRUE(near(p, turned({-2, 0}, -90), 1e-13)) << "450 takes the sign of its tangent";
}

TEST(Extents, encloseTheWholeEllipse) {
    Random random(56);
    for (int i = 0; i < 500; ++i) {
        const double a = random.logUniform(0.1, 100), b = i % 9 ? random.logUniform(0.1, 100) : a;
        const double rot = random.uniform(-900, 900);
        const double hx = std::hypot(a * cosd(rot), b * sind(rot)) / 2;
        const double hy = std::hypot(a * sind(rot), b * cosd(rot)) / 2;
        DTPOINT lower = kUntouchedPoint, upper = kUntouchedPoint;
        EXPECT_EQ(ca_elamn(&kCenter, a, b, rot, kWhole, &lower, &upper), 0);
        EXPECT_TRUE(near(lower, fromCenter({-hx, -hy}), 1e-12 * (a + b)));
        EXPECT_TRUE(near(upper, fromCenter({hx, hy}), 1e-12 * (a + b)));
    }
}

TEST(Extents, ofAnArcCountItsEndsOnlyWhereTheyReplaceAPoint) {
    DTPOINT lower, upper, extremes[4];
    const double quarter[] = {0, 90};
    EXPECT_EQ(ca_elpmn(&kCenter, 4, 2, 0, quarter, &lower, &upper, extremes), 0);
    EXPECT_TRUE(near(lower, kCenter, 1e-14));
    EXPECT_TRUE(near(upper, fromCenter({2, 1}), 8 * kEpsilon * 20));
    EXPECT_TRUE(near(extremes[0], fromCenter({2, 0}), 8 * kEpsilon * 20));
    EXPECT_TRUE(near(extremes[1], fromCenter({0, 1}), 8 * kEpsilon * 20)) << "(-2, 0) gave way";
    EXPECT_TRUE(near(extremes[2], fromCenter({0, 1}), 8 * kEpsilon * 20));
    EXPECT_TRUE(near(extremes[3], fromCenter({0, 1}), 8 * kEpsilon * 20)) << "(0, -1) gave way";

    // From 350 to 200: both ends lie below, and only the one that replaced (0, -1) counts.
    const double most[] = {350, 200};
    EXPECT_EQ(ca_elpmn(&kCenter, 4, 2, 0, most, &lower, &upper, extremes), 0);
    EXPECT_NEAR(lower.y, kCenter.y + sind(200), 1e-14);
    const double below[] = {200, 260}; // misses every axis: nearer ends only
    EXPECT_EQ(ca_elamn(&kCenter, 4, 2, 0, below, &lower, &upper), 0);
    EXPECT_TRUE(near(lower, fromCenter({2 * cosd(200), sind(260)}), 1e-14));
    EXPECT_TRUE(near(upper, fromCenter({2 * cosd(260), sind(200)}), 1e-14));
}

TEST(Extents, needASpan) {
    DTPOINT lower = kUntouchedPoint, upper = kUntouchedPoint, extremes[4];
    std::fill(std::begin(extremes), std::end(extremes), kUntouchedPoint);
    const double none[] = {30, 30 + 0.9e-6}, some[] = {30, 30 + 1.1e-6};
    EXPECT_EQ(ca_elpmn(&kCenter, 4, 2, 0, none, &lower, &upper, extremes), 1);
    EXPECT_EQ(lower, (DTPOINT{0, 0}));
    EXPECT_EQ(upper, (DTPOINT{0, 0}));
    EXPECT_EQ(extremes[0], kUntouchedPoint);
    EXPECT_EQ(ca_elamn(&kCenter, 4, 2, 0, none, &lower, &upper), 1);
    EXPECT_EQ(ca_elamn(&kCenter, 4, 2, 0, some, &lower, &upper), 0);
}
