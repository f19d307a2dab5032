/// An ellipse's own frame: origin at the centre, x along the first axis, y along the second.
#pragma once

#include "base/vec2.h"

namespace planegeo {

/// Angles run anticlockwise from the first axis. A parametric angle t names the local point
/// (halfFirst cos t, halfSecond sin t); the polar angle of a point is the direction of the ray
/// from the centre through it. The two agree on the axes only, unless the ellipse is a circle.
///
/// This is the one place that halves an axis: what is halved has `half` in its name.
struct EllipseFrame {
    Vec2 center;
    Rotation turn;
    double halfFirst;
    double halfSecond;

    static EllipseFrame of(Vec2 center, double first, double second, double rotationDeg) {
        return {center, Rotation::ofDegrees(rotationDeg), first * 0.5, second * 0.5};
    }
    static EllipseFrame of(const DTELLIPSE &e) { return of({e.cx, e.cy}, e.a, e.b, e.rot); }

    Vec2 toLocal(Vec2 point) const { return turn.undo(point - center); }
    Vec2 toPlane(Vec2 local) const { return turn.apply(local) + center; }

    Vec2 localAt(double parameterDeg) const {
        const Rotation parameter = Rotation::ofDegrees(parameterDeg);
        return {halfFirst * parameter.c, halfSecond * parameter.s};
    }
    Vec2 at(double parameterDeg) const { return toPlane(localAt(parameterDeg)); }
};

} // namespace planegeo
