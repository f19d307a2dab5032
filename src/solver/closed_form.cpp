// Equations of degree one to four in closed form: the quadratic by its half coefficient, the
// cubic by Cardano or by the cosine of a third, the quartic by Ferrari with a short cut for the
// biquadratic. A leading coefficient of exactly zero is refused; a small one is divided by.
//
// Which branch is taken, and so order and count of the roots, hangs on the last bit of a
// discriminant: the expressions stand in the order that hosts have always had. Where a
// discriminant is NaN, the branch that the comparisons leave over is taken.

#include "solver/closed_form.h"

#include <cmath>
#include <cstddef>

#include "base/tolerance.h"
#include "base/vec2.h"

namespace {

using namespace planegeo;

constexpr double kSqrtHalf = 0.7071067811865476;
constexpr double kSqrtThree = 1.7320508075688772;
constexpr double kThird = 0.3333333333333333;
constexpr double kFourPi = 12.566370614359172;

/// The real cube root. By `pow` on purpose: a root one bit away may send a quartic through
/// another branch.
double cubeRoot(double v) {
    const double root = std::pow(std::fabs(v), kThird);
    return v < 0.0 ? -root : root;
}

/// x^2 + b x + c = 0
Roots<2> monicRoots(double b, double c) {
    const double h = b * 0.5;
    const double discriminant = h * h - c;
    if (discriminant > 0.0) {
        const double s = std::sqrt(discriminant);
        return {{real(s - h), real(-h - s)}, 2};
    }
    if (discriminant == 0.0) return {{real(-h), real(-h)}, 2};
    const double s = std::sqrt(-discriminant);
    return {{Complex{-h, s}, Complex{-h, -s}}, 0};
}

/// A cubic shifted by x = y - a to y^3 - 3 q y - 2 r = 0. Roots are computed one by one: the
/// quartic seldom asks for more than the first.
class ShiftedCubic {
  public:
    /// The leading coefficient is not zero.
    explicit ShiftedCubic(const Polynomial<3> &c) {
        const Pair quotients = Pair{c[1], c[3]} / Pair{3.0 * c[0], c[0]};
        const double linear = c[2] / c[0];
        a_ = quotients[0];
        const double q = a_ * a_ - linear / 3.0;
        const double r = ((linear - 2.0 * a_ * a_) * a_ - quotients[1]) * 0.5;
        const double discriminant = r * r - q * q * q;
        if (discriminant > 0.0) {
            kind_ = Kind::oneReal;
            const double s = std::sqrt(discriminant);
            // The root of r + s or r - s, where it does not cancel; the sign can wait.
            const double size = cubeRoot(std::fabs(r) + s);
            first_ = r > 0.0 ? size : -size;
            second_ = q / first_;
        } else if (discriminant < 0.0) {
            kind_ = Kind::threeReal;
            first_ = std::sqrt(q);
            // Not clamped: where rounding takes the quotient past 1 the roots are NaN.
            second_ = std::acos(r / (first_ * q));
        } else {
            kind_ = Kind::repeated;
            first_ = cubeRoot(r);
        }
    }

    std::int32_t realCount() const { return kind_ == Kind::oneReal ? 1 : 3; }

    /// Root 0, 1 or 2 in the order of output.
    Complex root(int k) const {
        switch (kind_) {
        case Kind::oneReal: {
            const double u = first_, v = second_;
            if (k == 0) return real(u + v - a_);
            const double w = kSqrtThree * (u - v) * 0.5;
            return {-0.5 * (u + v) - a_, k == 1 ? w : -w};
        }
        case Kind::threeReal: {
            constexpr double kTurns[] = {0.0, kTwoPi, kFourPi};
            return real(2.0 * first_ * std::cos((second_ + kTurns[k]) / 3.0) - a_);
        }
        case Kind::repeated:
            break;
        }
        // The simple root is reported twice and the double root once, on purpose.
        return real(k < 2 ? 2.0 * first_ - a_ : -first_ - a_);
    }

  private:
    enum class Kind { oneReal, threeReal, repeated };

    Kind kind_;
    double a_;
    double first_;        ///< Cardano's u; the root of q of three real roots; the repeated -y
    double second_ = 0.0; ///< Cardano's v; the angle of three real roots
};

/// A quartic shifted by x = y - b/4 to y^4 + p y^2 + q y + r = 0.
struct ShiftedQuartic {
    double p, q, r;
    double shift; ///< b/4

    /// The leading coefficient is not zero.
    explicit ShiftedQuartic(const Polynomial<4> &polynomial) {
        const Pair leads = {polynomial[0], polynomial[0]};
        const Pair odd = Pair{polynomial[1], polynomial[3]} / leads;
        const Pair even = Pair{polynomial[2], polynomial[4]} / leads;
        const double b = odd[0], c = even[0], d = odd[1], e = even[1];
        const double half = b / 2.0;
        const double quarter = b / 4.0;
        const double quarterSquared = quarter * quarter;
        p = c - 1.5 * (half * half);
        q = half * half * half - c * b / 2.0 + d;
        r = quarterSquared * c - 3.0 * (quarterSquared * quarterSquared) - quarter * d + e;
        shift = quarter;
    }

    bool isBiquadratic() const {
        return q == 0.0 || (std::fabs(q) < kBiquadraticLinearTerm && p != 0.0 &&
                            std::fabs(q / p) < kBiquadraticRatio);
    }
};

/// A root of the resolvent z^3 - p z^2 - 4 r z + (4 p r - q^2) = 0: the first real one that is
/// not below p, else the last real one.
double resolventRoot(const ShiftedQuartic &quartic) {
    const auto [p, q, r, shift] = quartic;
    const ShiftedCubic resolvent({1.0, -p, -4.0 * r, 4.0 * p * r - q * q});
    double z = 0.0;
    for (int k = 0; k < 3; ++k) {
        const Complex root = resolvent.root(k);
        if (root.im != 0.0) break;
        z = root.re;
        if (z - p >= 0.0) break;
    }
    return z;
}

/// The roots of the factor `a` before those of `b`, unless only `b` has real ones.
Roots<4> joined(const Roots<2> &a, const Roots<2> &b) {
    const bool onlyB = a.realCount == 0 && b.realCount != 0;
    const Roots<2> &first = onlyB ? b : a;
    const Roots<2> &second = onlyB ? a : b;
    return {{first.root[0], first.root[1], second.root[0], second.root[1]},
            a.realCount + b.realCount};
}

/// The two factors y^2 + s y + ... and y^2 - s y + ... with s^2 = z - p.
Roots<4> solveByFactors(const ShiftedQuartic &quartic, double z, double s) {
    const double middle = z / 2.0;
    const double spread = quartic.q / (2.0 * s);
    return joined(monicRoots(s, middle - spread), monicRoots(-s, middle + spread));
}

/// The two roots of y^2 = w.
Roots<2> squareRoots(double w) {
    if (w >= 0.0) return {{real(std::sqrt(w)), real(-std::sqrt(w))}, 2};
    const double s = std::sqrt(-w);
    return {{Complex{0.0, s}, Complex{0.0, -s}}, 0};
}

/// y^4 + p y^2 + r = 0; a linear term is ignored.
Roots<4> solveBiquadratic(const ShiftedQuartic &quartic) {
    const Roots<2> w = monicRoots(quartic.p, quartic.r);
    if (w.realCount == 2) return joined(squareRoots(w.root[0].re), squareRoots(w.root[1].re));
    // The second square is the conjugate of the first, and so is its root.
    const Complex s1 = squareRoot(w.root[0]);
    const Complex s2 = conjugate(s1);
    return {{s1, -s1, s2, -s2}, 0};
}

Roots<4> solveShifted(const ShiftedQuartic &quartic) {
    if (quartic.isBiquadratic()) return solveBiquadratic(quartic);
    const double z = resolventRoot(quartic);
    // Without a factor the linear term is given up, on purpose; NaN goes on to the factors.
    if (z - quartic.p < 0.0) return solveBiquadratic(quartic);
    const double s = std::sqrt(z - quartic.p);
    if (s == 0.0) return solveBiquadratic(quartic);
    return solveByFactors(quartic, z, s);
}

} // namespace

namespace planegeo {

Complex squareRoot(Complex z) {
    if (z.im == 0.0) {
        return z.re >= 0.0 ? real(std::sqrt(z.re)) : Complex{0.0, std::sqrt(-z.re)};
    }
    const double t = std::sqrt(std::hypot(z.re, z.im) + std::fabs(z.re));
    const double large = kSqrtHalf * t;
    if (z.re >= 0.0) return {large, kSqrtHalf * z.im / t};
    return {kSqrtHalf * std::fabs(z.im) / t, z.im < 0.0 ? -large : large};
}

Roots<2> solveQuadratic(const double *c) {
    if (c[0] == 0.0) return {{}, kNoLeadingCoefficient};
    const auto [lead, linear, constant] = load<2>(c);
    const Pair quotients = Pair{linear, constant} / Pair{lead, lead};
    return monicRoots(quotients[0], quotients[1]);
}

Roots<3> solveCubic(const double *c) {
    if (c[0] == 0.0) return {{}, kNoLeadingCoefficient};
    const ShiftedCubic cubic(load<3>(c));
    return {{cubic.root(0), cubic.root(1), cubic.root(2)}, cubic.realCount()};
}

Roots<4> solveQuartic(const double *c) {
    if (c[0] == 0.0) return {{}, kNoLeadingCoefficient};
    const ShiftedQuartic quartic(load<4>(c));
    const Roots<4> y = solveShifted(quartic);
    const auto x = [&](std::size_t k) {
        return Complex{y.root[k].re - quartic.shift, y.root[k].im};
    };
    return {{x(0), x(1), x(2), x(3)}, y.realCount};
}

} // namespace planegeo

extern "C" {

int32_t amaSolveLinerEquation(const double *c, double *x) {
    if (c[0] == 0.0) return c[1] != 0.0 ? -1 : 0;
    *x = -c[1] / c[0];
    return 1;
}

int32_t amaSolveEquationOf2ndD(const double *c, double *out) {
    return store(solveQuadratic(c), out);
}

int32_t amaSolveEquationOf3rdD(const double *c, double *out) { return store(solveCubic(c), out); }

int32_t amaSolveEquationOf4thD(const double *c, double *out) { return store(solveQuartic(c), out); }

DTCOMPLEX ama_c_sqrt(DTCOMPLEX z) {
    const Complex root = squareRoot({z.re, z.im});
    return {root.re, root.im};
}

} // extern "C"
