// Pictures: perpendiculars to ellipses.
#include <array>

#include "album.h"

namespace pictures {

namespace {

const Ellipse kWhole{{50, 30}, 90, 50, 15, {0, 360}};
const Ellipse kArc{{50, 30}, 90, 50, 15, {-20, 200}};
constexpr DTPOINT kPoint{58, 35};

using Feet = std::array<DTPOINT, 4>;

void drawFeet(Picture &picture, const Feet &feet, std::size_t count) {
    picture.found();
    for (std::size_t i = 0; i < count; ++i) {
        picture.segment(kPoint, feet[i]);
    }
    picture.points(feet.data(), count, "out").given().point(kPoint, "p");
}

void drawArc(Picture &picture) {
    picture.aid().ellipse(kArc);
    picture.given().ellipticArc(kArc, "start", "end");
}

} // namespace

void drawFeet(Album &album) {
    album.add(PICTURES_NAMED(a2dEllpsPer), [](Picture &picture, auto &call) {
        const DTELLIPSE e = kWhole.record();
        Feet feet{};
        double dist = 0;
        const int32_t count = call(&kPoint, &e, feet.data(), &dist);
        picture.given().ellipse(kWhole);
        drawFeet(picture, feet, static_cast<std::size_t>(count));
        picture.returns(count).figure("dist", dist);
    });

    album.add(PICTURES_NAMED(a2dEllpsPerPnts), [](Picture &picture, auto &call) {
        const DTELLIPSE e = kWhole.record();
        Feet feet{};
        const int32_t count = call(&kPoint, &e, feet.data());
        picture.given().ellipse(kWhole);
        drawFeet(picture, feet, static_cast<std::size_t>(count));
        picture.returns(count);
    });

    album.add(PICTURES_NAMED(a2dEllpsArcPerPnts), [](Picture &picture, auto &call) {
        const DTELLIPSE e = kArc.record();
        Feet feet{};
        const int32_t count = call(&kPoint, &e, feet.data());
        drawArc(picture);
        drawFeet(picture, feet, static_cast<std::size_t>(count));
        picture.returns(count);
    });

    const auto drawCountedFeet = [](Picture &picture, auto &call) {
        const DTELLIPSE e = kArc.record();
        Feet feet{};
        uint32_t count = 0;
        const int32_t result = call(&kPoint, &e, feet.data(), &count);
        drawArc(picture);
        drawFeet(picture, feet, count);
        picture.returns(result).figure("count", count);
    };
    album.add(PICTURES_NAMED(a2d_PerEP), drawCountedFeet);
    album.add(PICTURES_NAMED(a2d_PerEP2), drawCountedFeet);

    album.add(PICTURES_NAMED(a2d_perle), [](Picture &picture, auto &call) {
        const Ellipse whole{{0, 0}, 90, 40, 0, {0, 360}};
        const DTELLIPSE e = whole.record();
        const DTPOINT p{38, 30};
        DTPOINT out;
        const int32_t result = call(&p, &e, &out);
        const double deg = atan2d(p.y, p.x);
        const DTPOINT onCircle = polar(whole.a / 2, deg);
        picture.aid().circle({0, 0}, whole.a / 2).segment({0, 0}, onCircle);
        picture.segment(onCircle, out).segment({0, 0}, {45, 0}).angle({0, 0}, 12, 0, deg, "t");
        picture.given().ellipse(whole).point(p, "p");
        picture.found().point(out, "out").returns(result).figure("out", out);
    });
}

} // namespace pictures
