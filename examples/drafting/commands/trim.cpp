// draft trim: takes out the piece of an entity between its crossings.

#include <algorithm>
#include <iostream>
#include <limits>
#include <memory>

#include "commands/commands.h"
#include "commands/common.h"
#include "dxf_edit.h"
#include "failure.h"
#include "nearest.h"
#include "output_file.h"
#include "pairs.h"
#include "spatial_index.h"
#include "text.h"
#include "trim.h"

namespace draft {

namespace {

struct Options : CommonOptions {
    std::vector<double> picks;
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

/// Where the others cross an entity.
std::vector<DTPOINT> cutsOf(const Drawing &drawing, std::size_t index) {
    std::vector<DTPOINT> cuts;
    const Shape &shape = drawing.entities[index].shape;
    const Box box = extentsOf(shape);
    for (std::size_t i = 0; i < drawing.entities.size(); ++i) {
        const Shape &other = drawing.entities[i].shape;
        if (i == index || !areNear(box, extentsOf(other), ca_geterrdist())) continue;
        const Meeting meeting = meetingOf(shape, other);
        cuts.insert(cuts.end(), meeting.points.begin(), meeting.points.begin() + meeting.count);
    }
    return cuts;
}

/// A drawing that shrinks pick by pick, and what that does to its file.
class Trimming {
  public:
    explicit Trimming(DxfFile &file) : file_(file), drawing_(file.drawing) {}

    void trimAt(DTPOINT pick) {
        const std::size_t index = nearestEntity(drawing_, pick);
        const Entity picked = drawing_.entities[index];
        const std::string name = label(drawing_, index);
        refuseCompounds(name, picked);
        const auto left = trimmed(picked.shape, cutsOf(drawing_, index), pick);
        if (!left) throw Failure(name + " has no piece that others cut off there");
        drawing_.entities[index].shape = left->front();
        for (std::size_t i = 1; i < left->size(); ++i)
            drawing_.entities.push_back({(*left)[i], picked.layer, picked.source});
        touched_.push_back(picked.source);
        std::cout << name << ": " << countedAs(left->size(), "piece") << " left\n";
    }

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

    DxfFile &file_;
    Drawing &drawing_;
    std::vector<std::uint32_t> touched_;
};

void run(const Options &options) {
    if (options.picks.size() % 2 != 0) throw Failure("a pick is a point, X,Y");
    DxfFile file = openFile(options.file);
    if (file.drawing.entities.empty()) throw Failure("there is nothing to trim");
    Trimming trimming(file);
    for (std::size_t i = 0; i < options.picks.size(); i += 2)
        trimming.trimAt({options.picks[i], options.picks[i + 1]});
    writeFile(options.output, trimming.text());
    std::cout << options.output << " is written\n";
}

} // namespace

void addTrim(CLI::App &app) {
    const auto options = std::make_shared<Options>();
    CLI::App *command =
        app.add_subcommand("trim", "Take out the picked piece of an entity between its crossings");
    addFileArgument(*command, *options);
    command->add_option("--pick", options->picks, "a point X,Y near the piece; may be repeated")
        ->required()
        ->delimiter(',')
        ->allow_extra_args(false);
    command->add_option("-o,--output", options->output, "the DXF file to write")->required();
    command->footer("Everything else is preserved as it was read.\n"
                    "Example: draft trim machine-part.dxf --pick 62,-5 -o trimmed.dxf");
    command->callback([options] { run(*options); });
}

} // namespace draft
