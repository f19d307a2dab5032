// The tangents from a point to an ellipse, by the polar line and by the feet of the foci.

#include "support.h"

using namespace support;

namespace {

/// Where the tangents at two parameters meet.
DTPOINT poleOf(const Ellipse &e, double deg1, double deg2) {
    const double middle = (deg1 + deg2) / 2, r = 1 / cosd((deg2 - deg1) / 2);
    return e.placed({e.a / 2 * r * cosd(middle), e.b / 2 * r * sind(middle)});
}

using Function = int32_t (*)(const DTPOINT *, const DTPOINT *, double, double, double, DTPOINT *,
                             DTPOINT *);
struct Answer {
    int32_t result;
    DTPOINT out1 = kUntouchedPoint, out2 = kUntouchedPoint;
};
Answer ask(Function f, const Ellipse &e, DTPOINT p) {
    Answer got{};
    got.result = f(&p, &e.center, e.a, e.b, e.rot, &got.out1, &got.out2);
    return got;
}

} // namespace

TEST(PointTangentsOfEllipse, knownContactsAndTheirOrder) {
    const Ellipse e = {{7, -3}, 10, 6, 30}; // half axes 5 and 3
    struct {
        const char *about;
        double deg1, deg2;       // of the contacts, in the order of a2d_tchpe
        bool polarIsTheOtherWay; // the greater x first
    } const cases[] = {
        {"beyond the first axis", -60, 60, true},
        {"beyond its other end", 120, 240, false},
        {"beyond the second axis", 30, 150, false},
        {"below", 210, 330, true},
        {"first quadrant", -20, 70, false},
        {"tangents along both axes", 0, 90, false},
        {"one along the first axis", 90, 170, false},
        {"one along the second axis", -1, 0, true},
        {"hardly outside", 44, 46, false},
        {"far away", 0.5, 179.9, false},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.about);
        const DTPOINT p = poleOf(e, c.deg1, c.deg2);
        const double within = 200 * kEpsilon * (1 + distance(p, e.center));
        const Answer focal = ask(a2d_tchpe, e, p), polar = ask(ca_inspe, e, p);
        EXPECT_EQ(focal.result, 2);
        EXPECT_TRUE(near(focal.out1, e.at(c.deg1), within));
        EXPECT_TRUE(near(focal.out2, e.at(c.deg2), within));
        EXPECT_EQ(polar.result, 0);
        EXPECT_TRUE(near(polar.out1, e.at(c.polarIsTheOtherWay ? c.deg2 : c.deg1), within));
        EXPECT_TRUE(near(polar.out2, e.at(c.polarIsTheOtherWay ? c.deg1 : c.deg2), within));
    }
}

TEST(PointTangentsOfEllipse, codesAndOutputsWithoutContacts) {
    const DTPOINT zero = {0, 0};
    struct {
        const char *about;
        Ellipse e;
        DTPOINT local;
        int32_t focal, polar;
    } const cases[] = {
        {"inside", {{7, -3}, 10, 6, 30}, {1, 1}, 0, 1},
        {"centre", {{7, -3}, 10, 6, 30}, {0, 0}, 0, 1},
        {"on the curve", {{7, -3}, 10, 6, 0}, {5, 0}, 0, 1},
        {"outside by half of 1e-6", {{0, 0}, 10, 6, 0}, {5 + 0.5e-6, 0}, 0, 0},
        {"outside by twice 1e-6", {{0, 0}, 10, 6, 0}, {5 + 2e-6, 0}, 2, 0},
        {"on the circle over the first axis", {{7, -3}, 10, 6, 30}, {3, 4}, 2, 0},
        {"beside it by half of errdist", {{7, -3}, 10, 6, 30}, {3, 4 + 0.6e-6}, 2, 0},
        {"beside it by twice errdist", {{7, -3}, 10, 6, 30}, {3, 4 + 2.5e-6}, 2, 0},
        {"circle", {{7, -3}, 6, 6, 30}, {4, 4}, 2, 0},
        {"on a circle: its own foot", {{7, -3}, 6, 6, 30}, {3, 0}, 0, 1},
        {"second axis longer", {{7, -3}, 6, 10, 30}, {4, 4}, 0, 0},
        {"segment", {{7, -3}, 10, 0, 30}, {1, 1}, 0, 1},
        {"negative first axis", {{7, -3}, -10, 6, 30}, {7, 7}, -1, 0},
        {"small ellipse", {{7, -3}, 0.02, 0.01, 30}, {0.02, 0.02}, 2, 1},
        {"NaN", {{7, -3}, 10, 6, 30}, {kNaN, 1}, 0, 0},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.about);
        const Answer focal = ask(a2d_tchpe, c.e, c.e.placed(c.local));
        EXPECT_EQ(focal.result, c.focal);
        EXPECT_EQ(focal.out1 == kUntouchedPoint, c.focal != 2 && c.e.b > 0)
            << "(0, 0) in that case";
        EXPECT_EQ(focal.out2 == kUntouchedPoint, c.focal != 2);
        const Answer polar = ask(ca_inspe, c.e, c.e.placed(c.local));
        EXPECT_EQ(polar.result, c.polar);
        EXPECT_EQ(polar.out1 == zero && polar.out2 == zero, c.polar == 1);
    }
}

TEST(PointTangentsOfEllipse, alongAnAxisTheContactIsTheOthersEnd) {
    const Ellipse e = {{7, -3}, 10, 6, 30};
    EXPECT_TRUE(near(ask(a2d_tchpe, e, poleOf(e, 90 + 1e-8, 170)).out1, e.at(90), 50 * kEpsilon));
    EXPECT_TRUE(near(ask(a2d_tchpe, e, poleOf(e, -90 - 1e-8, 170)).out2, e.at(-90), 50 * kEpsilon));
    EXPECT_TRUE(near(ask(a2d_tchpe, e, poleOf(e, -80, 1e-8)).out2, e.at(0), 50 * kEpsilon));
    EXPECT_TRUE(near(ask(a2d_tchpe, e, poleOf(e, 100, 180 + 1e-8)).out2, e.at(180), 50 * kEpsilon));
}

/// Squares against 1e-8: beside the first axis y^2 of the contacts, elsewhere a discriminant of
/// 4 B^4 (B^2 x^2 + A^2 y^2 - A^2 B^2) / y^2.
TEST(PointTangentsOfEllipse, thePolarLineDecidesByItsOwnLimits) {
    const Ellipse unit = {{0, 0}, 2, 2, 0};
    for (const auto &[square, want] : {std::pair{0.5e-8, 1}, std::pair{2e-8, 0}}) {
        const double x = 1 / std::sqrt(1 - square);
        EXPECT_EQ(ask(ca_inspe, unit, {x, 0.5e-8}).result, want);
        EXPECT_EQ(ask(ca_inspe, unit, {0, 1 / std::sqrt(1 - square / 4)}).result, want);
        EXPECT_EQ(ask(ca_inspe, unit, {x, 2e-8}).result, 0) << "the other limit, past 1e-8";
    }
}

/// Where both candidates lie within 1e-6 of the tangent the contact may be the other: below the
/// axis at its positive end, above it at the negative one.
TEST(PointTangentsOfEllipse, theFirstOfTwoMirroredContacts) {
    const Ellipse e = {{0, 0}, 2, 1, 0};
    // The mirror image lies 2 sin^2 from the tangent: 0.7e-6 or 1.4e-6.
    const double cases[][2] = {
        {0.034, -0.034}, {0.048, 0.048}, {179.966, 179.966}, {180.034, 179.966}};
    for (const auto &[deg, want] : cases) {
        const double other = deg < 90 ? 80 : 100;
        const Answer got = ask(a2d_tchpe, e, poleOf(e, deg, other));
        const bool isFirst = distance(got.out1, e.at(other)) > 0.5;
        EXPECT_TRUE(near(isFirst ? got.out1 : got.out2, e.at(want), 1e-12)) << deg;
    }
}

/// Choose two contacts, ask from where their tangents meet. Decided on squares, a tangent of a
/// large ellipse or one that is nearly horizontal is lost to rounding.
TEST(PointTangentsOfEllipse, noneIsLost) {
    Random random(721);
    for (int i = 0; i < 40000; ++i) {
        const double size = random.logUniform(1, 1e5);
        Ellipse e = {random.point(size), size, size * random.uniform(0.15, 1), random.angleDeg()};
        const double deg1 = i % 3 ? random.angleDeg() : 90 + random.logUniform(1e-3, 1);
        const double deg2 = deg1 + random.uniform(1, 170);
        // Contacts beside the first axis may be mirrored, and a point at its distance may find one
        // tangent twice.
        if (std::fmin(std::fabs(sind(deg1)), std::fabs(sind(deg2))) < 0.01) continue;
        if (std::fabs(distance(poleOf(e, deg1, deg2), e.center) - e.a / 2) < 2e-6) continue;
        const DTPOINT p = poleOf(e, deg1, deg2), want1 = e.at(deg1), want2 = e.at(deg2);
        // Contacts of a point near the curve turn by the root of a rounding.
        const double flat = 1 / sind((deg2 - deg1) / 2), far = 1 / cosd((deg2 - deg1) / 2);
        const double within =
            20 * kEpsilon * (size + distance(e.center, {0, 0})) * flat * far * e.a / e.b;
        for (const Function f : {a2d_tchpe, ca_inspe}) {
            const Answer got = ask(f, e, p);
            ASSERT_EQ(got.result, f == a2d_tchpe ? 2 : 0);
            const bool inOrder = distance(got.out1, want1) < distance(got.out1, want2);
            ASSERT_TRUE(near(inOrder ? got.out1 : got.out2, want1, within));
            ASSERT_TRUE(near(inOrder ? got.out2 : got.out1, want2, within));
        }
    }
}
