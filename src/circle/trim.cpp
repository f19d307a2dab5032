// Places along an arc: at a distance from its start, and the end to keep at a cut.

#include "base/settings.h"
#include "circle/circle.h"

namespace {

using namespace planegeo;

Arc load(const DTARC *arc) { return {{{arc->cx, arc->cy}, arc->r}, {arc->start, arc->end}}; }

bool areOneCircle(const Circle &one, const Circle &other) {
    return isWithinBox(one.center - other.center, distanceTolerance()) &&
           std::fabs(one.r - other.r) < distanceTolerance();
}

/// Equal angles are no full circle here.
bool isFullCut(AngleRange range) {
    return std::fabs(range.end - range.start - 360.0) < kFullCutSlackDeg;
}

bool isReversed(uint32_t attr) { return (attr & PLANEGEO_ATTR_REVERSED) != 0; }
bool isClockwise(uint32_t attr) { return (attr & PLANEGEO_ATTR_CLOCKWISE) != 0; }

bool holds(const DTARC *cut, double deg) {
    const bool fromEnd = isReversed(cut->attr) != isClockwise(cut->attr);
    return fromEnd ? isOnArc(cut->end, cut->start, deg) : isOnArc(cut->start, cut->end, deg);
}

} // namespace

extern "C" {

int32_t ca_DistAlongbyArcFromSpnt(const DTPOINT *center, double r, double start, double end,
                                  double dist, double *ang) {
    if (center == nullptr || ang == nullptr) return 0;
    if (dist < 0.0 || r <= 0.0 || start > end || end - start > 360.0) return 0;
    const double length = kPi * r * (end - start) / 180.0;
    *ang = dist >= length ? end : dist * 180.0 / (kPi * r) + start;
    return 1;
}

int32_t a2d_InsDc(const DTARC *elem, const DTARC *cut, DTPOINT *out) {
    const Arc element = load(elem);
    const Arc cutting = load(cut);
    if (!areOneCircle(element.circle, cutting.circle)) return -1;
    // A full circle does not ask the flag: the end is kept.
    const bool full = isFullCut(cutting.range);
    const bool startIsKept = keepsStart() && !full;
    const bool takesStart = startIsKept != isReversed(elem->attr);
    const double deg = takesStart ? element.range.start : element.range.end;
    if (!full && !holds(cut, deg)) return 0;
    store(element.circle.at(Rotation::ofRadians(deg / 180.0 * kPi)), out);
    return 1;
}

} // extern "C"
