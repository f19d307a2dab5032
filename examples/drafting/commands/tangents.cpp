// draft tangents: from a point to curves, or common to each two of them.

#include <iostream>
#include <memory>

#include "commands/commands.h"
#include "commands/common.h"
#include "failure.h"
#include "output_file.h"
#include "progress.h"
#include "tangents.h"
#include "text.h"

namespace draft {

namespace {

struct Options : CommonOptions {
    std::vector<double> from;
    std::vector<std::size_t> entities;
};

struct Found {
    Tangent tangent;
    std::optional<std::size_t> first; ///< the curve that it starts at, unless at the point
    std::size_t second;
};

std::vector<std::size_t> curvesOf(const Drawing &drawing, const Options &options) {
    std::vector<std::size_t> curves;
    for (const std::size_t index : chosenOrAll(drawing, options.entities)) {
        if (hasTangents(drawing.entities[index].shape)) {
            curves.push_back(index);
        } else if (!options.entities.empty()) {
            throw Failure(label(drawing, index) + " is no curve that tangents can be drawn to");
        }
    }
    return curves;
}

std::vector<Found> fromPoint(const Drawing &drawing, const std::vector<std::size_t> &curves,
                             DTPOINT point) {
    std::vector<Found> all;
    Progress progress("tangents", curves.size());
    for (const std::size_t index : curves) {
        progress.add(1);
        for (const Tangent &tangent : tangentsFrom(point, drawing.entities[index].shape))
            all.push_back({tangent, {}, index});
    }
    return all;
}

std::vector<Found> ofPairs(const Drawing &drawing, const std::vector<std::size_t> &curves) {
    std::vector<Found> all;
    Progress progress("tangents", curves.size() * (curves.size() - 1) / 2);
    for (std::size_t i = 0; i < curves.size(); ++i) {
        progress.add(curves.size() - i - 1);
        for (std::size_t j = i + 1; j < curves.size(); ++j) {
            const Shape &first = drawing.entities[curves[i]].shape;
            const Shape &second = drawing.entities[curves[j]].shape;
            for (const Tangent &tangent : commonTangents(first, second))
                all.push_back({tangent, curves[i], curves[j]});
        }
    }
    return all;
}

ResultLayer layerOf(const std::vector<Found> &all) {
    ResultLayer layer{ResultKind::tangent, countedAs(all.size(), "tangent"), {}, {}};
    for (const Found &found : all) {
        const Tangent &t = found.tangent;
        layer.shapes.emplace_back(DTLINE{0, t.from.x, t.from.y, t.to.x, t.to.y});
        layer.points.insert(layer.points.end(), {t.from, t.to});
    }
    return layer;
}

void printTable(const Drawing &drawing, const std::vector<Found> &all) {
    const int decimals = decimalsFor(extentsOf(drawing));
    using Align = Table::Align;
    Table table({{"from", Align::left},
                 {"x", Align::right},
                 {"y", Align::right},
                 {"to", Align::left},
                 {"x", Align::right},
                 {"y", Align::right},
                 {"length", Align::right}});
    std::cout << drawing.path << ": " << inventory(drawing) << "\n"
              << countedAs(all.size(), "tangent") << "\n";
    if (all.empty()) return;
    std::cout << "\n";
    table.print(std::cout, all.size(), [&](std::size_t i) {
        const Tangent &t = all[i].tangent;
        return Table::Row{all[i].first ? label(drawing, *all[i].first) : "point",
                          fixed(t.from.x, decimals),
                          fixed(t.from.y, decimals),
                          label(drawing, all[i].second),
                          fixed(t.to.x, decimals),
                          fixed(t.to.y, decimals),
                          fixed(ca_dstpt(&t.from, &t.to), decimals)};
    });
}

void printJson(const Drawing &drawing, const std::vector<Found> &all) {
    Json json = describe(drawing);
    json["tangents"] = Json::array();
    for (const Found &found : all) {
        const Tangent &t = found.tangent;
        Json tangent;
        tangent["from"] = {{"x", t.from.x}, {"y", t.from.y}};
        if (found.first) tangent["from"].update(describe(drawing, *found.first));
        tangent["to"] = {{"x", t.to.x}, {"y", t.to.y}};
        tangent["to"].update(describe(drawing, found.second));
        json["tangents"].push_back(std::move(tangent));
    }
    print(json);
}

void run(const Options &options) {
    if (options.from.empty() && options.entities.size() < 2) {
        throw CLI::ValidationError(
            "tangents are drawn from a point (--from X,Y) or between two or more curves (-e 3,7)");
    }
    const Drawing drawing = openDrawing(options);
    const std::vector<std::size_t> curves = curvesOf(drawing, options);
    const std::vector<Found> all =
        options.from.empty()
            ? ofPairs(drawing, curves)
            : fromPoint(drawing, curves, {options.from.front(), options.from.back()});
    if (!options.output.empty()) writeFile(options.output, svgOf(drawing, {layerOf(all)}));
    options.json ? printJson(drawing, all) : printTable(drawing, all);
}

} // namespace

void addTangents(CLI::App &app) {
    const auto options = std::make_shared<Options>();
    CLI::App *command =
        app.add_subcommand("tangents", "Tangents from a point, or common to chosen curves");
    addPointOption(*command, "--from", options->from, "draw them from this point");
    addEntityOption(*command, options->entities, "draw them to these curves alone");
    addPictureOption(*command, *options);
    addCommonOptions(*command, *options);
    command->footer("Without a point the tangents common to each two of the chosen curves.\n"
                    "Examples:\n"
                    "  draft tangents machine-part.dxf --from 200,0 -o tangents.svg\n"
                    "  draft tangents machine-part.dxf -e 9,31,32 -o belts.svg");
    command->callback([options] { run(*options); });
}

} // namespace draft
