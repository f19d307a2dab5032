// Known crossings of small drawings and of the samples.

#include <gtest/gtest.h>

#include "program.h"

namespace {

using program::dxf;
using program::Scratch;

struct Point {
    double x, y;
};

std::string line(double x1, double y1, double x2, double y2) {
    return "0 LINE|8 0|10 " + std::to_string(x1) + "|20 " + std::to_string(y1) + "|11 " +
           std::to_string(x2) + "|21 " + std::to_string(y2);
}

TEST(Intersect, LinesMeet) {
    const Scratch scratch("lines");
    struct Lines {
        const char *about;
        std::string first, second;
        std::vector<Point> want;
        bool overlap;
    };
    const Lines cases[] = {
        {"cross", line(0, 0, 4, 4), line(0, 4, 4, 0), {{2, 2}}, false},
        {"end on the other's middle", line(1, 1, 5, 1), line(3, 1, 3, 9), {{3, 1}}, false},
        {"corner", line(1, 1, 5, 1), line(5, 1, 5, 9), {{5, 1}}, false},
        {"short of each other", line(0, 0, 1, 1), line(0, 4, 4, 0), {}, false},
        {"parallel", line(0, 0, 4, 0), line(0, 1, 4, 1), {}, false},
        {"in one line, apart", line(0, 0, 1, 0), line(2, 0, 3, 0), {}, false},
        {"in one line, end to end", line(0, 0, 2, 0), line(5, 0, 2, 0), {{2, 0}}, false},
        {"a stretch in common", line(0, 0, 3, 0), line(5, 0, 2, 0), {{3, 0}, {2, 0}}, true},
        {"one within the other", line(0, 0, 9, 0), line(5, 0, 2, 0), {{5, 0}, {2, 0}}, true},
        {"the same twice", line(0, 0, 9, 0), line(9, 0, 0, 0), {{0, 0}, {9, 0}}, true},
    };
    for (const Lines &c : cases) {
        const std::string file = scratch.write("a.dxf", dxf(c.first + "|" + c.second));
        const auto outcome = scratch.draft("intersect --json " + file);
        ASSERT_EQ(outcome.exitCode, 0) << c.about << outcome.err;
        const auto found = outcome.json()["crossings"];
        ASSERT_EQ(found.size(), c.want.size()) << c.about;
        for (std::size_t i = 0; i < c.want.size(); ++i) {
            EXPECT_NEAR(found[i]["x"].get<double>(), c.want[i].x, 1e-12) << c.about;
            EXPECT_NEAR(found[i]["y"].get<double>(), c.want[i].y, 1e-12) << c.about;
            EXPECT_EQ(found[i]["overlap"].get<bool>(), c.overlap) << c.about;
            EXPECT_EQ(found[i]["first"]["number"], 1) << c.about;
            EXPECT_EQ(found[i]["second"]["number"], 2) << c.about;
        }
    }
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
    EXPECT_EQ(scratch.draft("paint a.dxf").exitCode, 2);
    const auto help = scratch.draft("--help");
    EXPECT_EQ(help.exitCode, 0);
    EXPECT_NE(help.out.find("draft intersect floor-plan.dxf"), std::string::npos);
}

} // namespace
