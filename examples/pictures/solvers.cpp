// Pictures: the curve of a polynomial and its roots, in the plane of complex numbers where they
// are not real.
#include <cmath>
#include <vector>

#include "album.h"

namespace pictures {

namespace {

double valueAt(const std::vector<double> &c, double x) {
    double value = 0.0;
    for (const double coefficient : c) {
        value = value * x + coefficient;
    }
    return value;
}

std::string polynomial(const std::vector<double> &c) {
    std::string text;
    const std::size_t degree = c.size() - 1;
    for (std::size_t i = 0; i < c.size(); ++i) {
        if (c[i] == 0.0) continue;
        if (!text.empty()) text += c[i] < 0.0 ? " - " : " + ";
        const std::size_t power = degree - i;
        const double size = text.empty() ? c[i] : std::fabs(c[i]);
        if (size != 1.0 || power == 0) text += number(size) + (power > 0 ? " " : "");
        if (power > 0) text += "x";
        if (power > 1) text += "^" + std::to_string(power);
    }
    return text;
}

/// The curve, and on its axis the real roots of `roots`, pairs of real and imaginary part.
void drawCurve(Picture &picture, const std::vector<double> &c, const Scale &x, const Scale &y,
               const std::vector<DTPOINT> &roots) {
    picture.graph(x, y).given().curve(x.low, x.high, [&](double v) { return valueAt(c, v); });
    picture.aid().segment({x.low, 0}, {x.high, 0});
    picture.given().figure(polynomial(c), "").found();
    for (const DTPOINT root : roots) {
        if (root.y == 0.0) picture.point({root.x, 0}, number(root.x));
    }
}

std::string complex(DTPOINT root) {
    if (root.y == 0.0) return number(root.x);
    return number(root.x) + (root.y < 0.0 ? " - " : " + ") + number(std::fabs(root.y)) + " i";
}

void drawPlane(Picture &picture, const std::vector<double> &c, double reach,
               const std::vector<DTPOINT> &roots, bool isLabelled = true) {
    picture.aid().arrow({-1.25 * reach, 0}, {1.25 * reach, 0}, "").text({1.25 * reach, 0}, "re");
    picture.arrow({0, -reach}, {0, reach}, "").text({0, reach}, "im");
    picture.given().figure(polynomial(c), "").found();
    for (std::size_t i = 0; i < roots.size(); ++i) {
        picture.point(roots[i], isLabelled ? std::to_string(i) + ": " + complex(roots[i])
                                           : std::to_string(i));
    }
}

} // namespace

void drawSolvers(Album &album) {
    album.add(PICTURES_NAMED(amaSolveLinerEquation), [](Picture &picture, auto &call) {
        const std::vector<double> c{2, -3};
        double x = 0;
        const int32_t result = call(c.data(), &x);
        drawCurve(picture, c, {"x", -1, 4, 1}, {"c[0] x + c[1]", -6, 6, 3}, {{x, 0}});
        picture.returns(result).figure("x", x);
    });

    album.add(PICTURES_NAMED(amaSolveEquationOf2ndD), [](Picture &picture, auto &call) {
        const std::vector<double> c{1, -1, -2};
        std::vector<DTPOINT> roots(2);
        const int32_t result = call(c.data(), &roots[0].x);
        drawCurve(picture, c, {"x", -2, 3, 1}, {"value", -4, 4, 2}, roots);
        picture.returns(result).figure("first", roots[0].x).figure("second", roots[1].x);
    });

    album.add(PICTURES_NAMED(amaSolveEquationOf3rdD), [](Picture &picture, auto &call) {
        const std::vector<double> c{1, 0, -7, 6};
        std::vector<DTPOINT> roots(3);
        const int32_t result = call(c.data(), &roots[0].x);
        drawCurve(picture, c, {"x", -4, 3, 1}, {"value", -16, 16, 8}, roots);
        picture.returns(result).figure("in the order", number(roots[0].x) + ", " +
                                                           number(roots[1].x) + ", " +
                                                           number(roots[2].x));
    });

    album.add(PICTURES_NAMED(amaSolveEquationOf4thD), [](Picture &picture, auto &call) {
        const std::vector<double> c{1, -1, -1, 7, -6};
        std::vector<DTPOINT> roots(4);
        const int32_t result = call(c.data(), &roots[0].x);
        drawPlane(picture, c, 2.5, roots);
        picture.returns(result);
    });

    album.add(PICTURES_NAMED(ama_c_sqrt), [](Picture &picture, auto &call) {
        picture.aid().arrow({-8, 0}, {8, 0}).text({8, 0}, "re");
        picture.arrow({0, -5}, {0, 5}).text({0, 5}, "im");
        for (const DTPOINT z : {DTPOINT{5, 4}, {-6, 3}, {-4, -4}}) {
            const DTCOMPLEX root = call({z.x, z.y});
            picture.given().arrow({0, 0}, z).text(z, complex(z));
            picture.found()
                .arrow({0, 0}, {root.re, root.im})
                .text({root.re, root.im}, complex({root.re, root.im}));
        }
    });

    album.add(PICTURES_NAMED(amaNewtonRaphson), [](Picture &picture, auto &call) {
        const std::vector<double> c{1, -2, -5, 6};
        double x = 0, from = 0;
        const int32_t result = call(c.data(), 3, &x);
        for (const double coefficient : c) {
            from -= coefficient / static_cast<double>(c.size());
        }
        drawCurve(picture, c, {"x", -3, 4, 1}, {"value", -15, 15, 5}, {{x, 0}});
        picture.aid().point({from, valueAt(c, from)}, "the start");
        picture.returns(result).figure("x", x);
    });

    album.add(PICTURES_NAMED(amaBairstaw), [](Picture &picture, auto &call) {
        const std::vector<double> c{1, -2, 0, 4, -3, 2};
        std::vector<DTPOINT> roots(5);
        const int32_t result = call(c.data(), 5, &roots[0].x);
        drawPlane(picture, c, 1.8, roots);
        picture.returns(result).aid().figure("1 and 3 are", "mirrored, no conjugates");
    });

    album.add(PICTURES_NAMED(amaDKA), [](Picture &picture, auto &call) {
        std::vector<double> c{1, 0, 0, 0, -2, 0, 0, 0, 0, 0, 0, 0, 3};
        const std::vector<double> given = c;
        std::vector<DTPOINT> roots(12);
        const int32_t result = call(c.data(), 12, 1e-12, 500, &roots[0].x);
        drawPlane(picture, given, 1.5, roots, false);
        picture.aid().circle({0, 0}, 1);
        picture.given().figure("eps", 1e-12).figure("maxiter", 500);
        picture.returns(result);
    });
}

} // namespace pictures
