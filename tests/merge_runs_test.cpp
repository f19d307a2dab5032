// Runs of points merged in the caller's array.

#include <vector>

#include "support.h"

using namespace support;

namespace {

std::vector<DTPOINT> merged(std::vector<DTPOINT> points, double tol) {
    DTPOINT *array = points.data();
    const int32_t count = ca_AutoUnionNrb(static_cast<int32_t>(points.size()), &array, tol);
    points.resize(static_cast<std::size_t>(count));
    return points;
}

/// A polyline of unit steps in the given directions.
std::vector<DTPOINT> steps(const std::vector<double> &degrees) {
    std::vector<DTPOINT> points = {{4, -1}};
    for (const double deg : degrees) {
        points.push_back(polar(points.back(), 1, deg));
    }
    return points;
}

double directionOf(DTPOINT from, DTPOINT to) {
    return std::atan2(to.y - from.y, to.x - from.x) * 57.29577951308232;
}

/// One removal after the other, each shifting all that follows: the slow way.
std::vector<DTPOINT> mergedByShifting(std::vector<DTPOINT> p, double tol) {
    for (std::size_t i = 1; i < p.size() && p.size() >= 3; ++i) {
        const double reference = directionOf(p[i - 1], p[i]);
        while (i + 1 < p.size() &&
               std::fabs(reference - directionOf(p[i], p[i + 1])) - ca_geterrdist() <= tol) {
            // The next segment starts at the point that moves up; its end is the one behind.
            p.erase(p.begin() + static_cast<std::ptrdiff_t>(i));
        }
    }
    return p;
}

} // namespace

TEST(MergeRuns, comparesWithTheFirstSegmentOfTheRun) {
    struct {
        const char *about;
        std::vector<double> degrees;
        double tol;
        std::vector<std::size_t> kept;
    } const cases[] = {
        {"a nearly straight run", {0, 0.05, -0.05, 90}, 1, {0, 3, 4}},
        {"a slow bend is left where it exceeds", {0, 0.6, 1.2, 1.8, 2.4}, 1, {0, 2, 4, 5}},
        {"two runs", {0, 0, 50, 50, 50}, 1, {0, 2, 5}},
        {"179 and -179 do not merge", {179, -179}, 5, {0, 1, 2}},
        {"0.5e-6 above the tolerance merges", {10, 11 + 0.5e-6}, 1, {0, 2}},
        {"2e-6 above does not", {10, 11 + 2e-6}, 1, {0, 1, 2}},
    };
    for (const auto &c : cases) {
        const std::vector<DTPOINT> points = steps(c.degrees);
        std::vector<DTPOINT> want;
        for (const std::size_t i : c.kept)
            want.push_back(points[i]);
        EXPECT_EQ(merged(points, c.tol), want) << c.about;
    }
    const ToleranceGuard wide(40);
    EXPECT_EQ(merged({{0, 0}, {1, 0}, {2, 1}}, 5).size(), 2U) << "45 less errdist is the tolerance";
}

TEST(MergeRuns, checksTheArrayAndTheToleranceBeforeTheCount) {
    DTPOINT point = kUntouchedPoint;
    DTPOINT *array = &point, *null = nullptr;
    EXPECT_EQ(ca_AutoUnionNrb(5, &null, 1), -1);
    EXPECT_EQ(ca_AutoUnionNrb(1, &array, 0.09), -1);
    EXPECT_EQ(ca_AutoUnionNrb(1, &array, 5.1), -1);
    for (const int32_t n : {INT32_MIN, 0, 2}) {
        for (const double tol : {0.1, 5.0})
            EXPECT_EQ(ca_AutoUnionNrb(n, &array, tol), n);
    }
    EXPECT_EQ(point, kUntouchedPoint);
}

TEST(MergeRuns, answersAsOneRemovalAfterTheOther) {
    Random random(34);
    for (int i = 0; i < 500; ++i) {
        std::vector<double> degrees = {random.uniform(-180, 180)};
        while (random.uniform(0, 40) > 1) {
            const double bend = random.uniform(0, 1) < 0.2 ? 90 : 1.5;
            degrees.push_back(degrees.back() + bend * random.uniform(-1, 1));
        }
        const double tol = random.uniform(0.1, 5);
        EXPECT_EQ(merged(steps(degrees), tol), mergedByShifting(steps(degrees), tol)) << i;
    }
}
