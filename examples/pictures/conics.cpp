// Pictures: ellipses with circles and ellipses.
#include <array>

#include "album.h"

namespace pictures {

namespace {

using Four = std::array<DTPOINT, 4>;

void drawFound(Picture &picture, const Four &p, int16_t count) {
    picture.found();
    for (std::size_t i = 0; i < static_cast<std::size_t>(count); ++i) {
        picture.point(p[i], "p" + std::to_string(i + 1));
    }
    picture.figure("count", count);
}

auto circleAndEllipse() {
    return [](Picture &picture, auto &call) {
        const DTPOINT center{50, 30};
        const Ellipse e{{54, 32}, 90, 36, 20, {-100, 200}};
        const double r = 27, angles[2] = {-20, 300};
        Four p{};
        int16_t count = 0;
        const int32_t result = call(&center.x, r, angles, &e.center.x, e.a, e.b, e.rot, e.angles,
                                    &p[0], &p[1], &p[2], &p[3], &count);
        picture.aid().circle(center, r).ellipse(e);
        picture.given().arc(center, r, angles[0], angles[1]).point(center, "center");
        picture.ellipticArc(e).point(e.center, "ecenter");
        drawFound(picture, p, count);
        picture.returns(result);
    };
}

auto twoEllipses() {
    return [](Picture &picture, auto &call) {
        const Ellipse e1{{50, 30}, 90, 36, 15, {0, 360}}, e2{{54, 32}, 40, 64, 30, {0, 360}};
        Four p{};
        int16_t count = 0;
        const int32_t result =
            call(&e1.center.x, &e2.center.x, e1.a, e2.a, e1.b, e2.b, e1.rot, e2.rot, e1.angles,
                 e2.angles, &p[0], &p[1], &p[2], &p[3], &count);
        picture.given().ellipse(e1, "center1").ellipse(e2, "center2");
        drawFound(picture, p, count);
        picture.returns(result);
    };
}

} // namespace

void drawConics(Album &album) {
    album.add(PICTURES_NAMED(a2dIntersectionEC), [](Picture &picture, auto &call) {
        const Ellipse e{{6, 4}, 90, 34, 0, {0, 360}};
        Four out{};
        const int32_t count = call(e.center.x, e.center.y, e.a / 2, e.b / 2, 26, out.data());
        picture.aid().arrow({-50, 0}, {60, 0}).text({60, 0}, "x");
        picture.arrow({0, -32}, {0, 34}).text({0, 34}, "y");
        picture.given().circle({0, 0}, 26).ellipse(e, "ex, ey");
        picture.found().points(out.data(), static_cast<std::size_t>(count), "out").returns(count);
    });

    album.add(PICTURES_NAMED(a2d_insce), circleAndEllipse());
    album.add(PICTURES_NAMED(ca_insce), circleAndEllipse());
    album.add(PICTURES_NAMED(a2d_ins2e), twoEllipses());
    album.add(PICTURES_NAMED(ca_ins2e), twoEllipses());

    album.add(PICTURES_NAMED(a2d_chk_distdeg), [](Picture &picture, auto &call) {
        const Ellipse e{{50, 30}, 84, 40, 20, {0, 360}};
        const Four points{e.at(30), e.at(140), e.at(30), e.at(250)};
        Four out{};
        const int32_t count = call(points.data(), 4, &e.center.x, e.rot, e.a, e.b, out.data());
        picture.aid().ellipse(e).given();
        for (std::size_t i = 0; i < points.size(); ++i) {
            picture.text(points[i], "points[" + std::to_string(i) + "]");
        }
        picture.figure("n", 4);
        picture.found().points(out.data(), static_cast<std::size_t>(count), "out").returns(count);
    });
}

} // namespace pictures
