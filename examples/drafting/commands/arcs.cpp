// draft arcs: a drawing for machines that know only lines and arcs.

#include <iostream>
#include <memory>

#include "arcs.h"
#include "commands/commands.h"
#include "commands/common.h"
#include "dxf_writer.h"
#include "failure.h"
#include "output_file.h"
#include "progress.h"
#include "text.h"

namespace draft {

namespace {

struct Options : CommonOptions {
    double tolerance = 0.0;
};

struct Replaced {
    std::size_t ellipses = 0, arcs = 0;
};

/// The drawing with each ellipse replaced where it stood.
Drawing withoutEllipses(const Drawing &drawing, double tolerance, Replaced &replaced) {
    Drawing result;
    result.path = drawing.path;
    result.layers = drawing.layers;
    Progress progress("arcs", drawing.entities.size());
    for (std::size_t i = 0; i < drawing.entities.size(); ++i) {
        progress.add(1);
        const Entity &entity = drawing.entities[i];
        const auto *ellipse = std::get_if<DTELLIPSE>(&entity.shape);
        if (ellipse == nullptr) {
            result.entities.push_back(entity);
            continue;
        }
        const auto arcs = arcsFor(*ellipse, tolerance);
        if (!arcs) throw Failure(label(drawing, i) + " has no chain of arcs within that tolerance");
        for (const DTARC &arc : *arcs)
            result.entities.push_back({arc, entity.layer});
        ++replaced.ellipses;
        replaced.arcs += arcs->size();
    }
    return result;
}

void printPlain(const Drawing &result, const Options &options, const Replaced &replaced) {
    std::cout << options.output << ": " << countedAs(replaced.ellipses, "ellipse") << " became "
              << countedAs(replaced.arcs, "arc") << "; " << inventory(result) << "\n";
}

void printJson(const Drawing &drawing, const Options &options, const Replaced &replaced) {
    Json json = describe(drawing);
    json["output"] = options.output;
    json["ellipses"] = replaced.ellipses;
    json["arcs"] = replaced.arcs;
    print(json);
}

void run(const Options &options) {
    const Drawing drawing = openDrawing(options);
    Replaced replaced;
    const Drawing result = withoutEllipses(drawing, options.tolerance, replaced);
    writeFile(options.output, dxfText(result));
    options.json ? printJson(drawing, options, replaced) : printPlain(result, options, replaced);
}

} // namespace

void addArcs(CLI::App &app) {
    const auto options = std::make_shared<Options>();
    CLI::App *command = app.add_subcommand("arcs", "Replace every ellipse by circular arcs");
    command->add_option("-t,--tol", options->tolerance, "how far they may lie from it, units")
        ->required()
        ->check(CLI::PositiveNumber)
        ->option_text("T (required)");
    addOutputOption(*command, *options, "the DXF file to write");
    addCommonOptions(*command, *options);
    command->footer("Blocks and polylines are written as the lines and arcs that they consist of.\n"
                    "Examples:\n"
                    "  draft arcs machine-part.dxf --tol 0.01 -o for-the-mill.dxf");
    command->callback([options] { run(*options); });
}

} // namespace draft
