// Polynomials built from chosen roots, and measured against roots found.
#pragma once

#include <algorithm>
#include <complex>
#include <vector>

#include "support.h"

namespace support {

using Root = std::complex<double>;

/// Coefficients, highest degree first, of lead * (x - r0) (x - r1) ...; a root with an imaginary
/// part stands for itself and its conjugate.
inline std::vector<double> polynomialOf(const std::vector<Root> &roots, double lead = 1.0) {
    std::vector<long double> c = {1.0L};
    for (const Root &root : roots) {
        const long double re = root.real(), im = root.imag();
        const long double linear = im == 0 ? -re : -2 * re;
        const long double constant = im == 0 ? 0 : re * re + im * im;
        std::vector<long double> product(c.size() + (im == 0 ? 1 : 2));
        for (std::size_t i = 0; i < c.size(); ++i) {
            product[i] += c[i];
            product[i + 1] += linear * c[i];
            if (im != 0) product[i + 2] += constant * c[i];
        }
        c = product;
    }
    std::vector<double> rounded(c.size());
    std::transform(c.begin(), c.end(), rounded.begin(),
                   [lead](long double v) { return static_cast<double>(lead * v); });
    return rounded;
}

inline std::vector<Root> pairs(const std::vector<double> &out) {
    std::vector<Root> roots;
    for (std::size_t k = 0; k + 1 < out.size(); k += 2) {
        roots.emplace_back(out[k], out[k + 1]);
    }
    return roots;
}

/// The largest difference between the coefficients and those of lead * product of (x - root),
/// each over what its terms would sum to if none cancelled.
inline double reconstructionError(const std::vector<double> &c, const std::vector<Root> &roots) {
    std::vector<std::complex<long double>> product = {c[0]};
    std::vector<long double> size = {std::fabs(c[0])};
    for (const Root &root : roots) {
        const std::complex<long double> r(root.real(), root.imag());
        product.emplace_back(0);
        size.push_back(0);
        for (std::size_t i = product.size() - 1; i > 0; --i) {
            product[i] -= r * product[i - 1];
            size[i] += std::abs(r) * size[i - 1];
        }
    }
    long double worst = 0;
    for (std::size_t i = 0; i < c.size(); ++i) {
        const long double error = std::abs(product[i] - std::complex<long double>(c[i]));
        if (error != 0) worst = std::max(worst, error / size[i]);
    }
    return static_cast<double>(worst);
}

} // namespace support
