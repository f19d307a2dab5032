/// What a search by length can tell of its rounds from the limit that it is to find.
#pragma once

#include "ellipse/grid_sum.h"

namespace planegeo {

/// What the search for a limit sees in a round.
struct Verdict {
    bool reached;
    bool stalled;
    bool tooShort;
    bool doubtful; ///< an uncertain integral lies too near to a decision
};

/// The limits of a range, degrees.
struct Limits {
    double lo;
    double hi;
};

/// With t* the limit at which the length is the wanted one, that over the range to t differs from
/// it by the length from t* to t. In between the speed is at most |A - B| |t - t*| from that at
/// t*, |A - B| being the fastest that it changes, and never beyond a half axis.
class LengthForecast {
  public:
    /// For integrals of the arc's speed; others, and those over thin ellipses, are all doubtful.
    LengthForecast(const GridSum &sum, Limits first, double wanted, bool movesLower);
    LengthForecast() = default;

    /// Of a range, `before` being the one of the last round or null in the first.
    Verdict verdict(const Limits &now, const Limits *before) const;

  private:
    struct Band {
        double low;
        double high;
    };
    double fromGoal(const Limits &range) const;
    Band speedWithin(double rad) const;
    double offIntegral(double span) const;
    double rounding(const Limits &range) const;
    double slack(const Limits &range) const;
    bool tells(const Limits &range) const;

    bool isUsable_ = false;
    bool movesLower_ = false;
    double goalDeg_ = 0.0; ///< t*
    double atGoal_ = 0.0;  ///< the speed
    double slowest_ = 0.0;
    double fastest_ = 0.0;
    double longestDeg_ = 0.0;
    double passLength_ = 0.0; ///< steps per degree of the longest pass
    double ofEnds_ = 0.0;     ///< what h^4 of a pass, degrees, leaves of the integral
    double ofHalfTurn_ = 0.0; ///< the same in each half turn
};

} // namespace planegeo
