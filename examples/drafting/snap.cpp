#include "snap.h"

#include <algorithm>
#include <array>
#include <tuple>

#include "nearest.h"
#include "pairs.h"
#include "perpendicular.h"
#include "tangents.h"

namespace draft {

namespace {

/// Boxes that also hold the centres, which may lie far from a short arc.
std::vector<Box> boxesWithCenters(const Drawing &drawing) {
    std::vector<Box> boxes = boxesOf(drawing);
    for (std::size_t i = 0; i < boxes.size(); ++i) {
        const Shape &shape = drawing.entities[i].shape;
        if (const auto *arc = std::get_if<DTARC>(&shape)) boxes[i].widen({arc->cx, arc->cy});
        if (const auto *e = std::get_if<DTELLIPSE>(&shape)) boxes[i].widen({e->cx, e->cy});
    }
    return boxes;
}

/// Collects the candidates of one question.
class Candidates {
  public:
    Candidates(DTPOINT at, double radius) : at_(at), radius_(radius) {}

    void add(SnapKind kind, DTPOINT p, std::size_t entity, std::optional<std::size_t> other = {}) {
        const double distance = ca_dstpt(&at_, &p);
        if (distance <= radius_) found_.push_back({kind, p, distance, entity, other});
    }

    /// Nearest first; of points of one kind at one place the first entity's alone.
    std::vector<Snap> sorted() {
        std::sort(found_.begin(), found_.end(), [](const Snap &a, const Snap &b) {
            return std::tie(a.distance, a.kind, a.entity) < std::tie(b.distance, b.kind, b.entity);
        });
        std::vector<Snap> kept;
        for (const Snap &snap : found_)
            if (!isRepeated(snap, kept)) kept.push_back(snap);
        return kept;
    }

  private:
    /// What lies together is equally far away, so that only the last ones can be meant.
    static bool isRepeated(const Snap &snap, const std::vector<Snap> &kept) {
        for (auto other = kept.rbegin(); other != kept.rend(); ++other) {
            if (snap.distance - other->distance > ca_geterrdist()) return false;
            if (other->kind == snap.kind && isTogether(other->at, snap.at)) return true;
        }
        return false;
    }

    DTPOINT at_;
    double radius_;
    std::vector<Snap> found_;
};

DTPOINT middleOf(const DTLINE &line) {
    return {(line.x1 + line.x2) / 2.0, (line.y1 + line.y2) / 2.0};
}
DTPOINT middleOf(const DTARC &arc) { return pointAt(arc, (arc.start + arc.end) / 2.0); }
/// By length, not by parameter.
DTPOINT middleOf(const DTELLIPSE &e) {
    constexpr int kPieces = 2;
    const DTPOINT center = {e.cx, e.cy};
    const std::array<double, 2> angles = {e.start, e.end};
    std::array<DTPOINT, kPieces> points{};
    double length = 0.0;
    // The second call releases the library's table.
    for (int k = 1; k <= kPieces; ++k) {
        a2d_elpdn(&center, e.a, e.b, e.rot, angles.data(), kPieces, k,
                  &points[static_cast<std::size_t>(k - 1)], &length);
    }
    return points[0];
}

/// The points that a shape has by itself.
struct OwnPoints {
    Candidates &candidates;
    std::size_t entity;

    void operator()(const DTLINE &line) const { addOpen(line); }
    template <typename Curve> void operator()(const Curve &curve) const {
        candidates.add(SnapKind::center, {curve.cx, curve.cy}, entity);
        for (const double deg : {0.0, 90.0, 180.0, 270.0}) {
            if (a2d_ChkDegr(curve.start, curve.end, deg) == 0)
                candidates.add(SnapKind::quadrant, pointAt(curve, deg), entity);
        }
        if (!isClosed(curve)) addOpen(curve);
    }

  private:
    template <typename Open> void addOpen(const Open &shape) const {
        const Ends ends = endsOf(shape);
        for (std::size_t i = 0; i < ends.count; ++i)
            candidates.add(SnapKind::end, ends.points[i], entity);
        candidates.add(SnapKind::middle, middleOf(shape), entity);
    }
};

void addFrom(Candidates &candidates, const Shape &shape, std::size_t entity, DTPOINT from) {
    for (const DTPOINT foot : perpendicularFeet(from, shape))
        candidates.add(SnapKind::perpendicular, foot, entity);
    for (const Tangent &tangent : tangentsFrom(from, shape))
        candidates.add(SnapKind::tangent, tangent.to, entity);
}

/// An entity that comes within the radius.
struct Crossable {
    std::uint32_t entity;
    Box extents;
};

void addIntersections(Candidates &candidates, const Drawing &drawing,
                      const std::vector<Crossable> &crossable) {
    for (std::size_t i = 0; i < crossable.size(); ++i) {
        for (std::size_t j = i + 1; j < crossable.size(); ++j) {
            const Crossable &first = crossable[i];
            const Crossable &second = crossable[j];
            if (!areNear(first.extents, second.extents, ca_geterrdist())) continue;
            const Meeting meeting = meetingOf(drawing.entities[first.entity].shape,
                                              drawing.entities[second.entity].shape);
            for (std::size_t k = 0; k < meeting.count; ++k) {
                candidates.add(SnapKind::intersection, meeting.points[k], first.entity,
                               second.entity);
            }
        }
    }
}

} // namespace

const char *nameOf(SnapKind kind) {
    constexpr std::array<const char *, kSnapKindCount> kNames = {
        "end",          "middle",        "centre",  "quadrant",
        "intersection", "perpendicular", "tangent", "nearest"};
    return kNames[static_cast<std::size_t>(kind)];
}

Snapper::Snapper(const Drawing &drawing) : drawing_(drawing), index_(boxesWithCenters(drawing)) {}

std::vector<Snap> Snapper::near(DTPOINT at, double radius, std::optional<DTPOINT> from) const {
    Candidates candidates(at, radius);
    std::vector<std::uint32_t> close;
    std::vector<Crossable> crossable;
    index_.find({at.x, at.y, at.x, at.y}, radius, close);
    for (const std::uint32_t i : close) {
        const Shape &shape = drawing_.entities[i].shape;
        std::visit(OwnPoints{candidates, i}, shape);
        if (from) addFrom(candidates, shape, i, *from);
        const Nearest nearest = nearestOn(shape, at);
        candidates.add(SnapKind::nearest, nearest.point, i);
        if (nearest.distance <= radius) crossable.push_back({i, extentsOf(shape)});
    }
    addIntersections(candidates, drawing_, crossable);
    return candidates.sorted();
}

} // namespace draft
