// What the commands have in common: the drawing they read and the ways they answer.
#pragma once

#include <functional>
#include <string>

#include <CLI/CLI.hpp>
#include <nlohmann/json.hpp>

#include "crossings.h"
#include "drawing.h"
#include "dxf_reader.h"
#include "svg_writer.h"

namespace draft {

using Json = nlohmann::ordered_json;

/// Options that every command knows by the same name.
struct CommonOptions {
    std::string file;
    std::string output;
    bool json = false;
};

/// The drawing and "--json".
void addCommonOptions(CLI::App &command, CommonOptions &options);
/// "-o": a picture of the answer.
void addPictureOption(CLI::App &command, CommonOptions &options);
/// "-o": what the command is for.
void addOutputOption(CLI::App &command, CommonOptions &options, const std::string &what);
/// A point as "X,Y"; two numbers, or none when the option is not given.
CLI::Option *addPointOption(CLI::App &command, const std::string &name, std::vector<double> &point,
                            const std::string &what);
/// "-e": entities by the numbers that the tables show.
void addEntityOption(CLI::App &command, std::vector<std::size_t> &numbers, const std::string &what);

/// Entities by their numbers, or all; throws Failure for a number that the drawing lacks.
std::vector<std::size_t> chosenOrAll(const Drawing &drawing,
                                     const std::vector<std::size_t> &numbers);

/// Throws Failure where an output would take the drawing's place.
void refuseOverwriting(const std::string &file, const std::string &output);
/// Reads the drawing and tells on the error stream what it does not hold of its file. Throws
/// Failure where it holds nothing, too.
Drawing openDrawing(const CommonOptions &options);
/// The same, with the text that it was read from.
DxfFile openFile(const CommonOptions &options);

/// What programs are told of every drawing: its file, its entities, what was left out.
Json describe(const Drawing &drawing);
Json describe(const Drawing &drawing, std::size_t index);
void print(const Json &json);
/// An object with a list as its last member, which may be longer than memory is wide.
void printWithList(const Json &head, const std::string &name, std::size_t count,
                   const std::function<Json(std::size_t)> &element);

/// Pairs that the library leaves open are told on the error stream.
void tellUnknown(const Tally &pairs);
/// One layer for each kind that occurs, at least that of the crossings.
std::vector<ResultLayer> layersOf(const Crossings &crossings);
/// "31 crossings, 4 joints".
std::string summary(const std::vector<ResultLayer> &layers);

} // namespace draft
