/// The speed along an ellipse as a cosine series.
#pragma once

#include <array>
#include <cstdint>

#include "ellipse/simpson.h"

namespace planegeo {

/// slope t + a_1 sin 2t + a_2 sin 4t + ..., what integrals and sums make of a cosine series.
struct SineSeries;

/// f(t) = c_0 + c_1 cos 2t + c_2 cos 4t + ..., with the terms that a double can tell.
///
/// With A and B the half axes, P = (A + B) / 2 and rho = (B - A) / (A + B), the speed along the
/// ellipse is P |1 + rho e^2it|. Its coefficients fall like rho^k: axes of 2 : 1 take 27 terms. The
/// sum of a term over equidistant samples is known, and so is that of f, to rounding.
class CosineSeries {
  public:
    /// Enough for axes of 4.4 : 1.
    static constexpr int kMostTerms = 64;

    /// No series; see isUsable().
    CosineSeries() = default;
    /// sqrt(A^2 sin^2 t + B^2 cos^2 t).
    static CosineSeries ofArcSpeed(double halfFirst, double halfSecond);
    /// False where an axis is zero or its square none, or the ellipse too thin for kMostTerms.
    bool isUsable() const { return terms_ >= 0; }
    int terms() const { return terms_; }
    double operator[](int k) const { return c_[static_cast<std::size_t>(k)]; }

    /// The sine series whose term k is that of this series times factor(k), its slope c_0.
    template <class Factor> SineSeries sines(Factor factor) const;

    /// At least the sum of (k + 1)^2 |c_k|, which bounds f and its first two derivatives.
    double weight() const { return weight_; }

  private:
    explicit CosineSeries(int terms) : terms_(terms) {}
    double &c(int k) { return c_[static_cast<std::size_t>(k)]; }

    int terms_ = -1;
    std::array<double, kMostTerms + 1> c_;
    double weight_ = 0.0;
};

struct SineSeries {
    int terms;
    double slope;
    std::array<double, CosineSeries::kMostTerms + 1> a;

    double operator()(double deg) const { return at(deg, Rotation::ofDegrees(deg), terms); }
    /// With the turn by the angle, and not all of the terms.
    double at(double deg, Rotation turn, int someTerms) const {
        const Rotation twice = turn * turn;
        double above = 0.0;
        double here = 0.0;
        for (auto k = static_cast<std::size_t>(someTerms); k > 0; --k) { // Clenshaw
            const double below = (a[k] - above) + 2.0 * twice.c * here;
            above = here;
            here = below;
        }
        return slope * (deg * kRadPerDeg) + here * twice.s;
    }
};

template <class Factor> SineSeries CosineSeries::sines(Factor factor) const {
    SineSeries sum;
    sum.terms = terms_;
    sum.slope = c_[0];
    for (int k = 1; k <= terms_; ++k) {
        sum.a[static_cast<std::size_t>(k)] = (*this)[k] * factor(k);
    }
    return sum;
}

} // namespace planegeo
