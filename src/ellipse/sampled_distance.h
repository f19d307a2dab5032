/// The nearest sample of an elliptic arc.
#pragma once

#include "base/angle.h"
#include "ellipse/frame.h"

namespace planegeo {

struct SampledNearest {
    double distance;
    Vec2 point; ///< in the plane; a coordinate below kSampleSnapLength is zero
};

/// The nearest of the samples of an arc at whole degrees of the parameter and then at tenths
/// about that; the point itself, at distance 0, where it lies on the arc.
SampledNearest sampledNearest(Vec2 point, const EllipseFrame &ellipse, double rotationDeg,
                              AngleRange parameters);

} // namespace planegeo
