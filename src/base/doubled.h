/// Sums and products of doubles with twice their digits, for decisions on small differences of
/// large squares.
#pragma once

#include "base/vec2.h"

namespace planegeo {

/// What rounding took off the product p of a and b, exactly, by splitting both into halves whose
/// products are exact. std::fma(a, b, -p) would say it shorter, but MinGW's rounds twice. NaN where
/// a or b exceeds 2^996.
constexpr double productError(double a, double b, double p) {
    constexpr double kSplitter = 134217729.0; // 2^27 + 1
    const double aSplit = kSplitter * a;
    const double bSplit = kSplitter * b;
    const double aHigh = aSplit - (aSplit - a);
    const double bHigh = bSplit - (bSplit - b);
    const double aLow = a - aHigh;
    const double bLow = b - bHigh;
    return ((aHigh * bHigh - p) + aHigh * bLow + aLow * bHigh) + aLow * bLow;
}

/// A number of some 106 bits as the unevaluated sum of two doubles, |lo| <= ulp(hi) / 2.
///
/// `sum`, `difference` and `product` of doubles are exact; what is built from them loses a few
/// units of 2^-105. Overflow gives NaN: factors from 2^996 on, products from 2^1023 on.
struct Doubled {
    double hi;
    double lo;

    constexpr Doubled(double value = 0.0) : hi(value), lo(0.0) {}
    constexpr Doubled(double high, double low) : hi(high), lo(low) {}

    static constexpr Doubled sum(double a, double b) {
        const double s = a + b;
        const double part = s - a;
        return {s, (a - (s - part)) + (b - part)};
    }
    static constexpr Doubled difference(double a, double b) { return sum(a, -b); }
    static constexpr Doubled product(double a, double b) {
        const double p = a * b;
        return {p, productError(a, b, p)};
    }
    /// a + b where |a| >= |b|.
    static constexpr Doubled ordered(double a, double b) {
        const double s = a + b;
        return {s, b - (s - a)};
    }

    constexpr double value() const { return hi + lo; }
};

constexpr Doubled operator-(Doubled v) { return {-v.hi, -v.lo}; }

inline Doubled operator+(Doubled v, Doubled w) {
    const Doubled high = Doubled::sum(v.hi, w.hi);
    const Doubled low = Doubled::sum(v.lo, w.lo);
    const Doubled carried = Doubled::ordered(high.hi, high.lo + low.hi);
    return Doubled::ordered(carried.hi, carried.lo + low.lo);
}
inline Doubled operator-(Doubled v, Doubled w) { return v + -w; }
// With one that has no lower part the same steps, without those that add nothing.
inline Doubled operator+(Doubled v, double w) {
    const Doubled high = Doubled::sum(v.hi, w);
    return Doubled::ordered(high.hi, high.lo + v.lo);
}
inline Doubled operator+(double v, Doubled w) { return w + v; }
inline Doubled operator-(Doubled v, double w) { return v + -w; }
inline Doubled operator-(double v, Doubled w) { return -w + v; }

inline Doubled operator*(Doubled v, Doubled w) {
    const Doubled p = Doubled::product(v.hi, w.hi);
    return Doubled::ordered(p.hi, p.lo + (v.hi * w.lo + v.lo * w.hi));
}
inline Doubled operator*(Doubled v, double w) {
    const Doubled p = Doubled::product(v.hi, w);
    return Doubled::ordered(p.hi, p.lo + v.lo * w);
}
inline Doubled operator*(double v, Doubled w) { return w * v; }
inline Doubled squared(Doubled v) { return v * v; }

inline Doubled operator/(Doubled v, Doubled w) {
    const double quotient = v.hi / w.hi;
    const Doubled rest = v - quotient * w;
    return Doubled::ordered(quotient, rest.hi / w.hi);
}
inline Doubled operator/(Doubled v, double w) {
    const double quotient = v.hi / w;
    const Doubled rest = v - Doubled::product(w, quotient);
    return Doubled::ordered(quotient, rest.hi / w);
}
/// Of a negative number that of zero: here such a number is a zero that was rounded.
inline Doubled squareRoot(Doubled v) {
    if (!(v.hi > 0.0)) return v.hi <= 0.0 ? Doubled(0.0) : v;
    const double root = std::sqrt(v.hi);
    const Doubled rest = v - Doubled::product(root, root);
    return Doubled::ordered(root, rest.hi / (2.0 * root));
}

/// cross(v, w) to an ulp or two, however much of the two products cancels.
inline double accurateCross(Vec2 v, Vec2 w) {
    const double left = v.x * w.y;
    const double right = v.y * w.x;
    return (left - right) + (productError(v.x, w.y, left) - productError(v.y, w.x, right));
}

} // namespace planegeo
