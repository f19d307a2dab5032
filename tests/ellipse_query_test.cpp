// Where points and lines lie to an ellipse; foci and tangent directions.

#include "support.h"

using namespace support;

namespace {

constexpr DTPOINT kCenter = {10, 20};

DTPOINT fromCenter(DTPOINT p) { return kCenter + p; }
/// A local point of an ellipse about kCenter turned by `rot`.
DTPOINT turned(DTPOINT local, double rot) { return Ellipse{kCenter, 0, 0, rot}.placed(local); }
DTPOINT localAt(double a, double b, double t) { return {a / 2 * cosd(t), b / 2 * sind(t)}; }

} // namespace

TEST(Foci, areTakenFromTheLengthsAsPassed) {
    DTPOINT f, g;
    EXPECT_EQ(GetElpFocusPnt(&kCenter, 5, 3, 90, &f, &g), 0);
    EXPECT_TRUE(near(f, fromCenter({0, -4}), 8 * kEpsilon * 20));
    EXPECT_TRUE(near(g, fromCenter({0, 4}), 8 * kEpsilon * 20));
    for (const double r : {0.1, 1.0 / 3.0, 7.7, 1e6 / 3.0}) {
        EXPECT_EQ(GetElpFocusPnt(&kCenter, r, r, 33, &f, &g), 0);
        EXPECT_EQ(f, kCenter) << "a circle of radius " << r;
        EXPECT_EQ(g, kCenter);
    }
    EXPECT_EQ(GetElpFocusPnt(&kCenter, 3, 5, 0, &f, &g), 0) << "no foci, no refusal";
    EXPECT_TRUE(std::isnan(f.x) && std::isnan(g.y));
    f = g = kUntouchedPoint;
    EXPECT_EQ(GetElpFocusPnt(&kCenter, -5, 3, 0, &f, &g), -1);
    EXPECT_EQ(f, kUntouchedPoint);
    EXPECT_EQ(g, kUntouchedPoint);
    EXPECT_EQ(GetElpFocusPnt(&kCenter, -0.4e-6, 0, 0, &f, &g), 0) << "c - a is 0.8e-6";
    EXPECT_EQ(GetElpFocusPnt(&kCenter, -0.6e-6, 0, 0, &f, &g), -1);
}

TEST(TangentOnEllipse, pointsAnticlockwise) {
    const DTELLIPSE e = {0, kCenter.x, kCenter.y, 8, 4, 0, 0, 30};
    for (const double t : {0.0, 40.0, 90.0, 200.0, 333.0}) {
        const DTPOINT local = localAt(8, 4, t), p = turned(local, 30);
        const DTPOINT want = {turned({-4 * sind(t), 2 * cosd(t)}, 30).x - kCenter.x,
                              turned({-4 * sind(t), 2 * cosd(t)}, 30).y - kCenter.y};
        DTPOINT v = kUntouchedPoint;
        EXPECT_EQ(a2d_GetTangentVectorOnDTELLIPSE(&e, &p, &v), 0);
        EXPECT_TRUE(near(v, want, 64 * kEpsilon * 20)) << t;
        EXPECT_EQ(a2d_GetTangentVectorOnElp(0.5, &local, &v), 0);
        EXPECT_TRUE(near(v, {-4 * sind(t), 2 * cosd(t)}, 8 * kEpsilon)) << t;
    }
    const DTELLIPSE upright = {0, 0, 0, 4, 8, 0, 0, 0};
    const DTPOINT p = {1, 3};
    DTPOINT v;
    EXPECT_EQ(a2d_GetTangentVectorOnDTELLIPSE(&upright, &p, &v), 0);
    EXPECT_EQ(v, (DTPOINT{-6, 0.5})) << "as if the axes were exchanged";
}

TEST(TangentOnEllipse, refusesWithOne) {
    const DTELLIPSE e = {0, 0, 0, 8, 4, 0, 0, 0}, flat = {0, 0, 0, 8, 0, 0, 0, 0};
    const DTELLIPSE thin = {0, 0, 0, -8, 4, 0, 0, 0};
    const DTPOINT p = {1, 1};
    DTPOINT v = kUntouchedPoint;
    EXPECT_EQ(a2d_GetTangentVectorOnElp(1.0 + 2 * kEpsilon, &p, &v), 1);
    EXPECT_EQ(a2d_GetTangentVectorOnElp(0.5, nullptr, &v), 1);
    EXPECT_EQ(a2d_GetTangentVectorOnElp(0.5, &p, nullptr), 1);
    EXPECT_EQ(a2d_GetTangentVectorOnDTELLIPSE(nullptr, &p, &v), 1);
    EXPECT_EQ(a2d_GetTangentVectorOnDTELLIPSE(&e, nullptr, &v), 1);
    EXPECT_EQ(a2d_GetTangentVectorOnDTELLIPSE(&e, &p, nullptr), 1);
    EXPECT_EQ(a2d_GetTangentVectorOnDTELLIPSE(&flat, &p, &v), 1);
    EXPECT_EQ(a2d_GetTangentVectorOnDTELLIPSE(&thin, &p, &v), 1);
    EXPECT_EQ(v, kUntouchedPoint);
    EXPECT_EQ(a2d_GetTangentVectorOnElp(1.0, &p, &v), 0);
}

TEST(ParameterOnArc, isAskedWithTheSlackOfArcs) {
    struct {
        const char *about;
        double start, end, t;
        int32_t want;
    } const cases[] = {
        {"inside", 30, 120, 60, 0},
        {"outside", 30, 120, 150, 1},
        {"0.5e-8 before the start", 30, 120, 30 - 0.5e-8, 0},
        {"2e-8 before the start", 30, 120, 30 - 2e-8, 1},
        {"2e-8 past the end", 30, 120, 120 + 2e-8, 1},
        {"across 0", 300, 60, 350, 0},
        {"equal ends are the whole turn", 45, 45, 200, 0},
        {"a turn apart as well", 45, 405, 200, 0},
    };
    for (const auto &c : cases) {
        const DTELLIPSE e = {0, kCenter.x, kCenter.y, 8, 4, c.start, c.end, 70};
        const DTPOINT p = turned(localAt(8, 4, c.t), 70);
        EXPECT_EQ(CheckEllipseArcAngle(&e, &p), c.want) << c.about;
    }
    const DTELLIPSE degenerate = {0, 0, 0, 8, 0.5e-6, 0, 360, 0};
    EXPECT_EQ(CheckEllipseArcAngle(&degenerate, &kCenter), 1);
}

TEST(LineAgainstEllipse, comparesLengthsAlongTheAxesAndSquaresElsewhere) {
    struct {
        const char *about;
        DTPOINT p, q; // local; half axes 2 and 1
        int32_t want;
    } const cases[] = {
        {"along the first axis, 0.5e-4 above", {0, 1.00005}, {5, 1.00005}, 1},
        {"along the first axis, 2e-4 above", {0, 1.0002}, {5, 1.0002}, 0},
        {"along the first axis, 2e-4 below", {0, -0.9998}, {5, -0.9998}, 2},
        {"0.5e-6 off the first axis still runs along it", {0, 1.00005}, {5e-3, 1.0000505}, 1},
        {"along the second axis, 0.5e-4 outside", {-2.00005, 0}, {-2.00005, 1}, 1},
        {"along the second axis, 2e-4 outside", {2.0002, 0}, {2.0002, 1}, 0},
        // y = x + c: D = 4 - c^2 + 1
        {"slanted, D = 0.5e-4", {0, std::sqrt(5 - 0.5e-4)}, {1, 1 + std::sqrt(5 - 0.5e-4)}, 1},
        {"slanted, D = 2e-4", {0, std::sqrt(5 - 2e-4)}, {1, 1 + std::sqrt(5 - 2e-4)}, 2},
        {"slanted, D = -2e-4", {0, std::sqrt(5 + 2e-4)}, {1, 1 + std::sqrt(5 + 2e-4)}, 0},
        {"both points inside: the line is infinite", {0.1, 0.1}, {0.2, 0.3}, 2},
    };
    for (const auto &c : cases) {
        for (const double rot : {0.0, 90.0, 180.0}) {
            const DTELLIPSE e = {0, kCenter.x, kCenter.y, 4, 2, 77, 78, rot};
            const DTPOINT p = turned(c.p, rot), q = turned(c.q, rot);
            const DTLINE line = {0, p.x, p.y, q.x, q.y};
            EXPECT_EQ(a2d_hanel(&line, &e), c.want) << c.about << ", turned by " << rot;
        }
    }
}

TEST(OnEllipseArc, asksForTheCurveThenTheRange) {
    struct {
        const char *about;
        double a, b, rot, start, end;
        DTPOINT local;
        int32_t want;
    } const cases[] = {
        {"on the arc", 8, 4, 30, 20, 200, localAt(8, 4, 100), 0},
        {"on the curve, not on the arc", 8, 4, 30, 20, 200, localAt(8, 4, 210), 1},
        {"1e-4 before the end", 8, 4, 30, 20, 200, localAt(8, 4, 200 - 1e-4), 0},
        {"1e-4 beyond the end", 8, 4, 30, 20, 200, localAt(8, 4, 200 + 1e-4), 1},
        {"1e-4 before the start", 8, 4, 30, 20, 200, localAt(8, 4, 20 - 1e-4), 1},
        {"1e-4 beyond the start", 8, 4, 30, 20, 200, localAt(8, 4, 20 + 1e-4), 0},
        {"polar, not parametric: 45 is the direction of 63", 8, 4, 0, 0, 50, localAt(8, 4, 49), 0},
        {"second axis the longer one", 4, 8, 30, 20, 200, localAt(4, 8, 100), 0},
        {"outside by 0.4e-6 at the first axis", 8, 4, 0, 0, 0, {4 + 0.4e-6, 0}, 0},
        {"outside by 0.6e-6 at the first axis", 8, 4, 0, 0, 0, {4 + 0.6e-6, 0}, 1},
        {"circle, inside by 0.4e-6", 6, 6, 77, 0, 0, {0, 3 - 0.4e-6}, 0},
        {"circle, inside by 0.6e-6", 6, 6, 77, 0, 0, {0, 3 - 0.6e-6}, 1},
        {"0 and 0 are the whole turn", 8, 4, 30, 0, 0, localAt(8, 4, 300), 0},
        {"0 and 360 too", 8, 4, 30, 0, 360, localAt(8, 4, 300), 0},
        {"90 and 90 are that direction", 8, 4, 30, 90, 90, {0, 2}, 0},
        {"90 and 90 hold no other", 8, 4, 30, 90, 90, {4, 0}, 1},
        {"across 0", 8, 4, 30, 300, 30, {4, 0}, 0},
        {"first axis 1e-8", 1e-8, 4, 30, 0, 0, {0, 2}, -1},
        {"second axis 1e-8", 4, 1e-8, 30, 0, 0, {2, 0}, -1},
        {"negative axis", 4, -2, 30, 0, 0, {2, 0}, -1},
        {"NaN passes every test", 4, 2, 30, 0, 90, {kNaN, 0}, 0},
    };
    for (const auto &c : cases) {
        const double angles[] = {c.start, c.end};
        const DTPOINT p = turned(c.local, c.rot);
        EXPECT_EQ(ca_onelp(&kCenter, c.a, c.b, c.rot, angles, &p), c.want) << c.about;
    }
    const double whole[] = {0, 0};
    const DTPOINT p = fromCenter({1e4, 0});
    EXPECT_EQ(ca_onelp(&kCenter, 2e4, 2, 0.9e-6, whole, &p), 0) << "foci not turned";
    EXPECT_EQ(ca_onelp(&kCenter, 2e4, 2, 1.1e-6, whole, &p), 1) << "turned";
    const DTPOINT end = fromCenter({0, 1e4});
    EXPECT_EQ(ca_onelp(&kCenter, 2, 2e4, 0.9e-6, whole, &end), 0) << "nor those of the second axis";
}

TEST(PolarRange, keepsItsOrderOfTests) {
    struct {
        const char *about;
        double start, end, direction;
        int32_t want;
    } const cases[] = {
        {"inside", 30, 60, 45, 0},
        {"0.5e-8 below the start", 30, 60, 30 - 0.5e-8, 0},
        {"2e-8 below the start", 30, 60, 30 - 2e-8, 1},
        {"0.5e-8 above the end", 30, 60, 60 + 0.5e-8, 0},
        {"2e-8 above the end", 30, 60, 60 + 2e-8, 1},
        {"both ends near 0: all", 0.9e-6, -0.9e-6, 200, 0},
        {"one end not so near", 0, 2e-6, 200, 1},
        {"a start of 1e-6 is not", 1e-6, -0.5e-6, 200, 1},
        {"across 0, above", 300, 30, 350, 0},
        {"across 0, below", 300, 30, 20, 0},
        {"across 0, between", 300, 30, 100, 1},
        {"negative start alone: raised above the end", -60, 30, 350, 0},
        {"negative start and end: raised both", -60, -30, 310, 0},
        {"negative start and end, outside", -60, -30, 350, 1},
        {"negative end alone holds nothing", 30, -60, 45, 1},
        {"a start below -360 holds nothing", -400, 30, 330, 1},
        {"an end below -360 holds nothing", -60, -400, 310, 1},
    };
    for (const auto &c : cases) {
        const double range[] = {c.start, c.end};
        for (const double rot : {0.0, 200.0}) {
            const DTPOINT p = polar(kCenter, 5, c.direction + rot);
            EXPECT_EQ(pin_chk(&kCenter, rot, range, &p), c.want)
                << c.about << ", turned by " << rot;
        }
    }
    const double upTo10[] = {0, 10};
    const DTPOINT east = fromCenter({1, 0});
    EXPECT_EQ(pin_chk(&kCenter, -360, upTo10, &east), 1) << "a direction of 360 is not reduced";
    EXPECT_EQ(pin_chk(&kCenter, -360.0000001, upTo10, &east), 0) << "one above it is";
}

TEST(SideOfEllipse, comparesTheFocalSum) {
    struct {
        const char *about;
        double a, b;
        DTPOINT local;
        int32_t status;
        uint16_t want;
    } const cases[] = {
        {"on", 8, 4, localAt(8, 4, 33), 0, 0},
        {"the centre is inside", 8, 4, {0, 0}, 0, 65535},
        {"far away", 4, 8, {100, 0}, 0, 1},
        {"0.6e-6 beyond the first axis", 8, 4, {4 + 0.6e-6, 0}, 0, 1},
        {"0.6e-6 within the first axis", 8, 4, {4 - 0.6e-6, 0}, 0, 65535},
        {"0.4e-6 within the second axis", 4, 8, {0, 4 - 0.4e-6}, 0, 0},
        {"axis of 1e-8", 8, 1e-8, {100, 0}, -1, 0},
        {"first axis of 1e-8", 1e-8, 8, {100, 0}, -1, 0},
    };
    for (const auto &c : cases) {
        const DTPOINT p = turned(c.local, 30);
        uint16_t position = kUntouchedCount;
        EXPECT_EQ(ca_posel(&kCenter, c.a, c.b, 30, &p, &position), c.status) << c.about;
        EXPECT_EQ(position, c.want) << c.about;
    }
}
