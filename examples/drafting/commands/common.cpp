#include "commands/common.h"

#include <cstdio>
#include <iostream>

#include "dxf_reader.h"

namespace draft {

namespace {

void tell(const std::string &what, const Tally &tally) {
    if (tally.empty()) return;
    std::string text;
    for (const auto &[kind, count] : tally)
        text += (text.empty() ? "" : ", ") + std::to_string(count) + " " + kind;
    std::cerr << "draft: " << what << ": " << text << '\n';
}

} // namespace

void addFileArgument(CLI::App &command, CommonOptions &options) {
    command.add_option("FILE", options.file, "the drawing, a text (ASCII) DXF")->required();
}

void addJsonFlag(CLI::App &command, CommonOptions &options) {
    command.add_flag("--json", options.json, "answer as JSON, for programs");
}

Drawing openDrawing(const std::string &path) {
    Drawing drawing = readDxf(path);
    tell("left out", drawing.leftOut);
    tell("simplified", drawing.simplified);
    return drawing;
}

Json describe(const Drawing &drawing) {
    Json json;
    json["file"] = drawing.path;
    json["entities"] = drawing.entities.size();
    json["left_out"] = drawing.leftOut;
    json["simplified"] = drawing.simplified;
    return json;
}

Json describe(const Drawing &drawing, std::size_t index) {
    const Entity &entity = drawing.entities[index];
    return {{"number", index + 1},
            {"kind", nameOf(kindOf(entity.shape))},
            {"layer", drawing.layers[entity.layer]}};
}

void print(const Json &json) {
    std::cout << json.dump(2, ' ', false, Json::error_handler_t::replace) << '\n';
}

void tellUnknown(const Crossings &crossings) { tell("pairs not looked at", crossings.unknown); }

ResultLayer layerOf(const Crossings &crossings) {
    const std::size_t count = crossings.found.size();
    ResultLayer layer;
    layer.name = std::to_string(count) + (count == 1 ? " crossing" : " crossings");
    layer.points.reserve(count);
    for (const Crossing &crossing : crossings.found)
        layer.points.push_back(crossing.at);
    return layer;
}

} // namespace draft
