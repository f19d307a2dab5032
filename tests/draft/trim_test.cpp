// Pieces taken out of each kind of entity, and what stays of the file.

#include <algorithm>
#include <cmath>

#include <gtest/gtest.h>

#include "program.h"

namespace {

using nlohmann::json;
using program::contentOf;
using program::dxf;
using program::Scratch;

struct Case {
    const char *about;
    std::string entities; // the first is picked
    const char *picks;
    std::vector<double> lengths; // of what is left of it, in its order
};

const char *const kUprightAt3 = "|0 LINE|10 3|20 -9|11 3|21 9";
const char *const kUprightAt7 = "|0 LINE|10 7|20 -9|11 7|21 9";

TEST(Trim, TakesThePickedPiece) {
    const double pi = 3.141592653589793, small = std::acos(0.6), deg = 5 * pi / 180;
    const double quarter = 19.376896441095 / 4; // of the ellipse
    const std::string line = "0 LINE|10 0|20 0|11 10|21 0";
    const std::string circle = "0 CIRCLE|10 0|20 0|40 5";
    const std::string axes = "|0 LINE|10 0|20 -9|11 0|21 9|0 LINE|10 -9|20 0|11 9|21 0";
    const std::string arc = "0 ARC|10 0|20 0|40 5|50 ", behind = "|210 0|220 0|230 -1" + axes;
    const std::string ellipse = "0 ELLIPSE|10 0|20 0|11 4|21 0|40 0.5|41 0|42 ";
    const Case cases[] = {
        {"start of a line", line + kUprightAt3 + kUprightAt7, " --pick 1,1 -o ", {7}},
        {"middle of a line", line + kUprightAt3 + kUprightAt7, " --pick 5,0 -o ", {3, 3}},
        {"end of a line", line + kUprightAt3 + kUprightAt7, " --pick 9,-1 -o ", {7}},
        {"two pieces", line + kUprightAt3 + kUprightAt7, " --pick 1,0 --pick 9,0 -o ", {4}},
        {"a circle, across 0", circle + kUprightAt3, " --pick 5,0 -o ", {10 * (pi - small)}},
        {"a circle, the larger piece", circle + kUprightAt3, " --pick -5,0 -o ", {10 * small}},
        {"middle of an arc", arc + "300|51 250" + axes, " --pick -4,4 -o ", {150 * deg, 70 * deg}},
        {"an arc from behind", arc + "10|51 170" + behind, " --pick -4,4 -o ", {80 * deg}},
        {"an ellipse", ellipse + "6.283185307179586" + axes, " --pick 3,1 -o ", {3 * quarter}},
        {"from behind", ellipse + "3.141592653589793" + behind, " --pick 3,-1 -o ", {quarter}},
    };
    const Scratch scratch("pieces");
    for (const Case &c : cases) {
        const std::string file = scratch.write("a.dxf", dxf(c.entities));
        const std::string out = scratch.file("out.dxf");
        const auto outcome =
            scratch.draft(std::string("trim ").append(file).append(c.picks).append(out));
        ASSERT_EQ(outcome.exitCode, 0) << c.about << outcome.err;
        const json before = scratch.told("measure " + file)["measures"];
        const json after = scratch.told("measure " + out)["measures"];
        ASSERT_EQ(after.size() - before.size() + 1, c.lengths.size()) << c.about;
        for (std::size_t i = 0; i < c.lengths.size(); ++i)
            EXPECT_NEAR(after[i]["length"].get<double>(), c.lengths[i], 1e-6) << c.about;
    }
}

TEST(Trim, PreservesWhatItDoesNotTouch) {
    const Scratch scratch("preserves");
    const std::string head =
        "  0\r\nSECTION\r\n  2\r\nHEADER\r\n  9\r\n$HANDSEED\r\n  5\r\n2B\r\n  0\r\n"
        "ENDSEC\r\n  0\r\nSECTION\r\n  2\r\nENTITIES\r\n";
    // A line that rises, with a dictionary of its own, and host data.
    const std::string owned = "102\r\n{ACAD_XDICTIONARY\r\n360\r\n1F\r\n102\r\n}\r\n";
    const std::string line =
        "  0\r\nLINE\r\n  5\r\n2A\r\n" + owned +
        "  8\r\nwalls\r\n 62\r\n     3\r\n 10\r\n0\r\n 20\r\n0\r\n 30\r\n1\r\n"
        " 11\r\n10\r\n 21\r\n0\r\n 31\r\n2\r\n1001\r\nHOST\r\n1000\r\nmine\r\n";
    const std::string rest = "  0\r\nHELIX\r\n  8\r\n\xE4\r\n  0\r\nCIRCLE\r\n 10\r\n5\r\n 20\r\n"
                             "0\r\n 40\r\n2\r\n  0\r\nENDSEC\r\n  0\r\nEOF\r\n";
    const std::string file = scratch.write("a.dxf", head + line + rest);
    const std::string out = scratch.file("b.dxf");
    ASSERT_EQ(scratch.draft("trim " + file + " --pick 5,0 -o " + out).exitCode, 0);

    const auto changed = [](std::string record, const std::string &from, const std::string &to) {
        return record.replace(record.find(from), from.size(), to);
    };
    const auto startingAt = [&](const char *x, const char *z) {
        const std::string from10 = std::string(" 10\r\n") + x + "\r\n";
        const std::string from30 = std::string(" 30\r\n") + z + "\r\n";
        return changed(changed(line, " 10\r\n0\r\n", from10), " 30\r\n1\r\n", from30);
    };
    const std::string first =
        changed(changed(line, " 11\r\n10\r\n", " 11\r\n3.0\r\n"), " 31\r\n2\r\n", " 31\r\n1.3\r\n");
    const std::string second =
        changed(changed(startingAt("7.0", "1.7"), "\r\n2A\r\n", "\r\n2B\r\n"), owned, "");
    EXPECT_EQ(contentOf(out), changed(head, "\r\n2B\r\n", "\r\n2C\r\n") + first + second + rest);

    ASSERT_EQ(scratch.draft("trim " + file + " --pick 1,0 -o " + out).exitCode, 0);
    EXPECT_EQ(contentOf(out), head + startingAt("3.0", "1.3") + rest) << "one piece, no new handle";
}

TEST(Trim, OpensACircleAsARecordThatOthersRead) {
    const Scratch scratch("opens");
    const std::string head = "0\nSECTION\n2\nENTITIES\n0\n";
    const std::string place =
        "5\nA1\n100\nAcDbEntity\n8\n0\n100\nAcDbCircle\n10\n0\n20\n0\n40\n5\n";
    const std::string rest =
        "0\nLINE\n5\nA2\n8\n0\n10\n0\n20\n-9\n11\n0\n21\n9\n0\nENDSEC\n0\nEOF\n";
    const std::string out = scratch.file("b.dxf");
    const std::string file = scratch.write("a.dxf", head + "CIRCLE\n" + place + rest);
    const std::string svg = scratch.file("b.svg");
    const auto outcome =
        scratch.draft("trim " + file + " --pick 5,0 -o " + out + " --picture " + svg);
    ASSERT_EQ(outcome.exitCode, 0) << outcome.err;
    EXPECT_EQ(contentOf(out),
              head + "ARC\n" + place + "100\nAcDbArc\n50\n90.0\n51\n270.0\n" + rest);
    EXPECT_NE(contentOf(svg).find("taken out</text>"), std::string::npos);
}

TEST(Trim, RefusesWhereThereIsNothingToTake) {
    const Scratch scratch("refuses");
    const std::string out = scratch.file("out.dxf");
    const auto expectRefusal = [&](const char *why, const std::string &entities,
                                   const std::string &blocks = "") {
        const std::string file = scratch.write("a.dxf", dxf(entities, blocks));
        const auto outcome = scratch.draft("trim " + file + " --pick 5,0 -o " + out);
        EXPECT_EQ(outcome.exitCode, 1);
        EXPECT_FALSE(program::fs::exists(out));
        EXPECT_NE(outcome.err.find(why), std::string::npos) << outcome.err;
    };
    const std::string line = "0 LINE|10 0|20 0|11 10|21 0", upright = kUprightAt3;
    expectRefusal("no piece", line);
    expectRefusal("no piece", "0 CIRCLE|10 0|20 0|40 5|0 LINE|10 0|20 0|11 9|21 0");
    expectRefusal("polyline", "0 LWPOLYLINE|10 0|20 0|10 10|20 0" + upright);
    expectRefusal("inserted block", "0 INSERT|2 A|10 0|20 0" + upright,
                  "0 BLOCK|2 A|10 0|20 0|" + line + "|0 ENDBLK");
    expectRefusal("; left out: 1 POINT", "0 POINT|10 0|20 0");
}

} // namespace
