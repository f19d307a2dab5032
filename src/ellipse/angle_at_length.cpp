// Length along an ellipse and its inverse.

#include "ellipse/angle_at_length.h"

#include <algorithm>
#include <cmath>

namespace planegeo {

namespace {

constexpr double kMostHalfTurns = 400.0;
constexpr int kMostSteps = 8;

} // namespace

double lengthAt(const UnitSpeed &arc, double deg) {
    const Offset at = Offset::ofDegrees(deg);
    const double part = arc.lengthTo({at.turn.c, std::fabs(at.turn.s)});
    const double whole =
        at.halfTurns == 0 ? 0.0 : static_cast<double>(at.halfTurns) * arc.integralOfHalfTurn();
    return whole + std::copysign(part, at.turn.s);
}

// In the first quadrant, from the ellipse's end on, the speed f grows. With the rest r of the
// length, the next angle is where f + f' x / 2, the mean speed to first order, makes x as long:
//     x = 2 r / (f + sqrt(f^2 + 2 f' r)).
// It leaves less than x^3 / 6 (3 f'^2 / f + |f''|) < x^3 / b of the length.
std::optional<AngleAtLength> angleAtLength(const UnitSpeed &arc, double length, double precision) {
    const double halfTurn = arc.integralOfHalfTurn();
    const double halfTurns = std::nearbyint(length / halfTurn);
    if (!(std::fabs(halfTurns) <= kMostHalfTurns)) return std::nullopt;
    const double offset = length - halfTurns * halfTurn;
    const double wanted = std::fabs(offset);
    const double b = arc.b();
    const double focal2 = (1.0 - b) * (1.0 + b);
    const double mean = kPi * wanted / halfTurn;
    double rad = mean + 0.5 * (1.0 - b) / (1.0 + b) * std::sin(2.0 * mean);
    for (int i = 0; i < kMostSteps; ++i) {
        const Rotation u = Rotation::ofRadians(rad);
        const double rest = wanted - arc.lengthTo(u);
        const double g = arc.square(u);
        const double speed = std::sqrt(g);
        const double bend = 2.0 * focal2 * u.s * u.c / speed * rest; // 2 f' r
        const double step = 2.0 * rest / (speed + std::sqrt(std::max(0.0, g + bend)));
        rad = std::clamp(rad + step, 0.0, 0.5 * kPi);
        if (std::fabs(step * step * step) < precision * b) {
            const double deg = 180.0 * halfTurns + std::copysign(rad * kDegPerRad, offset);
            return AngleAtLength{deg, Rotation::ofRadians(rad)};
        }
    }
    return std::nullopt;
}

} // namespace planegeo
