// draft snap: what a person may mean who points somewhere.

#include <array>
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

struct Question {
    DTPOINT at;
    double radius;
    std::optional<DTPOINT> from;
};

Question questionOf(const Drawing &drawing, const Options &options) {
    Question question = {{options.at.front(), options.at.back()}, options.radius, {}};
    if (!options.from.empty()) question.from = DTPOINT{options.from.front(), options.from.back()};
    if (question.radius == 0.0) {
        const Box box = extentsOf(drawing);
        question.radius = kDefaultShare * std::hypot(box.width(), box.height());
    }
    return question;
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

ResultKind lookOf(SnapKind kind) {
    constexpr std::array<ResultKind, kSnapKindCount> kLooks = {
        ResultKind::end,      ResultKind::middle,       ResultKind::center,
        ResultKind::quadrant, ResultKind::intersection, ResultKind::perpendicular,
        ResultKind::touch,    ResultKind::nearest};
    return kLooks[static_cast<std::size_t>(kind)];
}

/// Where one points, and the candidates by kind; those that are offered first are on top.
std::vector<ResultLayer> layersOf(const std::vector<Snap> &snaps, const Question &question) {
    std::array<ResultLayer, kSnapKindCount> byKind;
    for (const Snap &snap : snaps) {
        ResultLayer &layer = byKind[static_cast<std::size_t>(snap.kind)];
        layer.points.push_back(snap.at);
        const bool isDrawn = snap.kind == SnapKind::perpendicular || snap.kind == SnapKind::tangent;
        if (isDrawn) {
            layer.shapes.emplace_back(
                DTLINE{0, question.from->x, question.from->y, snap.at.x, snap.at.y});
        }
    }
    const DTPOINT at = question.at;
    std::vector<ResultLayer> layers = {{ResultKind::pointer,
                                        "where one points",
                                        {at},
                                        {DTARC{0, at.x, at.y, question.radius, 0.0, 360.0}}}};
    for (std::size_t i = kSnapKindCount; i-- > 0;) {
        if (byKind[i].points.empty()) continue;
        const auto kind = static_cast<SnapKind>(i);
        byKind[i].kind = lookOf(kind);
        byKind[i].name = nameOf(kind);
        layers.push_back(std::move(byKind[i]));
    }
    return layers;
}

/// The surroundings of the candidates.
Box viewOf(const Question &question) {
    constexpr double kAround = 1.25;
    const DTPOINT at = question.at;
    const double reach = kAround * question.radius;
    return {at.x - reach, at.y - reach, at.x + reach, at.y + reach};
}

void run(const Options &options) {
    using Clock = std::chrono::steady_clock;
    const Drawing drawing = openDrawing(options);
    const Question question = questionOf(drawing, options);
    const Snapper snapper(drawing);
    const auto began = Clock::now();
    const std::vector<Snap> snaps = snapper.near(question.at, question.radius, question.from);
    const std::chrono::duration<double, std::milli> took = Clock::now() - began;
    if (options.timed) std::cerr << "draft: answered in " << fixed(took.count(), 3) << " ms\n";
    if (!options.output.empty())
        writeFile(options.output, svgOf(drawing, layersOf(snaps, question), viewOf(question)));
    options.json ? printJson(drawing, snaps) : printTable(drawing, snaps);
}

} // namespace

void addSnap(CLI::App &app) {
    const auto options = std::make_shared<Options>();
    CLI::App *command =
        app.add_subcommand("snap", "The points that a person may mean who points somewhere");
    addPointOption(*command, "--at", options->at, "where one points")
        ->required()
        ->option_text("X,Y (required)");
    addPointOption(*command, "--from", options->from,
                   "a second point: perpendiculars and tangents are drawn from it");
    command
        ->add_option("-r,--radius", options->radius,
                     "how far around; without it 2 % of the drawing's diagonal")
        ->check(CLI::PositiveNumber)
        ->option_text("R");
    addCommonOptions(*command, *options);
    addPictureOption(*command, *options);
    command->add_flag("--timed", options->timed, "tell how long the answer took, once loaded");
    command->footer("Examples:\n"
                    "  draft snap machine-part.dxf --at 61,56\n"
                    "  draft snap machine-part.dxf --at 61,56 --from 0,0 -r 10 -o snap.svg\n"
                    "  draft snap machine-part.dxf --at 61,56 --json | jq '.candidates[0]'");
    command->callback([options] { run(*options); });
}

} // namespace draft
