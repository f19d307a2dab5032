/// Whether an elliptic arc holds a direction, as far as parameters tell it without the arc's ends.
#pragma once

#include "base/angle.h"
#include "base/pair.h"
#include "ellipse/frame.h"

namespace planegeo {

/// The exact questions compare polar directions that snap to the axes. A direction's parameter is
/// on the same side of the arc's parameters where it is clear of both: snapping moves an end, and
/// in this frame a point of the curve, by up to kAxisSnapLength over the shorter half axis, 0.00006
/// degrees; a slack of kAngleSlackDeg is up to kFlattest times as wide as a parameter; roundings
/// are smaller yet. Together with what a coarse direction misses this is less than isClearOf()
/// asks.
class ParameterRange {
  public:
    ParameterRange(const EllipseFrame &ellipse, double rotationDeg, AngleRange parameters)
        : isUsable_(isUsual(ellipse) && isUsual(rotationDeg) && isUsual(parameters.start) &&
                    isUsual(parameters.end)),
          isWholeTurn_(isUsable_ && parameters.start == 0.0 && parameters.end == 360.0),
          start_(isUsable_ ? withinTurn(parameters.start) : 0.0),
          span_(isUsable_ ? withinTurn(parameters.end - parameters.start) : 0.0) {}

    /// Given as 0 and 360: holds every direction.
    bool isWholeTurn() const { return isWholeTurn_; }

    struct Look {
        Pair told;   ///< positive where inside tells something
        Pair inside; ///< positive where the direction lies between the ends
    };
    /// At two vectors, whose directions are the parameters asked for.
    Look look(Vec2Pair rays) const {
        const Pair start = Pair{start_, start_}, turn = Pair{360.0, 360.0};
        Pair turned = coarseDirectionDeg(rays) - start;
        turned = turned + (turned < 0.0 ? turn : Pair{});
        const Pair fromStart = smaller(turned, turn - turned);
        const Pair fromEnds = smaller(fromStart, magnitude(turned - span_));
        return {fromEnds - leastApart(), span_ - turned};
    }

  private:
    static constexpr double kShortest = 0.1, kLongest = 1e8, kFlattest = 1e3, kMostDeg = 1e5;

    bool isUsable_;
    bool isWholeTurn_;
    double start_;
    double span_;

    double leastApart() const {
        return isUsable_ && isClearOfZero(span_) ? 2.0 * kCoarseDeg : HUGE_VAL;
    }
    /// Within a turn, to within a rounding of the angle; of 0 and 360 either.
    static double withinTurn(double deg) {
        const double rest = deg - 360.0 * static_cast<int>(deg * (1.0 / 360.0));
        return raisedIf(rest < 0.0, rest);
    }
    static bool isUsual(double deg) { return std::fabs(deg) < kMostDeg; }
    static bool isUsual(const EllipseFrame &ellipse) {
        const double a = ellipse.halfFirst, b = ellipse.halfSecond;
        return a > kShortest && b > kShortest && a < kLongest && b < kLongest &&
               a < kFlattest * b && b < kFlattest * a;
    }
};

} // namespace planegeo
