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

void printPlain(const Drawing &drawing, const Options &options,
                const std::vector<ResultLayer> &results) {
    std::cout << options.output << ": " << inventory(drawing)
              << (results.empty() ? "" : "; " + summary(results)) << "\n";
}

void printJson(const Drawing &drawing, const Options &options,
               const std::vector<ResultLayer> &results) {
    Json json = describe(drawing);
    json["output"] = options.output;
    json["marked"] = Json::array();
    for (const ResultLayer &layer : results)
        json["marked"].push_back(layer.name);
    print(json);
}

void run(const Options &options) {
    const Drawing drawing = openDrawing(options);
    std::vector<ResultLayer> results;
    if (!options.plain) {
        const Crossings crossings = crossingsOf(drawing);
        tellUnknown(crossings.unknown);
        results = layersOf(crossings);
    }
    writeFile(options.output, svgOf(drawing, results));
    options.json ? printJson(drawing, options, results) : printPlain(drawing, options, results);
}

} // namespace

void addPlot(CLI::App &app) {
    const auto options = std::make_shared<Options>();
    CLI::App *command =
        app.add_subcommand("plot", "A picture of the drawing with its crossings marked");
    addOutputOption(*command, *options, "the SVG file to write");
    command->add_flag("--plain", options->plain, "the entities alone, no crossings");
    addCommonOptions(*command, *options);
    command->footer("Examples:\n"
                    "  draft plot machine-part.dxf -o machine-part.svg\n"
                    "  draft plot floor-plan.dxf --plain -o floor-plan.svg");
    command->callback([options] { run(*options); });
}

} // namespace draft
