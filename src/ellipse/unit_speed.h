/// The speeds of an ellipse in units of its longer half axis: integrals and expansions.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "base/vec2.h"

namespace planegeo {

/// What is integrated along an ellipse: see ArcSpeed and SectorSpeed.
enum class EllipseSpeed { arc, sector };

/// Of the Euler-Maclaurin formula.
inline constexpr std::size_t kCorrections = 6;
inline constexpr std::size_t kFewCorrections = 4;
/// The first, third, ... derivative of a speed by radians.
using OddDerivatives = std::array<double, kCorrections>;

/// From the nearest end of the longer axis, -90 to 90 degrees.
struct Offset {
    std::int64_t halfTurns; ///< from the first end to the nearest
    double deg;
    Rotation turn;

    static Offset ofDegrees(double degFromFirstEnd);
};

/// With b <= 1 the shorter half axis in units of the longer one and u the angle from an end of the
/// longer one, both speeds are made of g = b^2 cos^2 u + sin^2 u: as sqrt(g), and as b^2 / 2g.
/// Their singularities lie above and below those ends, artanh b away.
class UnitSpeed {
  public:
    UnitSpeed(EllipseSpeed kind, double b);

    EllipseSpeed kind() const { return kind_; }
    double b() const { return b_; }

    double square(Rotation u) const { return b_ * b_ * (u.c * u.c) + u.s * u.s; }
    /// Half the derivative of square(), f f' of the arc's speed f.
    double bend(Rotation u) const { return (1.0 - b_) * (1.0 + b_) * (u.c * u.s); }
    /// Of them kFewCorrections or kCorrections; those after are 0.
    OddDerivatives derivatives(Rotation u, std::size_t count) const;
    double integralBetween(const Offset &from, const Offset &to) const;
    double integralOfHalfTurn() const { return halfTurn_; }
    /// Of the arc's speed, from an end of the longer axis to an angle of the first quadrant.
    double lengthTo(Rotation u) const;

  private:
    EllipseSpeed kind_;
    double b_;
    double halfTurn_;
};

} // namespace planegeo
