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
        if (itself == blocks_.end()) return;
        for (const auto &item : itself->second.items) {
            if (const auto *insert = std::get_if<Insert>(&item)) {
                addInsert(*insert, Affine{}, insert->layer, 1);
            } else {
                drawing_.entities.push_back(std::get<Entity>(item));
            }
        }
    }

  private:
    void addInsert(const Insert &insert, const Affine &outer, std::uint32_t layer, int depth) {
        const auto block = blocks_.find(insert.block);
        if (block == blocks_.end()) {
            ++drawing_.leftOut["INSERT of a block that the file lacks"];
        } else if (depth > kDeepest) {
            ++drawing_.leftOut["INSERT nested more than " + std::to_string(kDeepest) + " deep"];
        } else {
            addGrid(insert, block->second, outer * insert.outer, layer, depth);
        }
    }

    void addGrid(const Insert &insert, const Block &block, const Affine &outer, std::uint32_t layer,
                 int depth) {
        const Affine toCell = insert.inner * Affine::move(-block.base.x, -block.base.y);
        for (int row = 0; row < insert.rows; ++row) {
            for (int column = 0; column < insert.columns; ++column) {
                const Affine cell = Affine::move(column * insert.columnStep, row * insert.rowStep);
                countLeftOut(insert.block);
                addBlock(block, outer * cell * toCell, layer, depth);
            }
        }
    }

    void addBlock(const Block &block, const Affine &affine, std::uint32_t layer, int depth) {
        countStep();
        for (const auto &item : block.items) {
            countStep();
            if (const auto *insert = std::get_if<Insert>(&item)) {
                addInsert(*insert, affine, layerOf(insert->layer, layer), depth + 1);
            } else {
                const Entity &entity = std::get<Entity>(item);
                drawing_.entities.push_back(
                    {placed(entity.shape, affine), layerOf(entity.layer, layer)});
            }
        }
    }

    static std::uint32_t layerOf(std::uint32_t own, std::uint32_t insert) {
        return own == kLayerZero ? insert : own;
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
