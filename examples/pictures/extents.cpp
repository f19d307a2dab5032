// Pictures: extents of ellipses and points of given tangent.
#include "album.h"

namespace pictures {

namespace {

const Ellipse kArc{{50, 30}, 90, 40, 25, {-20, 140}};

void drawArc(Picture &picture, const Ellipse &e) {
    picture.aid().ellipse(e);
    picture.given().ellipticArc(e, "start", "end").point(e.center, "center");
}

void drawDirection(Picture &picture, DTPOINT at, double direction) {
    picture.aid().segment(at, at + DTPOINT{22, 0});
    picture.given().arrow(at, at + polar(22, direction));
    picture.angle(at, 12, 0, direction, "direction");
}

} // namespace

void drawExtents(Album &album) {
    album.add(PICTURES_NAMED(ca_elaln), [](Picture &picture, auto &call) {
        const Ellipse &e = kArc;
        const double direction = 60;
        DTPOINT out[2];
        const int32_t result = call(&e.center, e.a, e.b, e.rot, direction, &out[0], &out[1]);
        picture.given().ellipse(e, "center");
        drawDirection(picture, {105, 8}, direction);
        for (const DTPOINT p : out) {
            picture.aid().segment(p - polar(20, direction), p + polar(20, direction));
        }
        picture.found().point(out[0], "out1").point(out[1], "out2").returns(result);
    });

    album.add(PICTURES_NAMED(ang_pnt), [](Picture &picture, auto &call) {
        const Ellipse &e = kArc;
        const double direction = 60;
        DTPOINT out[2];
        const int32_t result =
            call(&e.center, e.a, e.b, e.rot, e.angles, direction, &out[0], &out[1]);
        drawArc(picture, e);
        drawDirection(picture, {105, 8}, direction);
        for (const DTPOINT p : out) {
            picture.aid().segment(p - polar(20, direction), p + polar(20, direction));
        }
        picture.found().point(out[0], "out1").point(out[1], "out2").returns(result);
    });

    album.add(PICTURES_NAMED(ca_elamn), [](Picture &picture, auto &call) {
        const Ellipse &e = kArc;
        DTPOINT lower, upper;
        const int32_t result = call(&e.center, e.a, e.b, e.rot, e.angles, &lower, &upper);
        drawArc(picture, e);
        picture.found().box(lower, upper).point(lower, "lower").point(upper, "upper");
        picture.returns(result);
    });

    album.add(PICTURES_NAMED(ca_elpmn), [](Picture &picture, auto &call) {
        const Ellipse &e = kArc;
        DTPOINT lower, upper, extremes[4];
        const int32_t result = call(&e.center, e.a, e.b, e.rot, e.angles, &lower, &upper, extremes);
        drawArc(picture, e);
        picture.found().box(lower, upper).point(lower, "lower").point(upper, "upper");
        picture.points(extremes, 4, "extremes").returns(result);
    });
}

} // namespace pictures
