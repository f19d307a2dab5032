// An ellipse as a tangent-continuous chain of circular arcs within a tolerance.
//
// The arc is divided at the ends of the axes into stretches of quadrants, each with a chain of
// its own; all of them are square to the axes there, so they join. Quadrants that are covered
// whole have one chain, mirrored, and the circle at the end of an axis goes on past it.

#include <algorithm>
#include <array>
#include <utility>

#include "base/tolerance.h"
#include "ellipse/arc_spline.h"
#include "ellipse/long_axis.h"

namespace {

using namespace planegeo;

/// Of a piece; finer chains take more than some hundredths of a second.
constexpr int kMostArcs = 512;
constexpr double kEpsilon = 0x1p-52;

/// A stretch of one quadrant, with its chain.
struct Piece {
    int quadrant; ///< 0 to 7, from the end of the long axis on
    Stretch stretch;
    ChainFit fit;
    bool goesOn; ///< its first arc continues the last one of the piece before

    /// In every other quadrant the flat end comes first.
    bool runsBack() const { return quadrant % 2 != 0; }
    /// Parameter of its sharp end.
    double sharpDeg() const { return 90.0 * (quadrant + (runsBack() ? 1 : 0)); }
};

struct Pieces {
    std::array<Piece, 5> at;
    std::size_t count;

    int arcs() const {
        int sum = 0;
        for (std::size_t i = 0; i < count; ++i) {
            sum += at[i].fit.arcs - (at[i].goesOn ? 1 : 0);
        }
        return sum;
    }
};

/// Parameter of the quadrant itself, exact at its ends.
double localRad(const Piece &piece, double deg) {
    const double local = std::fabs(deg - piece.sharpDeg());
    return local == 90.0 ? kHalfPi : local * kRadPerDeg;
}

/// The stretches of an arc. One so short that its angles would read as a whole circle goes, and
/// the chain of its neighbour is led on to the end.
Pieces piecesOf(const LongAxisArc &arc) {
    const double ratio = arc.frame.halfFirst / arc.frame.halfSecond;
    const double shortestDeg = std::fmin(kChainPieceDeg * ratio, (arc.endDeg - arc.startDeg) / 8.0);
    Pieces pieces = {};
    for (int quadrant = 0; quadrant < 8; ++quadrant) {
        const double from = std::fmax(arc.startDeg, 90.0 * quadrant);
        const double to = std::fmin(arc.endDeg, 90.0 * (quadrant + 1));
        if (!(to - from > shortestDeg)) continue;
        Piece &piece = pieces.at[pieces.count++];
        piece.quadrant = quadrant;
        const double one = localRad(piece, from);
        const double other = localRad(piece, to);
        piece.stretch = {std::fmin(one, other), std::fmax(one, other)};
    }
    return pieces;
}

/// The stretch with the circle of a neighbour at the end of an axis that they share.
Stretch besideNeighbour(const Quadrant &quadrant, const Piece &piece, const Piece &neighbour) {
    Stretch stretch = piece.stretch;
    const bool sharesFlatEnd = std::max(piece.quadrant, neighbour.quadrant) % 2 != 0;
    if (sharesFlatEnd) {
        stretch.flatCircle = quadrant.flatCircle(neighbour.fit.distance);
    } else {
        stretch.sharpCircle = quadrant.sharpCircle(neighbour.fit.distance);
    }
    return stretch;
}

/// An ellipse to be chained within a tolerance.
struct Task {
    Quadrant quadrant;
    double tolerance;

    std::optional<ChainFit> fit(const Stretch &stretch) const {
        return fitChain(quadrant, stretch, tolerance, kMostArcs);
    }
};

/// Fits a piece to go on with the circle of its neighbour, or on its own where that allows no
/// chain. False when it takes too many arcs.
bool fitBeside(const Task &task, const Piece &neighbour, Piece &piece, bool &goesOn) {
    const Stretch shared = besideNeighbour(task.quadrant, piece, neighbour);
    const auto goingOn = task.fit(shared);
    goesOn = goingOn.has_value();
    if (goesOn) piece.stretch = shared;
    const auto fit = goesOn ? goingOn : task.fit(piece.stretch);
    if (fit) piece.fit = *fit;
    return fit.has_value();
}

/// Fits the leading piece, with all that are whole quadrants like it, and then the others beside
/// them. Nothing when one takes too many arcs.
std::optional<Pieces> fitFrom(std::size_t leading, const Task &task, Pieces pieces) {
    const auto lead = task.fit(pieces.at[leading].stretch);
    if (!lead) return std::nullopt;
    pieces.at[leading].fit = *lead;
    for (std::size_t i = 0; i < pieces.count; ++i) {
        if (!pieces.at[i].stretch.isWhole()) continue;
        pieces.at[i].fit = *lead;
        pieces.at[i].goesOn = i > 0 && pieces.at[i - 1].stretch.isWhole();
    }
    for (std::size_t i = 0; i < pieces.count; ++i) {
        if (i == leading || pieces.at[i].stretch.isWhole()) continue;
        const std::size_t neighbour = i < leading ? i + 1 : i - 1;
        bool &goesOn = pieces.at[std::max(i, neighbour)].goesOn;
        if (!fitBeside(task, pieces.at[neighbour], pieces.at[i], goesOn)) return std::nullopt;
    }
    return pieces;
}

/// A whole quadrant leads. Around a single end of an axis either side may, for the fewer arcs.
std::optional<Pieces> fitPieces(const Task &task, const Pieces &pieces) {
    for (std::size_t i = 0; i < pieces.count; ++i) {
        if (pieces.at[i].stretch.isWhole()) return fitFrom(i, task, pieces);
    }
    const auto first = fitFrom(0, task, pieces);
    if (pieces.count == 1) return first;
    const auto second = fitFrom(1, task, pieces);
    if (!first) return second;
    return second && second->arcs() < first->arcs() ? second : first;
}

/// The caller's arrays; while a chain is built they hold it in the frame of the long axis.
struct Outputs {
    DTPOINT *centers;
    double *radii;
    double *angles;

    void set(std::size_t slot, const Circle &circle, AngleRange range) const {
        store(circle.center, &centers[slot]);
        radii[slot] = circle.r;
        angles[2 * slot] = range.start;
        angles[2 * slot + 1] = range.end;
    }
};

/// From the quadrant that runs from the sharp end to its place in the ellipse.
Arc mirroredBack(const Piece &piece, const RadianArc &arc) {
    const int quadrant = piece.quadrant % 4;
    const Vec2 c = arc.circle.center;
    const Circle circle = {
        {quadrant == 1 || quadrant == 2 ? -c.x : c.x, quadrant >= 2 ? -c.y : c.y}, arc.circle.r};
    const double start = arc.startRad * kDegPerRad;
    const double end = arc.endRad * kDegPerRad;
    const double sharp = piece.sharpDeg();
    if (piece.runsBack()) return {circle, {sharp - end, sharp - start}};
    return {circle, {sharp + start, sharp + end}};
}

void writePiece(const Quadrant &quadrant, const Piece &piece, std::size_t first,
                const Outputs &out) {
    ChainWalk walk(quadrant, piece.stretch, piece.fit);
    const auto arcs = static_cast<std::size_t>(piece.fit.arcs);
    for (std::size_t k = 0; k < arcs; ++k) {
        Arc arc = mirroredBack(piece, walk.next());
        const std::size_t slot = first + (piece.runsBack() ? arcs - 1 - k : k);
        if (piece.goesOn && slot == first) arc.range.start = out.angles[2 * slot];
        out.set(slot, arc.circle, arc.range);
    }
}

/// The direction from a circle's centre to a point of the ellipse that is near to another.
double directionNear(const LongAxisArc &arc, double parameterDeg, const DTPOINT &center,
                     double nearDeg) {
    const Vec2 offset = arc.frame.localAt(parameterDeg) - load(&center);
    return nearDeg + std::remainder(directionDeg(offset) - nearDeg, 360.0);
}

void writeChain(const Quadrant &quadrant, const Pieces &pieces, const LongAxisArc &arc,
                const Outputs &out) {
    std::size_t written = 0;
    for (std::size_t i = 0; i < pieces.count; ++i) {
        const Piece &piece = pieces.at[i];
        const std::size_t first = written - (piece.goesOn ? 1 : 0);
        writePiece(quadrant, piece, first, out);
        written = first + static_cast<std::size_t>(piece.fit.arcs);
    }
    const std::size_t last = written - 1;
    double &start = out.angles[0];
    double &end = out.angles[2 * last + 1];
    start = directionNear(arc, arc.startDeg, out.centers[0], start);
    end = directionNear(arc, arc.endDeg, out.centers[last], end);
}

/// From the frame of the long axis to the plane.
void placeChain(const LongAxisArc &arc, std::size_t arcs, const Outputs &out) {
    for (std::size_t k = 0; k < arcs; ++k) {
        const Vec2 center = arc.frame.toPlane(load(&out.centers[k]));
        const AngleRange range = arc.placed({out.angles[2 * k], out.angles[2 * k + 1]});
        out.set(k, {center, out.radii[k]}, range);
    }
}

/// One circle for the whole chain, where that is close enough.
std::optional<Arc> oneArc(const LongAxisArc &arc, const Task &task) {
    const Quadrant &quadrant = task.quadrant;
    if (arc.isWholeTurn) {
        if (!(quadrant.a - quadrant.b <= task.tolerance)) return std::nullopt;
        const Vec2 start = arc.frame.localAt(arc.startDeg);
        const double direction = directionDeg(start);
        return Arc{{{0.0, 0.0}, plainLength(start)}, {direction, direction + 360.0}};
    }
    const SingleArc single =
        singleArc(quadrant, arc.startDeg * kRadPerDeg, arc.endDeg * kRadPerDeg);
    if (!(single.distance <= task.tolerance)) return std::nullopt;
    const Vec2 center = single.circle.center;
    const double start = directionDeg(arc.frame.localAt(arc.startDeg) - center);
    double end = directionDeg(arc.frame.localAt(arc.endDeg) - center);
    if (end <= start) end += 360.0;
    return Arc{single.circle, {start, end}};
}

enum Code : int32_t { kDone = 0, kDegenerate = -1, kNoRoom = -2, kTooFine = -3 };

/// A whole turn is chained from the end of an axis at or before its start.
void startAtAxis(LongAxisArc &arc) {
    arc.startDeg = 90.0 * std::floor(arc.startDeg / 90.0);
    arc.endDeg = arc.startDeg + 360.0;
}

Code chainEllipse(LongAxisArc arc, double tolerance, const Outputs &out, uint16_t &count) {
    const Quadrant quadrant = {arc.frame.halfFirst, arc.frame.halfSecond};
    const double largestRadius = quadrant.a * (quadrant.a / quadrant.b);
    const auto room = std::exchange(count, uint16_t{0});
    tolerance = std::fmin(tolerance, quadrant.b);
    if (tolerance < kChainRounding * largestRadius) return kTooFine;
    const Task task = {quadrant, tolerance - 4.0 * kEpsilon * largestRadius};
    if (const auto one = oneArc(arc, task)) {
        count = 1;
        if (room < 1) return kNoRoom;
        out.set(0, one->circle, one->range);
        placeChain(arc, 1, out);
        return kDone;
    }
    if (arc.isWholeTurn) startAtAxis(arc);
    const auto pieces = fitPieces(task, piecesOf(arc));
    if (!pieces) return kTooFine;
    count = static_cast<uint16_t>(pieces->arcs());
    if (room < count) return kNoRoom;
    writeChain(quadrant, *pieces, arc, out);
    placeChain(arc, count, out);
    return kDone;
}

} // namespace

extern "C" {

int32_t ca_elip2(const DTPOINT *center, double a, double b, double rot, const double *angles,
                 double tol, DTPOINT *out_centers, double *out_radii, double *out_angles,
                 uint16_t *count) {
    const auto arc = LongAxisArc::of(load(center), a, b, rot, {angles[0], angles[1]});
    if (!arc || !(tol > 0.0)) {
        *count = 0;
        return kDegenerate;
    }
    return chainEllipse(*arc, tol, {out_centers, out_radii, out_angles}, *count);
}

} // extern "C"
