// Tangents whose points of contact can be told by hand.

#include <cmath>

#include <gtest/gtest.h>

#include "program.h"

namespace {

using nlohmann::json;
using program::dxf;
using program::isAt;
using program::Scratch;

const char *const kCircles = "0 CIRCLE|10 0|20 0|40 1|0 CIRCLE|10 4|20 0|40 1"
                             "|0 ARC|10 0|20 10|40 3|50 180|51 360|0 LINE|10 0|20 0|11 1|21 1";

TEST(Tangents, CommonToTwoCircles) {
    const Scratch scratch("common");
    const json tangents =
        scratch.told("tangents -e 1,2 " + scratch.write("a.dxf", dxf(kCircles)))["tangents"];
    ASSERT_EQ(tangents.size(), 4U);
    // Below, above, and two that cross between the circles.
    const double h = std::sqrt(0.75);
    EXPECT_TRUE(isAt(tangents[0]["from"], 0, -1) && isAt(tangents[0]["to"], 4, -1));
    EXPECT_TRUE(isAt(tangents[1]["from"], 0, 1) && isAt(tangents[1]["to"], 4, 1));
    EXPECT_TRUE(isAt(tangents[2]["from"], 0.5, -h) && isAt(tangents[2]["to"], 3.5, h));
    EXPECT_TRUE(isAt(tangents[3]["from"], 0.5, h) && isAt(tangents[3]["to"], 3.5, -h));
    EXPECT_EQ(tangents[0]["from"]["number"], 1);
    EXPECT_EQ(tangents[0]["to"]["number"], 2);
}

TEST(Tangents, FromAPoint) {
    const Scratch scratch("from");
    const std::string file = scratch.write("a.dxf", dxf(kCircles));
    const json tangents = scratch.told("tangents --from -2,0 -e 1 " + file)["tangents"];
    ASSERT_EQ(tangents.size(), 2U);
    const double h = std::sqrt(0.75);
    for (const json &tangent : tangents) {
        EXPECT_TRUE(isAt(tangent["from"], -2, 0));
        EXPECT_TRUE(isAt(tangent["to"], -0.5, h) || isAt(tangent["to"], -0.5, -h)) << tangent;
    }
    EXPECT_EQ(scratch.told("tangents --from 0,0.5 -e 1 " + file)["tangents"].size(), 0U);
}

TEST(Tangents, AnArcIsTouchedWithinItsRangeOnly) {
    const Scratch scratch("arc");
    const std::string file = scratch.write("a.dxf", dxf(kCircles));
    // From the right of the lower half circle: one contact is on its missing upper half.
    const json tangents = scratch.told("tangents --from 5,10 -e 3 " + file)["tangents"];
    ASSERT_EQ(tangents.size(), 1U);
    EXPECT_TRUE(isAt(tangents[0]["to"], 1.8, 7.6)) << tangents;
}

TEST(Tangents, TouchEllipses) {
    const Scratch scratch("ellipses");
    // Half axes 5 and 3, and a circle as high as it.
    const std::string file =
        scratch.write("a.dxf", dxf("0 ELLIPSE|10 0|20 0|11 5|21 0|40 0.6|41 0|42 6.283185307179586"
                                   "|0 CIRCLE|10 20|20 0|40 3"));
    const json from = scratch.told("tangents --from 0,9 -e 1 " + file)["tangents"];
    ASSERT_EQ(from.size(), 2U);
    const double x = 5.0 * std::sqrt(8.0) / 3.0;
    for (const json &tangent : from)
        EXPECT_TRUE(isAt(tangent["to"], x, 1) || isAt(tangent["to"], -x, 1)) << tangent;
    const json common = scratch.told("tangents -e 1,2 " + file)["tangents"];
    ASSERT_EQ(common.size(), 4U);
    EXPECT_TRUE(isAt(common[0]["from"], 0, -3) && isAt(common[0]["to"], 20, -3)) << common;
    EXPECT_TRUE(isAt(common[1]["from"], 0, 3) && isAt(common[1]["to"], 20, 3)) << common;
}

TEST(Tangents, TellsWhatItCannotTouch) {
    const Scratch scratch("no-curve");
    const std::string file = scratch.write("a.dxf", dxf(kCircles));
    EXPECT_EQ(scratch.draft("tangents -e 1,4 " + file).exitCode, 1);
    EXPECT_EQ(scratch.draft("tangents " + file).exitCode, 2);
    EXPECT_EQ(scratch.draft("tangents --from 1,nonsense " + file).exitCode, 2);
}

} // namespace
