// draft plot: a picture of a drawing.

#include <iostream>
#include <memory>

#include "commands/commands.h"
#include "commands/common.h"
#include "output_file.h"

namespace draft {

namespace {

struct Options : CommonOptions {
    bool plain = false;
};

void run(const Options &options) {
    const Drawing drawing = openDrawing(options.file);
    std::vector<ResultLayer> results;
    if (!options.plain) {
        const Crossings crossings = crossingsOf(drawing);
        tellUnknown(crossings);
        results = layersOf(crossings);
    }
    writeFile(options.output, svgOf(drawing, results));
    std::cout << options.output << ": " << inventory(drawing)
              << (results.empty() ? "" : "; " + summary(results)) << "\n";
}

} // namespace

void addPlot(CLI::App &app) {
    const auto options = std::make_shared<Options>();
    CLI::App *command =
        app.add_subcommand("plot", "A picture of the drawing with its crossings marked");
    addFileArgument(*command, *options);
    command->add_option("-o,--output", options->output, "the SVG file to write")->required();
    command->add_flag("--plain", options->plain, "the entities alone, no crossings");
    command->footer("Example: draft plot machine-part.dxf -o machine-part.svg");
    command->callback([options] { run(*options); });
}

} // namespace draft
