// Pictures: ellipses, their parameter and their record.
#include "album.h"

namespace pictures {

void drawEllipses(Album &album) {
    album.add(PICTURES_NAMED(ca_elpcd), [](Picture &picture, auto &call) {
        const Ellipse e{{50, 30}, 80, 40, 20, {-30, 135}};
        double points[4];
        const int32_t result = call(&e.center, e.a, e.b, e.rot, e.angles, points);
        picture.aid().ellipse(e).segment(e.center, e.at(0));
        picture.given().ellipticArc(e).point(e.center, "center");
        picture.figure("angles[0]", e.angles[0]).figure("angles[1]", e.angles[1]);
        picture.found().point({points[0], points[1]}, "points[0], points[1]");
        picture.point({points[2], points[3]}, "points[2], points[3]").returns(result);
    });

    album.add(PICTURES_NAMED(a2d_elpdeg), [](Picture &picture, auto &call) {
        const Ellipse e{{50, 40}, 90, 40, 0, {0, 360}};
        const DTPOINT point = e.at(55);
        double angle = 0;
        const int32_t result = call(&point, &e.center, e.a, e.b, e.rot, &angle);
        const DTPOINT onCircle = e.center + polar(e.a / 2, angle);
        picture.aid().circle(e.center, e.a / 2).segment(e.center, e.at(0));
        picture.segment(e.center, onCircle).segment(onCircle, {onCircle.x, e.center.y});
        picture.given().ellipse(e, "center").point(point, "point");
        picture.found().angle(e.center, 20, 0, angle, number(angle)).returns(result);
        picture.figure("angle", angle);
        picture.aid().figure("the direction of the point is",
                             atan2d(point.y - e.center.y, point.x - e.center.x));
    });

    album.add(PICTURES_NAMED(a2dGetEllipsDt), [](Picture &picture, auto &call) {
        const DTPOINT center{50, 30}, p{88, 40}, q{38, 52};
        Ellipse e{center, 0, 0, 0, {0, 360}};
        const int32_t result = call(&p, &q, &center, &e.a, &e.b, &e.rot);
        picture.aid().segment(e.at(0), e.at(180)).segment(e.at(90), e.at(270));
        picture.given().segment(center, p).segment(center, q);
        picture.point(center, "center").point(p, "p").point(q, "q");
        picture.found().ellipse(e).returns(result);
        picture.figure("a", e.a).figure("b", e.b).figure("rot", e.rot);
    });

    album.add(PICTURES_NAMED(ca_ElpAngle), [](Picture &picture, auto &call) {
        const Ellipse e{{0, 0}, 90, 45, 0, {0, 360}};
        const DTELLIPSE record = e.record();
        double parametric = 60, direction = 0;
        call(0, &record, &parametric, &direction);
        const DTPOINT onCircle = polar(e.a / 2, parametric), place = e.at(parametric);
        picture.aid().circle(e.center, e.a / 2).segment(e.center, {e.a / 2, 0});
        picture.segment(onCircle, {onCircle.x, 0}).segment(e.center, onCircle);
        picture.given().ellipse(e).angle(e.center, 24, 0, parametric, "parametric");
        picture.found().segment(e.center, place).point(place);
        picture.angle(e.center, 14, 0, direction, "polar");
        picture.given().figure("parametric", parametric);
        picture.found().figure("mode 0: polar", direction);
        parametric = 0;
        call(1, &record, &parametric, &direction);
        picture.figure("mode 1: parametric", parametric);
    });

    album.add(PICTURES_NAMED(ca_ElpCordXY), [](Picture &picture, auto &call) {
        const Ellipse e{{0, 0}, 90, 45, 15, {0, 360}};
        const DTELLIPSE record = e.record();
        DTPOINT parametric, direction;
        call(0, &record, 50, &parametric);
        call(1, &record, 50, &direction);
        picture.aid().segment(e.center, e.at(0));
        picture.given().ellipse(e, "centre").angle(e.center, 16, e.rot, e.rot + 50, "50");
        picture.found().arrow(e.center, parametric).arrow(e.center, direction);
        picture.text(parametric, "mode 0").text(direction, "mode 1");
        picture.figure("mode 0: offset", parametric).figure("mode 1: offset", direction);
    });
}

} // namespace pictures
