// An ellipse turned, mirrored, grown to a point; results may overwrite the arguments.

#include "support.h"

using namespace support;

namespace {

struct Loose {
    DTPOINT center;
    double a, b, rot;
    double angles[2];

    DTPOINT at(double t) const { return Ellipse{center, a, b, rot}.at(t); }
};

// In place: the transforms read everything before they write.
Loose turned(Loose e, DTPOINT pivot, double angle) {
    EXPECT_EQ(ca_rvelp(&e.center, e.a, e.b, e.rot, e.angles, &pivot, angle, &e.center, &e.a, &e.b,
                       &e.rot, e.angles),
              0);
    return e;
}
Loose mirrored(Loose e, DTPOINT p, DTPOINT q) {
    EXPECT_EQ(ca_vmelp(&e.center, e.a, e.b, e.rot, e.angles, &p, &q, &e.center, &e.a, &e.b, &e.rot,
                       e.angles),
              0);
    return e;
}
Loose grown(Loose e, DTPOINT p) {
    EXPECT_EQ(
        ca_samel(&e.center, e.a, e.b, e.rot, e.angles, &p, &e.center, &e.a, &e.b, &e.rot, e.angles),
        0);
    return e;
}

constexpr DTPOINT kOrigin = {0, 0}, kEast = {1, 0};

} // namespace

TEST(TurnedEllipse, rotationMovesByOneTurnAtMost) {
    struct {
        const char *about;
        double rot, angle, want;
    } const cases[] = {
        {"above 360", 300, 90, 30},
        {"360 itself stays", 300, 60, 360},
        {"0.5e-8 above 360 stays", 360 + 0.5e-8, 0, 360 + 0.5e-8},
        {"2e-8 above 360 goes down", 360 + 2e-8, 0, 2e-8},
        {"below 0", 30, -90, 300},
        {"0.5e-8 below 0 stays", -0.5e-8, 0, -0.5e-8},
        {"2e-8 below 0 goes up", -2e-8, 0, 360 - 2e-8},
        {"two turns lose one", 720, 30, 390},
    };
    for (const auto &c : cases) {
        const Loose e = turned({{3, 4}, 4, 2, c.rot, {30, 120}}, {1, 2}, c.angle);
        EXPECT_NEAR(e.rot, c.want, 360 * kEpsilon) << c.about;
        EXPECT_EQ(e.angles[0], 30.0) << c.about;
        EXPECT_EQ(e.angles[1], 120.0) << c.about;
    }
    const Loose e = turned({{3, 4}, 4, 2, 0, {30, 120}}, {1, 2}, 90);
    EXPECT_TRUE(near(e.center, {-1, 4}, 8 * kEpsilon));
}

TEST(MirroredEllipse, exchangesTheEnds) {
    struct {
        const char *about;
        double rot, start, end, wantRot, wantStart, wantEnd;
    } const cases[] = {
        {"the ends exchange", 0, 30, 120, 0, 240, 330},
        {"a start of 0 gives an end of 360", 0, 0, 90, 0, 270, 360},
        {"360.00000001 stays", 0, 360 - 360.00000001, 90, 0, 270, 360.00000001},
        {"one above it lowers both", 0, -2e-8, 90, 0, -90, 2e-8},
        {"so does a start", 0, 0, -2e-8, 0, 2e-8, 0},
        {"rotated", 50, 30, 120, 310, 240, 330},
        {"0.5e-8 is no rotation", 0.5e-8, 30, 120, 0, 240, 330},
        {"the direction snaps to the axis", 1e-6, 30, 120, 0, 240, 330},
    };
    for (const auto &c : cases) {
        const Loose e = mirrored({{3, 4}, 4, 2, c.rot, {c.start, c.end}}, kOrigin, kEast);
        EXPECT_EQ(e.center, (DTPOINT{3, -4})) << c.about;
        EXPECT_NEAR(e.rot, c.wantRot, 360 * kEpsilon) << c.about;
        EXPECT_NEAR(e.angles[0], c.wantStart, 360 * kEpsilon) << c.about;
        EXPECT_NEAR(e.angles[1], c.wantEnd, 360 * kEpsilon) << c.about;
    }
}

TEST(TurnedAndMirroredEllipse, carryTheirPoints) {
    Random random(55);
    for (int i = 0; i < 500; ++i) {
        const Loose e = {random.point(50),
                         random.uniform(2, 40),
                         random.uniform(2, 40),
                         random.angleDeg(),
                         {random.uniform(0, 180), random.uniform(180, 360)}};
        const DTPOINT p = random.point(50), q = polar(p, 10, random.angleDeg());
        const DTPOINT end = e.at(e.angles[1]);
        const double angle = random.uniform(-360, 360);
        DTPOINT want;
        c_pnt(&p, &end, &want, angle);
        EXPECT_TRUE(near(turned(e, p, angle).at(e.angles[1]), want, 64 * kEpsilon * 200));
        ca_vmpnt(&p, &q, &end, &want);
        const Loose image = mirrored(e, p, q);
        EXPECT_TRUE(near(image.at(image.angles[0]), want, 256 * kEpsilon * 200));
    }
    EXPECT_TRUE(std::isnan(mirrored({{3, 4}, 4, 2, 0, {0, 90}}, kEast, kEast).center.x));
}

TEST(GrownEllipse, isMeasuredAlongTheMirroredDirection) {
    const Loose e = {{10, 20}, 4, 2, 0, {30, 120}};
    const double onCurve = std::sqrt(0.8); // along y = x
    struct {
        const char *about;
        double rot;
        DTPOINT p; // relative to the centre
        double factor;
    } const cases[] = {
        {"on the first axis", 0, {4, 0}, 2},
        {"along the diagonal", 0, {-3 * onCurve, -3 * onCurve}, 3},
        {"straight above: measured along the horizontal", 0, {0, 4}, 2},
        {"0.5e-8 beside straight above", 0, {0.5e-8, 4}, 2},
        {"2e-8 beside it: measured upwards", 0, {2e-8, 4}, 4},
        {"rotated: along the first axis it measures the second", 45, {3, 3}, 3 * std::sqrt(2.0)},
        {"the centre", 0, {0, 0}, 0},
    };
    for (const auto &c : cases) {
        Loose given = e;
        given.rot = c.rot;
        const Loose out = grown(given, {e.center.x + c.p.x, e.center.y + c.p.y});
        // 2e-8 beside the centre keeps 7 digits of the slope.
        const double within = c.p.x == 2e-8 ? 1e-12 : 64 * kEpsilon;
        EXPECT_NEAR(out.a, 4 * c.factor, 16 * within) << c.about;
        EXPECT_NEAR(out.b, 2 * c.factor, 16 * within) << c.about;
        EXPECT_EQ(out.center, e.center) << c.about;
        EXPECT_EQ(out.rot, c.rot) << c.about;
        EXPECT_EQ(out.angles[1], 120.0) << c.about;
    }
    EXPECT_FALSE(std::isfinite(grown({{0, 0}, 0, 2, 0, {0, 0}}, kEast).a)) << "a zero axis";
}
