#include "spatial_index.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include <boost/geometry.hpp>
#include <boost/geometry/index/rtree.hpp>
#include <boost/iterator/function_output_iterator.hpp>

namespace draft {

namespace {

namespace geometry = boost::geometry;

using Point = geometry::model::point<double, 2, geometry::cs::cartesian>;
using Bounds = geometry::model::box<Point>;
using Item = std::pair<Bounds, std::uint32_t>;

constexpr std::size_t kNodeSize = 16;

Bounds boundsOf(const Box &box, double distance) {
    return {{box.minX - distance, box.minY - distance}, {box.maxX + distance, box.maxY + distance}};
}

} // namespace

struct SpatialIndex::Tree {
    geometry::index::rtree<Item, geometry::index::rstar<kNodeSize>> items;
};

SpatialIndex::SpatialIndex(const std::vector<Box> &boxes) {
    std::vector<Item> items;
    items.reserve(boxes.size());
    for (const Box &box : boxes)
        items.emplace_back(boundsOf(box, 0.0), static_cast<std::uint32_t>(items.size()));
    // Built from all at once the tree is packed.
    tree_.reset(new Tree{decltype(Tree::items)(items)});
}

SpatialIndex::~SpatialIndex() = default;

void SpatialIndex::find(const Box &box, double distance, std::vector<std::uint32_t> &out) const {
    out.clear();
    const auto collect = [&out](const Item &item) { out.push_back(item.second); };
    tree_->items.query(geometry::index::intersects(boundsOf(box, distance)),
                       boost::make_function_output_iterator(collect));
    std::sort(out.begin(), out.end());
}

std::vector<Box> boxesOf(const Drawing &drawing) {
    std::vector<Box> boxes;
    boxes.reserve(drawing.entities.size());
    for (const Entity &entity : drawing.entities)
        boxes.push_back(extentsOf(entity.shape));
    return boxes;
}

} // namespace draft
