// draft measure: length, area and extents.

#include <iostream>
#include <memory>

#include "commands/commands.h"
#include "commands/common.h"
#include "measure.h"
#include "progress.h"
#include "text.h"

namespace draft {

namespace {

struct Row {
    std::string name;
    Measure measure;
    Box extents;
};

struct Report {
    std::vector<Row> entities, outlines;
    Row total;
};

Report reportOf(const Drawing &drawing) {
    Report report;
    report.total = {"in all", {0.0, {}}, {}};
    Progress progress("measures", drawing.entities.size());
    for (std::size_t i = 0; i < drawing.entities.size(); ++i) {
        progress.add(1);
        const Shape &shape = drawing.entities[i].shape;
        Row row{label(drawing, i), measureOf(shape), extentsOf(shape)};
        report.total.measure.length += row.measure.length;
        report.total.extents.join(row.extents);
        report.entities.push_back(std::move(row));
    }
    for (const Outline &outline : drawing.outlines) {
        Row row{"polyline #" + std::to_string(outline.first + 1) + " to #" +
                    std::to_string(outline.first + outline.count),
                measureOf(drawing, outline),
                {}};
        for (std::size_t i = outline.first; i < outline.first + outline.count; ++i)
            row.extents.join(report.entities[i].extents);
        report.outlines.push_back(std::move(row));
    }
    return report;
}

Table::Row cellsOf(const Row &row, int decimals) {
    const Box &box = row.extents;
    const auto number = [&](double value) { return box.empty() ? "" : fixed(value, decimals); };
    const std::optional<double> area = row.measure.area;
    return {row.name,
            fixed(row.measure.length, decimals),
            area ? fixed(*area, decimals) : "",
            number(box.minX),
            number(box.minY),
            number(box.maxX),
            number(box.maxY)};
}

void printTable(const Drawing &drawing, const Report &report) {
    const int decimals = decimalsFor(report.total.extents);
    using Align = Table::Align;
    Table table({{"entity", Align::left},
                 {"length", Align::right},
                 {"area", Align::right},
                 {"from x", Align::right},
                 {"from y", Align::right},
                 {"to x", Align::right},
                 {"to y", Align::right}});
    std::vector<const Row *> rows;
    for (const auto *list : {&report.entities, &report.outlines}) {
        for (const Row &row : *list)
            rows.push_back(&row);
    }
    rows.push_back(&report.total);
    std::cout << drawing.path << ": " << inventory(drawing) << "\n\n";
    table.print(std::cout, rows.size(), [&](std::size_t i) { return cellsOf(*rows[i], decimals); });
}

Json jsonOf(const Measure &measure, const Box &box) {
    Json json;
    json["length"] = measure.length;
    if (measure.area) json["area"] = *measure.area;
    if (!box.empty()) json["extents"] = {box.minX, box.minY, box.maxX, box.maxY};
    return json;
}

void printJson(const Drawing &drawing, const Report &report) {
    Json json = describe(drawing);
    json["measures"] = Json::array();
    for (std::size_t i = 0; i < report.entities.size(); ++i) {
        Json entity = describe(drawing, i);
        entity.update(jsonOf(report.entities[i].measure, report.entities[i].extents));
        json["measures"].push_back(std::move(entity));
    }
    json["polylines"] = Json::array();
    for (std::size_t i = 0; i < report.outlines.size(); ++i) {
        Json outline = {{"first", drawing.outlines[i].first + 1},
                        {"count", drawing.outlines[i].count},
                        {"closed", drawing.outlines[i].closed}};
        outline.update(jsonOf(report.outlines[i].measure, report.outlines[i].extents));
        json["polylines"].push_back(std::move(outline));
    }
    json["in_all"] = jsonOf(report.total.measure, report.total.extents);
    print(json);
}

void run(const CommonOptions &options) {
    const Drawing drawing = openDrawing(options);
    const Report report = reportOf(drawing);
    options.json ? printJson(drawing, report) : printTable(drawing, report);
}

} // namespace

void addMeasure(CLI::App &app) {
    const auto options = std::make_shared<CommonOptions>();
    CLI::App *command = app.add_subcommand("measure", "Lengths, areas of what is closed, extents");
    addCommonOptions(*command, *options);
    command->footer("Examples:\n"
                    "  draft measure machine-part.dxf\n"
                    "  draft measure machine-part.dxf --json | jq '.in_all'");
    command->callback([options] { run(*options); });
}

} // namespace draft
