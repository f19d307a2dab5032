// Pictures: circles with circles.
#include "album.h"

namespace pictures {

namespace {

constexpr DTPOINT kFirst{35, 30}, kSecond{70, 38};
constexpr double kFirstRadius = 25, kSecondRadius = 20;

auto arcs() {
    return [](Picture &picture, auto &call) {
        const double angles1[2] = {-30, 200}, angles2[2] = {60, 230};
        DTPOINT out[2];
        uint16_t count = 0;
        const int32_t result = call(&kFirst, &kSecond, kFirstRadius, kSecondRadius, angles1,
                                    angles2, &out[0], &out[1], &count);
        picture.aid().circle(kFirst, kFirstRadius).circle(kSecond, kSecondRadius);
        picture.given().arc(kFirst, kFirstRadius, angles1[0], angles1[1], "start 1", "end 1");
        picture.arc(kSecond, kSecondRadius, angles2[0], angles2[1], "start 2", "end 2");
        picture.point(kFirst, "c1").point(kSecond, "c2").found();
        if (count == 1) picture.point(out[0], "out1 = out2");
        if (count == 2) picture.point(out[0], "out1").point(out[1], "out2");
        picture.returns(result).figure("count", count).figure("out1", out[0]);
    };
}

} // namespace

void drawCircleCircle(Album &album) {
    album.add(PICTURES_NAMED(a2dCrs2C), [](Picture &picture, auto &call) {
        DTPOINT out[2];
        const int32_t count = call(&kFirst, kFirstRadius, &kSecond, kSecondRadius, &out[0].x);
        picture.aid().arrow(kFirst, kSecond);
        picture.given().circle(kFirst, kFirstRadius, "c1").circle(kSecond, kSecondRadius, "c2");
        picture.found().point(out[0], "out[0], out[1]").point(out[1], "out[2], out[3]");
        picture.returns(count);
    });
    album.add(PICTURES_NAMED(a2d_ins2c), arcs());
    album.add(PICTURES_NAMED(ca_ins2c), arcs());
}

} // namespace pictures
