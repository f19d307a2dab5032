// What the commands have in common: the drawing they read and the ways they answer.
#pragma once

#include <string>

#include <CLI/CLI.hpp>
#include <nlohmann/json.hpp>

#include "crossings.h"
#include "drawing.h"
#include "svg_writer.h"

namespace draft {

using Json = nlohmann::ordered_json;

/// Options that several commands know by the same name.
struct CommonOptions {
    std::string file;
    std::string output;
    bool json = false;
};

void addFileArgument(CLI::App &command, CommonOptions &options);
void addJsonFlag(CLI::App &command, CommonOptions &options);

/// Reads a drawing and tells on the error stream what it does not hold of its file.
Drawing openDrawing(const std::string &path);

/// What programs are told of every drawing: its file, its entities, what was left out.
Json describe(const Drawing &drawing);
Json describe(const Drawing &drawing, std::size_t index);
void print(const Json &json);

/// Pairs that the crossings leave open are told on the error stream.
void tellUnknown(const Crossings &crossings);
ResultLayer layerOf(const Crossings &crossings);

} // namespace draft
