/// Circles, arcs, and the up to two points in which they meet something.
#pragma once

#include "base/angle.h"
#include "base/vec2.h"

namespace planegeo {

struct Circle {
    Vec2 center;
    double r;

    Vec2 at(Rotation turn) const { return center + r * Vec2{turn.c, turn.s}; }
};

struct Arc {
    Circle circle;
    AngleRange range; ///< as the caller gave it, unless a function says otherwise
};

inline AngleRange loadRange(const double *angles) { return {angles[0], angles[1]}; }

/// No, one or two points in the order of the question that found them.
struct PointPair {
    Vec2 at[2];
    int count;

    void push(Vec2 point) { at[count++] = point; }

    /// The points for which `keeps` holds, in their order.
    template <class Keeps> PointPair keptWhere(Keeps keeps) const {
        PointPair kept{};
        for (int i = 0; i < count; ++i) {
            if (keeps(at[i])) kept.push(at[i]);
        }
        return kept;
    }
};

/// storePadded() of those of two points that are kept, without a branch on which; their number.
/// Coordinates are written and read one by one: processors wait where a read unites two writes.
inline int storeKept(Vec2Pair points, bool keepsFirst, bool keepsSecond, DTPOINT *out1,
                     DTPOINT *out2) {
    static constexpr int kCounts[] = {0, 1, 1, 2}, kFirst[] = {2, 0, 1, 0}, kLast[] = {2, 0, 1, 1};
    const int kept = (keepsFirst ? 1 : 0) + (keepsSecond ? 2 : 0);
    const double x[] = {points.x[0], points.x[1], 0.0}, y[] = {points.y[0], points.y[1], 0.0};
    store({x[kFirst[kept]], y[kFirst[kept]]}, out1);
    store({x[kLast[kept]], y[kLast[kept]]}, out2);
    return kCounts[kept];
}

/// Both outputs are written always: (0, 0) without a point, a single point twice.
inline void storePadded(const PointPair &points, DTPOINT *out1, DTPOINT *out2) {
    const Vec2 first = points.count > 0 ? points.at[0] : Vec2{0.0, 0.0};
    store(first, out1);
    store(points.count > 1 ? points.at[1] : first, out2);
}

} // namespace planegeo
