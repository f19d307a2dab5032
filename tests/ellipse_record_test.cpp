// Parameter, polar angle and point; axes from conjugate semi-diameters; the scaling along y.

#include "support.h"

using namespace support;

namespace {

constexpr DTPOINT kCenter = {10, 20};

double turnsApart(double p, double q) { return std::fabs(std::remainder(p - q, 360.0)); }

struct Axes {
    double a, b, rot;
};
DTPOINT at(DTPOINT center, Axes e, double t) { return Ellipse{center, e.a, e.b, e.rot}.at(t); }

} // namespace

TEST(EllipseRecord, endPointsAreThoseOfTheHalfAxes) {
    const double angles[] = {0, 90};
    double points[4];
    EXPECT_EQ(ca_elpcd(&kCenter, 4, 2, 30, angles, points), 0);
    EXPECT_TRUE(near({points[0], points[1]}, at(kCenter, {4, 2, 30}, 0), 16 * kEpsilon));
    EXPECT_TRUE(near({points[2], points[3]}, at(kCenter, {4, 2, 30}, 90), 16 * kEpsilon));
}

TEST(EllipseRecord, parameterIsNotReduced) {
    struct {
        const char *about;
        Axes e;
        DTPOINT p; // relative to the centre
        double want;
        int32_t status;
    } const cases[] = {
        {"the centre gives -rot", {4, 2, 30}, {0, 0}, -30, 0},
        {"350 on an ellipse turned by 30", {4, 2, 30}, at({0, 0}, {4, 2, 30}, 350), -10, 0},
        {"off the curve, stretched by a/b", {4, 2, 0}, {3, 1.5}, 45, 0},
        {"second axis the longer one", {2, 4, 0}, {-1, -2}, 225, 0},
        {"negative axis: the stretched point itself", {4, -2, 0}, {2, 1}, 315, 0},
        {"first axis 0.5e-6", {0.5e-6, 2, 0}, {1, 1}, kUntouched, -1},
        {"second axis 0.5e-6", {2, -0.5e-6, 0}, {1, 1}, kUntouched, -1},
        {"half the first axis too short for a foot", {1.5e-6, 2, 0}, {1, 1}, 45, 0},
        {"half the first axis long enough", {2.5e-6, 2.5e-6, 0}, {1, 1}, 45, 0},
    };
    for (const auto &c : cases) {
        const DTPOINT p = kCenter + c.p;
        double angle = kUntouched;
        EXPECT_EQ(a2d_elpdeg(&p, &kCenter, c.e.a, c.e.b, c.e.rot, &angle), c.status) << c.about;
        EXPECT_NEAR(angle, c.want, 1e-12 * std::fabs(c.want)) << c.about;
    }
}

TEST(EllipseRecord, parameterLeadsBackToThePoint) {
    Random random(51);
    for (int i = 0; i < 2000; ++i) {
        const double size = random.logUniform(1e-2, 1e6);
        const Axes e = {size * random.uniform(0.1, 1), size * random.uniform(0.1, 1),
                        random.angleDeg()};
        const DTPOINT center = random.point(size);
        const double t = random.angleDeg();
        const DTPOINT p = at(center, e, t);
        double angle = kUntouched;
        a2d_elpdeg(&p, &center, e.a, e.b, e.rot, &angle);
        // Some 10 roundings of the coordinates, seen from a tenth of the size.
        EXPECT_LT(turnsApart(angle, t), 57.3 * 100 * 10 * kEpsilon);
        EXPECT_GE(angle, -e.rot);
        EXPECT_LE(angle, 360 - e.rot);
    }
}

TEST(ConjugateDiameters, giveAxesAndRotation) {
    const DTPOINT o = {0, 0};
    struct {
        const char *about;
        DTPOINT u, v;
        Axes want;
        int32_t status;
    } const cases[] = {
        {"second longer: exchanged, not reduced",
         polar(o, 1, 300),
         polar(o, 2, 30),
         {4, 2, 390},
         0},
        {"perpendicular, of one length: kept", {0, 1}, {-1, 0}, {2, 2, 90}, 0},
        {"on one line", {1, 1}, {2, 2}, {0, 0, 0}, -1},
        {"cross product 0.5e-6", {1, 0}, {1, 0.5e-6}, {0, 0, 0}, -1},
        {"dot product 0.5e-6 is perpendicular", {2, 0}, {0.25e-6, 1}, {4, 2 + 6.25e-14, 0}, 0},
        {"parameters 45 and 135", {1, 1}, {-1, 1}, {std::sqrt(8.0), std::sqrt(8.0), 45}, 0},
    };
    for (const auto &c : cases) {
        const DTPOINT p = kCenter + c.u, q = kCenter + c.v;
        double a = kUntouched, b = kUntouched, rot = kUntouched;
        EXPECT_EQ(a2dGetEllipsDt(&p, &q, &kCenter, &a, &b, &rot), c.status) << c.about;
        EXPECT_NEAR(a, c.want.a, 64 * kEpsilon) << c.about;
        EXPECT_NEAR(b, c.want.b, 64 * kEpsilon) << c.about;
        EXPECT_NEAR(rot, c.want.rot, 1e-12 * 360) << c.about;
    }
}

TEST(ConjugateDiameters, ofAKnownEllipseGiveItBack) {
    Random random(52);
    for (int i = 0; i < 2000; ++i) {
        const Axes e = {random.logUniform(2, 1e3), random.logUniform(0.1, 1), random.angleDeg()};
        const double t = i % 7 == 0 ? 1e-3 : random.angleDeg();
        const double sense = i % 2 == 0 ? 90 : -90;
        const DTPOINT o = {0, 0}, p = at(o, e, t), q = at(o, e, t + sense);
        double a, b, rot;
        EXPECT_EQ(a2dGetEllipsDt(&p, &q, &o, &a, &b, &rot), 0);
        EXPECT_NEAR(a, e.a, 32 * kEpsilon * e.a);
        EXPECT_NEAR(b, e.b, 64 * kEpsilon * e.a);
        // The axes differ by a half at least, so that the direction keeps its digits.
        EXPECT_LT(std::fabs(std::remainder(rot - e.rot, 180.0)), 360 * 64 * kEpsilon)
            << e.a << " " << e.b << " at " << t;
    }
}

TEST(EllipseRecord, parametricAndPolarAngleConvert) {
    const DTELLIPSE e = {0, 7, 8, 4, 2, 0, 0, 33};
    double t = 45, polar = kUntouched;
    EXPECT_EQ(ca_ElpAngle(0, &e, &t, &polar), 0);
    EXPECT_NEAR(polar, atan2d(1, 2), 64 * kEpsilon);
    for (const double want : {0.0, 10.0, 90.0, 135.0, 180.0, 200.0, 270.0, 359.0}) {
        EXPECT_EQ(ca_ElpAngle(0, &e, &(t = want), &polar), 0);
        EXPECT_EQ(ca_ElpAngle(1, &e, &t, &polar), 0);
        EXPECT_NEAR(t, want, 360 * 4 * kEpsilon);
    }
    const DTELLIPSE none = {0, 0, 0, 0, 0, 0, 0, 0};
    EXPECT_EQ(ca_ElpAngle(0, &none, &(t = 77), &polar), 0);
    EXPECT_EQ(polar, 0.0) << "no direction counts as 0";
    for (const int16_t mode : {int16_t{-1}, int16_t{2}}) {
        t = polar = kUntouched;
        EXPECT_EQ(ca_ElpAngle(mode, &e, &t, &polar), -1);
        EXPECT_EQ(t, kUntouched);
        EXPECT_EQ(polar, kUntouched);
    }
}

TEST(EllipseRecord, offsetLeavesTheCentreOut) {
    DTELLIPSE e = {0, 70, 80, 4, 2, 0, 0, 90};
    DTPOINT offset = kUntouchedPoint;
    EXPECT_EQ(ca_ElpCordXY(0, &e, 45, &offset), 0);
    EXPECT_TRUE(near(offset, {-std::sqrt(0.5), std::sqrt(2.0)}, 8 * kEpsilon));
    EXPECT_EQ(ca_ElpCordXY(1, &e, atan2d(1, 2), &offset), 0);
    EXPECT_TRUE(near(offset, {-std::sqrt(0.5), std::sqrt(2.0)}, 8 * kEpsilon)) << "polar";
    e.rot = 0.9e-6;
    EXPECT_EQ(ca_ElpCordXY(0, &e, 0, &offset), 0);
    EXPECT_EQ(offset, (DTPOINT{2, 0})) << "a rotation this small is not applied";
    e.rot = -1.1e-6;
    EXPECT_EQ(ca_ElpCordXY(0, &e, 0, &offset), 0);
    EXPECT_LT(offset.y, 0.0);
    offset = kUntouchedPoint;
    EXPECT_EQ(ca_ElpCordXY(2, &e, 0, &offset), -1);
    EXPECT_EQ(offset, kUntouchedPoint);
}

TEST(ScalingAlongY, carriesEveryPointOfTheArc) {
    Random random(53);
    for (int i = 0; i < 1000; ++i) {
        const DTPOINT c = random.point(100);
        const DTELLIPSE e = {
            9, c.x, c.y, random.uniform(1, 50), random.uniform(1, 50), 10, 200, random.angleDeg()};
        const double k = random.uniform(0.2, 3) * (i % 2 == 0 ? 1 : -1);
        DTELLIPSE r = e;
        ASSERT_EQ(a2d_elp_trans(&r, k, &r), 0) << "in place";
        EXPECT_EQ(r.attr, 9U);
        EXPECT_GE(r.a, r.b);
        const auto image = [k, &c, &e](double t) {
            const DTPOINT p = at(c, {e.a, e.b, e.rot}, t);
            return DTPOINT{p.x, k * p.y};
        };
        const DTPOINT o = {r.cx, r.cy};
        EXPECT_TRUE(near(at(o, {r.a, r.b, r.rot}, r.start), image(e.start), 1e-11));
        EXPECT_TRUE(near(at(o, {r.a, r.b, r.rot}, r.end), image(e.end), 1e-11));
        const double middle =
            r.start +
            (k > 0 ? 0.5 : -0.5) * std::fmod((r.end - r.start) * (k > 0 ? 1 : -1) + 720, 360.0);
        EXPECT_TRUE(near(at(o, {r.a, r.b, r.rot}, middle), image(105), 1e-11)) << "between them";
    }
}

TEST(ScalingAlongY, refusesBeforeAndAfterItsFirstStores) {
    const DTELLIPSE blank = {1,          kUntouched, kUntouched, kUntouched,
                             kUntouched, kUntouched, kUntouched, kUntouched};
    const DTELLIPSE e = {0, 10, 20, 2, 4, 30, 60, 0};
    DTELLIPSE r = blank;
    EXPECT_EQ(a2d_elp_trans(&e, 1, &r), 0);
    EXPECT_EQ(r.a, 4.0);
    EXPECT_EQ(r.rot, 90.0) << "the longer axis comes first";
    EXPECT_NEAR(r.start, -60.0, 1e-12 * 60) << "against the exchanged axes";

    const DTELLIPSE tolerantlyShort = {0, 10, 20, 1e-6, 4, 30, 60, 0};
    r = blank;
    EXPECT_EQ(a2d_elp_trans(&tolerantlyShort, 1, &r), -1) << "errdist itself is too short";
    EXPECT_EQ(r.cx, kUntouched);

    EXPECT_EQ(a2d_elp_trans(&e, 1e-7, &r), -1) << "flattened";
    EXPECT_EQ(r.cx, 10.0);
    EXPECT_EQ(r.cy, 20 * 1e-7);
    EXPECT_EQ(r.a, 0.0);
    EXPECT_EQ(r.rot, 0.0);
    EXPECT_EQ(r.start, kUntouched);
    EXPECT_EQ(r.end, kUntouched);
}
