#include "commands/common.h"

#include <array>
#include <iostream>
#include <numeric>

#include "failure.h"
#include "text.h"

namespace draft {

namespace {

constexpr int kIndent = 2;
constexpr int kOneLine = -1;

/// Names in other encodings than UTF-8 must not stop the output.
std::string textOf(const Json &json, int indent) {
    return json.dump(indent, ' ', false, Json::error_handler_t::replace);
}

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

void addPictureOption(CLI::App &command, CommonOptions &options) {
    command.add_option("-o,--output", options.output, "also draw the answer into this SVG file");
}

CLI::Option *addPointOption(CLI::App &command, const std::string &name, std::vector<double> &point,
                            const std::string &what) {
    return command.add_option(name, point, what)
        ->delimiter(',')
        ->allow_extra_args(false)
        ->expected(2);
}

void addEntityOption(CLI::App &command, std::vector<std::size_t> &numbers,
                     const std::string &what) {
    command.add_option("-e,--entity", numbers, what + ", by their numbers: 3,7")
        ->delimiter(',')
        ->allow_extra_args(false);
}

std::vector<std::size_t> chosenOrAll(const Drawing &drawing,
                                     const std::vector<std::size_t> &numbers) {
    const std::size_t count = drawing.entities.size();
    std::vector<std::size_t> chosen;
    for (const std::size_t number : numbers) {
        if (number < 1 || number > count) {
            throw Failure("there is no entity #" + std::to_string(number) + "; the drawing has " +
                          std::to_string(count));
        }
        chosen.push_back(number - 1);
    }
    if (numbers.empty()) {
        chosen.resize(count);
        std::iota(chosen.begin(), chosen.end(), std::size_t{0});
    }
    return chosen;
}

Drawing openDrawing(const std::string &path) { return openFile(path).drawing; }

DxfFile openFile(const std::string &path) {
    DxfFile file = readDxf(path);
    tell("left out", file.drawing.leftOut);
    tell("simplified", file.drawing.simplified);
    return file;
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
            {"layer", drawing.layers[entity.layer].name}};
}

void print(const Json &json) { std::cout << textOf(json, kIndent) << '\n'; }

void printWithList(const Json &head, const std::string &name, std::size_t count,
                   const std::function<Json(std::size_t)> &element) {
    std::string text = textOf(head, kIndent);
    text.resize(text.size() - std::string("\n}").size());
    std::cout << text << ",\n  " << textOf(name, kOneLine) << ": [";
    for (std::size_t i = 0; i < count; ++i)
        std::cout << (i > 0 ? ",\n    " : "\n    ") << textOf(element(i), kOneLine);
    std::cout << (count > 0 ? "\n  ]\n}\n" : "]\n}\n");
}

void tellUnknown(const Crossings &crossings) { tell("pairs without an answer", crossings.unknown); }

std::vector<ResultLayer> layersOf(const Crossings &crossings) {
    std::array<ResultLayer, kCrossingKindCount> byKind;
    byKind[0].kind = ResultLayer::Kind::crossing;
    byKind[1].kind = ResultLayer::Kind::joint;
    byKind[2].kind = ResultLayer::Kind::overlap;
    for (const Crossing &crossing : crossings.found)
        byKind[static_cast<std::size_t>(crossing.kind)].points.push_back(crossing.at);
    std::vector<ResultLayer> layers;
    // The last are drawn on top.
    for (std::size_t i = kCrossingKindCount; i-- > 0;) {
        const std::size_t count = byKind[i].points.size();
        if (count == 0 && i > 0) continue;
        byKind[i].name = countedAs(count, nameOf(static_cast<CrossingKind>(i)));
        layers.push_back(std::move(byKind[i]));
    }
    return layers;
}

std::string summary(const std::vector<ResultLayer> &layers) {
    std::string text;
    for (auto layer = layers.rbegin(); layer != layers.rend(); ++layer)
        text += (text.empty() ? "" : ", ") + layer->name;
    return text;
}

} // namespace draft
