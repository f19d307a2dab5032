// Elliptic integrals, and the expansions of the speeds about an angle.

#include "ellipse/unit_speed.h"

#include <cmath>

namespace planegeo {

namespace {

/// A shorter axis below adds less than rounding to the length of any measurable arc.
constexpr double kFlatAxis = 0x1p-40;

// Both speeds are powers of the root r of g, which moves as in a central field: with v = 1 + b^2
//     r'^2 = -r^2 + v - b^2 / r^2,    r'' = -r + b^2 / r^3,
// so that twice derived r^p becomes
//     -p^2 r^p + p (p - 1) v r^(p-2) - p (p - 2) b^2 r^(p-4).
// Hence the (2k - 1)th derivative of r^p is r' r^(p-1) times a polynomial of degree k - 1 in
// X = b^2 / r^4 and Y = v / r^2.

/// The coefficient [k - 1][i][j] is that of X^i Y^j in it.
using Polynomials =
    std::array<std::array<std::array<double, kCorrections>, kCorrections>, kCorrections>;

constexpr Polynomials derivatives(int power) {
    Polynomials even = {}; // derivatives are r^p times these
    Polynomials odd = {};
    even[0][0][0] = 1.0;
    for (std::size_t k = 0; k < kCorrections; ++k) {
        for (std::size_t i = 0; i <= k; ++i) {
            for (std::size_t j = 0; i + j <= k; ++j) {
                const double p =
                    power - 4.0 * static_cast<double>(i) - 2.0 * static_cast<double>(j);
                const double c = even[k][i][j];
                odd[k][i][j] = p * c;
                if (k + 1 == kCorrections) continue;
                even[k + 1][i][j] -= p * p * c;
                even[k + 1][i][j + 1] += p * (p - 1.0) * c;
                even[k + 1][i + 1][j] -= p * (p - 2.0) * c;
            }
        }
    }
    return odd;
}
constexpr Polynomials kOfArc = derivatives(1);
constexpr Polynomials kOfSector = derivatives(-2);

/// The sum over j >= J of the coefficients of X^I times y^(j - J); the last is not 0.
template <const Polynomials &polynomials, std::size_t K, std::size_t I, std::size_t J>
double row(double y) {
    constexpr bool kIsLast = I + J == K || (I == 0 && polynomials[K][I][J + 1] == 0.0);
    if constexpr (kIsLast) {
        return polynomials[K][I][J];
    } else {
        return polynomials[K][I][J] + y * row<polynomials, K, I, J + 1>(y);
    }
}
/// The sum over i >= I of row i times x^(i - I).
template <const Polynomials &polynomials, std::size_t K, std::size_t I>
double rows(double x, double y) {
    const double here = row<polynomials, K, I, 0>(y);
    if constexpr (I == K) {
        return here;
    } else {
        return here + x * rows<polynomials, K, I + 1>(x, y);
    }
}

template <const Polynomials &polynomials>
OddDerivatives at(double factor, double x, double y, std::size_t count) {
    OddDerivatives found = {
        factor * rows<polynomials, 0, 0>(x, y), factor * rows<polynomials, 1, 0>(x, y),
        factor * rows<polynomials, 2, 0>(x, y), factor * rows<polynomials, 3, 0>(x, y)};
    if (count > kFewCorrections) {
        found[4] = factor * rows<polynomials, 4, 0>(x, y);
        found[5] = factor * rows<polynomials, 5, 0>(x, y);
    }
    return found;
}

/// The length of a quarter of the ellipse. With the means a_n, g_n that begin with 1 and b and end
/// with M, and c_n+1 = (a_n - g_n) / 2, it is
///     pi / 2M (a_1^2 - 2 c_2^2 - 4 c_3^2 - ...).
/// The first c_n below kClose leaves M = a_n - c_n^2 / 4 a_n and no more terms.
double quarterLength(double b) {
    if (b < kFlatAxis) return 1.0;
    constexpr double kClose = 0x1p-14;
    double a = 0.5 * (1.0 + b);
    double g = std::sqrt(b);
    double rest = a * a;
    double weight = 2.0;
    for (;;) {
        const double c = 0.5 * (a - g);
        const double mean = 0.5 * (a + g);
        rest -= weight * (c * c);
        if (!(c > kClose * mean)) return 0.5 * kPi * rest / (mean - 0.25 * c * c / mean);
        g = std::sqrt(a * g);
        a = mean;
        weight *= 2.0;
    }
}

/// Carlson's R_F from the relative distances of its arguments from their mean m, times sqrt m.
double firstSeries(double x, double y, double z) {
    const double e2 = x * y - z * z;
    const double e3 = x * y * z;
    const double even = 1.0 + e2 * (-1.0 / 10.0 + e2 * (1.0 / 24.0 - e2 * (5.0 / 208.0)));
    const double odd =
        e3 * (1.0 / 14.0 + e2 * (-3.0 / 44.0 + e2 * (1.0 / 16.0)) + e3 * (3.0 / 104.0));
    return even + odd;
}

/// The same of R_D, times m sqrt m, m being the mean of x, y and three z.
double secondSeries(double x, double y, double z) {
    const double xy = x * y;
    const double zz = z * z;
    const double e2 = xy - 6.0 * zz;
    const double e3 = (3.0 * xy - 8.0 * zz) * z;
    const double e4 = 3.0 * (xy - zz) * zz;
    const double e5 = xy * z * zz;
    return 1.0 - e2 * (3.0 / 14.0) + e3 * (1.0 / 6.0) + e2 * e2 * (9.0 / 88.0 - e2 * (1.0 / 16.0)) -
           e4 * (3.0 / 22.0) - e2 * e3 * (9.0 / 52.0) + e5 * (3.0 / 26.0) + e3 * e3 * (3.0 / 40.0) +
           e2 * e4 * (3.0 / 20.0) + e2 * e2 * e3 * (45.0 / 272.0) -
           (e3 * e4 + e2 * e5) * (9.0 / 68.0);
}

template <std::size_t N>
std::array<double, N> flatLengths(const std::array<double, N> &cosines,
                                  const std::array<double, N> &sines) {
    std::array<double, N> length;
    for (std::size_t i = 0; i < N; ++i) {
        length[i] = sines[i] * sines[i] / (1.0 + cosines[i]);
    }
    return length;
}

/// The lengths from an end of the longer axis to N angles of the first quadrant, side by side. Each
/// is, without a difference,
///     s b^2 R_F + (1 - b^2) b^2 / 3 s^3 R_D
/// at (b^2 c^2, f^2, b^2), f being the root at the angle. A duplication brings the arguments four
/// times nearer to one another; the expansions leave out the eighth power of their distance.
template <std::size_t N>
std::array<double, N> lengthsFromEnd(double b, const std::array<double, N> &cosines,
                                     const std::array<double, N> &sines) {
    if (b < kFlatAxis) return flatLengths(cosines, sines);
    constexpr double kClose = 0.02;
    constexpr int kMostDuplications = 60;
    const double b2 = b * b;
    const double focal2 = (1.0 - b) * (1.0 + b);
    std::array<double, N> x, y, z, sum;
    for (std::size_t i = 0; i < N; ++i) { // the first, two of whose roots are known
        const double rx = b * cosines[i];
        y[i] = b2 + focal2 * (sines[i] * sines[i]);
        const double ry = std::sqrt(y[i]);
        const double shift = rx * ry + b * (ry + rx);
        sum[i] = 1.0 / (b * (b2 + shift));
        x[i] = (rx * rx + shift) * 0.25;
        y[i] = (y[i] + shift) * 0.25;
        z[i] = (b2 + shift) * 0.25;
    }
    double part = 0.25;
    // x is the least and y the greatest of the three.
    const auto isWide = [&](std::size_t i) { return y[i] - x[i] > kClose * y[i]; };
    for (int n = 1; n < kMostDuplications && (isWide(0) || isWide(N - 1)); ++n) {
        for (std::size_t i = 0; i < N; ++i) {
            const double rx = std::sqrt(x[i]), ry = std::sqrt(y[i]), rz = std::sqrt(z[i]);
            const double shift = rx * ry + rz * (ry + rx);
            sum[i] += part / (rz * (z[i] + shift));
            x[i] = (x[i] + shift) * 0.25;
            y[i] = (y[i] + shift) * 0.25;
            z[i] = (z[i] + shift) * 0.25;
        }
        part *= 0.25;
    }
    std::array<double, N> length;
    for (std::size_t i = 0; i < N; ++i) {
        const double m = (x[i] + y[i] + z[i]) * (1.0 / 3.0);
        const double perM = 1.0 / m;
        const double fx = 1.0 - x[i] * perM, fy = 1.0 - y[i] * perM;
        const double first = std::sqrt(perM) * firstSeries(fx, fy, -fx - fy);
        const double n = (x[i] + y[i] + 3.0 * z[i]) * 0.2;
        const double perN = 1.0 / n;
        const double dx = 1.0 - x[i] * perN, dy = 1.0 - y[i] * perN;
        const double second = 3.0 * sum[i] + part * perN * std::sqrt(perN) *
                                                 secondSeries(dx, dy, (-dx - dy) * (1.0 / 3.0));
        const double s2 = sines[i] * sines[i];
        length[i] = b2 * sines[i] * (first + focal2 * (1.0 / 3.0) * s2 * second);
    }
    return length;
}

} // namespace

Offset Offset::ofDegrees(double deg) {
    const double halfTurns = deg / 180.0;
    const auto nearest =
        static_cast<std::int64_t>(halfTurns < 0.0 ? halfTurns - 0.5 : halfTurns + 0.5);
    const double rest = deg - 180.0 * static_cast<double>(nearest);
    return {nearest, rest, Rotation::ofDegrees(rest)};
}

UnitSpeed::UnitSpeed(EllipseSpeed kind, double b)
    : kind_(kind), b_(b),
      halfTurn_(kind == EllipseSpeed::sector ? 0.5 * b * kPi : 2.0 * quarterLength(b)) {}

OddDerivatives UnitSpeed::derivatives(Rotation u, std::size_t count) const {
    const double b2 = b_ * b_;
    const double perG = 1.0 / square(u);
    const double x = b2 * (perG * perG);
    const double y = (1.0 + b2) * perG;
    if (kind_ == EllipseSpeed::arc) return at<kOfArc>(bend(u) * std::sqrt(perG), x, y, count);
    return at<kOfSector>(0.5 * bend(u) * x, x, y, count);
}

double UnitSpeed::lengthTo(Rotation u) const { return lengthsFromEnd<1>(b_, {u.c}, {u.s})[0]; }

/// Of a sector: the swept angle is that between (b cos, sin) at both ends, scaled. One that runs
/// backwards is taken to the opposite end, a half turn on.
double UnitSpeed::integralBetween(const Offset &from, const Offset &to) const {
    const auto halfTurns = static_cast<double>(to.halfTurns - from.halfTurns);
    if (kind_ == EllipseSpeed::sector) {
        const Rotation p = from.turn, q = to.turn;
        const double sine = b_ * (p.c * q.s - p.s * q.c);
        const double cosine = b_ * b_ * p.c * q.c + p.s * q.s;
        if (sine < 0.0) return 0.5 * b_ * ((halfTurns - 1.0) * kPi + std::atan2(-sine, -cosine));
        return 0.5 * b_ * (halfTurns * kPi + std::atan2(sine, cosine));
    }
    const auto length = lengthsFromEnd<2>(b_, {from.turn.c, to.turn.c},
                                          {std::fabs(from.turn.s), std::fabs(to.turn.s)});
    const double part = std::copysign(length[1], to.turn.s) - std::copysign(length[0], from.turn.s);
    return halfTurns * halfTurn_ + part;
}

} // namespace planegeo
