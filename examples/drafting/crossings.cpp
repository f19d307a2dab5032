#include "crossings.h"

#include <algorithm>

#include "pairs.h"
#include "parallel.h"
#include "progress.h"
#include "spatial_index.h"

namespace draft {

namespace {

/// Entities whose pairs one thread looks at in a row.
constexpr std::size_t kChunk = 512;

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

void addPairsOf(const Drawing &drawing, std::size_t i, const Box &box, const SpatialIndex &index,
                Crossings &crossings) {
    thread_local std::vector<std::uint32_t> near;
    // Shapes whose boxes are apart by less than errdist still touch.
    index.find(box, ca_geterrdist(), near);
    for (auto j = std::upper_bound(near.begin(), near.end(), i); j != near.end(); ++j)
        addPair(drawing, i, *j, crossings);
}

Crossings joined(std::vector<Crossings> &chunks) {
    std::size_t total = 0;
    for (const Crossings &chunk : chunks)
        total += chunk.found.size();
    Crossings all;
    all.found.reserve(total);
    for (Crossings &chunk : chunks) {
        all.found.insert(all.found.end(), chunk.found.begin(), chunk.found.end());
        for (const auto &[pair, count] : chunk.unknown)
            all.unknown[pair] += count;
        chunk = {};
    }
    return all;
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
    const std::vector<Box> boxes = boxesOf(drawing);
    const SpatialIndex index(boxes);
    const std::size_t count = boxes.size();
    std::vector<Crossings> chunks((count + kChunk - 1) / kChunk);
    Progress progress("crossings", count);
    inParallel(chunks.size(), [&](std::size_t chunk) {
        const std::size_t end = std::min(count, (chunk + 1) * kChunk);
        for (std::size_t i = chunk * kChunk; i < end; ++i)
            addPairsOf(drawing, i, boxes[i], index, chunks[chunk]);
        progress.add(kChunk);
    });
    return joined(chunks);
}

} // namespace draft
