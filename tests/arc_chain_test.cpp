// An ellipse as a chain of circular arcs: the four-centre oval, and the chain within a tolerance.

#include <algorithm>
#include <vector>

#include "support.h"

using namespace support;

namespace {

constexpr DTPOINT kCenter = {10, 20};

struct Chain {
    int32_t code;
    std::vector<DTPOINT> centers;
    std::vector<double> radii, angles;

    explicit Chain(std::size_t room)
        : code(0), centers(room, kUntouchedPoint), radii(room, kUntouched),
          angles(2 * room, kUntouched) {}
    void keep(std::size_t arcs) {
        centers.resize(arcs);
        radii.resize(arcs);
        angles.resize(2 * arcs);
    }
    std::size_t size() const { return radii.size(); }
    double start(std::size_t k) const { return angles[2 * k]; }
    double end(std::size_t k) const { return angles[2 * k + 1]; }
    DTPOINT at(std::size_t k, double deg) const { return polar(centers[k], radii[k], deg); }
    DTPOINT last() const { return at(size() - 1, end(size() - 1)); }
};

Chain elips(double a, double b, double start, double end, double rot) {
    Chain chain(5);
    const double angles[] = {start, end};
    uint32_t count = 99;
    chain.code = ca_elips(&kCenter, a, b, angles, rot, chain.centers.data(), chain.radii.data(),
                          chain.angles.data(), &count);
    chain.keep(std::min<std::size_t>(count, 5));
    return chain;
}

Chain elip1(const Ellipse &e, double start, double end) {
    Chain chain(5);
    const double angles[] = {start, end};
    uint16_t count = kUntouchedCount;
    chain.code = ca_elip1(&e.center, e.a, e.b, e.rot, angles, chain.centers.data(),
                          chain.radii.data(), chain.angles.data(), &count);
    if (chain.code == 0) chain.keep(count);
    EXPECT_LE(count, 5);
    return chain;
}

Chain elip2(const Ellipse &e, double start, double end, double tol) {
    const double angles[] = {start, end};
    uint16_t count = 0;
    ca_elip2(&e.center, e.a, e.b, e.rot, angles, tol, nullptr, nullptr, nullptr, &count);
    Chain chain(count);
    chain.code = ca_elip2(&e.center, e.a, e.b, e.rot, angles, tol, chain.centers.data(),
                          chain.radii.data(), chain.angles.data(), &count);
    EXPECT_EQ(count, chain.size());
    return chain;
}

/// Every arc runs anticlockwise and goes on from the one before, in place and direction.
void expectTangentJoints(const Chain &chain, bool isClosed, double size) {
    for (std::size_t k = 0; k < chain.size(); ++k) {
        EXPECT_GT(chain.end(k), chain.start(k));
        EXPECT_LE(chain.end(k), 360.0);
        const std::size_t next = (k + 1) % chain.size();
        if (next == 0 && !isClosed) break;
        EXPECT_LT(std::fabs(std::remainder(chain.end(k) - chain.start(next), 360.0)), 1e-9);
        EXPECT_TRUE(near(chain.at(k, chain.end(k)), chain.at(next, chain.start(next)), size));
    }
}

double furthest(const Chain &chain, const Ellipse &e) {
    double most = 0.0;
    for (std::size_t k = 0; k < chain.size(); ++k) {
        for (int i = 0; i <= 40; ++i) {
            const double deg = chain.start(k) + (chain.end(k) - chain.start(k)) * i / 40;
            most = std::max(most, distanceFrom(e, chain.at(k, deg)));
        }
    }
    return most;
}

} // namespace

TEST(FourCentreHalfAxes, giveTheOvalInRadians) {
    const double d = std::sqrt(5.0), joint = std::atan2(2.0, 1.0);
    const double small = (d - 1) * d / 4, large = (1 + d) * d / 2;
    const Chain whole = elips(2, 1, 0, 2 * kPi, 0);
    ASSERT_EQ(whole.size(), 4U);
    const double radii[] = {small, large, small, large};
    const DTPOINT centers[] = {
        {12 - small, 20}, {10, 21 - large}, {8 + small, 20}, {10, 19 + large}};
    const double angles[] = {-joint,      joint,       joint,       kPi - joint,
                             kPi - joint, kPi + joint, kPi + joint, 2 * kPi - joint};
    for (std::size_t k = 0; k < 4; ++k) {
        EXPECT_NEAR(whole.radii[k], radii[k], 8 * kEpsilon);
        EXPECT_TRUE(near(whole.centers[k], centers[k], 64 * kEpsilon));
        EXPECT_NEAR(whole.start(k), angles[2 * k], 16 * kEpsilon);
        EXPECT_NEAR(whole.end(k), angles[2 * k + 1], 16 * kEpsilon);
    }
    const Chain quarter = elips(2, 1, 0, kPi / 2, 0);
    ASSERT_EQ(quarter.size(), 2U);
    EXPECT_EQ(quarter.start(0), 0.0);
    EXPECT_NEAR(quarter.end(1), kPi / 2, 4 * kEpsilon) << "towards a point of the long circle";
    const Chain cut = elips(2, 1, 0.3, 0.6, 0);
    ASSERT_EQ(cut.size(), 1U);
    EXPECT_NEAR(cut.start(0), std::atan2(2 * std::sin(0.3), 2 * std::cos(0.3) - (2 - small)),
                8 * kEpsilon)
        << "not towards the ellipse's own point";
    const Chain upright = elips(1, 2, 0, 2 * kPi, 0.25);
    ASSERT_EQ(upright.size(), 4U);
    EXPECT_TRUE(near(upright.centers[0], polar(kCenter, -(2 - small), 0.25 / kRadPerDeg), 1e-14))
        << "turned by the quarter twice";
}

TEST(FourCentreHalfAxes, keepTheirTolerancesAndEnd) {
    struct {
        const char *about;
        double a, b, start, end;
        std::size_t count;
    } const cases[] = {
        {"0.5e-7 apart is a circle", 2, 2 + 0.5e-7, 0.5, 1, 1},
        {"2e-7 apart is none", 2, 2 + 2e-7, 0.5, 1, 2},
        {"a span of 0.0009 less than a turn is the turn", 2, 1, 0, 2 * kPi - 0.0009, 4},
        {"0.0011 less is not", 2, 1, 0, 2 * kPi - 0.0011, 5},
        {"equal angles are the turn", 2, 1, 1, 1, 4},
        {"and those apart by no more than 1e-7", 2, 1, 0, 1e-7, 4},
        {"from 0.5e-7 before a bound the next arc starts", 2, 1, kPi / 4 - 0.5e-7, 1, 1},
        {"a start of -2 pi is not 0", 2, 1, -2 * kPi, 0, 0},
        {"NaN angles leave the untouched rows of the oval", 2, 1, kNaN, kNaN, 5},
        {"an angle whose reduction leaves 4194304", 2, 1, 3e22, 1, 1},
        {"infinite angles", 2, 1, kInfinity, -kInfinity, 5},
        {"a zero half axis", 2, 0, 0, 1, 1},
        {"negative half axes", -2, -1, 0, 2 * kPi, 4},
    };
    for (const auto &c : cases) {
        const Chain chain = elips(c.a, c.b, c.start, c.end, 0);
        EXPECT_EQ(chain.code, 0) << c.about;
        EXPECT_EQ(chain.size(), c.count) << c.about;
    }
    const Chain circle = elips(2, 2, 1, 2, 0.7);
    EXPECT_EQ(circle.centers[0], kCenter);
    EXPECT_EQ(circle.radii[0], 2.0);
    EXPECT_EQ(circle.start(0), 1.0) << "the rotation is not applied";
    uint32_t count = 99;
    const double nothing[] = {-2 * kPi, 0};
    ca_elips(&kCenter, 2, 1, nothing, 0, nullptr, nullptr, nullptr, &count);
    EXPECT_EQ(count, 0U) << "and nothing else is written";
}

TEST(FourCentreDegrees, keepsToTheEllipseAndItsEnds) {
    const double ratios[] = {0.8, 0.5, 0.22, 0.05, 0.01};
    const double largest[] = {0.0055, 0.0182, 0.0277, 0.0277, 0.0277};
    for (int i = 0; i < 5; ++i) {
        const Ellipse e = {kCenter, 8, 8 * ratios[i], 130},
                      upright = {kCenter, 8 * ratios[i], 8, 30};
        const Chain whole = elip1(e, 0, 360);
        ASSERT_EQ(whole.size(), 4U);
        expectTangentJoints(whole, true, 1e-12);
        EXPECT_LT(furthest(whole, e), largest[i] * 4);
        EXPECT_LT(furthest(elip1(upright, 30, 390), upright), largest[i] * 4);
        for (const double end : {50.0, 100.0, 190.0, 280.0, 389.0}) {
            const Chain part = elip1(e, 30, end);
            expectTangentJoints(part, false, 1e-12);
            EXPECT_LT(distance(part.at(0, part.start(0)), e.at(30)), largest[i] * 4);
            EXPECT_LT(distance(part.last(), e.at(end)), largest[i] * 4);
            EXPECT_LT(furthest(part, e), largest[i] * 4);
        }
    }
}

TEST(FourCentreDegrees, knowsCirclesAndRefusesTheRest) {
    const Chain circle = elip1({kCenter, 8, 8 + 0.5e-6, 50}, 300, 30);
    ASSERT_EQ(circle.size(), 1U);
    EXPECT_NEAR(circle.start(0), -10, 1e-9) << "normalised, and turned by the rotation";
    EXPECT_NEAR(circle.end(0), 80, 1e-9);
    EXPECT_EQ(circle.radii[0], 4 + 0.125e-6);
    EXPECT_EQ(elip1({kCenter, 8, 8 + 2e-6, 50}, 0, 360).size(), 4U);
    for (const Ellipse &e : {Ellipse{kCenter, 1e-6, 2, 0}, Ellipse{kCenter, 2, -2, 0},
                             Ellipse{kCenter, kInfinity, 2, 0}, Ellipse{kCenter, 2, 1, kNaN}}) {
        const Chain refused = elip1(e, 0, 90);
        EXPECT_EQ(refused.code, -1);
        EXPECT_EQ(refused.radii[0], kUntouched);
        EXPECT_EQ(refused.centers[0], kUntouchedPoint);
    }
}

TEST(ToleranceChain, staysWithinItForAnyShapeAndSpan) {
    Random random(57);
    for (int i = 0; i < 400; ++i) {
        const double size = random.logUniform(1, 1e3), ratio = random.logUniform(1, 100);
        const bool isUpright = i % 2 == 0;
        const Ellipse e = {random.point(50), isUpright ? size / ratio : size,
                           isUpright ? size : size / ratio, random.uniform(-360, 360)};
        const double tol = size * random.logUniform(1e-6, 1e-1), start = random.angleDeg();
        const double span = i % 5 == 0 ? 360.0 : random.logUniform(1e-3, 360);
        const Chain chain = elip2(e, start, start + span, tol);
        ASSERT_EQ(chain.code, 0);
        // Roundings of the largest radius, which both ends of an arc and its centre share.
        const double rounding = 32 * kEpsilon * (size * ratio + 100);
        expectTangentJoints(chain, span == 360.0, rounding);
        EXPECT_LT(furthest(chain, e), std::min(tol, size / ratio) + rounding)
            << e.a << " x " << e.b << " from " << start << " by " << span << " within " << tol;
        if (span == 360.0) continue;
        EXPECT_TRUE(near(chain.at(0, chain.start(0)), e.at(start), rounding));
        EXPECT_TRUE(near(chain.last(), e.at(start + span), rounding));
    }
}

TEST(ToleranceChain, hasFewArcs) {
    struct {
        const char *about;
        double a, b, start, end, tol;
        std::size_t count;
    } const cases[] = {
        // The least distance of a chain through the ends of the axes with so many arcs, found by
        // making all its extremes equal: 0.9754 % of the half axis for 4 of 1 to 2, 0.1852 %
        // for 8, 0.0641 % for 12; a fifth arc continues the first one up to the start.
        {"four arcs, the first in two parts", 20, 10, 0, 360, 0.0976, 5},
        {"not quite four", 20, 10, 0, 360, 0.0974, 9},
        {"eight", 20, 10, 0, 360, 0.01853, 9},
        {"not quite eight", 20, 10, 0, 360, 0.01851, 13},
        {"twelve", 20, 10, 90, 90, 0.00642, 13},
        {"1 to 100: four", 20, 0.2, 0, 360, 0.0125, 5},
        {"a quarter of eight", 20, 10, 0, 90, 0.0186, 3},
        {"half of eight", 20, 10, 0, 180, 0.0186, 5},
        {"over the end of an axis with one", 20, 10, -15, 10, 0.01, 1},
        {"and with two, the first circle being that of the shorter side", 20, 10, -20, 10, 0.01, 2},
        {"a circle", 20, 20, 30, 200, 1e-9, 1},
        {"whole and nearly a circle", 20, 20 - 1e-3, 0, 360, 1e-3, 1},
        {"a wide tolerance is half the short axis at most", 20, 10, 0, 360, 1e9, 5},
    };
    for (const auto &c : cases) {
        const Chain chain = elip2({kCenter, c.a, c.b, 40}, c.start, c.end, c.tol);
        EXPECT_EQ(chain.code, 0) << c.about;
        EXPECT_EQ(chain.size(), c.count) << c.about;
    }
    const Ellipse e = {kCenter, 20, 10, 40};
    const Chain turn = elip2(e, 100, 460, 0.01);
    EXPECT_TRUE(near(turn.at(0, turn.start(0)), e.at(90), 1e-13)) << "begins at the axis before";
    EXPECT_TRUE(near(turn.last(), e.at(90), 1e-13));
}

TEST(ToleranceChain, tellsWhyItFails) {
    const double turn[] = {0, 360};
    DTPOINT centers[4];
    double radii[4] = {kUntouched}, angles[8];
    const auto code = [&](double a, double b, double tol, uint16_t &count) {
        return ca_elip2(&kCenter, a, b, 0, turn, tol, centers, radii, angles, &count);
    };
    uint16_t count = 4;
    EXPECT_EQ(code(20, 10, 0.1, count), -2) << "five needed";
    EXPECT_EQ(count, 5);
    for (const double tol : {0.0, -1.0, kNaN}) {
        EXPECT_EQ(code(20, 10, tol, count = 4), -1) << tol;
        EXPECT_EQ(count, 0);
    }
    EXPECT_EQ(code(20, 1e-6, 0.1, count = 4), -1);
    EXPECT_EQ(code(kNaN, 10, 0.1, count = 4), -1);
    EXPECT_EQ(code(20, 10, 1e-300, count = 4), -3);
    EXPECT_EQ(count, 0);
    EXPECT_EQ(code(1e200, 1e-2, 0.1, count = 4), -3) << "radii beyond all digits";
    EXPECT_EQ(radii[0], kUntouched);
    EXPECT_EQ(code(20, 10, 2e-9, count = 0), -2) << "fine, and still counted";
    EXPECT_GT(count, 1900);
    EXPECT_EQ(code(20, 10, 1.5e-9, count = 0), -3) << "more than 512 in a quadrant";
}
