/// Where a point lies to an ellipse: on the arc, in a polar range, inside or outside.
#pragma once

#include <cstdint>

#include "base/angle.h"
#include "ellipse/frame.h"

namespace planegeo {

/// Sum of the distances of a point to the two foci, and the length of the longer axis: the sum
/// is that length on the curve, more outside, less inside. For positive axes.
struct FocalSum {
    double sum;
    double longAxis;

    double deviation() const { return std::fabs(longAxis - sum); }
    bool isOutside() const { return sum >= longAxis; }
};

FocalSum focalSum(Vec2 point, const EllipseFrame &frame, double rotationDeg);

/// Whether a polar range holds a direction; both are measured from the same axis and not
/// reduced. The slack is kPolarSlackDeg; an end below 0 is meant only where the start is too.
bool inPolarRange(AngleRange range, double directionDeg);

enum class OnEllipseArc : std::int32_t { yes = 0, no = 1, axisTooShort = -1 };

/// Whether a point lies on the curve within kFocalSumSlack and its direction between those of
/// the arc's ends, given by parameters (0 and 0 is the whole turn).
OnEllipseArc onEllipseArc(Vec2 point, const EllipseFrame &frame, double rotationDeg,
                          AngleRange parameters);

/// onEllipseArc() for several points of one arc.
class EllipticArc {
  public:
    EllipticArc(const EllipseFrame &frame, double rotationDeg, AngleRange parameters);
    OnEllipseArc holds(Vec2 point) const;
    /// The same of a point that is known to lie on the curve.
    bool isBetweenEnds(Vec2 point) const;

  private:
    EllipseFrame frame_;
    double rotationDeg_;
    Vec2 start_, end_; ///< rays to the ends, in the frame
    CoarseRange coarse_;
};

} // namespace planegeo
