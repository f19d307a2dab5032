/// Questions about arcs that other rooms ask too.
#pragma once

#include "circle/circle.h"

namespace planegeo {

/// An arc whose angles are radians.
struct RadianArc {
    Circle circle;
    double startRad;
    double endRad;
};

/// The arc turned anticlockwise about a pivot. Angles move at most one turn back into
/// [-2 pi, 2 pi]; a range without extent or of a whole turn becomes (0, 2 pi). A turn of at most
/// 1e-7 leaves all as it is.
RadianArc turned(const RadianArc &arc, Vec2 pivot, double turnRad);

} // namespace planegeo
