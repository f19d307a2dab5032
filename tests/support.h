// What every test shares: untouched outputs, settings that come back, portable random numbers.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <ostream>
#include <random>

#include <gtest/gtest.h>

#include "planegeo.h"

inline bool operator==(const DTPOINT &p, const DTPOINT &q) { return p.x == q.x && p.y == q.y; }
inline DTPOINT operator+(const DTPOINT &p, const DTPOINT &q) { return {p.x + q.x, p.y + q.y}; }
inline std::ostream &operator<<(std::ostream &out, const DTPOINT &p) {
    return out << "(" << p.x << ", " << p.y << ")";
}

namespace support {

inline constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
inline constexpr double kInfinity = std::numeric_limits<double>::infinity();
inline constexpr double kEpsilon = std::numeric_limits<double>::epsilon();
inline constexpr double kPi = 3.141592653589793;
inline constexpr double kRadPerDeg = 0.017453292519943295;

/// What outputs hold before a call; no call computes it.
inline constexpr double kUntouched = -7.25e77;
inline constexpr DTPOINT kUntouchedPoint = {kUntouched, kUntouched};
inline constexpr std::uint16_t kUntouchedCount = 4711;

/// What the functions leave that give two points and a count.
struct Crossing {
    std::int32_t status = 0;
    DTPOINT out1 = kUntouchedPoint, out2 = kUntouchedPoint;
    std::uint16_t count = kUntouchedCount;
};

/// The same of common tangents: two contacts of each.
struct Tangents {
    std::int32_t status;
    DTPOINT t[8];
    std::uint16_t count = kUntouchedCount;
};
template <class Call> Tangents tangentsOf(Call call) {
    Tangents got;
    DTPOINT *t = got.t;
    std::fill_n(t, 8, kUntouchedPoint);
    got.status = call(t, t + 1, t + 2, t + 3, t + 4, t + 5, t + 6, t + 7, &got.count);
    return got;
}

inline double distance(DTPOINT p, DTPOINT q) { return std::hypot(p.x - q.x, p.y - q.y); }
inline DTPOINT polar(DTPOINT center, double r, double deg) {
    return {center.x + r * std::cos(deg * kRadPerDeg), center.y + r * std::sin(deg * kRadPerDeg)};
}

/// An ellipse by its definition; its own frame is that of its axes.
struct Ellipse {
    DTPOINT center;
    double a, b, rot;

    DTPOINT placed(DTPOINT local) const {
        const double c = std::cos(rot * kRadPerDeg), s = std::sin(rot * kRadPerDeg);
        return center + DTPOINT{local.x * c - local.y * s, local.x * s + local.y * c};
    }
    DTPOINT at(double deg) const {
        return placed({a / 2 * std::cos(deg * kRadPerDeg), b / 2 * std::sin(deg * kRadPerDeg)});
    }
};
inline DTPOINT placed(const DTELLIPSE &e, DTPOINT local) {
    return Ellipse{{e.cx, e.cy}, e.a, e.b, e.rot}.placed(local);
}
inline DTPOINT at(const DTELLIPSE &e, double deg) {
    return Ellipse{{e.cx, e.cy}, e.a, e.b, e.rot}.at(deg);
}
/// Distance from the curve, to first order.
inline double offCurve(const DTELLIPSE &e, DTPOINT p) {
    const double c = std::cos(e.rot * kRadPerDeg), s = std::sin(e.rot * kRadPerDeg);
    const double x = p.x - e.cx, y = p.y - e.cy, halfA = e.a / 2, halfB = e.b / 2;
    const double u = (c * x + s * y) / halfA, v = (c * y - s * x) / halfB;
    return std::fabs(u * u + v * v - 1.0) / (2.0 * std::hypot(u / halfA, v / halfB));
}

/// Both coordinates within a distance.
inline testing::AssertionResult near(DTPOINT got, DTPOINT want, double within) {
    if (std::fabs(got.x - want.x) <= within && std::fabs(got.y - want.y) <= within) {
        return testing::AssertionSuccess();
    }
    return testing::AssertionFailure()
           << "got (" << got.x << ", " << got.y << "), want (" << want.x << ", " << want.y << ")";
}

/// Sets errdist for a scope.
class ToleranceGuard {
  public:
    explicit ToleranceGuard(double tolerance) : before_(ca_geterrdist()) {
        ca_seterrdist(tolerance);
    }
    ~ToleranceGuard() { ca_seterrdist(before_); }
    ToleranceGuard(const ToleranceGuard &) = delete;
    ToleranceGuard &operator=(const ToleranceGuard &) = delete;

  private:
    double before_;
};

/// The distance of a point from an ellipse, also below errdist.
inline double distanceFrom(const Ellipse &e, DTPOINT p) {
    const ToleranceGuard exactly(0.0);
    const double whole[] = {0.0, 360.0};
    return a2d_dstpe(&e.center, e.a, e.b, e.rot, whole, &p);
}

/// Sets StartendFlg for a scope.
class StartendGuard {
  public:
    explicit StartendGuard(std::int32_t flag) : before_(ca_GetStartendFlg()) {
        ca_SetStartendFlg(flag);
    }
    ~StartendGuard() { ca_SetStartendFlg(before_); }
    StartendGuard(const StartendGuard &) = delete;
    StartendGuard &operator=(const StartendGuard &) = delete;

  private:
    std::int32_t before_;
};

/// Stores half axes in the parameter table for a scope.
class HalfAxesGuard {
  public:
    HalfAxesGuard(double first, double second) { store(first, second); }
    ~HalfAxesGuard() { store(0.0, 0.0); }
    HalfAxesGuard(const HalfAxesGuard &) = delete;
    HalfAxesGuard &operator=(const HalfAxesGuard &) = delete;

  private:
    static void store(double first, double second) {
        ca_Simpson_getParmtbl()[0] = first;
        ca_Simpson_getParmtbl()[1] = second;
    }
};

/// The same numbers on every platform, which the standard distributions do not promise.
class Random {
  public:
    explicit Random(std::uint64_t seed) : engine_(seed) {}

    double uniform(double low, double high) {
        const double unit = static_cast<double>(engine_() >> 11) * 0x1p-53;
        return low + (high - low) * unit;
    }
    /// Every power of ten between two positive bounds is as likely as another.
    double logUniform(double low, double high) {
        return std::exp(uniform(std::log(low), std::log(high)));
    }
    double angleDeg() { return uniform(0.0, 360.0); }
    DTPOINT point(double size) { return {uniform(-size, size), uniform(-size, size)}; }
    std::uint64_t bits() { return engine_(); }

  private:
    std::mt19937_64 engine_;
};

} // namespace support
