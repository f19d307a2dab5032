#include "crossings.h"

#include <algorithm>

#include "pairs.h"

namespace draft {

namespace {

/// Boxes are asked whether they come nearer than the distance at which shapes still touch.
bool areNear(const Box &a, const Box &b) {
    const double slack = ca_geterrdist();
    return a.minX <= b.maxX + slack && b.minX <= a.maxX + slack && a.minY <= b.maxY + slack &&
           b.minY <= a.maxY + slack;
}

std::string pairName(const Shape &a, const Shape &b) {
    const Kind low = std::min(kindOf(a), kindOf(b));
    const Kind high = std::max(kindOf(a), kindOf(b));
    return std::string(nameOf(low)) + " with " + nameOf(high);
}

bool endsAt(const Shape &shape, DTPOINT p) {
    const Ends ends = endsOf(shape);
    for (std::size_t i = 0; i < ends.count; ++i)
        if (isTogether(ends.points[i], p)) return true;
    return false;
}

void addPair(const Drawing &drawing, std::size_t i, std::size_t j, Crossings &crossings) {
    const Shape &first = drawing.entities[i].shape;
    const Shape &second = drawing.entities[j].shape;
    const Meeting meeting = meetingOf(first, second);
    if (!meeting.known) ++crossings.unknown[pairName(first, second)];
    for (std::size_t k = 0; k < meeting.count; ++k) {
        const DTPOINT at = meeting.points[k];
        const bool isJoint = endsAt(first, at) && endsAt(second, at);
        const CrossingKind kind = meeting.overlaps ? CrossingKind::overlap
                                  : isJoint        ? CrossingKind::joint
                                                   : CrossingKind::crossing;
        crossings.found.push_back({i, j, at, kind});
    }
}

} // namespace

const char *nameOf(CrossingKind kind) {
    switch (kind) {
    case CrossingKind::crossing:
        return "crossing";
    case CrossingKind::joint:
        return "joint";
    case CrossingKind::overlap:
        return "overlap";
    }
    return "";
}

Crossings crossingsOf(const Drawing &drawing) {
    Crossings crossings;
    std::vector<Box> boxes;
    boxes.reserve(drawing.entities.size());
    for (const Entity &entity : drawing.entities)
        boxes.push_back(extentsOf(entity.shape));
    for (std::size_t i = 0; i < boxes.size(); ++i) {
        for (std::size_t j = i + 1; j < boxes.size(); ++j)
            if (areNear(boxes[i], boxes[j])) addPair(drawing, i, j, crossings);
    }
    return crossings;
}

} // namespace draft
