// Degree trigonometry, the normalisation of arc ranges and the test whether they hold an angle.

#include "base/angle.h"

namespace planegeo {

double snappedDirectionRad(Vec2 v) {
    const bool flatX = std::fabs(v.x) < kAxisSnapLength;
    const bool flatY = std::fabs(v.y) < kAxisSnapLength;
    if (flatX && flatY) return 0.0;
    if (flatY && v.x > 0.0) return 0.0;
    if (flatX && v.y > 0.0) return 1.5707963267948966;
    if (flatY && v.x < 0.0) return kPi;
    if (flatX && v.y < 0.0) return 4.71238898038469;
    static constexpr double kTurn[] = {0.0, -kTwoPi}; // as in raisedIf()
    const double rad = std::atan2(v.y, v.x);
    return rad - kTurn[rad < 0.0];
}

double reducedByTurns(double deg) {
    if (deg > kReducedMaxDeg) {
        deg = deg < 720.0 ? deg - 360.0 : remainderOfTurns(deg);
        if (deg > kReducedMaxDeg) deg -= 360.0;
    } else if (deg < -kReducedMaxDeg) {
        deg = deg > -720.0 ? deg + 360.0 : remainderOfTurns(deg);
        if (deg < -kReducedMaxDeg) deg += 360.0;
    }
    return deg < 0.0 ? deg + 360.0 : deg;
}

double keeping360ByTurns(double deg) {
    if (deg > 360.0) {
        const double rest = remainderOfTurns(deg);
        return rest == 0.0 ? 360.0 : rest;
    }
    if (deg < 0.0) {
        const double rest = remainderOfTurns(deg);
        return rest < 0.0 ? rest + 360.0 : rest;
    }
    return deg;
}

} // namespace planegeo

namespace {

using namespace planegeo;

double clampedToUnit(double v) {
    if (v < -1.0) v = -1.0;
    if (v > 1.0) v = 1.0;
    return v; // a NaN passes
}

} // namespace

extern "C" {

double sind(double deg) { return std::sin(deg * kRadPerDeg); }
double cosd(double deg) { return std::cos(deg * kRadPerDeg); }
double tand(double deg) { return std::tan(deg * kRadPerDeg); }
double asind(double v) { return std::asin(clampedToUnit(v)) * kDegPerRad; }
double acosd(double v) { return std::acos(clampedToUnit(v)) * kDegPerRad; }
double atand(double v) { return std::atan(v) * kDegPerRad; }
double atan2d(double y, double x) { return directionDeg({x, y}); }

int32_t a2d_StdSedeg(double *start, double *end) {
    const auto [range, fullCircle] = AngleRange::normalised(*start, *end);
    *start = range.start;
    *end = range.end;
    return fullCircle ? 1 : 0;
}

int32_t a2d_ChkDegr(double start, double end, double angle) {
    return isOnArc(start, end, angle) ? 0 : 1;
}

void a2d_GetBedeg(int32_t dir1, int32_t dir2, double a, double b, double *out_start,
                  double *out_end) {
    const bool sameSense = dir1 == dir2;
    *out_start = sameSense ? a : b;
    *out_end = sameSense ? b : a;
}

} // extern "C"
