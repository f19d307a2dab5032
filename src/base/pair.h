/// Two numbers that take the same steps side by side.
#pragma once

#include <cmath>
#include <cstdint>

#include "base/vec2.h"

namespace planegeo {

/// Each of the two is what it would be alone, to the last bit; compilers hold them in one register
/// where there is such a one, and in two where there is not. Operators take both.
using Pair = double __attribute__((vector_size(16)));
inline Pair magnitude(Pair v) {
    using Bits = std::int64_t __attribute__((vector_size(16)));
    return (Pair)((Bits)v & Bits{INT64_MAX, INT64_MAX}); // all but the sign
}
inline Pair larger(Pair v, Pair w) { return v > w ? v : w; }
inline Pair smaller(Pair v, Pair w) { return v < w ? v : w; }

/// The same of one number, for steps written once for both.
inline double magnitude(double v) { return std::fabs(v); }
inline double larger(double v, double w) { return v > w ? v : w; }
inline double smaller(double v, double w) { return v < w ? v : w; }

/// The larger, or smaller, of the two, twice: as long as it is a pair, compilers do not branch on
/// it.
inline Pair largerOf(Pair v) { return larger(v, Pair{v[1], v[0]}); }
inline Pair smallerOf(Pair v) { return smaller(v, Pair{v[1], v[0]}); }

/// Two vectors, component by component.
struct Vec2Pair {
    Pair x;
    Pair y;

    Vec2 at(int i) const { return {x[i], y[i]}; }
};

inline Vec2Pair pairOf(Vec2 v, Vec2 w) { return {Pair{v.x, w.x}, Pair{v.y, w.y}}; }

inline Vec2Pair twice(Vec2 v) { return pairOf(v, v); }

inline Vec2Pair operator+(Vec2Pair v, Vec2Pair w) { return {v.x + w.x, v.y + w.y}; }
inline Vec2Pair operator-(Vec2Pair v, Vec2Pair w) { return {v.x - w.x, v.y - w.y}; }
inline Vec2Pair operator*(Vec2Pair v, double k) { return {v.x * k, v.y * k}; }
inline Pair dot(Vec2Pair v, Vec2Pair w) { return v.x * w.x + v.y * w.y; }
inline Pair cross(Vec2Pair v, Vec2Pair w) { return v.x * w.y - v.y * w.x; }

} // namespace planegeo
