// Known crossings of small drawings and of the samples.

#include <algorithm>
#include <cmath>
#include <sstream>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "program.h"

namespace {

using program::dxf;
using program::isAt;
using program::Scratch;

struct Point {
    double x, y;
};

std::string entity(const char *kind, const std::vector<std::pair<int, double>> &groups) {
    std::ostringstream text;
    text.precision(17);
    text << "0 " << kind << "|8 0";
    for (const auto &[code, value] : groups)
        text << "|" << code << " " << value;
    return text.str();
}
std::string line(double x1, double y1, double x2, double y2) {
    return entity("LINE", {{10, x1}, {20, y1}, {11, x2}, {21, y2}});
}
std::string arc(double x, double y, double r, double start, double end) {
    return entity("ARC", {{10, x}, {20, y}, {40, r}, {50, start}, {51, end}});
}
std::string circle(double x, double y, double r) {
    return entity("CIRCLE", {{10, x}, {20, y}, {40, r}});
}
/// The first half axis lies along x; the range is told in turns.
std::string ellipse(double x, double y, double first, double second, double from = 0,
                    double to = 1) {
    const double turn = 6.283185307179586, ratio = second / first;
    return entity(
        "ELLIPSE",
        {{10, x}, {20, y}, {11, first}, {21, 0}, {40, ratio}, {41, from * turn}, {42, to * turn}});
}

struct Case {
    const char *about;
    std::string first, second;
    std::vector<Point> want; // in any order
    const char *kind = "crossing";
};

void check(const Scratch &scratch, const Case &c) {
    const std::string file = scratch.write("a.dxf", dxf(c.first + "|" + c.second));
    const auto outcome = scratch.draft("intersect --json " + file);
    ASSERT_EQ(outcome.err, "") << c.about;
    const auto found = outcome.json()["crossings"];
    ASSERT_EQ(found.size(), c.want.size()) << c.about << found;
    for (const Point want : c.want) {
        const auto isWanted = [&](const auto &point) { return isAt(point, want.x, want.y); };
        EXPECT_EQ(std::count_if(found.begin(), found.end(), isWanted), 1)
            << c.about << ": (" << want.x << ", " << want.y << ") in " << found;
    }
    for (const auto &point : found) {
        EXPECT_EQ(point["kind"], c.kind) << c.about;
        EXPECT_EQ(point["first"]["number"], 1) << c.about;
        EXPECT_EQ(point["second"]["number"], 2) << c.about;
    }
}

TEST(Intersect, LinesMeet) {
    const Scratch scratch("lines");
    const Case cases[] = {
        {"cross", line(0, 0, 4, 4), line(0, 4, 4, 0), {{2, 2}}},
        {"end on the other's middle", line(1, 1, 5, 1), line(3, 1, 3, 9), {{3, 1}}},
        {"corner", line(1, 1, 5, 1), line(5, 1, 5, 9), {{5, 1}}, "joint"},
        {"short of each other", line(0, 0, 1, 1), line(0, 4, 4, 0), {}},
        {"parallel", line(0, 0, 4, 0), line(0, 1, 4, 1), {}},
        {"in one line, apart", line(0, 0, 1, 0), line(2, 0, 3, 0), {}},
        {"in one line, end to end", line(0, 0, 2, 0), line(5, 0, 2, 0), {{2, 0}}, "joint"},
        {"a stretch in common", line(0, 0, 3, 0), line(5, 0, 2, 0), {{3, 0}, {2, 0}}, "overlap"},
        {"one within the other", line(0, 0, 9, 0), line(5, 0, 2, 0), {{5, 0}, {2, 0}}, "overlap"},
        {"the same twice", line(0, 0, 9, 0), line(9, 0, 0, 0), {{0, 0}, {9, 0}}, "overlap"},
    };
    for (const Case &c : cases)
        check(scratch, c);
}

TEST(Intersect, CirclesAndArcsMeet) {
    const Scratch scratch("arcs");
    const Case cases[] = {
        {"line through a circle", line(-9, 3, 9, 3), circle(0, 0, 5), {{4, 3}, {-4, 3}}},
        {"line that ends within", line(0, 3, 9, 3), circle(0, 0, 5), {{4, 3}}},
        {"line that touches", line(-9, 5, 9, 5), circle(0, 0, 5), {{0, 5}}},
        {"an arc without one of the points", line(-9, 3, 9, 3), arc(0, 0, 5, -90, 90), {{4, 3}}},
        {"an arc that crosses the x axis", line(3, -9, 3, 9), arc(0, 0, 5, 300, 10), {{3, -4}}},
        {"line and arc in a row", line(-9, 5, 0, 5), arc(0, 0, 5, 0, 90), {{0, 5}}, "joint"},
        {"circles", circle(0, 0, 5), circle(6, 0, 5), {{3, 4}, {3, -4}}},
        {"circles that touch", circle(0, 0, 2), circle(5, 0, 3), {{2, 0}}},
        {"one circle within another", circle(0, 0, 5), circle(1, 0, 2), {}},
        {"arcs", arc(0, 0, 5, 0, 180), arc(6, 0, 5, 90, 200), {{3, 4}}},
        {"halves", arc(1, 0, 5, -90, 90), arc(1, 0, 5, 90, 270), {{1, 5}, {1, -5}}, "joint"},
        {"overlap", arc(1, 0, 5, 0, 180), arc(1, 0, 5, 90, 270), {{1, 5}, {-4, 0}}, "overlap"},
        {"an arc twice", arc(1, 0, 5, 0, 90), arc(1, 0, 5, 0, 90), {{6, 0}, {1, 5}}, "overlap"},
        {"an arc on its circle", circle(1, 0, 5), arc(1, 0, 5, 0, 90), {{6, 0}, {1, 5}}, "overlap"},
        {"a circle twice", circle(1, 0, 5), circle(1, 0, 5), {{-4, 0}}, "overlap"},
    };
    for (const Case &c : cases)
        check(scratch, c);
}

TEST(Intersect, LinesAndEllipsesMeet) {
    const Scratch scratch("ellipses");
    const Case cases[] = {
        {"through both sides", line(-9, 3, 29, 3), ellipse(10, 0, 10, 5), {{2, 3}, {18, 3}}},
        {"a line that ends within", line(10, 3, 29, 3), ellipse(10, 0, 10, 5), {{18, 3}}},
        {"touching", line(-9, 5, 29, 5), ellipse(10, 0, 10, 5), {{10, 5}}},
        {"an arc without one", line(-9, 3, 29, 3), ellipse(10, 0, 10, 5, 0, 0.25), {{18, 3}}},
        {"its end", line(10, 5, 10, 9), ellipse(10, 0, 10, 5, 0, 0.25), {{10, 5}}, "joint"},
    };
    for (const Case &c : cases)
        check(scratch, c);
}

TEST(Intersect, EllipsesMeetCirclesAndEachOther) {
    const Scratch scratch("conics");
    const double x = std::sqrt(3.375); // of x^2 + y^2 = 4 with x^2 + 9 y^2 = 9
    const double y = std::sqrt(0.625);
    const std::string upper = ellipse(1, 0, 5, 2, 0, 0.5);
    const double s = 4 / std::sqrt(5.0); // of x^2 / 4 + y^2 / 16 = 1 with its quarter turn, x = y
    const double v = x / 1000, w = y / 1000;
    const Case cases[] = {
        {"circle", circle(0, 0, 2), ellipse(0, 0, 3, 1), {{x, y}, {-x, y}, {x, -y}, {-x, -y}}},
        {"arc", arc(0, 0, 2, 0, 90), ellipse(0, 0, 3, 1), {{x, y}}},
        {"elliptic arc", circle(0, 0, 2), ellipse(0, 0, 3, 1, 0.5, 1), {{x, -y}, {-x, -y}}},
        {"touching", circle(5, 0, 2), ellipse(0, 0, 3, 1), {{3, 0}}},
        {"turned", ellipse(0, 0, 2, 4), ellipse(0, 0, 4, 2), {{s, s}, {-s, s}, {s, -s}, {-s, -s}}},
        {"round ellipse", circle(0, 0, 5), ellipse(6, 0, 5, 5), {{3, 4}, {3, -4}}},
        {"tiny",
         circle(0, 0, 2e-3),
         ellipse(0, 0, 3e-3, 1e-3),
         {{v, w}, {-v, w}, {v, -w}, {-v, -w}}},
        {"small and apart", circle(0.01, 0.02, 0.002), ellipse(0, 0, 0.003, 0.001), {}},
        {"halves by other axes", upper, ellipse(1, 0, -5, -2, 0, 0.5), {{6, 0}, {-4, 0}}, "joint"},
        {"an ellipse twice", ellipse(1, 0, 5, 2), ellipse(1, 0, -5, -2), {{-4, 0}}, "overlap"},
    };
    for (const Case &c : cases)
        check(scratch, c);
}

TEST(Intersect, FindsEveryCrossingOfManyAndNoOther) {
    // Upright and level lines, all across each other, and as many short ones that meet nothing.
    constexpr int kEach = 150;
    const Scratch scratch("many");
    std::string entities;
    for (int i = 0; i < kEach; ++i) {
        entities += line(i, -1, i, kEach) + "|" + line(-1, i, kEach, i) + "|";
        entities += line(i + 0.3, -9, i + 0.6, -9) + (i + 1 < kEach ? "|" : "");
    }
    const auto found =
        scratch.told("intersect " + scratch.write("a.dxf", dxf(entities)))["crossings"];
    ASSERT_EQ(found.size(), std::size_t{kEach} * kEach);
    const auto numbers = [&](std::size_t i) {
        return std::make_pair(found[i]["first"]["number"].get<int>(),
                              found[i]["second"]["number"].get<int>());
    };
    for (std::size_t i = 1; i < found.size(); ++i)
        ASSERT_LT(numbers(i - 1), numbers(i)) << "pairs come in the order of their numbers";
}

TEST(Intersect, TellsPeopleInATable) {
    const Scratch scratch("table");
    const std::string file = scratch.write("a.dxf", dxf(line(0, 0, 4, 4) + "|" + line(0, 4, 4, 0)));
    const auto outcome = scratch.draft("intersect " + file);
    EXPECT_EQ(outcome.exitCode, 0);
    EXPECT_NE(outcome.out.find("1 crossing\n"), std::string::npos) << outcome.out;
    EXPECT_NE(outcome.out.find("2.0000000  2.0000000  line #1  line #2"), std::string::npos)
        << outcome.out;
}

TEST(Intersect, WrongUsageIsTold) {
    const Scratch scratch("usage");
    EXPECT_EQ(scratch.draft("").exitCode, 2);
    EXPECT_EQ(scratch.draft("intersect").exitCode, 2);
    const auto unknown = scratch.draft("paint a.dxf");
    EXPECT_EQ(unknown.exitCode, 2);
    EXPECT_NE(unknown.err.find("paint"), std::string::npos) << unknown.err;
    EXPECT_EQ(
        scratch.draft("intersect " + program::sample("floor-plan.dxf") + " >/dev/full #").exitCode,
        1);
    for (const char *command :
         {"intersect", "snap", "tangents", "measure", "divide", "arcs", "trim", "plot"}) {
        const auto help = scratch.draft(std::string(command) + " --help");
        EXPECT_EQ(help.exitCode, 0) << command;
        EXPECT_NE(help.out.find("--json"), std::string::npos) << command;
        EXPECT_NE(help.out.find(std::string("  draft ") + command + " "), std::string::npos)
            << command << " shows an example";
    }
    const auto help = scratch.draft("--help");
    EXPECT_EQ(help.exitCode, 0);
    EXPECT_NE(help.out.find("draft intersect floor-plan.dxf"), std::string::npos);
}

} // namespace
