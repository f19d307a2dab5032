/// Whether an elliptic arc holds a direction, as far as parameters tell it without the arc's ends.
#pragma once

#include <optional>

#include "base/angle.h"
#include "ellipse/frame.h"

namespace planegeo {

/// The exact questions compare polar directions that snap to the axes. A direction's parameter is
/// on the same side of the arc's parameters where it is clear of both: snapping moves an end by up
/// to kAxisSnapLength over the shorter half axis, 0.00006 degrees; a slack of kAngleSlackDeg is up
/// to kFlattest times as wide as a parameter; roundings are smaller yet. Together with what a
/// coarse direction misses this is less than isClearOf() asks.
class ParameterRange {
  public:
    ParameterRange(const EllipseFrame &ellipse, double rotationDeg, AngleRange parameters)
        : isWholeTurn_(parameters.start == 0.0 && parameters.end == 360.0),
          isUsable_(isUsual(ellipse) && isUsual(rotationDeg) && isUsual(parameters.start) &&
                    isUsual(parameters.end)),
          start_(reducedDeg(parameters.start)), span_(raised(reducedDeg(parameters.end) - start_)) {
    }

    /// Of a vector whose direction is the parameter, neither of them snapped; nothing where only
    /// the exact question tells.
    std::optional<bool> holds(Vec2 ray) const {
        const double turned = raised(coarseDirectionDeg(ray) - start_);
        if (!isUsable_) return std::nullopt;
        if (isWholeTurn_) return true;
        const bool isClear =
            isClearOfZero(turned) && isClearOfZero(span_) && isClearOf(turned, span_);
        return isClear ? std::optional<bool>(turned < span_) : std::nullopt;
    }

    bool isWholeTurn() const { return isUsable_ && isWholeTurn_; }

  private:
    static constexpr double kShortest = 0.1, kLongest = 1e8, kFlattest = 1e3, kMostDeg = 1e5;

    bool isWholeTurn_; ///< given so
    bool isUsable_;
    double start_;
    double span_;

    static double raised(double deg) { return deg < 0.0 ? deg + 360.0 : deg; }
    static bool isUsual(double deg) { return std::fabs(deg) < kMostDeg; }
    static bool isUsual(const EllipseFrame &ellipse) {
        const double a = ellipse.halfFirst, b = ellipse.halfSecond;
        return a > kShortest && b > kShortest && a < kLongest && b < kLongest &&
               a < kFlattest * b && b < kFlattest * a;
    }
};

} // namespace planegeo
