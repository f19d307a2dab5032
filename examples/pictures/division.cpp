// Pictures: elliptic arcs divided into pieces of equal length.
#include "album.h"

namespace pictures {

namespace {

auto divided() {
    return [](Picture &picture, auto &call) {
        const Ellipse e{{50, 30}, 90, 36, 15, {0, 300}};
        const int32_t n = 8;
        double length = 0;
        picture.aid().ellipse(e);
        picture.given().ellipticArc(e, "start", "").figure("n", n).found();
        for (int32_t k = 1; k <= n; ++k) {
            DTPOINT out;
            if (call(&e.center, e.a, e.b, e.rot, e.angles, n, k, &out, &length) == 0)
                picture.point(out, "k = " + std::to_string(k));
        }
        picture.figure("len", length);
    };
}

} // namespace

void drawDivision(Album &album) {
    album.add(PICTURES_NAMED(a2d_elpdn), divided());
    album.add(PICTURES_NAMED(ca_elpdn), divided());
}

} // namespace pictures
