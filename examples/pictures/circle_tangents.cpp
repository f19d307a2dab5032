// Pictures: tangents of circles.
#include "album.h"

namespace pictures {

void drawCircleTangents(Album &album) {
    album.add(PICTURES_NAMED(ca_pctan), [](Picture &picture, auto &call) {
        const DTPOINT center{30, 30}, point{85, 42};
        DTPOINT out[2];
        uint16_t count = 0;
        const int32_t result = call(&center, 20, &point, &out[0], &out[1], &count);
        picture.given().circle(center, 20, "center").point(point, "point");
        picture.found().segment(point, out[0]).segment(point, out[1]);
        picture.point(out[0], "out1").point(out[1], "out2").returns(result).figure("count", count);
    });

    album.add(PICTURES_NAMED(ca_cctan), [](Picture &picture, auto &call) {
        const DTPOINT c1{25, 28}, c2{90, 35};
        DTPOINT t[8];
        uint16_t count = 0;
        const int32_t result =
            call(&c1, 22, &c2, 13, &t[0], &t[1], &t[2], &t[3], &t[4], &t[5], &t[6], &t[7], &count);
        picture.given().circle(c1, 22, "c1").circle(c2, 13, "c2").found();
        for (std::size_t i = 0; i < 2 * std::size_t{count}; i += 2) {
            picture.segment(t[i], t[i + 1], "t" + std::to_string(i + 1),
                            "t" + std::to_string(i + 2));
        }
        picture.returns(result).figure("count", count);
    });
}

} // namespace pictures
