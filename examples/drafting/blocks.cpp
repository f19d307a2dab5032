#include "blocks.h"

#include "failure.h"

namespace draft {

namespace {

/// Drawings nest a few blocks deep; one that holds itself never ends.
constexpr int kDeepest = 32;
/// Grids of grids grow without bound, so unfolding counts its steps.
constexpr std::size_t kMostSteps = 20'000'000;
/// Entities on this layer of a block take the layer of the insert.
constexpr std::uint32_t kLayerZero = 0;

class Unfolding {
  public:
    Unfolding(const Blocks &blocks, const TallyByBlock &leftOut, Drawing &drawing)
        : blocks_(blocks), leftOut_(leftOut), drawing_(drawing) {}

    void addDrawing() {
        countLeftOut("");
        const auto itself = blocks_.find("");
        if (itself != blocks_.end()) addItems(itself->second, {Affine{}, kLayerZero, kNowhere, 1});
    }

  private:
    /// Where the contents of a block go.
    struct Place {
        Affine affine;
        std::uint32_t layer;
        std::uint32_t source; ///< of the outermost insert
        int depth;

        std::uint32_t layerOf(std::uint32_t own) const { return own == kLayerZero ? layer : own; }
        std::uint32_t sourceOf(std::uint32_t own) const { return own == kNowhere ? source : own; }
    };

    void addItems(const Block &block, const Place &place) {
        for (const auto &item : block.items) {
            countStep();
            std::visit([&](const auto &kind) { add(kind, place); }, item);
        }
    }

    void add(const Entity &entity, const Place &place) {
        drawing_.entities.push_back({placed(entity.shape, place.affine),
                                     place.layerOf(entity.layer), place.sourceOf(entity.source)});
    }

    void add(const std::unique_ptr<Polyline> &polyline, const Place &place) {
        drawing_.outlines.push_back(
            {drawing_.entities.size(), polyline->segments.size(), polyline->closed});
        for (const Shape &segment : polyline->segments) {
            countStep();
            add(Entity{segment, polyline->layer, polyline->source}, place);
        }
    }

    void add(const std::unique_ptr<Insert> &insert, const Place &place) {
        const auto block = blocks_.find(insert->block);
        if (block == blocks_.end()) {
            ++drawing_.leftOut["INSERT of a block that the file lacks"];
        } else if (place.depth > kDeepest) {
            ++drawing_.leftOut["INSERT nested more than " + std::to_string(kDeepest) + " deep"];
        } else {
            addGrid(*insert, block->second, place);
        }
    }

    void addGrid(const Insert &insert, const Block &block, const Place &place) {
        const Affine outer = place.affine * insert.outer;
        const Affine inner = insert.inner * Affine::move(-block.base.x, -block.base.y);
        for (int row = 0; row < insert.rows; ++row) {
            for (int column = 0; column < insert.columns; ++column) {
                const Affine cell = Affine::move(column * insert.columnStep, row * insert.rowStep);
                countStep();
                countLeftOut(insert.block);
                addItems(block, {outer * cell * inner, place.layerOf(insert.layer),
                                 place.sourceOf(insert.source), place.depth + 1});
            }
        }
    }

    void countLeftOut(const std::string &block) {
        const auto found = leftOut_.find(block);
        if (found == leftOut_.end()) return;
        for (const auto &[kind, count] : found->second)
            drawing_.leftOut[kind] += count;
    }

    void countStep() {
        if (++steps_ > kMostSteps) throw Failure("its blocks unfold into too many entities");
    }

    const Blocks &blocks_;
    const TallyByBlock &leftOut_;
    Drawing &drawing_;
    std::size_t steps_ = 0;
};

} // namespace

void unfold(const Blocks &blocks, const TallyByBlock &leftOut, Drawing &drawing) {
    Unfolding(blocks, leftOut, drawing).addDrawing();
}

} // namespace draft
