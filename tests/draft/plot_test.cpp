// Pictures: whole, of every kind of entity, or not at all.

#include <gtest/gtest.h>

#include "program.h"

namespace {

using program::contentOf;
using program::Scratch;

TEST(Plot, ShowsEveryKindAndItsCrossings) {
    const Scratch scratch("kinds");
    const std::string svg = scratch.file("part.svg");
    const auto outcome =
        scratch.draft("plot " + program::sample("machine-part.dxf") + " -o " + svg);
    ASSERT_EQ(outcome.exitCode, 0) << outcome.err;
    const std::string picture = contentOf(svg);
    for (const char *part : {"line #1 on layer outline", "circle #9", "arc #2", "ellipse #15",
                             "elliptic arc #17", " crossings</text>", "units</text>", "</svg>"})
        EXPECT_NE(picture.find(part), std::string::npos) << part;
    EXPECT_EQ(picture.find("nan"), std::string::npos);
    EXPECT_EQ(scratch.count(), 1U) << "something is left beside the picture";
}

TEST(Plot, NamesCannotBreakThePicture) {
    const Scratch scratch("names");
    const std::string file =
        scratch.write("a.dxf", program::dxf("0 LINE|8 <a>&\"\xE4\x01|10 0|20 0|11 1|21 1"));
    const std::string svg = scratch.file("a.svg");
    ASSERT_EQ(scratch.draft("plot " + file + " -o " + svg).exitCode, 0);
    EXPECT_NE(contentOf(svg).find("on layer &lt;a&gt;&amp;&quot;??"), std::string::npos);
}

TEST(Plot, LeavesNothingWhereItCannotWrite) {
    const Scratch scratch("unwritable");
    const std::string part = program::sample("machine-part.dxf");
    const auto nowhere = scratch.draft("plot " + part + " -o " + scratch.file("no/such/a.svg"));
    EXPECT_EQ(nowhere.exitCode, 1);
    EXPECT_NE(nowhere.err.find("a.svg: cannot be written"), std::string::npos) << nowhere.err;
    const auto full = scratch.draft("plot " + part + " -o /dev/full");
    EXPECT_EQ(full.exitCode, 1);
    const auto directory = scratch.draft("plot " + part + " -o " + scratch.file(""));
    EXPECT_EQ(directory.exitCode, 1);
    EXPECT_EQ(scratch.count(), 0U);
}

TEST(Plot, TakesNoOtherFilesPlace) {
    const Scratch scratch("own");
    const std::string text = program::dxf("0 LINE|8 0|10 0|20 0|11 1|21 1");
    const std::string file = scratch.write("a.dxf", text);
    for (const std::string command : {"plot ", "intersect ", "trim --pick 0,0 "}) {
        const auto own = scratch.draft(command + file + " -o " + scratch.file("./a.dxf"));
        EXPECT_EQ(own.exitCode, 1);
        EXPECT_NE(own.err.find("it is the drawing itself"), std::string::npos) << own.err;
    }
    EXPECT_EQ(contentOf(file), text);
    // A link is written through.
    const std::string target = scratch.write("target.svg", "before");
    program::fs::create_symlink("target.svg", scratch.file("link.svg"));
    ASSERT_EQ(scratch.draft("plot " + file + " -o " + scratch.file("link.svg")).exitCode, 0);
    EXPECT_NE(contentOf(target).find("</svg>"), std::string::npos);
    EXPECT_TRUE(program::fs::is_symlink(scratch.file("link.svg")));
    EXPECT_EQ(scratch.count(), 3U);
}

} // namespace
