// A place on a shape is a number that grows along it: from 0 to 1 on a line, from the start's to
// the end's angle on an arc.

#include "trim.h"

#include <algorithm>
#include <cmath>

#include "nearest.h"

namespace draft {

namespace {

constexpr double kFullTurnDeg = 360.0;

// That of curves stands beside that of lines below.
using draft::isClosed;

double startPlace(const DTLINE & /*line*/) { return 0.0; }
double endPlace(const DTLINE & /*line*/) { return 1.0; }
template <typename Curve> double startPlace(const Curve &curve) { return curve.start; }
template <typename Curve> double endPlace(const Curve &curve) { return curve.end; }

bool isClosed(const DTLINE & /*line*/) { return false; }

double placeOf(const DTLINE &line, DTPOINT p) {
    const double dx = line.x2 - line.x1;
    const double dy = line.y2 - line.y1;
    return ((p.x - line.x1) * dx + (p.y - line.y1) * dy) / (dx * dx + dy * dy);
}

/// The turn of a direction that lies in the range of a curve, or else next behind its start.
template <typename Curve> double inRange(const Curve &curve, double deg) {
    const double turns = std::floor((deg - curve.start) / kFullTurnDeg);
    return deg - turns * kFullTurnDeg;
}
double placeOf(const DTARC &arc, DTPOINT p) {
    return inRange(arc, atan2d(p.y - arc.cy, p.x - arc.cx));
}
double placeOf(const DTELLIPSE &e, DTPOINT p) {
    const DTPOINT center = {e.cx, e.cy};
    double deg = 0.0;
    a2d_elpdeg(&p, &center, e.a, e.b, e.rot, &deg);
    return inRange(e, deg);
}

DTPOINT pointAt(const DTLINE &line, double place) {
    return {line.x1 + (line.x2 - line.x1) * place, line.y1 + (line.y2 - line.y1) * place};
}

DTLINE part(const DTLINE &line, double from, double to) {
    DTLINE piece = line;
    if (from > 0.0) {
        const DTPOINT start = pointAt(line, from);
        piece.x1 = start.x;
        piece.y1 = start.y;
    }
    if (to < 1.0) {
        const DTPOINT end = pointAt(line, to);
        piece.x2 = end.x;
        piece.y2 = end.y;
    }
    return piece;
}
template <typename Curve> Curve part(const Curve &curve, double from, double to) {
    Curve piece = curve;
    piece.start = from;
    piece.end = to;
    a2d_StdSedeg(&piece.start, &piece.end);
    return piece;
}

/// Places of the cuts in rising order, without those at the ends of an open shape and without
/// repeats.
template <typename Curve>
std::vector<double> placesOf(const Curve &curve, const std::vector<DTPOINT> &cuts) {
    const Ends ends = endsOf(curve);
    std::vector<DTPOINT> kept;
    for (const DTPOINT cut : cuts) {
        const auto isHere = [&](DTPOINT p) { return isTogether(p, cut); };
        const bool isEnd =
            std::any_of(ends.points.begin(), ends.points.begin() + ends.count, isHere);
        if (!isEnd && std::none_of(kept.begin(), kept.end(), isHere)) kept.push_back(cut);
    }
    std::vector<double> places(kept.size());
    std::transform(kept.begin(), kept.end(), places.begin(),
                   [&](DTPOINT cut) { return placeOf(curve, cut); });
    std::sort(places.begin(), places.end());
    return places;
}

struct Trimmed {
    const std::vector<DTPOINT> &cuts;
    DTPOINT pick; ///< on the shape

    template <typename Curve> std::optional<Trim> operator()(const Curve &curve) const {
        const std::vector<double> places = placesOf(curve, cuts);
        const auto after = std::upper_bound(places.begin(), places.end(), placeOf(curve, pick));
        if (isClosed(curve)) return openedAt(curve, places, after);
        if (places.empty()) return {};
        const bool isFirst = after == places.begin();
        const bool isLast = after == places.end();
        const double from = isFirst ? startPlace(curve) : *(after - 1);
        const double to = isLast ? endPlace(curve) : *after;
        Trim trim{{}, part(curve, from, to)};
        if (!isFirst) trim.left.push_back(part(curve, startPlace(curve), from));
        if (!isLast) trim.left.push_back(part(curve, to, endPlace(curve)));
        return trim;
    }

  private:
    /// What is left runs from the cut after the pick round to the cut before it.
    template <typename Curve, typename Place>
    static std::optional<Trim> openedAt(const Curve &curve, const std::vector<double> &places,
                                        Place after) {
        if (places.size() < 2) return {};
        const double from = after != places.end() ? *after : places.front();
        const double before = after != places.begin() ? *(after - 1) : places.back();
        const auto behind = [](double place, double start) {
            return place > start ? place : place + kFullTurnDeg;
        };
        return Trim{{part(curve, from, behind(before, from))},
                    part(curve, before, behind(from, before))};
    }
};

} // namespace

std::optional<Trim> trimmed(const Shape &shape, const std::vector<DTPOINT> &cuts, DTPOINT pick) {
    return std::visit(Trimmed{cuts, nearestOn(shape, pick).point}, shape);
}

} // namespace draft
