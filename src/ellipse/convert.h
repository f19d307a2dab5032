/// The names of a place on an ellipse (parameter, polar angle, point), and the axes that
/// conjugate semi-diameters define.
#pragma once

#include <optional>

#include "base/angle.h"
#include "ellipse/frame.h"

namespace planegeo {

/// Parameter of the point's ray in the ellipse's stretched plane, degrees, not reduced: from
/// -rotationDeg to 360 - rotationDeg. Nothing when an axis is shorter than errdist.
std::optional<double> parameterOfPoint(Vec2 point, const EllipseFrame &frame, double rotationDeg);

/// Whether no axis is shorter than errdist, so that there are parameters.
bool hasParameters(const EllipseFrame &frame);
/// The vector whose direction is the parameter of the point's ray, unless the frame is turned;
/// only where hasParameters().
Vec2 parameterRay(Vec2 point, const EllipseFrame &frame);

/// Polar angle of the point at a parameter, [0, 360]; full or half axes, both of one kind.
inline double polarOfParameter(double first, double second, double parameterDeg) {
    const Rotation parameter = Rotation::ofDegrees(parameterDeg);
    return directionDeg({first * parameter.c, second * parameter.s});
}

/// Parameter of the point at a polar angle, [0, 360].
double parameterOfPolar(double first, double second, double polarDeg);

/// Full axis lengths and the rotation of the first.
struct EllipseAxes {
    double first;
    double second;
    double rotationDeg;
};

/// Axes of the ellipse with the conjugate semi-diameters u and v, given from the centre; the
/// first is never the shorter, the rotation lies in [0, 450]. Nothing when u and v lie on one
/// line.
std::optional<EllipseAxes> axesOfConjugates(Vec2 u, Vec2 v);

/// The image of an ellipse under (x, y) -> (x, k y).
struct ScaledEllipse {
    EllipseFrame frame;
    EllipseAxes axes; ///< zeros when the image is flat
    /// Of the images of the arc's ends, not reduced; nothing when an axis of the image is
    /// shorter than errdist.
    std::optional<double> start;
    std::optional<double> end;
};

/// Nothing when an axis of the ellipse is not longer than errdist.
std::optional<ScaledEllipse> scaledAlongY(const DTELLIPSE &ellipse, double k);

/// The same with ends at 0 and 360, of an arc that is a whole turn before and after; nothing also
/// when an axis of the image is shorter than errdist.
std::optional<ScaledEllipse> wholeScaledAlongY(const DTELLIPSE &ellipse, double k);

} // namespace planegeo
