// draft trim: takes out the piece of an entity between its crossings.

#include <iostream>
#include <limits>
#include <memory>
#include <numeric>

#include "commands/commands.h"
#include "commands/common.h"
#include "dxf_edit.h"
#include "failure.h"
#include "nearest.h"
#include "output_file.h"
#include "pairs.h"
#include "text.h"
#include "trim.h"

namespace draft {

namespace {

struct Options : CommonOptions {
    std::vector<double> picks;
    std::string picture;
};

std::size_t nearestEntity(const Drawing &drawing, DTPOINT point) {
    std::size_t nearest = 0;
    double distance = std::numeric_limits<double>::infinity();
    for (std::size_t i = 0; i < drawing.entities.size(); ++i) {
        const double here = nearestOn(drawing.entities[i].shape, point).distance;
        if (!(here < distance)) continue;
        nearest = i;
        distance = here;
    }
    return nearest;
}

/// What one pick did.
struct Step {
    std::size_t place; ///< of the entity, in the drawing as read
    Trim trim;
};

/// A drawing that shrinks pick by pick, and what that does to its file.
class Trimming {
  public:
    explicit Trimming(const DxfFile &file) : file_(file), drawing_(file.drawing) {
        places_.resize(drawing_.entities.size());
        std::iota(places_.begin(), places_.end(), std::size_t{0});
    }

    void trimAt(DTPOINT pick) {
        const std::size_t index = nearestEntity(drawing_, pick);
        const Entity picked = drawing_.entities[index];
        const std::size_t place = places_[index];
        const std::string name = label(file_.drawing, place);
        refuseCompounds(name, picked);
        auto trim = trimmed(picked.shape, cutsOf(index), pick);
        if (!trim) throw Failure(name + " has no piece that others cut off there");
        drawing_.entities[index].shape = trim->left.front();
        for (std::size_t i = 1; i < trim->left.size(); ++i) {
            drawing_.entities.push_back({trim->left[i], picked.layer, picked.source});
            places_.push_back(place);
        }
        steps_.push_back({place, std::move(*trim)});
        touched_.push_back(picked.source);
    }

    const Drawing &drawing() const { return drawing_; }
    const std::vector<Step> &steps() const { return steps_; }
    const Tally &unknown() const { return unknown_; }

    std::string text() const {
        Replacements replacements;
        for (const std::uint32_t source : touched_)
            replacements[source].clear();
        for (const Entity &entity : drawing_.entities) {
            const auto found = replacements.find(entity.source);
            if (found != replacements.end()) found->second.push_back(entity.shape);
        }
        return edited(file_, replacements);
    }

  private:
    /// Where the others cross an entity.
    std::vector<DTPOINT> cutsOf(std::size_t index) {
        std::vector<DTPOINT> cuts;
        const Shape &shape = drawing_.entities[index].shape;
        const Box box = extentsOf(shape);
        for (std::size_t i = 0; i < drawing_.entities.size(); ++i) {
            const Shape &other = drawing_.entities[i].shape;
            if (i == index || !areNear(box, extentsOf(other), ca_geterrdist())) continue;
            const Meeting meeting = meetingOf(shape, other);
            if (!meeting.known) ++unknown_[pairName(shape, other)];
            cuts.insert(cuts.end(), meeting.points.begin(), meeting.points.begin() + meeting.count);
        }
        return cuts;
    }

    void refuseCompounds(const std::string &name, const Entity &entity) const {
        switch (file_.sources[entity.source].kind) {
        case Source::Kind::entity:
            return;
        case Source::Kind::polyline:
            throw Failure(name + " is a part of a polyline, which cannot be trimmed");
        case Source::Kind::insert:
            throw Failure(name + " is a part of an inserted block, which cannot be trimmed");
        }
    }

    const DxfFile &file_;
    Drawing drawing_;
    std::vector<std::size_t> places_; ///< in the drawing as read, of each entity
    std::vector<Step> steps_;
    std::vector<std::uint32_t> touched_;
    Tally unknown_;
};

void printPlain(const Drawing &drawing, const Options &options, const std::vector<Step> &steps) {
    for (const Step &step : steps) {
        std::cout << label(drawing, step.place) << ": " << countedAs(step.trim.left.size(), "piece")
                  << " left\n";
    }
    std::cout << options.output << " is written\n";
}

void printJson(const Drawing &drawing, const Options &options, const std::vector<Step> &steps) {
    Json json = describe(drawing);
    json["output"] = options.output;
    json["trimmed"] = Json::array();
    for (const Step &step : steps) {
        Json trim = describe(drawing, step.place);
        trim["pieces_left"] = step.trim.left.size();
        json["trimmed"].push_back(std::move(trim));
    }
    print(json);
}

ResultLayer layerOf(const std::vector<Step> &steps) {
    ResultLayer layer{ResultKind::removed, "taken out", {}, {}};
    for (const Step &step : steps)
        layer.shapes.push_back(step.trim.removed);
    return layer;
}

void run(const Options &options) {
    if (options.picks.size() % 2 != 0) throw CLI::ValidationError("--pick: a pick is a point, X,Y");
    refuseOverwriting(options.file, options.picture);
    const DxfFile file = openFile(options);
    Trimming trimming(file);
    for (std::size_t i = 0; i < options.picks.size(); i += 2)
        trimming.trimAt({options.picks[i], options.picks[i + 1]});
    tellUnknown(trimming.unknown());
    if (!options.picture.empty())
        writeFile(options.picture, svgOf(trimming.drawing(), {layerOf(trimming.steps())}));
    writeFile(options.output, trimming.text());
    options.json ? printJson(file.drawing, options, trimming.steps())
                 : printPlain(file.drawing, options, trimming.steps());
}

} // namespace

void addTrim(CLI::App &app) {
    const auto options = std::make_shared<Options>();
    CLI::App *command =
        app.add_subcommand("trim", "Take out the picked piece of an entity between its crossings");
    command->add_option("--pick", options->picks, "a point near the piece; may be repeated")
        ->required()
        ->delimiter(',')
        ->allow_extra_args(false)
        ->option_text("X,Y (required)");
    addOutputOption(*command, *options, "the DXF file to write");
    command
        ->add_option("--picture", options->picture,
                     "also draw what is left and what was taken out into this SVG file")
        ->option_text("FILE");
    addCommonOptions(*command, *options);
    command->footer(
        "Lines, circles, arcs and ellipses can be trimmed, polylines and inserted blocks "
        "cannot.\nEverything else is preserved as it was read.\n"
        "Examples:\n"
        "  draft trim machine-part.dxf --pick 62,-5 -o trimmed.dxf\n"
        "  draft trim machine-part.dxf --pick 62,-5 --pick 12,55 -o trimmed.dxf "
        "--picture cuts.svg");
    command->callback([options] { run(*options); });
}

} // namespace draft
