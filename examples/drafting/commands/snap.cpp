// draft snap: what a person may mean who points somewhere.

#include <chrono>
#include <cmath>
#include <iostream>
#include <memory>

#include "commands/commands.h"
#include "commands/common.h"
#include "failure.h"
#include "output_file.h"
#include "snap.h"
#include "text.h"

namespace draft {

namespace {

/// Without a radius one looks this share of the drawing's diagonal around.
constexpr double kDefaultShare = 0.02;

struct Options : CommonOptions {
    std::vector<double> at, from;
    double radius = 0.0;
    bool timed = false;
};

double radiusFor(const Drawing &drawing, const Options &options) {
    if (options.radius > 0.0) return options.radius;
    const Box box = extentsOf(drawing);
    return kDefaultShare * std::hypot(box.width(), box.height());
}

void printTable(const Drawing &drawing, const std::vector<Snap> &snaps) {
    const int decimals = decimalsFor(extentsOf(drawing));
    using Align = Table::Align;
    Table table({{"kind", Align::left},
                 {"x", Align::right},
                 {"y", Align::right},
                 {"distance", Align::right},
                 {"of", Align::left},
                 {"and", Align::left}});
    std::cout << drawing.path << ": " << inventory(drawing) << "\n"
              << countedAs(snaps.size(), "candidate") << "\n";
    if (snaps.empty()) return;
    std::cout << "\n";
    table.print(std::cout, snaps.size(), [&](std::size_t i) {
        const Snap &snap = snaps[i];
        return Table::Row{
            nameOf(snap.kind),           fixed(snap.at.x, decimals),
            fixed(snap.at.y, decimals),  fixed(snap.distance, decimals),
            label(drawing, snap.entity), snap.other ? label(drawing, *snap.other) : ""};
    });
}

void printJson(const Drawing &drawing, const std::vector<Snap> &snaps) {
    printWithList(describe(drawing), "candidates", snaps.size(), [&](std::size_t i) {
        const Snap &snap = snaps[i];
        Json json = {{"kind", nameOf(snap.kind)},
                     {"x", snap.at.x},
                     {"y", snap.at.y},
                     {"distance", snap.distance},
                     {"entity", describe(drawing, snap.entity)}};
        if (snap.other) json["other"] = describe(drawing, *snap.other);
        return json;
    });
}

void run(const Options &options) {
    using Clock = std::chrono::steady_clock;
    const Drawing drawing = openDrawing(options.file);
    const DTPOINT at = {options.at.front(), options.at.back()};
    std::optional<DTPOINT> from;
    if (!options.from.empty()) from = DTPOINT{options.from.front(), options.from.back()};
    const Snapper snapper(drawing);
    const auto began = Clock::now();
    const std::vector<Snap> snaps = snapper.near(at, radiusFor(drawing, options), from);
    const std::chrono::duration<double, std::milli> took = Clock::now() - began;
    if (options.timed) std::cerr << "draft: answered in " << fixed(took.count(), 3) << " ms\n";
    if (!options.output.empty()) {
        ResultLayer layer{ResultLayer::Kind::snap, countedAs(snaps.size(), "candidate"), {}, {}};
        for (const Snap &snap : snaps)
            layer.points.push_back(snap.at);
        writeFile(options.output, svgOf(drawing, {layer}));
    }
    options.json ? printJson(drawing, snaps) : printTable(drawing, snaps);
}

} // namespace

void addSnap(CLI::App &app) {
    const auto options = std::make_shared<Options>();
    CLI::App *command =
        app.add_subcommand("snap", "The points that a person may mean who points somewhere");
    addFileArgument(*command, *options);
    addPointOption(*command, "--at", options->at, "where one points, X,Y")->required();
    addPointOption(*command, "--from", options->from,
                   "a second point X,Y: perpendiculars and tangents are drawn from it");
    command
        ->add_option("-r,--radius", options->radius,
                     "how far around; without it 2 % of the drawing's diagonal")
        ->check(CLI::PositiveNumber);
    addJsonFlag(*command, *options);
    addPictureOption(*command, *options);
    command->add_flag("--timed", options->timed, "tell how long the answer took, once loaded");
    command->footer("Example: draft snap machine-part.dxf --at 61,56 --from 0,0 -r 10");
    command->callback([options] { run(*options); });
}

} // namespace draft
