/// Directions of vectors and ranges of angles.
#pragma once

#include <cmath>

#include "base/pair.h"
#include "base/tolerance.h"
#include "base/vec2.h"

namespace planegeo {

/// An angle with a turn taken off, or added, where a condition holds that is anybody's guess: by a
/// table, as compilers would branch. Zero is subtracted otherwise, which keeps the sign of a zero.
inline double loweredIf(bool condition, double deg) {
    static constexpr double kTurn[] = {0.0, 360.0};
    return deg - kTurn[condition];
}
inline double raisedIf(bool condition, double deg) {
    static constexpr double kTurn[] = {0.0, -360.0};
    return deg - kTurn[condition];
}

/// Direction of a vector in degrees, [0, 360]; 0 for the zero vector.
///
/// The rounded sum decides: -1e-300 degrees gives exactly 360, and later tests for exactly
/// 360 rely on it.
inline double directionDeg(Vec2 v) {
    if (v.x == 0.0 && v.y == 0.0) return 0.0;
    const double deg = std::atan2(v.y, v.x) * kDegPerRad;
    return raisedIf(deg < 0.0, deg);
}

/// How far a coarse direction may be from directionDeg().
inline constexpr double kCoarseDeg = 0.04;

/// directionDeg() of two vectors to within kCoarseDeg, where it is not that near to 0; for tests
/// that it decides without an arc tangent. NaN where a vector is zero or not finite.
///
/// Of a level vector it is atan(y / x), of a steep one -atan(x / y), and 90, 180, 270 or 360 more.
/// The polynomial is that of least error for the arc tangent up to 1, 0.035 degrees. Inlined
/// always: pairs are handed over in memory.
[[gnu::always_inline]] inline Pair coarseDirectionDeg(Vec2Pair v) {
    constexpr Pair kNothing = {};
    const Pair x = magnitude(v.x), y = magnitude(v.y);
    const Pair t = (y > x ? -v.x : v.y) / (y > x ? v.y : v.x);
    Pair axis = y > x ? kNothing + 90.0 : kNothing;
    axis = magnitude((v.x < 0.0 ? kNothing + 180.0 : kNothing) - axis);
    axis = magnitude((v.y < 0.0 ? kNothing + 360.0 : kNothing) - axis);
    const Pair t2 = t * t;
    return axis + t * ((4.545792279387551 * t2 - 16.540732298214937) * t2 + 57.02980992695602);
}
inline double coarseDirectionDeg(Vec2 v) { return coarseDirectionDeg(twice(v))[0]; }

/// Whether a coarse direction is on the same side of an angle as the exact one.
inline bool isClearOf(double coarseDeg, double deg) {
    return std::fabs(coarseDeg - deg) > 2.0 * kCoarseDeg;
}

/// Whether it is clear of the ray where directions begin and end.
inline bool isClearOfZero(double coarseDeg) {
    return isClearOf(coarseDeg, 0.0) && isClearOf(coarseDeg, 360.0);
}

/// Whether two directions lie between first and last, last up to a turn above 360; as far as a
/// coarse look tells.
struct CoarseLook {
    Pair told = {1.0, 1.0};   ///< positive where inside tells something
    Pair inside = {1.0, 1.0}; ///< positive where the direction lies between

    CoarseLook() = default; ///< of a whole turn
    [[gnu::always_inline]] CoarseLook(Vec2Pair v, double first, double last) {
        if (!(first < last)) {
            told = Pair{};
            return;
        }
        const Pair coarse = coarseDirectionDeg(v);
        const Pair raised = coarse + (first > coarse ? Pair{360.0, 360.0} : Pair{});
        const Pair apartFromEnds = smaller(magnitude(coarse - first), magnitude(raised - last));
        const Pair apartFromZero = smaller(coarse, 360.0 - coarse);
        told = smaller(apartFromEnds, apartFromZero) - 2.0 * kCoarseDeg;
        inside = last - raised;
    }
};

/// Direction of a vector in radians, [0, 2 pi]; a component below kAxisSnapLength counts as zero.
double snappedDirectionRad(Vec2 v);

/// What is left of an angle after whole turns are taken off towards zero: the double that
/// repeated subtractions of 360 reach. Up to 2^56 each of them is exact (360 is a multiple
/// of the angle's last place), so the exact remainder equals their result; a zero comes out
/// positive, as from a subtraction. NaN for infinities.
inline double remainderOfTurns(double deg) { return std::fmod(deg, 360.0) + 0.0; }

/// Whether reducedDeg() leaves an angle as it is, apart from those just below 360.
inline bool isReduced(double deg) { return 0.0 <= deg && deg <= kReducedMaxDeg; }

/// reducedDeg() without its short cut.
[[gnu::noinline]] double reducedByTurns(double deg);

/// Reduction to [0, 360]: an angle in (kReducedMaxDeg, 360) goes down a turn and comes back
/// up by it, so that it keeps its value; a negative one that rounds up gives 360.
inline double reducedDeg(double deg) { return isReduced(deg) ? deg : reducedByTurns(deg); }

/// reducedKeeping360() without its short cut.
[[gnu::noinline]] double keeping360ByTurns(double deg);

/// The other reduction, to [0, 360]: 360 is subtracted while the angle exceeds 360 and added
/// while it is negative, so 360 stays 360.
inline double reducedKeeping360(double deg) {
    if (!(-360.0 < deg && deg < 720.0)) return keeping360ByTurns(deg);
    return loweredIf(deg > 360.0, raisedIf(deg < 0.0, deg));
}

/// How far apart two angles of one turn are, the shorter way round.
inline double angleBetween(double deg, double otherDeg) {
    const double apart = std::fabs(deg - otherDeg);
    return apart > 180.0 ? std::fabs(apart - 360.0) : apart;
}

/// The range of an arc, anticlockwise, degrees. Once normalised: end in (0, 360], end - start
/// in (0, 360], and a negative start marks a range that crosses 0.
struct AngleRange {
    double start;
    double end;

    struct Normalised;
    /// Both ends may be any finite angles; equal ones mean the full circle.
    static Normalised normalised(double start, double end);

    /// An end before the start counts a turn later, and the range a turn lower where its end is
    /// then above 360.
    AngleRange wrapped() const {
        constexpr Pair kTurn = {360.0, 360.0};
        const Pair starts = {start, start}, ends = {end, end};
        const Pair lasts = ends - (starts > ends ? -kTurn : Pair{});
        const Pair range = Pair{start, lasts[1]} - (lasts > 360.0 ? kTurn : Pair{});
        return {range[0], range[1]};
    }

    /// A normalised range that lacks less than kAngleSlackDeg of a turn holds every angle.
    bool isWholeTurn() const { return end - start > 360.0 - kAngleSlackDeg; }

    /// Whether a normalised range holds an angle, both ends with kAngleSlackDeg.
    bool contains(double angle) const {
        // At the wrap edge (a start just below 360, an end at 0) hardly anything is left of
        // the range; on purpose it then accepts every angle.
        if (std::fabs(end - start) < kAngleSlackDeg) return true;
        const double last = end + kAngleSlackDeg;
        const double first = start - kAngleSlackDeg;
        angle = reducedDeg(angle);
        angle = loweredIf(angle > last, angle);
        angle = raisedIf(first > angle, angle);
        return !(angle > last); // a NaN passes
    }

    /// contains(directionDeg(v)) of a normalised range.
    bool containsDirection(Vec2 v) const {
        if (isWholeTurn()) return true;
        const double coarse = coarseDirectionDeg(v);
        const double lowered = coarse > end ? coarse - 360.0 : coarse;
        if (isClearOfZero(coarse) && isClearOf(coarse, end) && isClearOf(lowered, start) &&
            end - start > kAngleSlackDeg) {
            return start < lowered;
        }
        return contains(directionDeg(v));
    }
};

struct AngleRange::Normalised {
    AngleRange range;
    bool fullCircle; ///< the two ends were equal within kAngleSlackDeg
};

inline AngleRange::Normalised AngleRange::normalised(double start, double end) {
    if (!(0.0 <= smaller(start, end) && larger(start, end) <= kReducedMaxDeg)) {
        start = reducedByTurns(start);
        end = reducedByTurns(end);
    }
    const bool equal = std::fabs(end - start) < kAngleSlackDeg;
    if (equal) end = start + 360.0;
    return {AngleRange{start, end}.wrapped(), equal};
}

/// reducedKeeping360() of both ends.
inline AngleRange reducedKeeping360(AngleRange range) {
    constexpr Pair kTurn = {360.0, 360.0};
    if (!(-360.0 < smaller(range.start, range.end) && larger(range.start, range.end) < 720.0)) {
        return {keeping360ByTurns(range.start), keeping360ByTurns(range.end)};
    }
    const Pair given = {range.start, range.end};
    const Pair ends = given - (given < 0.0 ? -kTurn : Pair{}) - (given > 360.0 ? kTurn : Pair{});
    return {ends[0], ends[1]};
}

/// Whether a component is so short that snappedDirectionRad() counts it as zero.
inline bool isSnapped(Vec2 v) {
    return std::fabs(v.x) < kAxisSnapLength || std::fabs(v.y) < kAxisSnapLength;
}

/// Whether a coarse direction less a rotation is clear of an angle, give or take whole turns.
inline bool isClearOfTurns(double coarseDeg, double deg) {
    const double apart = std::fabs(coarseDeg - deg);
    return isClearOf(apart, 0.0) && isClearOf(apart, 360.0) && isClearOf(apart, 720.0) &&
           apart < 1079.0;
}

/// The directions of the two ends of an arc, as far as a coarse look tells them.
struct CoarseRange {
    AngleRange range;
    bool isUsable; ///< neither snapped nor near 0, nor both the same

    static CoarseRange of(Vec2 startRay, Vec2 endRay) {
        const Pair coarse = coarseDirectionDeg(pairOf(startRay, endRay));
        const AngleRange range = {coarse[0], coarse[1]};
        const bool isUsable = !isSnapped(startRay) && !isSnapped(endRay) &&
                              isClearOfZero(range.start) && isClearOfZero(range.end) &&
                              isClearOf(range.start, range.end);
        return {range, isUsable};
    }
};

/// holds(range, deg) for the direction of a vector, less a rotation, by snappedDirectionRad() and
/// for the exact range. Its coarse look decides where the direction is clear of every angle at
/// which the answer changes: the ends of the range, and those of a turn.
template <class Exact, class Holds>
bool holdsSnappedDirection(Vec2 v, double rotationDeg, const CoarseRange &ends, Exact exactRange,
                           Holds holds) {
    const double coarse = coarseDirectionDeg(v) - rotationDeg;
    if (ends.isUsable && !isSnapped(v) && isClearOfTurns(coarse, 0.0) &&
        isClearOfTurns(coarse, ends.range.start) && isClearOfTurns(coarse, ends.range.end)) {
        return holds(ends.range, coarse);
    }
    return holds(exactRange(), snappedDirectionRad(v) * kDegPerRad - rotationDeg);
}

/// Whether an arc given by any two angles holds a third.
///
/// Within a turn it does where (angle - start)(end - angle)(end - start) is positive. No factor
/// exceeds 360, so where the product is far from zero, each of them is far from kAngleSlackDeg; an
/// angle near 360 might be as near to one at 0.
inline bool isOnArc(double start, double end, double angle) {
    constexpr double kClearProduct = 360.0 * 360.0 * 2.0 * kAngleSlackDeg;
    const auto isWithinTurn = [](double deg) { return 0.0 <= deg && deg <= 359.9999; };
    const double product = (angle - start) * (end - angle) * (end - start);
    if (isWithinTurn(start) && isWithinTurn(end) && isWithinTurn(angle) &&
        std::fabs(product) > kClearProduct) {
        return product > 0.0;
    }
    return AngleRange::normalised(start, end).range.contains(angle);
}

} // namespace planegeo
