// What is offered near a point, and the arcs that stand in for ellipses.

#include <algorithm>
#include <cmath>

#include <gtest/gtest.h>

#include "program.h"

namespace {

using nlohmann::json;
using program::dxf;
using program::isAt;
using program::Scratch;

constexpr double kPi = 3.141592653589793;

// A level line, a circle that it crosses at (9, 0) and (11, 0), half an ellipse above the x axis.
const char *const kDrawing = "0 LINE|10 0|20 0|11 20|21 0|0 CIRCLE|10 10|20 0|40 1"
                             "|0 ELLIPSE|10 40|20 0|11 5|21 0|40 0.6|41 0|42 3.141592653589793";

json candidates(const Scratch &scratch, const std::string &options) {
    return scratch.told("snap " + scratch.write("a.dxf", dxf(kDrawing)) + options)["candidates"];
}

std::size_t countOf(const json &list, const char *kind, double x, double y, int entity,
                    double within = 1e-9) {
    const auto isWanted = [&](const json &candidate) {
        return candidate["kind"] == kind && candidate["entity"]["number"] == entity &&
               isAt(candidate, x, y, within);
    };
    return static_cast<std::size_t>(std::count_if(list.begin(), list.end(), isWanted));
}

TEST(Snap, OffersWhatIsNear) {
    const Scratch scratch("near");
    const json near = candidates(scratch, " --at 10,0.1 -r 1.2");
    EXPECT_EQ(countOf(near, "nearest", 10, 0, 1), 1U);
    EXPECT_EQ(countOf(near, "nearest", 10, 1, 2), 1U);
    EXPECT_EQ(countOf(near, "middle", 10, 0, 1), 1U);
    EXPECT_EQ(countOf(near, "centre", 10, 0, 2), 1U);
    EXPECT_EQ(countOf(near, "quadrant", 11, 0, 2), 1U);
    EXPECT_EQ(countOf(near, "quadrant", 10, -1, 2), 1U);
    EXPECT_EQ(countOf(near, "intersection", 9, 0, 1), 1U);
    EXPECT_EQ(countOf(near, "intersection", 11, 0, 1), 1U);
    EXPECT_EQ(countOf(near, "end", 0, 0, 1), 0U) << "too far away";
    const auto isNearer = [](const json &a, const json &b) {
        return a["distance"] < b["distance"];
    };
    EXPECT_TRUE(std::is_sorted(near.begin(), near.end(), isNearer));
}

TEST(Snap, ShowsEachKindWithAMark) {
    const Scratch scratch("marks");
    const std::string svg = scratch.file("a.svg");
    const std::string file = scratch.write("a.dxf", dxf(kDrawing));
    ASSERT_EQ(scratch.draft("snap " + file + " --at 10,0.1 -r 1.2 -o " + svg).exitCode, 0);
    const std::string picture = program::contentOf(svg);
    for (const char *kind : {"where one points", "nearest", "middle", "centre", "quadrant"})
        EXPECT_NE(picture.find(std::string(kind) + "</text>"), std::string::npos) << kind;
    EXPECT_EQ(picture.find("ellipse #3"), std::string::npos) << "it lies far off";
}

TEST(Snap, DrawsPerpendicularsAndTangentsFromASecondPoint) {
    const Scratch scratch("second");
    const json circle = candidates(scratch, " --at 10,0 -r 1.5 --from 10,2");
    EXPECT_EQ(countOf(circle, "perpendicular", 10, 0, 1), 1U);
    EXPECT_EQ(countOf(circle, "perpendicular", 10, 1, 2), 1U);
    EXPECT_EQ(countOf(circle, "perpendicular", 10, -1, 2), 1U);
    EXPECT_EQ(countOf(circle, "tangent", 10 - std::sqrt(0.75), 0.5, 2), 1U);
    // Half axes 5 and 3: from (40, 9) the contacts are on the line y = 1, at 5 sqrt(8) / 3.
    const json ellipse = candidates(scratch, " --at 40,0 -r 9 --from 40,9");
    const double reach = 5.0 * std::sqrt(8.0) / 3.0;
    EXPECT_EQ(countOf(ellipse, "tangent", 40 + reach, 1, 3), 1U);
    EXPECT_EQ(countOf(ellipse, "tangent", 40 - reach, 1, 3), 1U);
    EXPECT_EQ(countOf(ellipse, "perpendicular", 40, 3, 3), 1U);
    EXPECT_EQ(countOf(ellipse, "perpendicular", 40, -3, 3), 0U) << "not on the arc";
}

TEST(Snap, KnowsTheEndsAndTheMiddleOfAnEllipticArc) {
    const Scratch scratch("elliptic");
    const json near = candidates(scratch, " --at 40,0 -r 6");
    EXPECT_EQ(countOf(near, "end", 45, 0, 3), 1U);
    EXPECT_EQ(countOf(near, "end", 35, 0, 3), 1U);
    EXPECT_EQ(countOf(near, "centre", 40, 0, 3), 1U);
    EXPECT_EQ(countOf(near, "quadrant", 40, 3, 3), 1U);
    EXPECT_EQ(countOf(near, "quadrant", 40, -3, 3), 0U);
    // Divided to 0.001 degrees of the parameter.
    EXPECT_EQ(countOf(near, "middle", 40, 3, 3, 5.0 * 0.001 * kPi / 180.0), 1U);
}

TEST(Arcs, StandInForEveryEllipse) {
    const Scratch scratch("arcs");
    const std::string file = scratch.write(
        "a.dxf", dxf(std::string(kDrawing) + "|0 ELLIPSE|8 pipes|10 0|20 50|11 0|21 20|40 0.2|41 "
                                             "0|42 6.283185307179586"));
    const std::string out = scratch.file("arcs.dxf");
    const auto outcome = scratch.draft("arcs " + file + " --tol 0.001 -o " + out);
    ASSERT_EQ(outcome.exitCode, 0) << outcome.err;
    const json before = scratch.told("measure " + file), after = scratch.told("measure " + out);
    std::size_t onPipes = 0;
    double length = 0.0;
    for (const json &entity : after["measures"]) {
        const std::string kind = entity["kind"];
        EXPECT_TRUE(kind == "line" || kind == "circle" || kind == "arc") << kind;
        if (entity["layer"] != "pipes") continue;
        ++onPipes;
        length += entity["length"].get<double>();
    }
    EXPECT_GT(onPipes, 4U);
    EXPECT_NEAR(length, before["measures"][3]["length"].get<double>(), 0.01);
    for (std::size_t i = 0; i < 4; ++i) {
        EXPECT_NEAR(after["in_all"]["extents"][i].get<double>(),
                    before["in_all"]["extents"][i].get<double>(), 1e-9);
    }
    // Each arc of the closed chain is joined to the next one.
    std::size_t joints = 0;
    const json crossings = scratch.told("intersect " + out)["crossings"];
    for (const json &point : crossings)
        if (point["kind"] == "joint" && point["first"]["layer"] == "pipes") ++joints;
    EXPECT_EQ(joints, onPipes);
    EXPECT_EQ(scratch.draft("arcs " + file + " --tol 1e-30 -o " + scratch.file("b.dxf")).exitCode,
              1);
    EXPECT_FALSE(program::fs::exists(scratch.file("b.dxf")));
}

} // namespace
