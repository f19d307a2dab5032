// Pictures: lines with ellipses.
#include "album.h"

namespace pictures {

namespace {

const Ellipse kEllipse{{50, 30}, 84, 40, 20, {0, 360}};
constexpr DTPOINT kFrom{95, 22}, kTo{15, 35};

void drawCrossed(Picture &picture, const DTPOINT *out, uint32_t count) {
    picture.given().line(kFrom, kTo, "p1", "p2").point(kEllipse.center, "center").found();
    if (count > 0) picture.point(out[0], "out1");
    if (count > 1) picture.point(out[1], "out2");
    picture.figure("count", count);
}

void drawFrame(Picture &picture, const Ellipse &e) {
    picture.aid().arrow({-0.7 * e.a, 0}, {0.7 * e.a, 0}).text({0.7 * e.a, 0}, "x");
    picture.arrow({0, -0.8 * e.b}, {0, 0.8 * e.b}).text({0, 0.8 * e.b}, "y");
    picture.given().ellipse(e);
}

} // namespace

void drawLineEllipse(Album &album) {
    album.add(PICTURES_NAMED(a2d_CrsLE), [](Picture &picture, auto &call) {
        const Ellipse &e = kEllipse;
        DTPOINT out[2];
        uint32_t count = 0;
        const int32_t result =
            call(&kFrom, &kTo, &e.center, e.a, e.b, e.rot, &out[0], &out[1], &count, 1e-6);
        picture.given().ellipse(e).figure("tol", 1e-6);
        drawCrossed(picture, out, count);
        picture.returns(result);
    });

    const auto whole = [](Picture &picture, auto &call) {
        const Ellipse &e = kEllipse;
        DTPOINT out[2];
        uint16_t count = 0;
        const int32_t result =
            call(&kFrom, &kTo, &e.center, e.a, e.b, e.rot, &out[0], &out[1], &count);
        picture.given().ellipse(e);
        drawCrossed(picture, out, count);
        picture.returns(result);
    };
    album.add(PICTURES_NAMED(a2d_insle), whole);
    album.add(PICTURES_NAMED(ca_insle), whole);
    album.add(PICTURES_NAMED(a2d_insle2), whole);

    album.add(PICTURES_NAMED(a2d_insl1), [](Picture &picture, auto &call) {
        const Ellipse e{kEllipse.center, kEllipse.a, kEllipse.b, kEllipse.rot, {20, 230}};
        DTPOINT out[2];
        uint16_t count = 0;
        const int32_t result =
            call(&kFrom, &kTo, &e.center, e.a, e.b, e.rot, e.angles, &out[0], &out[1], &count);
        picture.aid().ellipse(e);
        picture.given().ellipticArc(e, "start", "end");
        drawCrossed(picture, out, count);
        picture.returns(result);
    });

    album.add(PICTURES_NAMED(a2d_insLStandardE), [](Picture &picture, auto &call) {
        const Ellipse e{{0, 0}, 80, 40, 0, {0, 360}};
        const DTPOINT p1{-50, -12}, p2{45, 18};
        DTPOINT out[2];
        uint16_t count = 0;
        const int32_t result = call(&p1, &p2, e.a, e.b, &out[0], &out[1], &count);
        drawFrame(picture, e);
        picture.line(p1, p2, "p1", "p2");
        picture.found().point(out[0], "out1").point(out[1], "out2").figure("count", count);
        picture.returns(result);
    });

    album.add(PICTURES_NAMED(a2d_IsElpTangentLine), [](Picture &picture, auto &call) {
        const Ellipse e{{0, 0}, 80, 40, 0, {0, 360}};
        const DTPOINT touch = e.at(50), onward = e.at(51) - e.at(49);
        const DTPOINT p1 = touch - 18.0 * DTPOINT{onward.x / 1.3, onward.y / 1.3};
        const DTPOINT p2 = touch + 18.0 * DTPOINT{onward.x / 1.3, onward.y / 1.3};
        const DTPOINT q1{-50, 6}, q2{-20, 30};
        DTPOINT out, none;
        const int32_t result = call(&p1, &p2, e.a, e.b, &out);
        const int32_t other = call(&q1, &q2, e.a, e.b, &none);
        drawFrame(picture, e);
        picture.line(p1, p2, "p1", "p2").line(q1, q2, "q1", "q2");
        picture.found().point(out, "out").figure("p1, p2: returns", result);
        picture.figure("q1, q2: returns", other);
    });

    album.add(PICTURES_NAMED(a2d_InsDe), [](Picture &picture, auto &call) {
        const Ellipse e{{50, 30}, 84, 40, 20, {20, 200}};
        Ellipse cut = e;
        cut.angles[0] = 150;
        cut.angles[1] = 320;
        const DTELLIPSE e1 = e.record(), e2 = cut.record();
        DTPOINT out;
        const int32_t result = call(&e1, &e2, &out);
        Ellipse beside = cut;
        beside.a += 8;
        beside.b += 8;
        picture.aid().ellipticArc(beside).text(beside.at(235), "e2, on the same ellipse");
        picture.given().ellipticArc(e, "start of e1", "end of e1");
        picture.found().point(out, "out").returns(result).figure("out", out);
    });
}

} // namespace pictures
