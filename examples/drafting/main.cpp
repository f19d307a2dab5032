// draft: questions about a DXF drawing, answered by planegeo.
//
// Exit code: 0 done, 1 what is asked cannot be done, 2 the command line is wrong.

#include <cerrno>
#include <cstring>
#include <exception>
#include <iostream>
#include <string>

#include "commands/commands.h"
#include "failure.h"
#include "planegeo.h"

namespace {

constexpr int kCannotBeDone = 1;
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
Exit codes: 0 done; 1 a file cannot be read or written, or the drawing lacks what is asked
for; 2 wrong usage.)";

std::string version() {
    return std::to_string(PLANEGEO_VERSION_MAJOR) + "." + std::to_string(PLANEGEO_VERSION_MINOR) +
           "." + std::to_string(PLANEGEO_VERSION_PATCH);
}

std::string usageMessage(const CLI::App * /*app*/, const CLI::Error &error) {
    return std::string("draft: ") + error.what() + "; see 'draft --help', 'draft COMMAND --help'\n";
}

/// A full disk shows only when everything has been passed on.
void finishAnswer() {
    if (!std::cout.flush())
        throw draft::Failure(std::string("the answer cannot be written: ") + std::strerror(errno));
}

int run(int argc, char **argv) {
    CLI::App app("Questions about a two-dimensional DXF drawing, answered by planegeo.", "draft");
    app.require_subcommand(0, 1); // none is told below, after a word that is none
    app.set_version_flag("--version", "draft " + version());
    app.footer(kExamples);
    app.failure_message(usageMessage);
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
        if (app.get_subcommands().empty()) throw CLI::RequiredError("a command");
    } catch (const CLI::ParseError &error) {
        if (app.exit(error) != 0) return kBadUsage;
    }
    finishAnswer();
    return 0;
}

} // namespace

int main(int argc, char **argv) {
    try {
        return run(argc, argv);
    } catch (const std::exception &error) {
        std::cerr << "draft: " << error.what() << '\n';
        return kCannotBeDone;
    }
}
