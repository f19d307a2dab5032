// draft arcs: a drawing for machines that know only lines and arcs.

#include <iostream>
#include <memory>

#include "arcs.h"
#include "commands/commands.h"
#include "commands/common.h"
#include "dxf_writer.h"
#include "failure.h"
#include "output_file.h"
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
    for (std::size_t i = 0; i < drawing.entities.size(); ++i) {
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

void run(const Options &options) {
    const Drawing drawing = openDrawing(options.file);
    Replaced replaced;
    const Drawing result = withoutEllipses(drawing, options.tolerance, replaced);
    writeFile(options.output, dxfText(result));
    std::cout << options.output << ": " << countedAs(replaced.ellipses, "ellipse") << " became "
              << countedAs(replaced.arcs, "arc") << "; " << inventory(result) << "\n";
}

} // namespace

void addArcs(CLI::App &app) {
    const auto options = std::make_shared<Options>();
    CLI::App *command = app.add_subcommand("arcs", "Replace every ellipse by circular arcs");
    addFileArgument(*command, *options);
    command->add_option("-t,--tol", options->tolerance, "how far they may lie from it, units")
        ->required()
        ->check(CLI::PositiveNumber);
    command->add_option("-o,--output", options->output, "the DXF file to write")->required();
    command->footer("Blocks and polylines are written as the lines and arcs they consist of.\n"
                    "Example: draft arcs machine-part.dxf --tol 0.01 -o for-the-mill.dxf");
    command->callback([options] { run(*options); });
}

} // namespace draft
