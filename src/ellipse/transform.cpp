// An ellipse as a whole moved: turned, mirrored, scaled along y, or grown to meet a point.
//
// The results may be written over the arguments: everything is read before the first store.

#include "base/settings.h"
#include "base/tolerance.h"
#include "ellipse/convert.h"

namespace {

using namespace planegeo;

/// An ellipse with its arc, as six separate outputs hold it.
struct LooseEllipse {
    Vec2 center;
    EllipseAxes axes;
    AngleRange parameters;

    void storeTo(DTPOINT *outCenter, double *a, double *b, double *rot, double *angles) const {
        store(center, outCenter);
        *a = axes.first;
        *b = axes.second;
        *rot = axes.rotationDeg;
        angles[0] = parameters.start;
        angles[1] = parameters.end;
    }
};

LooseEllipse turned(const LooseEllipse &e, Vec2 pivot, double angleDeg) {
    LooseEllipse out = e;
    out.center = pivot + Rotation::ofDegrees(angleDeg).apply(e.center - pivot);
    double rotation = e.axes.rotationDeg + angleDeg;
    // One turn at most on purpose.
    if (rotation < -kRotationSlackDeg) rotation += 360.0;
    if (rotation > kRotationMaxDeg) rotation -= 360.0;
    out.axes.rotationDeg = rotation;
    return out;
}

LooseEllipse mirroredInLine(const LooseEllipse &e, Vec2 through, Vec2 direction) {
    LooseEllipse out = e;
    // A mirror reverses the sense of travel: the ends exchange.
    out.parameters = {360.0 - e.parameters.end, 360.0 - e.parameters.start};
    if (out.parameters.start > kRotationMaxDeg || out.parameters.end > kRotationMaxDeg) {
        out.parameters.start -= 360.0;
        out.parameters.end -= 360.0;
    }
    out.center = mirrored(e.center, through, direction);
    Vec2 axis = {e.axes.first * 0.5, 0.0};
    if (!(std::fabs(e.axes.rotationDeg) < kMirroredTurnDeg)) {
        axis = Rotation::ofDegrees(e.axes.rotationDeg).apply(axis);
    }
    const Vec2 image = mirrored(axis, {0.0, 0.0}, direction);
    out.axes.rotationDeg = snappedDirectionRad(image) * kDegPerRad;
    return out;
}

/// The ellipse is measured along y = m x from the centre, m being the slope towards the point.
LooseEllipse grownTo(const LooseEllipse &e, Vec2 point) {
    const Vec2 offset = point - e.center;
    // Straight above or below the centre it is measured along the horizontal, on purpose.
    const double m = std::fabs(offset.x) < kSlopeVertical ? 0.0 : offset.y / offset.x;
    const double a = e.axes.first * 0.5;
    const double b = e.axes.second * 0.5;
    // On purpose turned by +rotation, the mirror of the way into the ellipse's frame.
    const Vec2 d = Rotation::ofDegrees(e.axes.rotationDeg).apply({1.0, m});
    const double k = std::sqrt(a * a * b * b / (a * a * d.y * d.y + b * b * d.x * d.x));
    const double reach = plainLength(Vec2{1.0, m} * k);
    const double distance = plainLength(offset);
    LooseEllipse out = e;
    out.axes.first = 2.0 * a * distance / reach;
    out.axes.second = 2.0 * b * distance / reach;
    return out;
}

} // namespace

extern "C" {

int32_t a2d_elp_trans(const DTELLIPSE *ellipse, double k, DTELLIPSE *result) {
    const auto image = scaledAlongY(*ellipse, k);
    if (!image) return -1;
    result->cx = image->frame.center.x;
    result->cy = image->frame.center.y;
    result->a = image->axes.first;
    result->b = image->axes.second;
    result->rot = image->axes.rotationDeg;
    if (!image->start || !image->end) return -1; // on purpose after the stores
    result->start = *image->start;
    result->end = *image->end;
    return 0;
}

int32_t ca_rvelp(const DTPOINT *center, double a, double b, double rot, const double *angles,
                 const DTPOINT *pivot, double angle, DTPOINT *out_center, double *out_a,
                 double *out_b, double *out_rot, double *out_angles) {
    const LooseEllipse e = {load(center), {a, b, rot}, {angles[0], angles[1]}};
    turned(e, load(pivot), angle).storeTo(out_center, out_a, out_b, out_rot, out_angles);
    return 0;
}

int32_t ca_vmelp(const DTPOINT *center, double a, double b, double rot, const double *angles,
                 const DTPOINT *line_p1, const DTPOINT *line_p2, DTPOINT *out_center, double *out_a,
                 double *out_b, double *out_rot, double *out_angles) {
    const LooseEllipse e = {load(center), {a, b, rot}, {angles[0], angles[1]}};
    const Vec2 through = load(line_p1);
    mirroredInLine(e, through, load(line_p2) - through)
        .storeTo(out_center, out_a, out_b, out_rot, out_angles);
    return 0;
}

int32_t ca_samel(const DTPOINT *center, double a, double b, double rot, const double *angles,
                 const DTPOINT *point, DTPOINT *out_center, double *out_a, double *out_b,
                 double *out_rot, double *out_angles) {
    const LooseEllipse e = {load(center), {a, b, rot}, {angles[0], angles[1]}};
    grownTo(e, load(point)).storeTo(out_center, out_a, out_b, out_rot, out_angles);
    return 0;
}

} // extern "C"
