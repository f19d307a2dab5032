// The arc through three points or over a chord, and the angles by which it is stored.

#include "support.h"

using namespace support;

namespace {

struct Arc {
    DTPOINT center = kUntouchedPoint;
    double r = kUntouched;
    double angles[2] = {kUntouched, kUntouched};
};

int32_t arcThrough(DTPOINT p1, DTPOINT p2, DTPOINT p3, Arc &arc) {
    return ca_arc3p(&p1, &p2, &p3, &arc.center, &arc.r, arc.angles);
}

void expectArc(const Arc &got, const Arc &want, double within, const std::string &about) {
    EXPECT_TRUE(near(got.center, want.center, within)) << about;
    EXPECT_NEAR(got.r, want.r, within) << about;
    // Degrees, of a circle at least one unit large.
    EXPECT_NEAR(got.angles[0], want.angles[0], 360 * within) << about;
    EXPECT_NEAR(got.angles[1], want.angles[1], 360 * within) << about;
}

constexpr Arc kUntouchedArc;
constexpr Arc kNoArc = {kUntouchedPoint, kUntouched, {0, 0}};
constexpr Arc kUpper = {{4, 4}, 1, {0, 180}}, kLower = {{4, 4}, 1, {180, 360}};

} // namespace

TEST(ArcThroughPoints, runsAnticlockwiseAndKnowsNoArc) {
    const double e = 0.9e-4; // below the sine of a straight line
    const double up = std::atan2(3, 4) / kRadPerDeg;
    struct {
        const char *about;
        DTPOINT p1, p2, p3;
        int32_t status;
        Arc want;
    } const cases[] = {
        {"anticlockwise, small", {3.5, 3}, {3, 3.5}, {2.5, 3}, 0, {{3, 3}, 0.5, {0, 180}}},
        {"clockwise runs back", {1, 3}, {3, 5}, {5, 3}, 0, {{3, 3}, 2, {0, 180}}},
        {"across 0 keeps the start above", {3, 1}, {5, 3}, {3, 5}, 0, {{3, 3}, 2, {270, 90}}},
        {"slanted", {6, 7}, {0, 7}, {-1, 0}, 0, {{3, 3}, 5, {90 - up, 180 + up}}},
        {"more than half", {-1, 0}, {6, 7}, {0, 7}, 0, {{3, 3}, 5, {180 + up, 90 + up}}},
        {"straight", {1, 1}, {2, 2}, {4, 4}, 1, kNoArc},
        {"p1 p2 0.5e-6 apart", {1, 1}, {1, 1 + 0.5e-6}, {4, 5}, 1, kNoArc},
        {"p2 p3 0.5e-6 apart", {4, 5}, {1, 1}, {1, 1 + 0.5e-6}, 1, kNoArc},
        {"p1 p3 0.5e-6 apart", {1, 1}, {1 + 2e-6, 1}, {1, 1 + 0.5e-6}, 1, kNoArc},
        {"sines of 0.9e-4 at most", {1, 1}, {4, 1}, {7, 1 + 3 * e}, 1, kNoArc},
    };
    for (const auto &c : cases) {
        Arc got;
        EXPECT_EQ(arcThrough(c.p1, c.p2, c.p3, got), c.status) << c.about;
        expectArc(got, c.want, 16 * kEpsilon, c.about);
    }
    Arc got;
    EXPECT_EQ(arcThrough({1, 1}, {4, 1}, {7, 1 + 3.3e-4}, got), 0) << "one sine of 1.1e-4";
    EXPECT_EQ(arcThrough({1, 1}, {4, 1}, {1, 1 + 3.3e-4}, got), 0) << "two large sines";
    EXPECT_EQ(arcThrough({1, 1}, {7, 1}, {4, 1 + 2.4e-4}, got), 0) << "that at p3 alone";
    EXPECT_EQ(arcThrough({1, 1}, {4, 1}, {7, 1 + 9e-4}, got), 0) << "that at p1, hardly";
}

TEST(ArcOverChord, choosesTheSideAndRejectsWhatIsTooSmall) {
    const double up = std::atan2(0.75, 1.0) / kRadPerDeg; // height 0.5 over a chord of 2
    const struct {
        const char *about;
        Arc want;
        int32_t status, dir;
        double ratio;
        DTPOINT p, q;
    } cases[] = {
        {"left", kUpper, 0, 0, 0.5, {3, 4}, {5, 4}},
        {"right", kLower, 0, 1, 0.5, {3, 4}, {5, 4}},
        {"any other direction is right", kLower, 0, -7, 0.5, {3, 4}, {5, 4}},
        {"a negative ratio is the other side", kLower, 0, 0, -0.5, {3, 4}, {5, 4}},
        {"flat", {{4, 3.25}, 1.25, {up, 180 - up}}, 0, 0, 0.25, {3, 4}, {5, 4}},
        {"across 0", {{4, 2}, 1, {-90, 90}}, 0, 0, 0.5, {4, 3}, {4, 1}},
        {"ratio 0.9e-6", kUntouchedArc, 1, 0, 0.9e-6, {3, 4}, {5, 4}},
        {"ratio 2e-6 is straight", kNoArc, 1, 0, 2e-6, {3, 4}, {5, 4}},
        {"middle rounded to p", kUntouchedArc, 1, 0, 0.05, {1e12, 0}, {1e12 + 0.00305, 0}},
        {"middle rounded to q", kUntouchedArc, 1, 0, 0.05, {1e12 + 0.00305, 0}, {1e12, 0}},
        {"chord 0.002", kUntouchedArc, 1, 0, 0.5, {3, 4}, {3.002, 4}},
        {"chord 0.004", {{0.002, 0}, 0.002, {0, 180}}, 0, 0, 0.5, {0, 0}, {0.004, 0}},
    };
    for (const auto &c : cases) {
        Arc got;
        const int32_t status = ca_arc2pratio(c.dir, c.ratio, c.p.x, c.p.y, c.q.x, c.q.y,
                                             &got.center, &got.r, got.angles);
        EXPECT_EQ(status, c.status) << c.about;
        expectArc(got, c.want, 16 * kEpsilon, c.about);
    }
}

TEST(StoredAngles, keep360AndFindWholeTurns) {
    struct {
        double start, end, wantStart, wantEnd;
    } const cases[] = {
        {-90, 90, -90, 90},
        {270, 90, -90, 90},
        {10, 370, 0, 360},
        {700, 10, 0, 360}, // the raw difference is asked first
        {400, 410, 40, 50},
        {-400, -390, 320, 330},
        {90, 360, 90, 360},
        {90, 720, 0, 360},
        {360, 360, 360, 360}, // 360 stays, and equal angles are no circle
        {30, 30, 30, 30},
        {0, 359.999999, 0, 359.999999},
        {0, 359.9999995, 0, 360},
        {50, 49.9999995, 0, 360}, // whole once the end is raised
        {1e300, 1e300, 360, 360},
        {-kInfinity, 3, 0, 360},
        {kInfinity, kInfinity, kNaN, kNaN},
    };
    for (const auto &c : cases) {
        double start = c.start, end = c.end;
        EXPECT_EQ(ca_arcan(&start, &end), 0);
        const bool same = std::isnan(c.wantStart) ? std::isnan(start) && std::isnan(end)
                                                  : start == c.wantStart && end == c.wantEnd;
        EXPECT_TRUE(same) << c.start << ", " << c.end << " gave " << start << ", " << end;
    }
}
