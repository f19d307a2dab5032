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

std::string version() {
    return std::to_string(PLANEGEO_VERSION_MAJOR) + "." + std::to_string(PLANEGEO_VERSION_MINOR) +
           "." + std::to_string(PLANEGEO_VERSION_PATCH);
}

int run(int argc, char **argv) {
    CLI::App app("Questions about a two-dimensional DXF drawing, answered by planegeo.", "draft");
    app.require_subcommand(1);
    app.set_version_flag("--version", "draft " + version());
    app.footer("'draft COMMAND --help' tells the options of a command.\n"
               "Examples:\n"
               "  draft intersect floor-plan.dxf\n"
               "  draft intersect floor-plan.dxf --json | jq '.crossings | length'\n"
               "  draft tangents machine-part.dxf --from 200,0\n"
               "  draft measure machine-part.dxf\n"
               "  draft divide machine-part.dxf --pieces 12\n"
               "  draft plot machine-part.dxf -o machine-part.svg");
    draft::addIntersect(app);
    draft::addTangents(app);
    draft::addMeasure(app);
    draft::addDivide(app);
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
