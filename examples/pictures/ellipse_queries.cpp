// Pictures: queries and transforms of ellipses.
#include <algorithm>
#include <cmath>

#include "album.h"

namespace pictures {

namespace {

const Ellipse kEllipse{{50, 30}, 80, 40, 20, {0, 360}};
const Ellipse kArc{{50, 30}, 80, 40, 20, {-30, 135}};

/// The point of the picture's ellipse at a parameter, and the tangent found there at a handy
/// length.
void drawTangent(Picture &picture, const Ellipse &e, DTPOINT point, DTPOINT tangent) {
    const double length = std::hypot(tangent.x, tangent.y);
    picture.given().point(point, "point");
    picture.found().arrow(point, point + (0.5 * e.b / length) * tangent, "tangent");
    picture.figure("tangent", tangent);
}

void drawArc(Picture &picture, const Ellipse &e) {
    picture.aid().ellipse(e);
    picture.given().ellipticArc(e, "start", "end").point(e.center, "center");
}

/// What the two transforms with loose arguments write.
void drawTransformed(Picture &picture, const Ellipse &e, const Ellipse &image) {
    drawArc(picture, e);
    picture.aid().ellipse(image);
    picture.found().ellipticArc(image, "start", "end").point(image.center, "out_center");
    picture.figure("out_rot", image.rot).figure("out_angles[0]", image.angles[0]);
    picture.figure("out_angles[1]", image.angles[1]);
}

} // namespace

void drawEllipseQueries(Album &album) {
    album.add(PICTURES_NAMED(GetElpFocusPnt), [](Picture &picture, auto &call) {
        const Ellipse &e = kEllipse;
        DTPOINT focus1, focus2;
        const int32_t result = call(&e.center, e.a / 2, e.b / 2, e.rot, &focus1, &focus2);
        const DTPOINT any = e.at(70);
        picture.aid().segment(focus1, any).segment(focus2, any);
        picture.given().ellipse(e, "center").distance(e.center, e.at(0), "a");
        picture.distance(e.center, e.at(90), "b");
        picture.found().point(focus1, "focus1").point(focus2, "focus2").returns(result);
        picture.given().figure("a and b are", "half axes");
    });

    album.add(PICTURES_NAMED(a2d_GetTangentVectorOnElp), [](Picture &picture, auto &call) {
        const Ellipse e{{0, 0}, 80, 40, 0, {0, 360}};
        const DTPOINT point = e.at(40);
        DTPOINT tangent;
        const int32_t result = call(e.b / e.a, &point, &tangent);
        picture.aid().arrow({-50, 0}, {50, 0}).text({50, 0}, "x").arrow({0, -28}, {0, 32});
        picture.text({0, 32}, "y").given().ellipse(e).figure("ratio", e.b / e.a);
        drawTangent(picture, e, point, tangent);
        picture.returns(result);
    });

    album.add(PICTURES_NAMED(a2d_GetTangentVectorOnDTELLIPSE), [](Picture &picture, auto &call) {
        const DTELLIPSE record = kEllipse.record();
        const DTPOINT point = kEllipse.at(40);
        DTPOINT tangent;
        const int32_t result = call(&record, &point, &tangent);
        picture.given().ellipse(kEllipse, "centre");
        drawTangent(picture, kEllipse, point, tangent);
        picture.returns(result);
    });

    album.add(PICTURES_NAMED(CheckEllipseArcAngle), [](Picture &picture, auto &call) {
        const DTELLIPSE record = kArc.record();
        picture.found().field({0, 0}, {100, 60}, 5, [&](DTPOINT p) {
            return call(&record, &p) == 0 ? Shape::dot : Shape::ring;
        });
        drawArc(picture, kArc);
        picture.found().key(Shape::dot, "0, its parametric angle is on the arc");
        picture.key(Shape::ring, "1, off it");
    });

    album.add(PICTURES_NAMED(a2d_hanel), [](Picture &picture, auto &call) {
        const Ellipse e{{50, 30}, 70, 40, 0, {0, 360}};
        const DTELLIPSE record = e.record();
        picture.given().ellipse(e);
        const char *const words[] = {"0, misses", "1, touches", "2, cuts"};
        for (const double y : {15.0, 50.0, 62.0}) {
            const DTLINE line{0, 5, y, 125, y};
            const auto answer = static_cast<std::size_t>(call(&line, &record));
            picture.given().line({5, y}, {125, y}).found().text({105, y}, words[answer]);
        }
    });

    album.add(PICTURES_NAMED(ca_onelp), [](Picture &picture, auto &call) {
        const Ellipse &e = kArc;
        drawArc(picture, e);
        const Ellipse larger{e.center, e.a + 16, e.b + 16, e.rot, {0, 360}};
        picture.found();
        for (int t = 0; t < 360; t += 15) {
            for (const DTPOINT p : {e.at(t), larger.at(t)}) {
                const bool isOn = call(&e.center, e.a, e.b, e.rot, e.angles, &p) == 0;
                picture.point(p, "", isOn ? Shape::dot : Shape::ring);
            }
        }
        picture.key(Shape::dot, "0, on the arc").key(Shape::ring, "1, off it or off the curve");
    });

    album.add(PICTURES_NAMED(pin_chk), [](Picture &picture, auto &call) {
        const Ellipse &e = kEllipse;
        const double range[2] = {30, 150};
        picture.aid().ellipse(e);
        for (const double deg : {0.0, range[0], range[1]}) {
            picture.segment(e.center, e.center + polar(30, e.rot + deg));
        }
        picture.found().field({0, 0}, {100, 60}, 5, [&](DTPOINT p) {
            return call(&e.center, e.rot, range, &p) == 0 ? Shape::dot : Shape::ring;
        });
        picture.given().angle(e.center, 22, e.rot, e.rot + range[0], "range[0]");
        picture.angle(e.center, 14, e.rot, e.rot + range[1], "range[1]").point(e.center, "center");
        picture.found().key(Shape::dot, "0, in the range").key(Shape::ring, "1, outside");
    });

    album.add(PICTURES_NAMED(ca_posel), [](Picture &picture, auto &call) {
        const Ellipse e{{50, 30}, 80, 40, 0, {0, 360}};
        uint16_t position = 0;
        const auto shapeOf = [&](DTPOINT p) {
            call(&e.center, e.a, e.b, e.rot, &p, &position);
            if (position == 0) return Shape::cross;
            return position == 1 ? Shape::ring : Shape::dot;
        };
        picture.given().ellipse(e, "center").found().field({0, 0}, {100, 60}, 5, shapeOf);
        picture.key(Shape::dot, "65535, inside").key(Shape::cross, "0, on it");
        picture.key(Shape::ring, "1, outside");
    });

    album.add(PICTURES_NAMED(a2d_elp_trans), [](Picture &picture, auto &call) {
        const Ellipse e{{45, 25}, 80, 30, 20, {-30, 135}};
        const DTELLIPSE record = e.record();
        DTELLIPSE result = record;
        const double k = 1.8;
        const int32_t code = call(&record, k, &result);
        const Ellipse image{
            {result.cx, result.cy}, result.a, result.b, result.rot, {result.start, result.end}};
        picture.aid().line({0, 0}, {1, 0}).text({90, 0}, "the x axis").ellipse(e).ellipse(image);
        picture.given().ellipticArc(e, "start", "end").figure("k", k);
        picture.found().ellipticArc(image, "start", "end").returns(code);
        picture.figure("a", image.a).figure("b", image.b).figure("rot", image.rot);
    });

    album.add(PICTURES_NAMED(ca_rvelp), [](Picture &picture, auto &call) {
        const Ellipse e{{75, 20}, 60, 28, 10, {-30, 135}};
        const DTPOINT pivot{15, 10};
        Ellipse out{};
        call(&e.center, e.a, e.b, e.rot, e.angles, &pivot, 60, &out.center, &out.a, &out.b,
             &out.rot, out.angles);
        picture.aid().segment(pivot, e.center).segment(pivot, out.center);
        const double from = atan2d(e.center.y - pivot.y, e.center.x - pivot.x);
        picture.given().point(pivot, "pivot").angle(pivot, 22, from, from + 60, "angle 60");
        drawTransformed(picture, e, out);
    });

    album.add(PICTURES_NAMED(ca_vmelp), [](Picture &picture, auto &call) {
        const Ellipse e{{30, 60}, 60, 28, 10, {-30, 135}};
        const DTPOINT p1{0, 22}, p2{95, 45};
        Ellipse out{};
        call(&e.center, e.a, e.b, e.rot, e.angles, &p1, &p2, &out.center, &out.a, &out.b, &out.rot,
             out.angles);
        picture.given().line(p1, p2, "line_p1", "line_p2");
        drawTransformed(picture, e, out);
    });

    album.add(PICTURES_NAMED(ca_samel), [](Picture &picture, auto &call) {
        const Ellipse e{{50, 30}, 50, 25, 0, {20, 200}};
        const DTPOINT point{88, 48};
        Ellipse out{};
        call(&e.center, e.a, e.b, e.rot, e.angles, &point, &out.center, &out.a, &out.b, &out.rot,
             out.angles);
        picture.aid().ellipse(out).ellipse(e);
        picture.given().ellipticArc(e).point(e.center, "center");
        picture.found().ellipticArc(out).figure("out_a", out.a).figure("out_b", out.b);
        picture.given().point(point, "point").figure("a", e.a).figure("b", e.b);
    });
}

} // namespace pictures
