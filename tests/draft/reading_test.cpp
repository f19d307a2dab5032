// What the program takes from a file, what it leaves out and says so, and what it refuses.

#include <gtest/gtest.h>

#include "program.h"

namespace {

using program::dxf;
using program::isAt;
using program::Scratch;

const char *const kCross = "0 LINE|8 walls|10 0|20 0|11 4|21 4|0 LINE|8 walls|10 0|20 4|11 4|21 0";

TEST(Reading, PlacesBlocksWithinBlocks) {
    // A unit tick along x at (1, 0), scaled by 2, mirrored in x and turned by 90 degrees.
    const Scratch scratch("blocks");
    const std::string blocks =
        "0 BLOCK|2 Tick|10 1|20 0|0 LINE|8 0|10 2|20 0|11 3|21 0|0 ENDBLK|"
        "0 BLOCK|2 Outer|10 0|20 0|0 INSERT|8 0|2 TICK|10 0|20 0|41 -2|42 2|0 ENDBLK";
    // The tick becomes (-2, 0) to (-4, 0) in Outer, then (10, -2) to (10, -4) in the drawing.
    const std::string file = scratch.write("a.dxf", dxf("0 INSERT|8 steel|2 outer|10 10|20 0|50 90|"
                                                        "0 LINE|8 walls|10 9|20 -2.5|11 11|21 -2.5",
                                                        blocks));
    const auto outcome = scratch.draft("intersect --json " + file);
    ASSERT_EQ(outcome.err, "");
    const auto crossings = outcome.json()["crossings"];
    ASSERT_EQ(crossings.size(), 1U);
    EXPECT_TRUE(isAt(crossings[0], 10.0, -2.5)) << crossings;
    EXPECT_EQ(crossings[0]["first"]["layer"], "steel");
}

TEST(Reading, GridOfABlock) {
    const Scratch scratch("grid");
    const std::string file = scratch.write(
        "a.dxf", dxf("0 INSERT|8 0|2 T|10 0|20 0|70 3|71 2|44 10|45 20",
                     "0 BLOCK|2 T|10 0|20 0|0 LINE|8 0|10 0|20 0|11 1|21 0|0 ENDBLK"));
    EXPECT_EQ(scratch.told("intersect " + file)["entities"], 6);
}

TEST(Reading, CountsWhatItLeavesOut) {
    const Scratch scratch("left-out");
    const std::string file = scratch.write(
        "a.dxf", dxf(std::string(kCross) + "|0 MTEXT|8 0|10 0|20 0|1 hello|0 HELIX|8 0|0 HELIX|8 0"
                                           "|0 LINE|8 0|67 1|10 0|20 0|11 1|21 1"
                                           "|0 CIRCLE|8 0|10 0|20 0|40 1|210 1|220 0|230 0"
                                           "|0 INSERT|8 0|2 nowhere|10 0|20 0"
                                           "|0 LINE|8 0|10 5|20 5|11 5|21 5"));
    const auto outcome = scratch.draft("intersect --json " + file);
    ASSERT_EQ(outcome.exitCode, 0) << outcome.err;
    const nlohmann::json want = {{"MTEXT", 1},
                                 {"HELIX", 2},
                                 {"LINE in paper space", 1},
                                 {"CIRCLE in a tilted plane", 1},
                                 {"INSERT of a block that the file lacks", 1},
                                 {"LINE of no length", 1}};
    EXPECT_EQ(outcome.json()["left_out"], want);
    EXPECT_EQ(outcome.json()["entities"], 2);
    EXPECT_NE(outcome.err.find("2 HELIX"), std::string::npos) << outcome.err;
}

TEST(Reading, ABlockThatHoldsItselfEnds) {
    const Scratch scratch("endless");
    const std::string file =
        scratch.write("a.dxf", dxf("0 INSERT|8 0|2 A|10 0|20 0",
                                   "0 BLOCK|2 A|10 0|20 0|0 LINE|8 0|10 0|20 0|11 1|21 0"
                                   "|0 INSERT|8 0|2 A|10 0|20 1|0 ENDBLK"));
    EXPECT_EQ(scratch.told("intersect " + file)["left_out"]["INSERT nested more than 32 deep"], 1);
    const std::string grids = scratch.write(
        "b.dxf",
        dxf("0 INSERT|8 0|2 A|10 0|20 0",
            "0 BLOCK|2 A|10 0|20 0|0 INSERT|8 0|2 A|10 0|20 1|70 30000|71 30000|0 ENDBLK"));
    EXPECT_EQ(scratch.draft("intersect " + grids).exitCode, 1);
}

TEST(Reading, RefusesWhatItCannotTrust) {
    const Scratch scratch("refused");
    const std::string good = dxf(kCross);
    struct Case {
        const char *about;
        std::string content;
        const char *message; // a part of it
    };
    const Case cases[] = {
        {"empty", "", "the file is empty"},
        {"binary DXF", "AutoCAD Binary DXF\r\n\x1a" + std::string(9, '\0'), "binary DXF"},
        {"other drawing format", "AC1015 and more", "DWG"},
        {"UTF-16", "\xFF\xFE" + std::string("0\0", 2), "UTF-16"},
        {"bytes", std::string("\x7fLF\0\0\0", 6), "not a text file"},
        {"prose", "Dear reader,\nthis is a letter.\n", "is no DXF group code"},
        {"no section first", "0\nLINE\n0\nEOF\n", "starts with a section"},
        {"cut between groups", good.substr(0, good.size() - 6), "breaks off"},
        {"cut within a number", good.substr(0, good.size() / 2), "line "},
        {"not a number", dxf("0 LINE|10 nan|20 0|11 1|21 1"), "line 8: 'nan' is not a number"},
        {"infinite", dxf("0 CIRCLE|10 0|20 0|40 inf"), "'inf' is not a number"},
        {"beyond doubles", dxf("0 CIRCLE|10 0|20 1e999|40 1"), "'1e999' is not a number"},
        {"beyond drawings", dxf("0 CIRCLE|10 0|20 -1e13|40 1"), "too large"},
        {"nothing to draw", dxf("0 POINT|10 0|20 0"), "left out: 1 POINT"},
        {"no entities", "0\nSECTION\n2\nHEADER\n0\nENDSEC\n0\nEOF\n", "no section of entities"},
    };
    for (const Case &c : cases) {
        const std::string file = scratch.write("bad.dxf", c.content);
        const auto outcome = scratch.draft("plot " + file + " -o " + scratch.file("out.svg"));
        EXPECT_EQ(outcome.exitCode, 1) << c.about;
        EXPECT_NE(outcome.err.find(c.message), std::string::npos) << c.about << ": " << outcome.err;
        EXPECT_EQ(std::count(outcome.err.begin(), outcome.err.end(), '\n'), 1) << c.about;
        EXPECT_EQ(scratch.count(), 1U) << c.about;
    }
}

TEST(Reading, RefusesPathsThatAreNoFiles) {
    const Scratch scratch("paths");
    const auto missing = scratch.draft("intersect " + scratch.file("missing.dxf"));
    EXPECT_EQ(missing.exitCode, 1);
    EXPECT_NE(missing.err.find("missing.dxf: No such file"), std::string::npos) << missing.err;
    const auto directory = scratch.draft("intersect " + scratch.file(""));
    EXPECT_EQ(directory.exitCode, 1);
    EXPECT_NE(directory.err.find("is a directory"), std::string::npos) << directory.err;
}

TEST(Reading, TakesForeignLineEndsAndComments) {
    const Scratch scratch("line-ends");
    std::string text = "999\na comment\n" + dxf(kCross);
    for (std::size_t i = 0; (i = text.find('\n', i)) != std::string::npos; i += 2)
        text.insert(i, 1, '\r');
    EXPECT_EQ(scratch.told("intersect " + scratch.write("a.dxf", text))["crossings"].size(), 1U);
}

TEST(Reading, SurvivesWhatWouldMisleadTheParser) {
    // A bulge before the first vertex, a wrong number of vertices, a name of 5000 letters.
    const Scratch scratch("misleading");
    const std::string file = scratch.write(
        "a.dxf",
        dxf("0 LWPOLYLINE|8 " + std::string(5000, 'x') +
            "|90 1000000000|42 1|10 0|20 0|10 4|20 0|10 4|20 4|0 LINE|8 0|10 1|20 -1|11 1|21 1"));
    const auto told = scratch.told("intersect " + file);
    EXPECT_EQ(told["entities"], 3);
    EXPECT_EQ(told["crossings"].size(), 2U);
}

} // namespace
