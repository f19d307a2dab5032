// Length, area and division of ellipses step by step, every sample evaluated by itself: what
// the library's faster ways are compared with, in answers by the tests and in time by the
// benchmark. Kept apart from the library's code on purpose.
#pragma once

#include <cmath>
#include <cstdint>
#include <vector>

#include "planegeo.h"

namespace plain {

inline constexpr double kPi = 3.141592653589793;
inline constexpr double kRadPerDeg = 0.017453292519943295;

inline double speed(double halfFirst, double halfSecond, double deg) {
    const double c = std::cos(deg * kRadPerDeg), s = std::sin(deg * kRadPerDeg);
    return std::sqrt(halfSecond * halfSecond * (c * c) + halfFirst * halfFirst * (s * s));
}

inline std::int64_t evenCount(double length) {
    auto count = static_cast<std::int64_t>(length);
    if (count % 2 != 0) ++count;
    return count < 4 ? 4 : count;
}

/// One pass of the Simpson rule over [lo, lo + n h]: the weighted interior samples.
template <class F> double interior(F f, double lo, double h, std::int64_t n) {
    double sum = 0.0;
    for (std::int64_t i = 1; i < n; ++i) {
        sum += (i % 2 != 0 ? 4.0 : 2.0) * f(lo + static_cast<double>(i) * h);
    }
    return sum;
}

struct Integral {
    std::int32_t code;
    double value;
    int passes;
};

/// ca_Simpson for an integrand that never fails, without the test of the limits.
template <class F> Integral simpson(F f, double lo, double hi) {
    std::int64_t n = evenCount(hi - lo);
    const double ends = f(lo) + f(hi);
    double h = (hi - lo) / static_cast<double>(n);
    if (h < 0.001) return {0, 0.0, 0};
    double previous = 0.0;
    for (int passes = 1;; ++passes) {
        const double s = (ends + interior(f, lo, h, n)) * h * kPi / 540.0;
        n *= 2;
        if (std::fabs(s - previous) <= 1e-6) return {0, s, passes};
        if (n > 2147483647) return {-2, 0.0, passes};
        previous = s;
        h = (hi - lo) / static_cast<double>(n);
        if (h < 0.001) return {0, s, passes};
    }
}

struct Limits {
    std::int32_t code;
    double lo, hi;
    int rounds;
};

/// ca_Simpson2; both limits are returned.
template <class F> Limits simpson2(F f, double lo, double hi, double wanted, bool movesLower) {
    double step = 10.0, remembered = 0.0;
    bool grew = false;
    int stalls = 0;
    std::int32_t code = 0;
    for (int rounds = 1;; ++rounds) {
        const Integral found = simpson(f, lo, hi);
        if (found.code != 0) code = found.code;
        const double s = found.value;
        if (std::fabs(s - wanted) <= 1e-6) return {code, lo, hi, rounds};
        if (std::fabs(s) < 1e-6 || std::fabs(s - remembered) < 1e-6) {
            if (++stalls == 10) return {-1, lo, hi, rounds};
        } else {
            stalls = 0;
        }
        remembered = s;
        if (s <= wanted) {
            if (!grew) step /= 2.0;
            (movesLower ? lo : hi) += movesLower ? -step : step;
            grew = true;
        } else {
            if (grew) step /= 2.0;
            (movesLower ? lo : hi) += movesLower ? step : -step;
            grew = false;
        }
    }
}

inline void normalise(double &start, double &end) {
    const bool whole = std::fabs(end - start) > 359.999999;
    for (double *angle : {&start, &end}) {
        while (!whole && *angle < 0.0)
            *angle += 360.0;
        while (!whole && *angle > 360.0)
            *angle -= 360.0;
    }
    if (!whole && start > end) end += 360.0;
    if (!whole && end > 360.0) {
        start -= 360.0;
        end -= 360.0;
    }
    if (whole || std::fabs(end - start) > 359.999999) {
        start = 0.0;
        end = 360.0;
    }
}

inline double polar(const DTELLIPSE &e, double parameterDeg) {
    const double x = e.a * std::cos(parameterDeg * kRadPerDeg);
    const double y = e.b * std::sin(parameterDeg * kRadPerDeg);
    if (x == 0.0 && y == 0.0) return 0.0;
    const double deg = std::atan2(y, x) * 57.29577951308232;
    return deg < 0.0 ? deg + 360.0 : deg;
}

/// ca_ElpLen with the half axes of the parameter table.
inline double length(const DTELLIPSE &e, double halfFirst, double halfSecond) {
    double start = polar(e, e.start), end = polar(e, e.end);
    normalise(start, end);
    const auto f = [=](double deg) { return speed(halfFirst, halfSecond, deg); };
    return simpson(f, start, end).value;
}

/// ca_ElpLen2 with the half axes of the parameter table.
inline std::int32_t lengthTo(DTELLIPSE &e, double wanted, std::int32_t which, double halfFirst,
                             double halfSecond) {
    const auto f = [=](double deg) { return speed(halfFirst, halfSecond, deg); };
    Limits found = simpson2(f, e.start, e.end, wanted, which == 0);
    if (found.code == -1) return -1;
    normalise(found.lo, found.hi);
    (which == 0 ? e.start : e.end) = which == 0 ? found.lo : found.hi;
    return 0;
}

struct Arc {
    DTPOINT center;
    double a, b, rot, start, end;
};

inline DTPOINT place(const Arc &arc, double x, double y, double c, double s) {
    return {arc.center.x + (x * c - y * s), arc.center.y + (x * s + y * c)};
}

/// What the first call of a2d_elpdn prepares: entry k of the table at [k], NaN where the walk
/// leaves it; with it the quotient that made each entry and the one a step before.
struct Table {
    std::int32_t code;
    double piece;
    std::vector<double> parameters, at, before;
};

inline Table divisionTable(const Arc &arc, std::int32_t n) {
    const double ra = arc.a * 0.5, rb = arc.b * 0.5, s = arc.start, e = arc.end;
    const auto f = [=](double deg) { return speed(ra, rb, deg); };
    const double ends = f(s) + f(e), span = e - s;
    std::int64_t m = evenCount(span);
    double h = span / static_cast<double>(m), total = 0.0, previous = 0.0;
    const auto size = static_cast<std::size_t>(n) + 1;
    Table table = {0, 0.0, std::vector<double>(size, std::nan("")), std::vector<double>(size),
                   std::vector<double>(size)};
    while (h >= 0.001) {
        const double c = h * 0.005817764173314432;
        total = c * interior(f, s, h, m) + c * ends;
        if (std::fabs(total - previous) <= 1e-6) break;
        if (m > 2147483647) {
            table.code = -2;
            total = 0.0;
            break;
        }
        m *= 2;
        previous = total;
        h = span / static_cast<double>(m);
    }
    table.piece = total / n;
    m = evenCount(span / 0.001);
    h = span / static_cast<double>(m);
    const double c = h * 0.005817764173314432;
    double sum = 0.0, before = 0.0;
    std::size_t next = 1;
    for (std::int64_t i = 1; i < m && next < size; ++i) {
        const double t = s + static_cast<double>(i) * h;
        sum += (i % 2 != 0 ? 4.0 : 2.0) * f(t);
        const double quotient = (c * sum + c * ends) / table.piece;
        if (std::trunc(quotient) == static_cast<double>(next)) {
            table.parameters[next] = t;
            table.at[next] = quotient;
            table.before[next] = before;
            ++next;
        }
        before = quotient;
    }
    table.parameters[static_cast<std::size_t>(n)] = e;
    return table;
}

inline DTPOINT pointOf(const Arc &arc, double parameterDeg) {
    const double t = parameterDeg * kRadPerDeg, r = arc.rot * kRadPerDeg;
    return place(arc, arc.a * 0.5 * std::cos(t), arc.b * 0.5 * std::sin(t), std::cos(r),
                 std::sin(r));
}

struct Division {
    std::int32_t code;
    DTPOINT point; ///< when the code is 0
    double piece;
};

/// The answer of a2d_elpdn or ca_elpdn, whose outputs are those of `got` before.
template <class F>
Division ask(F f, const Arc &arc, std::int32_t n, std::int32_t k, Division got = {}) {
    const double angles[2] = {arc.start, arc.end};
    got.code = f(&arc.center, arc.a, arc.b, arc.rot, angles, n, k, &got.point, &got.piece);
    return got;
}

/// ca_elpdn for a span of at most 361 degrees.
inline Division divide(const Arc &arc, std::int32_t n, std::int32_t k) {
    if (n <= 0 || k <= 0 || arc.start > arc.end) return {1, {}, 0.0};
    const double turn = arc.rot * kPi / 180.0, c = std::cos(turn), s = std::sin(turn);
    const auto at = [&](double deg) {
        const double t = deg * kPi / 180.0;
        return place(arc, arc.a * 0.5 * std::cos(t), arc.b * 0.5 * std::sin(t), c, s);
    };
    DTPOINT points[362] = {};
    double segments[362] = {};
    int count = 0;
    double sampled = arc.start;
    while (sampled <= arc.end) {
        points[count++] = at(sampled);
        sampled = sampled + 1.0;
    }
    double total = 0.0;
    for (int i = 0; i + 1 < count; ++i) {
        const double dx = points[i + 1].x - points[i].x, dy = points[i + 1].y - points[i].y;
        segments[i] = std::sqrt(dx * dx + dy * dy);
        total += segments[i];
    }
    const double piece = total / n, target = k * piece;
    if (k == n) return {0, at(arc.end), piece};
    double sum = 0.0;
    for (int i = 0; i + 1 < count; ++i) {
        sum += segments[i];
        if (sum <= target) continue;
        double over = sum - target;
        if (over < 1e-6) over += 1e-6;
        const double m = std::trunc(segments[i] / over);
        const DTPOINT p = points[i], q = points[i + 1];
        return {0,
                {(m * q.x + (m - 1.0) * p.x) / (2.0 * m - 1.0),
                 (m * q.y + (m - 1.0) * p.y) / (2.0 * m - 1.0)},
                piece};
    }
    return {1, {}, piece};
}

} // namespace plain
