#include "commands/common.h"

#include <array>
#include <filesystem>
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

std::string listed(const Tally &tally) {
    std::string text;
    for (const auto &[kind, count] : tally)
        text += (text.empty() ? "" : ", ") + std::to_string(count) + " " + kind;
    return text;
}

void tell(const std::string &what, const Tally &tally) {
    if (!tally.empty()) std::cerr << "draft: " << what << ": " << listed(tally) << '\n';
}

void refuseEmpty(const Drawing &drawing) {
    if (!drawing.entities.empty()) return;
    throw Failure(drawing.path + ": nothing in it is a line, circle, arc, ellipse or polyline" +
                  (drawing.leftOut.empty() ? "" : "; left out: " + listed(drawing.leftOut)));
}

} // namespace

void addCommonOptions(CLI::App &command, CommonOptions &options) {
    command.add_option("FILE", options.file, "the drawing, a text (ASCII) DXF")
        ->required()
        ->option_text(" ");
    command.add_flag("--json", options.json, "answer as JSON, for programs");
}

void addPictureOption(CLI::App &command, CommonOptions &options) {
    command.add_option("-o,--output", options.output, "also draw the answer into this SVG file")
        ->option_text("FILE");
}

void addOutputOption(CLI::App &command, CommonOptions &options, const std::string &what) {
    command.add_option("-o,--output", options.output, what)
        ->required()
        ->option_text("FILE (required)");
}

CLI::Option *addPointOption(CLI::App &command, const std::string &name, std::vector<double> &point,
                            const std::string &what) {
    return command.add_option(name, point, what)
        ->delimiter(',')
        ->allow_extra_args(false)
        ->expected(2)
        ->option_text("X,Y");
}

void addEntityOption(CLI::App &command, std::vector<std::size_t> &numbers,
                     const std::string &what) {
    command.add_option("-e,--entity", numbers, what + ", by the numbers in the tables")
        ->delimiter(',')
        ->allow_extra_args(false)
        ->option_text("N,...");
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

void refuseOverwriting(const std::string &file, const std::string &output) {
    std::error_code ignored;
    if (!output.empty() && std::filesystem::equivalent(file, output, ignored))
        throw Failure(output + ": cannot be written: it is the drawing itself");
}

Drawing openDrawing(const CommonOptions &options) { return openFile(options).drawing; }

DxfFile openFile(const CommonOptions &options) {
    refuseOverwriting(options.file, options.output);
    DxfFile file = readDxf(options.file);
    refuseEmpty(file.drawing);
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

void tellUnknown(const Tally &pairs) { tell("pairs without an answer", pairs); }

std::vector<ResultLayer> layersOf(const Crossings &crossings) {
    std::array<ResultLayer, kCrossingKindCount> byKind;
    byKind[0].kind = ResultKind::crossing;
    byKind[1].kind = ResultKind::joint;
    byKind[2].kind = ResultKind::overlap;
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
