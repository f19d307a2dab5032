// draft divide: points that cut entities into pieces of equal length.

#include <iostream>
#include <memory>

#include "commands/commands.h"
#include "commands/common.h"
#include "divide.h"
#include "output_file.h"
#include "progress.h"
#include "text.h"

namespace draft {

namespace {

constexpr int kMostPieces = 1'000'000;

struct Options : CommonOptions {
    int pieces = 2;
    std::vector<std::size_t> entities;
};

struct Divided {
    std::size_t index;
    Division division;
};

void printTable(const Drawing &drawing, const std::vector<Divided> &all, int pieces) {
    const int decimals = decimalsFor(extentsOf(drawing));
    using Align = Table::Align;
    Table table({{"entity", Align::left},
                 {"piece length", Align::right},
                 {"point", Align::right},
                 {"x", Align::right},
                 {"y", Align::right}});
    struct Place {
        const Divided *divided;
        std::size_t k;
    };
    std::vector<Place> places;
    for (const Divided &divided : all) {
        for (std::size_t k = 0; k < divided.division.points.size(); ++k)
            places.push_back({&divided, k});
    }
    std::cout << drawing.path << ": " << inventory(drawing) << "\n"
              << countedAs(static_cast<std::size_t>(pieces), "piece") << " of each\n\n";
    table.print(std::cout, places.size(), [&](std::size_t i) {
        const auto [divided, k] = places[i];
        const DTPOINT point = divided->division.points[k];
        return Table::Row{k == 0 ? label(drawing, divided->index) : "",
                          k == 0 ? fixed(divided->division.pieceLength, decimals) : "",
                          std::to_string(k + 1), fixed(point.x, decimals),
                          fixed(point.y, decimals)};
    });
}

void printJson(const Drawing &drawing, const std::vector<Divided> &all) {
    Json json = describe(drawing);
    json["divisions"] = Json::array();
    for (const Divided &divided : all) {
        Json entity = describe(drawing, divided.index);
        entity["piece_length"] = divided.division.pieceLength;
        entity["points"] = Json::array();
        for (const DTPOINT point : divided.division.points)
            entity["points"].push_back({{"x", point.x}, {"y", point.y}});
        json["divisions"].push_back(std::move(entity));
    }
    print(json);
}

void run(const Options &options) {
    const Drawing drawing = openDrawing(options);
    ResultLayer layer{ResultKind::division, "", {}, {}};
    std::vector<Divided> all;
    const std::vector<std::size_t> chosen = chosenOrAll(drawing, options.entities);
    Progress progress("divisions", chosen.size());
    for (const std::size_t index : chosen) {
        progress.add(1);
        all.push_back({index, divisionOf(drawing.entities[index].shape, options.pieces)});
        const std::vector<DTPOINT> &points = all.back().division.points;
        layer.points.insert(layer.points.end(), points.begin(), points.end());
    }
    layer.name = countedAs(layer.points.size(), "division point");
    if (!options.output.empty()) writeFile(options.output, svgOf(drawing, {layer}));
    options.json ? printJson(drawing, all) : printTable(drawing, all, options.pieces);
}

} // namespace

void addDivide(CLI::App &app) {
    const auto options = std::make_shared<Options>();
    CLI::App *command =
        app.add_subcommand("divide", "Points that cut entities into pieces of equal length");
    command->add_option("-n,--pieces", options->pieces, "how many pieces of each")
        ->required()
        ->check(CLI::Range(1, kMostPieces))
        ->option_text("N (required)");
    addEntityOption(*command, options->entities, "divide these alone");
    addPictureOption(*command, *options);
    addCommonOptions(*command, *options);
    command->footer("Examples:\n"
                    "  draft divide machine-part.dxf --pieces 12\n"
                    "  draft divide machine-part.dxf --pieces 12 -e 16 -o divided.svg");
    command->callback([options] { run(*options); });
}

} // namespace draft
