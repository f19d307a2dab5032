// Placing the contents of a block: moves, turns, scales and mirrors, one within another.
#pragma once

#include "drawing.h"

namespace draft {

/// (x, y) goes to (xx x + xy y + dx, yx x + yy y + dy).
struct Affine {
    double xx = 1.0, xy = 0.0, yx = 0.0, yy = 1.0, dx = 0.0, dy = 0.0;

    static Affine move(double dx, double dy);
    static Affine scale(double sx, double sy);
    static Affine turn(double deg);

    bool isIdentity() const;
    DTPOINT point(DTPOINT p) const;
    DTPOINT vector(DTPOINT v) const;
};

/// First @p inner, then @p outer.
Affine operator*(const Affine &outer, const Affine &inner);

/// The image of a shape. A circle becomes an ellipse where the scale differs by direction.
Shape placed(const Shape &shape, const Affine &affine);

} // namespace draft
