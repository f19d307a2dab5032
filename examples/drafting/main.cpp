// draft: questions about a DXF drawing, answered by planegeo.
//
// Exit code: 0 done, 1 a file cannot be read or written, 2 the command line is wrong.

#include <exception>
#include <iostream>
#include <string>

#include "commands/commands.h"
#include "planegeo.h"

namespace {

constexpr int kBadFile = 1;
constexpr int kBadUsage = 2;

constexpr const char *kExamples = R"('draft COMMAND --help' tells the options of a command.
Examples:
  draft intersect floor-plan.dxf
  draft intersect floor-plan.dxf --json | jq '.crossings | length'
  draft snap machine-part.dxf --at 61,56 --from 0,0
  draft tangents machine-part.dxf --from 200,0 -o tangents.svg
  draft measure machine-part.dxf
  draft divide machine-part.dxf --pieces 12
  draft arcs machine-part.dxf --tol 0.01 -o for-the-mill.dxf
  draft trim machine-part.dxf --pick 62,-5 -o trimmed.dxf
  draft plot machine-part.dxf -o machine-part.svg
Exit codes: 0 done, 1 a file cannot be read or written, 2 wrong usage.)";

std::string version() {
    return std::to_string(PLANEGEO_VERSION_MAJOR) + "." + std::to_string(PLANEGEO_VERSION_MINOR) +
           "." + std::to_string(PLANEGEO_VERSION_PATCH);
}

int run(int argc, char **argv) {
    CLI::App app("Questions about a two-dimensional DXF drawing, answered by planegeo.", "draft");
    app.require_subcommand(1);
    app.set_version_flag("--version", "draft " + version());
    app.footer(kExamples);
    draft::addIntersect(app);
    draft::addSnap(app);
    draft::addTangents(app);
    draft::addMeasure(app);
    draft::addDivide(app);
    draft::addArcs(app);
    draft::addTrim(app);
    draft::addPlot(app);
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError &error) {
        return app.exit(error) == 0 ? 0 : kBadUsage;
    }
    return 0;
}

} // namespace

int main(int argc, char **argv) {
    try {
        return run(argc, argv);
    } catch (const std::exception &error) {
        std::cerr << "draft: " << error.what() << '\n';
        return kBadFile;
    }
}
