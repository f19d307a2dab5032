// Pictures: distances from ellipses.
#include "album.h"

namespace pictures {

namespace {

const Ellipse kArc{{50, 30}, 84, 40, 20, {-30, 160}};

void drawArc(Picture &picture) {
    picture.aid().ellipse(kArc);
    picture.given().ellipticArc(kArc, "start", "end").point(kArc.center, "center");
}

/// Points around the arc, each with its nearest point.
auto nearest() {
    return [](Picture &picture, auto &call) {
        const Ellipse &e = kArc;
        drawArc(picture);
        for (const DTPOINT p : {DTPOINT{95, 60}, {30, 62}, {62, 36}, {20, 2}}) {
            DTPOINT out;
            const double distance = call(&e.center, e.a, e.b, e.rot, e.angles, &p, &out);
            picture.found().distance(p, out, number(distance)).point(out);
            picture.given().point(p, "p");
        }
    };
}

/// Points around the arc, each with the circle of its distance.
auto distances() {
    return [](Picture &picture, auto &call) {
        const Ellipse &e = kArc;
        drawArc(picture);
        for (const DTPOINT p : {DTPOINT{95, 58}, {30, 56}, {62, 36}, {18, 8}}) {
            const double distance = call(&e.center, e.a, e.b, e.rot, e.angles, &p);
            picture.found()
                .circle(p, distance)
                .distance(p, p + polar(distance, 0), number(distance));
            picture.given().point(p, "p");
        }
    };
}

} // namespace

void drawEllipseDistance(Album &album) {
    album.add(PICTURES_NAMED(a2d_distpe), [](Picture &picture, auto &call) {
        const Ellipse whole{{50, 30}, 80, 40, 0, {0, 360}};
        const DTELLIPSE e = whole.record();
        picture.given().ellipse(whole, "centre");
        picture.found().field({0, 0}, {100, 60}, 5, [&](DTPOINT p) {
            const int32_t where = call(&p, &e);
            if (where == 0) return Shape::cross;
            return where == 1 ? Shape::ring : Shape::dot;
        });
        picture.key(Shape::cross, "0, on it").key(Shape::ring, "1, outside");
        picture.key(Shape::dot, "2, inside");
    });
    album.add(PICTURES_NAMED(ca_dstpp), nearest());
    album.add(PICTURES_NAMED(a2d_dstpp), nearest());
    album.add(PICTURES_NAMED(ca_dstpe), distances());
    album.add(PICTURES_NAMED(a2d_dstpe), distances());
}

} // namespace pictures
