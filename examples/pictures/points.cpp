// Pictures: points and vectors.
#include "album.h"

namespace pictures {

void drawPoints(Album &album) {
    const auto turned = [](Picture &picture, auto &call) {
        const DTPOINT center{20, 15}, point{70, 25};
        const double angle = 50;
        DTPOINT out;
        call(&center, &point, &out, angle);
        picture.aid().segment(center, point).segment(center, out);
        picture.given().point(center, "center").point(point, "point");
        const double from = atan2d(point.y - center.y, point.x - center.x);
        picture.angle(center, 25, from, from + angle, "angle 50");
        picture.found().point(out, "out").figure("out", out);
    };
    album.add(PICTURES_NAMED(c_pnt), turned);
    album.add(PICTURES_NAMED(ca_rvpnt), turned);

    album.add(PICTURES_NAMED(pnt_std), [](Picture &picture, auto &call) {
        const DTPOINT point{62, 58}, origin{40, 25};
        const double rotation = 30;
        DTPOINT out;
        call(&point, &origin, -rotation, &out);
        const DTPOINT along = polar(1, rotation), across = polar(1, rotation + 90);
        picture.aid().arrow({0, 0}, {85, 0}, "x").arrow({0, 0}, {0, 65}, "y");
        picture.given().arrow(origin, origin + 40.0 * along).arrow(origin, origin + 40.0 * across);
        picture.point(origin, "origin").point(point, "point");
        picture.figure("the frame is turned by", rotation).figure("angle", -rotation);
        picture.found().distance(origin, origin + out.x * along, "out.x");
        picture.distance(origin + out.x * along, point, "out.y").figure("out", out);
    });

    album.add(PICTURES_NAMED(pnt_formd), [](Picture &picture, auto &call) {
        const DTPOINT point{35, 18}, origin{40, 15};
        const double rotation = 30;
        DTPOINT out;
        call(&point, &origin, rotation, &out);
        const DTPOINT along = polar(1, rotation), across = polar(1, rotation + 90);
        picture.aid().arrow({0, 0}, {85, 0}, "x").arrow({0, 0}, {0, 60}, "y");
        picture.given().arrow(origin, origin + 48.0 * along).arrow(origin, origin + 35.0 * across);
        picture.point(origin, "origin").distance(origin, origin + point.x * along, "point.x");
        picture.distance(origin + point.x * along, out, "point.y").figure("angle", rotation);
        picture.figure("point", point);
        picture.found().point(out, "out").figure("out", out);
    });

    const auto mirrored = [](Picture &picture, DTPOINT p1, DTPOINT p2, DTPOINT point, DTPOINT out) {
        picture.aid().segment(point, out);
        picture.given().line(p1, p2, "line_p1", "line_p2").point(point, "point");
        picture.found().point(out, "out").figure("out", out);
    };
    const DTPOINT p1{15, 20}, p2{85, 45}, point{35, 60};
    album.add(PICTURES_NAMED(pnt_mer), [=](Picture &picture, auto &call) {
        DTPOINT out;
        call(&point, &p1, &p2, &out);
        mirrored(picture, p1, p2, point, out);
    });
    album.add(PICTURES_NAMED(ca_vmpnt), [=](Picture &picture, auto &call) {
        DTPOINT out;
        call(&p1, &p2, &point, &out);
        mirrored(picture, p1, p2, point, out);
    });

    album.add(PICTURES_NAMED(ca_vcrad), [](Picture &picture, auto &call) {
        const DTPOINT from{15, 15}, to{55, 50};
        const double radians = call(&from, &to);
        picture.aid().segment(from, {75, 15});
        picture.given().arrow(from, to).point(from, "from").point(to, "to");
        picture.found().angle(from, 22, 0, radians * 180.0 / 3.14159265358979, number(radians));
        picture.returns(radians);
    });

    album.add(PICTURES_NAMED(ca_dstpt), [](Picture &picture, auto &call) {
        const DTPOINT p{15, 20}, q{75, 45};
        const double distance = call(&p, &q);
        picture.given().point(p, "p").point(q, "q");
        picture.found().distance(p, q, number(distance)).returns(distance);
    });
}

} // namespace pictures
