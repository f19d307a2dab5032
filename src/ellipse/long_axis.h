/// An elliptic arc seen from its longer axis, as chains of circular arcs are built.
#pragma once

#include <cmath>
#include <optional>
#include <utility>

#include "base/angle.h"
#include "base/settings.h"
#include "ellipse/frame.h"

namespace planegeo {

struct LongAxisArc {
    EllipseFrame frame; ///< its first axis is the longer one
    double rotationDeg;
    double startDeg; ///< parameters from the longer axis: the start in [0, 360],
    double endDeg;   ///< the end up to a turn above it
    bool isWholeTurn;

    /// Nothing when an axis is not above errdist or a number not finite.
    static std::optional<LongAxisArc> of(Vec2 center, double first, double second,
                                         double rotationDeg, AngleRange parameters) {
        const double sum = center.x + center.y + first + second + rotationDeg;
        if (!std::isfinite(sum + parameters.start + parameters.end)) return std::nullopt;
        const double shortest = std::fmax(distanceTolerance(), 0.0);
        if (!(first > shortest && second > shortest)) return std::nullopt;
        const AngleRange range = AngleRange::normalised(parameters.start, parameters.end).range;
        // Ends as near to each other across 0 are equal here as well.
        const double rest = range.end - range.start;
        const bool isWholeTurn = rest < kAngleSlackDeg || rest > 360.0 - kAngleSlackDeg;
        const double span = isWholeTurn ? 360.0 : rest;
        const double quarter = second > first ? 90.0 : 0.0;
        if (second > first) std::swap(first, second);
        const double start = reducedDeg(range.start - quarter);
        const double rotation = rotationDeg + quarter;
        return LongAxisArc{EllipseFrame::of(center, first, second, rotation), rotation, start,
                           start + span, isWholeTurn};
    }

    /// Two directions in the frame as the range of an arc in the plane, normalised.
    AngleRange placed(AngleRange directions) const {
        double start = reducedDeg(directions.start + rotationDeg);
        double end = start + (directions.end - directions.start);
        if (end > 360.0) {
            start -= 360.0;
            end -= 360.0;
        }
        return {start, end};
    }
};

} // namespace planegeo
