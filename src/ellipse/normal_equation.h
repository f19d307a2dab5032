/// The equation of the normals to an ellipse, and of whatever else is stationary like a distance.
#pragma once

#include "base/vec2.h"

namespace planegeo {

/// u sin t - v cos t = k sin t cos t with u, v, k not negative; its solutions are unit vectors
/// (cos t, sin t).
///
/// They are the stationary directions of  k/2 cos^2 t - u cos t - v sin t,  which has its least
/// value in the first quadrant and its greatest in the third. Inside the evolute
/// u^(2/3) + v^(2/3) = k^(2/3) the fourth quadrant holds two more, from t = -90 on first a
/// minimum and then a maximum; outside the evolute it holds none.
struct NormalEquation {
    double k, u, v;
    double kLessU; ///< k - u, given apart: the caller may know it with less cancellation

    Vec2 least() const;
    /// The whole degree, 0 to 89, at or below t for least().
    int degreeOfLeast() const;
    Vec2 greatest() const;
    bool hasFour() const;
    /// The two of the fourth quadrant; only where hasFour().
    Vec2 secondMinimum() const;
    Vec2 secondMaximum() const;
};

} // namespace planegeo
