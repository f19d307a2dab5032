// Pictures: settings.
#include "album.h"

namespace pictures {

namespace {

constexpr DTPOINT kFrom{20, 30}, kTo{80, 40};
constexpr double kAtLoad = 1e-6;

/// The points that the segment holds with a tolerance.
bool isOnSegment(DTPOINT p, double tolerance) {
    ca_seterrdist(tolerance);
    const bool isOn = a2d_onlin(&kFrom, &kTo, &p) == 0;
    ca_seterrdist(kAtLoad);
    return isOn;
}

/// Which end of the element stays when it is cut by a line over its whole length.
void drawCut(Picture &picture, int32_t flag, double y) {
    const DTLINE element{0, 20, y, 80, y}, cut{0, 10, y + 6, 90, y + 6};
    const DTLINE across{0, 10, y, 90, y};
    DTPOINT end;
    ca_SetStartendFlg(flag);
    a2d_InsDl(&element, &across, &end);
    ca_SetStartendFlg(0);
    picture.aid().segment(cut).text({50, y + 6}, "the cutting line, on the same line");
    picture.given().segment({20, y}, {80, y}, "start", "end");
    picture.found().point(end, "kept with flag " + std::to_string(flag));
}

} // namespace

void drawSettings(Album &album) {
    album.add(PICTURES_NAMED(ca_geterrdist), [](Picture &picture, auto &call) {
        const double atLoad = call();
        ca_seterrdist(6.0);
        const double now = call();
        picture.given().segment(kFrom, kTo, "p1", "p2");
        picture.found().distance({50, 35}, DTPOINT{50, 35} + polar(now, 99.46), number(now));
        picture.aid().arc(kFrom, now, 99.46, 279.46).arc(kTo, now, -80.54, 99.46);
        const DTPOINT up = polar(now, 99.46);
        picture.segment(kFrom + up, kTo + up).segment(kFrom - up, kTo - up);
        picture.found().figure("at load", atLoad).figure("after ca_seterrdist(6)", now);
        ca_seterrdist(kAtLoad);
    });

    album.add(PICTURES_NAMED(ca_seterrdist), [](Picture &picture, auto &call) {
        picture.given().segment(kFrom, kTo, "p1", "p2");
        picture.found().field({10, 20}, {90, 50}, 2.5, [&](DTPOINT p) {
            call(kAtLoad);
            if (isOnSegment(p, 3.0)) return Shape::dot;
            return isOnSegment(p, 8.0) ? Shape::ring : Shape::cross;
        });
        picture.key(Shape::dot, "a2d_onlin: on the segment with ca_seterrdist(3)");
        picture.key(Shape::ring, "and with ca_seterrdist(8)").key(Shape::cross, "off it");
    });

    album.add(PICTURES_NAMED(ca_GetStartendFlg), [](Picture &picture, auto &call) {
        const int32_t atLoad = call();
        drawCut(picture, atLoad, 30);
        picture.figure("at load", atLoad);
        ca_SetStartendFlg(1);
        picture.figure("after ca_SetStartendFlg(1)", call());
        ca_SetStartendFlg(0);
    });

    album.add(PICTURES_NAMED(ca_SetStartendFlg), [](Picture &picture, auto &call) {
        drawCut(picture, 0, 55);
        call(1);
        const int32_t flag = ca_GetStartendFlg();
        drawCut(picture, flag, 25);
    });

    album.add(PICTURES_NAMED(ca_Simpson_getParmtbl), [](Picture &picture, auto &call) {
        const Ellipse e{{0, 30}, 80, 44, 0, {0, 360}};
        double *table = call();
        table[0] = e.a / 2.0;
        table[1] = e.b / 2.0;
        picture.given().ellipse(e);
        picture.distance(e.center, e.at(0), "half a").distance(e.center, e.at(90), "half b");
        for (int slot = 0; slot < 10; ++slot) {
            const DTPOINT low{-60.0 + 12.0 * slot, -12}, middle{low.x + 6.0, -7};
            picture.aid().box(low, low + DTPOINT{12, 10});
            picture.textOn({low.x + 6.0, -15}, std::to_string(slot));
            picture.found().textOn(middle, number(call()[slot]));
        }
        table[0] = table[1] = 0.0;
    });
}

} // namespace pictures
