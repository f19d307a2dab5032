/// Tangent-continuous chains of circular arcs that keep to an ellipse within a tolerance.
#pragma once

#include <optional>

#include "circle/arc_query.h"
#include "ellipse/quadrant.h"

namespace planegeo {

/// The part of a quadrant between two parameters, 0 <= from < to <= pi/2. At 0 and pi/2 a chain
/// leaves and arrives square to the axis; elsewhere its direction is its own affair.
struct Stretch {
    double from;
    double to;
    /// The circle of a neighbour that the chain is to continue past an axis.
    std::optional<Circle> sharpCircle{};
    std::optional<Circle> flatCircle{};

    bool startsAtAxis() const { return from == 0.0; }
    bool endsAtAxis() const { return to == kHalfPi; }
    bool isWhole() const { return startsAtAxis() && endsAtAxis(); }
};

/// A chain for a stretch: nowhere do the two lie further apart than `distance`.
struct ChainFit {
    double distance;
    int arcs;
};

/// The fewest arcs within the tolerance, and among such chains the closest one. Nothing when
/// more than `mostArcs` are needed, or when the circle to continue allows no chain.
std::optional<ChainFit> fitChain(const Quadrant &quadrant, const Stretch &stretch, double tolerance,
                                 int mostArcs);

/// One circle through both ends, where that is all a chain is: close to the best, with a bound
/// of its distance. The parameters may span up to a whole turn of the ellipse.
struct SingleArc {
    Circle circle;
    double distance;
};
SingleArc singleArc(const Quadrant &quadrant, double from, double to);

/// The chains of one distance, built circle by circle from the sharp end.
class ChainBuilder {
  public:
    ChainBuilder(const Quadrant &quadrant, const Stretch &stretch, double distance);

    /// Nothing when every circle of the family starts before the stretch, or ends behind it.
    std::optional<BalancedCircle> first() const;
    /// The next circle, which touches the given one from outside; nothing behind the family.
    std::optional<BalancedCircle> next(const BalancedCircle &from) const;
    /// The circle through the flat end.
    BalancedCircle flat() const { return {flat_, kHalfPi, 0.0}; }
    /// Not negative once the chain up to this circle reaches the end of the stretch.
    double reach(const std::optional<BalancedCircle> &last) const;

  private:
    Quadrant quadrant_;
    Stretch stretch_;
    BalancedFamily family_;
    Circle sharp_;
    Circle flat_;
};

/// The arcs of a fitted chain one by one, from the sharp end to the flat one.
class ChainWalk {
  public:
    ChainWalk(const Quadrant &quadrant, const Stretch &stretch, const ChainFit &fit);
    RadianArc next();

  private:
    ChainBuilder builder_;
    bool endsAtAxis_;
    Vec2 end_;
    int arcsLeft_;
    BalancedCircle current_;
    double startRad_;
};

} // namespace planegeo
