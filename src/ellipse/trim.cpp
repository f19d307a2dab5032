// The end of an ellipse to keep where it is cut by the same ellipse.

#include "base/angle.h"
#include "base/settings.h"
#include "ellipse/frame.h"

namespace {

using namespace planegeo;

bool isReversed(const DTELLIPSE &e) { return (e.attr & PLANEGEO_ATTR_REVERSED) != 0; }
bool isClockwise(const DTELLIPSE &e) { return (e.attr & PLANEGEO_ATTR_CLOCKWISE) != 0; }

/// Same centre, axes and direction. On purpose the axes are not exchanged: circles whose
/// rotations differ by 90 degrees are not the same.
bool isSameEllipse(const DTELLIPSE &e1, const DTELLIPSE &e2) {
    const double tolerance = distanceTolerance();
    const bool sameSize = isWithinBox({e1.cx - e2.cx, e1.cy - e2.cy}, tolerance) &&
                          isWithinBox({e1.a - e2.a, e1.b - e2.b}, tolerance);
    const double turn = std::fabs(e1.rot - e2.rot);
    return sameSize && (turn < kSameRotationDeg || std::fabs(turn - 180.0) < kSameRotationDeg);
}

/// The range of the cutting ellipse is taken from its end when exactly one bit is set.
bool isOnArcOf(const DTELLIPSE &cut, double planeDeg) {
    const bool reversed = isReversed(cut) != isClockwise(cut);
    const double from = reversed ? cut.end : cut.start;
    const double to = reversed ? cut.start : cut.end;
    return isOnArc(from + cut.rot, to + cut.rot, planeDeg);
}

} // namespace

extern "C" {

int32_t a2d_InsDe(const DTELLIPSE *e1, const DTELLIPSE *e2, DTPOINT *out) {
    if (!isSameEllipse(*e1, *e2)) return -1;
    double end;
    if (std::fabs(e2->end - e2->start - 360.0) < kFullEllipseDeg) {
        // A full ellipse keeps the end that e1's bit tells; the flag has no say here, on purpose.
        end = isReversed(*e1) ? e1->start : e1->end;
    } else {
        end = keepsStart() == isReversed(*e1) ? e1->end : e1->start;
        if (!isOnArcOf(*e2, end + e1->rot)) return 0;
    }
    store(EllipseFrame::of(*e1).at(end), out);
    return 1;
}

} // extern "C"
