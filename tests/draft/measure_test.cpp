// Lengths, areas, extents and divisions of shapes that can be told by hand.

#include <gtest/gtest.h>

#include "program.h"

namespace {

using nlohmann::json;
using program::dxf;
using program::isAt;
using program::Scratch;

constexpr double kPi = 3.141592653589793;

json measured(const Scratch &scratch, const std::string &entities, const std::string &blocks = "") {
    return scratch.told("measure " + scratch.write("a.dxf", dxf(entities, blocks)));
}

void expectExtents(const json &extents, double minX, double minY, double maxX, double maxY) {
    const double want[] = {minX, minY, maxX, maxY};
    for (std::size_t i = 0; i < 4; ++i)
        EXPECT_NEAR(extents[i].get<double>(), want[i], 1e-12) << extents;
}

TEST(Measure, LinesAndArcs) {
    const Scratch scratch("measure-arcs");
    const json answer = measured(scratch, "0 LINE|10 1|20 2|11 4|21 6"
                                          "|0 CIRCLE|10 10|20 0|40 2"
                                          "|0 ARC|10 0|20 20|40 2|50 300|51 30");
    const json &each = answer["measures"];
    EXPECT_DOUBLE_EQ(each[0]["length"], 5.0);
    EXPECT_FALSE(each[0].contains("area"));
    EXPECT_DOUBLE_EQ(each[1]["length"], 4.0 * kPi);
    EXPECT_DOUBLE_EQ(each[1]["area"], 4.0 * kPi);
    EXPECT_DOUBLE_EQ(each[2]["length"], kPi);
    EXPECT_FALSE(each[2].contains("area"));
    expectExtents(each[2]["extents"], 1.0, 20.0 - std::sqrt(3.0), 2.0, 21.0);
    EXPECT_DOUBLE_EQ(answer["in_all"]["length"], 5.0 + 5.0 * kPi);
    expectExtents(answer["in_all"]["extents"], 0.0 + 1.0, -2.0, 12.0, 21.0);
}

TEST(Measure, EllipsesBesideTheSamplesOfTheirArcs) {
    const Scratch scratch("measure-ellipses");
    const json each = measured(scratch, "0 ELLIPSE|10 5|20 5|11 0|21 4|40 0.5|41 0|42 6.283185"
                                        "|0 ELLIPSE|10 5|20 5|11 4|21 0|40 0.5|41 0.2|42 2.5")
                          .at("measures");
    EXPECT_EQ(each[0]["kind"], "ellipse");
    // Half axes 4 and 2: the perimeter is 16 E(3/4).
    EXPECT_NEAR(each[0]["length"].get<double>(), 19.376896441095, 1e-6);
    EXPECT_NEAR(each[0]["area"].get<double>(), 8.0 * kPi, 1e-6);
    expectExtents(each[0]["extents"], 3.0, 1.0, 7.0, 9.0);
    EXPECT_EQ(each[1]["kind"], "elliptic arc");
    double chords = 0.0;
    constexpr int kSteps = 100000;
    for (int i = 0; i < kSteps; ++i) {
        const double t = 0.2 + 2.3 * i / kSteps;
        const double u = 0.2 + 2.3 * (i + 1) / kSteps;
        chords += std::hypot(4.0 * (std::cos(u) - std::cos(t)), 2.0 * (std::sin(u) - std::sin(t)));
    }
    EXPECT_NEAR(each[1]["length"].get<double>(), chords, 1e-6);
}

TEST(Measure, ClosedPolylinesHaveAnArea) {
    // A unit square with a half circle outwards on its right and one inwards on its left.
    const std::string polyline = "0 LWPOLYLINE|70 1|10 0|20 0|10 1|20 0|42 1|10 1|20 1"
                                 "|10 0|20 1|42 -1";
    const Scratch scratch("measure-polylines");
    const json plain = measured(scratch, polyline)["polylines"][0];
    EXPECT_EQ(plain["closed"], true);
    EXPECT_DOUBLE_EQ(plain["length"], 2.0 + kPi);
    EXPECT_DOUBLE_EQ(plain["area"], 1.0);
    expectExtents(plain["extents"], 0.0, 0.0, 1.5, 1.0);
    // Mirrored, and stretched so that its arcs are elliptic.
    const json placed = measured(scratch, "0 INSERT|2 A|10 0|20 0|41 -2|42 1",
                                 "0 BLOCK|2 A|10 0|20 0|" + polyline + "|0 ENDBLK")["polylines"][0];
    EXPECT_NEAR(placed["area"].get<double>(), 2.0, 1e-12);
}

TEST(Divide, PiecesAreEqual) {
    const Scratch scratch("divide");
    const std::string file =
        scratch.write("a.dxf", dxf("0 LINE|10 1|20 0|11 7|21 0|0 ARC|10 0|20 0|40 2|50 270|51 90"
                                   "|0 CIRCLE|10 0|20 0|40 1"
                                   "|0 ELLIPSE|10 0|20 0|11 4|21 0|40 0.5|41 0|42 6.2831853"));
    const json each = scratch.told("divide -n 4 " + file)["divisions"];
    const std::vector<std::vector<std::array<double, 2>>> want = {
        {{2.5, 0}, {4, 0}, {5.5, 0}},
        {{std::sqrt(2.0), -std::sqrt(2.0)}, {2, 0}, {std::sqrt(2.0), std::sqrt(2.0)}},
        {{0, 1}, {-1, 0}, {0, -1}, {1, 0}},
        {{0, 2}, {-4, 0}, {0, -2}, {4, 0}}};
    for (std::size_t i = 0; i < want.size(); ++i) {
        // An ellipse is divided to 0.001 degrees of its parameter.
        const double within = i == 3 ? 4.0 * 0.001 * kPi / 180.0 : 1e-12;
        ASSERT_EQ(each[i]["points"].size(), want[i].size());
        for (std::size_t k = 0; k < want[i].size(); ++k)
            EXPECT_TRUE(isAt(each[i]["points"][k], want[i][k][0], want[i][k][1], within)) << i;
    }
    EXPECT_DOUBLE_EQ(each[0]["piece_length"], 1.5);
    EXPECT_EQ(scratch.draft("divide -n 0 " + file).exitCode, 2);
    const auto missing = scratch.draft("divide -n 2 -e 5 " + file);
    EXPECT_EQ(missing.exitCode, 1);
    EXPECT_NE(missing.err.find("no entity #5"), std::string::npos) << missing.err;
    EXPECT_EQ(scratch.told("divide -n 2 -e 3,1 " + file)["divisions"].size(), 2U);
}

} // namespace
