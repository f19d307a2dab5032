// Length along an ellipse and its inverse.

#include "ellipse/angle_at_length.h"

#include <algorithm>
#include <cmath>

namespace planegeo {

namespace {

constexpr double kMostHalfTurns = 400.0;
constexpr int kMostSteps = 8;

/// The angle whose length is so much of a quarter as `mean` is of a right angle, radians. With
/// n = (1 - b) / (1 + b), it leaves out terms like n^5.
double roughAngle(double b, double mean) {
    const double n = (1.0 - b) / (1.0 + b);
    const double n2 = n * n;
    const double sin2 = n * (1.0 / 2.0 - n2 * (9.0 / 32.0));
    const double sin4 = n2 * (5.0 / 16.0 - n2 * (37.0 / 96.0));
    const double sin6 = n2 * n * (29.0 / 96.0);
    const double sin8 = n2 * n2 * (539.0 / 1536.0);
    // Clenshaw: sin 2(k+1)m = 2 cos 2m sin 2km - sin 2(k-1)m.
    const Rotation twice = Rotation::ofRadians(2.0 * mean);
    const double c = 2.0 * twice.c;
    const double third = sin6 + c * sin8;
    const double second = sin4 + c * third - sin8;
    const double first = sin2 + c * second - third;
    return mean + twice.s * first;
}

} // namespace

double lengthAt(const UnitSpeed &arc, const Offset &at) {
    const double part = arc.lengthTo({at.turn.c, std::fabs(at.turn.s)});
    const double whole =
        at.halfTurns == 0 ? 0.0 : static_cast<double>(at.halfTurns) * arc.integralOfHalfTurn();
    return whole + std::copysign(part, at.turn.s);
}

// In the first quadrant, from the ellipse's end on, the speed f grows. With the rest r of the
// length, the next angle is where f + f' x / 2, the mean speed to first order, makes x as long:
//     x = 2 r / (f + sqrt(f^2 + 2 f' r)).
// It leaves less than x^3 / 6 (3 f'^2 / f + |f''|) < x^3 / b of the length.
std::optional<double> angleAtLength(const UnitSpeed &arc, double length, double precision) {
    const double halfTurn = arc.integralOfHalfTurn();
    const double halfTurns = std::nearbyint(length / halfTurn);
    if (!(std::fabs(halfTurns) <= kMostHalfTurns)) return std::nullopt;
    const double offset = length - halfTurns * halfTurn;
    const double wanted = std::fabs(offset);
    const double b = arc.b();
    double rad = std::clamp(roughAngle(b, kPi * wanted / halfTurn), 0.0, 0.5 * kPi);
    for (int i = 0; i < kMostSteps; ++i) {
        const Rotation u = Rotation::ofRadians(rad);
        const double rest = wanted - arc.lengthTo(u);
        const double g = arc.square(u);
        const double speed = std::sqrt(g);
        const double slope = arc.bend(u) / speed;
        const double step = 2.0 * rest / (speed + std::sqrt(std::max(0.0, g + 2.0 * slope * rest)));
        rad = std::clamp(rad + step, 0.0, 0.5 * kPi);
        if (std::fabs(step * step * step) < precision * b) {
            return 180.0 * halfTurns + std::copysign(rad * kDegPerRad, offset);
        }
    }
    return std::nullopt;
}

} // namespace planegeo
