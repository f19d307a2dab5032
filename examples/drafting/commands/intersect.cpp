// draft intersect: every two entities that meet, and where.

#include <iostream>
#include <memory>

#include "commands/commands.h"
#include "commands/common.h"
#include "output_file.h"
#include "text.h"

namespace draft {

namespace {

void printTable(const Drawing &drawing, const Crossings &crossings) {
    const int decimals = decimalsFor(extentsOf(drawing));
    using Align = Table::Align;
    Table table({{"point", Align::right},
                 {"x", Align::right},
                 {"y", Align::right},
                 {"first", Align::left},
                 {"second", Align::left},
                 {"", Align::left}});
    std::cout << drawing.path << ": " << inventory(drawing) << "\n"
              << summary(layersOf(crossings)) << "\n";
    if (crossings.found.empty()) return;
    std::cout << "\n";
    table.print(std::cout, crossings.found.size(), [&](std::size_t i) {
        const Crossing &c = crossings.found[i];
        return Table::Row{
            std::to_string(i + 1),    fixed(c.at.x, decimals),
            fixed(c.at.y, decimals),  label(drawing, c.first),
            label(drawing, c.second), c.kind == CrossingKind::crossing ? "" : nameOf(c.kind)};
    });
}

void printJson(const Drawing &drawing, const Crossings &crossings) {
    printWithList(describe(drawing), "crossings", crossings.found.size(), [&](std::size_t i) {
        const Crossing &c = crossings.found[i];
        return Json{{"x", c.at.x},
                    {"y", c.at.y},
                    {"kind", nameOf(c.kind)},
                    {"first", describe(drawing, c.first)},
                    {"second", describe(drawing, c.second)}};
    });
}

void run(const CommonOptions &options) {
    const Drawing drawing = openDrawing(options);
    const Crossings crossings = crossingsOf(drawing);
    tellUnknown(crossings.unknown);
    if (!options.output.empty()) writeFile(options.output, svgOf(drawing, layersOf(crossings)));
    options.json ? printJson(drawing, crossings) : printTable(drawing, crossings);
}

} // namespace

void addIntersect(CLI::App &app) {
    const auto options = std::make_shared<CommonOptions>();
    CLI::App *command =
        app.add_subcommand("intersect", "All pairs of entities that meet, with their points");
    addPictureOption(*command, *options);
    addCommonOptions(*command, *options);
    command->footer("Examples:\n"
                    "  draft intersect floor-plan.dxf -o crossings.svg\n"
                    "  draft intersect floor-plan.dxf --json | jq '.crossings | length'");
    command->callback([options] { run(*options); });
}

} // namespace draft
