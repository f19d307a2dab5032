/// Cosine and sine of the whole degrees and of the first tenths, without calls.
#pragma once

#include "base/vec2.h"

namespace planegeo {

/// cos and sin of an angle of up to 45 degrees, by their series.
constexpr Vec2 unitBySeries(double rad) {
    double term = 1.0, c = 0.0, s = 0.0;
    for (int n = 0; n < 20; n += 2) {
        c += term;
        term *= rad / (n + 1);
        s += term;
        term *= -rad / (n + 2);
    }
    return {c, s};
}

/// (cos t, sin t) of a whole degree, t not negative, to an ulp or two.
constexpr Vec2 unitAtDegree(int t) {
    const int quarters = (t + 45) / 90;
    Vec2 d = unitBySeries((t - 90 * quarters) * kRadPerDeg);
    for (int i = 0; i < quarters; ++i) {
        d = leftNormal(d);
    }
    return d;
}

struct DegreeTable {
    /// Two degrees, ends included, and one more.
    static constexpr int kTenths = 22;

    /// A turn and three degrees of the next.
    Vec2 unit[364]{};
    /// Of the first quadrant; the cotangent of 0 is left out.
    double cosine[90]{}, cotangent[90]{};
    /// Of 0.0, 0.1, 0.2 and so on, and of their doubles.
    double cosOfTenth[kTenths]{}, sinOfTenth[kTenths]{};
    double cosOfFifth[kTenths]{}, sinOfFifth[kTenths]{};

    constexpr DegreeTable() {
        for (int t = 0; t < 364; ++t) {
            unit[t] = unitAtDegree(t);
        }
        for (int t = 0; t < 90; ++t) {
            cosine[t] = unit[t].x;
            if (t > 0) cotangent[t] = unit[t].x / unit[t].y;
        }
        for (int i = 0; i < kTenths; ++i) {
            const Vec2 d = unitBySeries(i * 0.1 * kRadPerDeg);
            cosOfTenth[i] = d.x;
            sinOfTenth[i] = d.y;
            const Vec2 twice = unitBySeries(i * 0.2 * kRadPerDeg);
            cosOfFifth[i] = twice.x;
            sinOfFifth[i] = twice.y;
        }
    }
};

inline constexpr DegreeTable kDegrees{};

} // namespace planegeo
