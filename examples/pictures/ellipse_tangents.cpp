// Pictures: tangents of ellipses.
#include <array>

#include "album.h"

namespace pictures {

namespace {

auto fromPoint() {
    return [](Picture &picture, auto &call) {
        const Ellipse e{{40, 30}, 70, 36, 15, {0, 360}};
        const DTPOINT p{100, 55};
        DTPOINT out1, out2;
        const int32_t result = call(&p, &e.center, e.a, e.b, e.rot, &out1, &out2);
        picture.given().ellipse(e, "center").point(p, "p");
        picture.found().segment(p, out1, "", "out1").segment(p, out2, "", "out2").returns(result);
    };
}

} // namespace

void drawEllipseTangents(Album &album) {
    album.add(PICTURES_NAMED(ca_inspe), fromPoint());
    album.add(PICTURES_NAMED(a2d_tchpe), fromPoint());

    album.add(PICTURES_NAMED(a2d_tch2e), [](Picture &picture, auto &call) {
        const Ellipse e1{{28, 32}, 56, 32, 30, {0, 360}}, e2{{100, 36}, 40, 24, -40, {0, 360}};
        std::array<DTPOINT, 8> t{};
        uint16_t count = 0;
        const int32_t result = call(&e1.center, &e2.center, e1.a, e2.a, e1.b, e2.b, e1.rot, e2.rot,
                                    &t[0], &t[1], &t[2], &t[3], &t[4], &t[5], &t[6], &t[7], &count);
        picture.given().ellipse(e1, "center1").ellipse(e2, "center2").found();
        for (std::size_t i = 0; i < 2 * std::size_t{count}; i += 2) {
            picture.segment(t[i], t[i + 1], "t" + std::to_string(i + 1),
                            "t" + std::to_string(i + 2));
        }
        picture.returns(result).figure("count", count);
    });
}

} // namespace pictures
