// Tangents whose points of contact can be told by hand.

#include <cmath>

#include <gtest/gtest.h>

#include "program.h"

namespace {

using nlohmann::json;
using program::dxf;
using program::Scratch;

const char *const kCircles = "0 CIRCLE|10 0|20 0|40 1|0 CIRCLE|10 4|20 0|40 1"
                             "|0 ARC|10 0|20 10|40 3|50 180|51 360|0 LINE|10 0|20 0|11 1|21 1";

bool touches(const json &end, double x, double y) {
    return std::hypot(end["x"].get<double>() - x, end["y"].get<double>() - y) < 1e-12;
}

TEST(Tangents, CommonToTwoCircles) {
    const Scratch scratch("common");
    const auto outcome =
        scratch.draft("tangents -e 1,2 --json " + scratch.write("a.dxf", dxf(kCircles)));
    ASSERT_EQ(outcome.exitCode, 0) << outcome.err;
    const json tangents = outcome.json()["tangents"];
    ASSERT_EQ(tangents.size(), 4U);
    // Below, above, and two that cross between the circles.
    const double h = std::sqrt(0.75);
    EXPECT_TRUE(touches(tangents[0]["from"], 0, -1) && touches(tangents[0]["to"], 4, -1));
    EXPECT_TRUE(touches(tangents[1]["from"], 0, 1) && touches(tangents[1]["to"], 4, 1));
    EXPECT_TRUE(touches(tangents[2]["from"], 0.5, -h) && touches(tangents[2]["to"], 3.5, h));
    EXPECT_TRUE(touches(tangents[3]["from"], 0.5, h) && touches(tangents[3]["to"], 3.5, -h));
    EXPECT_EQ(tangents[0]["from"]["number"], 1);
    EXPECT_EQ(tangents[0]["to"]["number"], 2);
}

TEST(Tangents, FromAPoint) {
    const Scratch scratch("from");
    const std::string file = scratch.write("a.dxf", dxf(kCircles));
    const auto outcome = scratch.draft("tangents --from -2,0 -e 1 --json " + file);
    ASSERT_EQ(outcome.exitCode, 0) << outcome.err;
    const json tangents = outcome.json()["tangents"];
    ASSERT_EQ(tangents.size(), 2U);
    for (const json &tangent : tangents) {
        EXPECT_TRUE(touches(tangent["from"], -2, 0));
        EXPECT_NEAR(tangent["to"]["x"].get<double>(), -0.5, 1e-12);
        EXPECT_NEAR(std::fabs(tangent["to"]["y"].get<double>()), std::sqrt(0.75), 1e-12);
    }
    EXPECT_EQ(scratch.draft("tangents --from 0,0.5 -e 1 --json " + file).json()["tangents"].size(),
              0U);
}

TEST(Tangents, AnArcIsTouchedWithinItsRangeOnly) {
    const Scratch scratch("arc");
    const std::string file = scratch.write("a.dxf", dxf(kCircles));
    // From the right of the lower half circle: one contact is on its missing upper half.
    const json tangents =
        scratch.draft("tangents --from 5,10 -e 3 --json " + file).json()["tangents"];
    ASSERT_EQ(tangents.size(), 1U);
    EXPECT_TRUE(touches(tangents[0]["to"], 1.8, 7.6)) << tangents;
}

TEST(Tangents, TouchEllipses) {
    const Scratch scratch("ellipses");
    // Half axes 5 and 3, and a circle as high as it.
    const std::string file =
        scratch.write("a.dxf", dxf("0 ELLIPSE|10 0|20 0|11 5|21 0|40 0.6|41 0|42 6.283185307179586"
                                   "|0 CIRCLE|10 20|20 0|40 3"));
    const json from = scratch.draft("tangents --from 0,9 -e 1 --json " + file).json()["tangents"];
    ASSERT_EQ(from.size(), 2U);
    for (const json &tangent : from) {
        EXPECT_NEAR(tangent["to"]["y"].get<double>(), 1.0, 1e-12);
        EXPECT_NEAR(std::fabs(tangent["to"]["x"].get<double>()), 5.0 * std::sqrt(8.0) / 3.0, 1e-12);
    }
    const json common = scratch.draft("tangents -e 1,2 --json " + file).json()["tangents"];
    ASSERT_EQ(common.size(), 4U);
    EXPECT_TRUE(touches(common[0]["from"], 0, -3) && touches(common[0]["to"], 20, -3)) << common;
    EXPECT_TRUE(touches(common[1]["from"], 0, 3) && touches(common[1]["to"], 20, 3)) << common;
}

TEST(Tangents, TellsWhatItCannotTouch) {
    const Scratch scratch("no-curve");
    const std::string file = scratch.write("a.dxf", dxf(kCircles));
    EXPECT_EQ(scratch.draft("tangents -e 1,4 " + file).exitCode, 1);
    EXPECT_EQ(scratch.draft("tangents " + file).exitCode, 2);
    EXPECT_EQ(scratch.draft("tangents --from 1,nonsense " + file).exitCode, 2);
}

} // namespace
