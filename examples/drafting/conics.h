// The host's share of meeting ellipses: which question fits a pair, and what answers to trust.
#pragma once

#include <optional>

#include "drawing.h"

namespace draft {

/// The same curve with the longer axis first and a rotation in [0, 180).
DTELLIPSE canonical(const DTELLIPSE &ellipse);
/// An ellipse with equal axes, within errdist, as the arc that it is.
std::optional<DTARC> asArc(const DTELLIPSE &ellipse);
/// Both canonical: whether they are parts of one ellipse.
bool areOnOneEllipse(const DTELLIPSE &a, const DTELLIPSE &b);

/// Points on a curve, as far as doubles tell.
bool isNear(const DTARC &circle, DTPOINT p);
bool isNear(const DTELLIPSE &ellipse, DTPOINT p);

/// A frame about the first of two shapes in which neither is small: the library's fixed
/// tolerances, which compare squares and higher powers, are made for sizes of a unit and more.
class PairFrame {
  public:
    PairFrame(DTPOINT origin, double size);

    DTARC in(const DTARC &arc) const;
    DTELLIPSE in(const DTELLIPSE &ellipse) const;
    DTPOINT out(DTPOINT p) const;

  private:
    DTPOINT origin_;
    double scale_;
};

} // namespace draft
