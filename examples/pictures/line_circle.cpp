// Pictures: lines with circles and arcs.
#include "album.h"

namespace pictures {

namespace {

constexpr DTPOINT kCenter{50, 35};
constexpr double kRadius = 25;
constexpr double kAngles[2] = {-60, 150};
/// The line ends inside the circle.
constexpr DTPOINT kFrom{5, 25}, kTo{38, 35};

void drawLineFound(Picture &picture, const DTPOINT *out, uint16_t count) {
    picture.found();
    if (count == 1) picture.point(out[0], "out1 = out2");
    if (count == 2) picture.point(out[0], "out1").point(out[1], "out2");
    picture.figure("count", count);
}

/// Of the modes of a2d_lin_arc(): what the points are kept by.
void drawCurves(Picture &picture, bool isSegment, bool isArc) {
    picture.given();
    if (isSegment) {
        picture.segment(kFrom, kTo, "a1", "a2");
    } else {
        picture.line(kFrom, kTo, "a1", "a2");
    }
    if (isArc) {
        picture.aid().circle(kCenter, kRadius);
        picture.given().arc(kCenter, kRadius, kAngles[0], kAngles[1], "start", "end");
    } else {
        picture.circle(kCenter, kRadius);
    }
    picture.point(kCenter, "center");
}

/// The picture of the functions that take an arc and write out1, out2 and count.
auto withArc(bool isSegment) {
    return [isSegment](Picture &picture, auto &call) {
        DTPOINT out[2];
        uint16_t count = 0;
        const int32_t result =
            call(&kFrom, &kTo, &kCenter, kRadius, kAngles, &out[0], &out[1], &count);
        drawCurves(picture, isSegment, true);
        drawLineFound(picture, out, count);
        picture.returns(result);
    };
}

} // namespace

void drawLineCircle(Album &album) {
    album.add(PICTURES_NAMED(cross_lin_cir), [](Picture &picture, auto &call) {
        DTPOINT out[2], touch[2];
        uint16_t count = 0, touches = 0;
        call(&kFrom, &kTo, &kCenter, kRadius, &out[0], &out[1], &count);
        const DTPOINT p{10, 60}, q{25, 60};
        call(&p, &q, &kCenter, kRadius, &touch[0], &touch[1], &touches);
        drawCurves(picture, false, false);
        picture.line(p, q, "b1", "b2");
        drawLineFound(picture, out, count);
        picture.point(touch[0], "tangent: out1 = out2").figure("b: count", touches);
    });

    album.add(PICTURES_NAMED(a2d_lin_arc), [](Picture &picture, auto &call) {
        drawCurves(picture, true, true);
        picture.aid().distance(kTo, kTo + 1.6 * (kTo - kFrom), "");
        picture.distance(kFrom, kFrom - 0.1 * (kTo - kFrom), "");
        DTPOINT all[2];
        uint16_t count = 0;
        call(0, &kFrom, &kTo, &kCenter, kRadius, kAngles, &all[0], &all[1], &count);
        picture.found();
        for (const uint32_t mode : {0U, 1U, 2U, 3U}) {
            DTPOINT out[2];
            call(mode, &kFrom, &kTo, &kCenter, kRadius, kAngles, &out[0], &out[1], &count);
            picture.figure("mode " + std::to_string(mode) + ": count", count);
        }
        picture.point(all[0], "modes 0, 1").point(all[1], "modes 0, 2");
    });

    album.add(PICTURES_NAMED(a2dCrsLC), [](Picture &picture, auto &call) {
        DTPOINT out[2];
        const int32_t count = call(&kFrom, &kTo, &kCenter, kRadius, out);
        drawCurves(picture, false, false);
        picture.found().points(out, 2, "out").returns(count);
    });

    album.add(PICTURES_NAMED(ca_crslc), [](Picture &picture, auto &call) {
        DTPOINT out[2];
        uint16_t count = 0;
        const int32_t result = call(&kFrom, &kTo, &kCenter, kRadius, &out[0], &out[1], &count);
        drawCurves(picture, false, false);
        drawLineFound(picture, out, count);
        picture.returns(result);
    });

    album.add(PICTURES_NAMED(ca_crslc2), withArc(false));
    album.add(PICTURES_NAMED(sb_inslc), withArc(false));

    const auto segmentAndArc = [](Picture &picture, auto &call) {
        const DTPOINT a1{5, 25}, a2{90, 50};
        const double angles[2] = {-60, 185};
        DTPOINT out[2], none[2];
        uint16_t count = 0, kept = 0;
        const int32_t result = call(&a1, &a2, &kCenter, kRadius, angles, &out[0], &out[1], &count);
        picture.aid().circle(kCenter, kRadius);
        picture.given()
            .segment(a1, a2, "a1", "a2")
            .arc(kCenter, kRadius, angles[0], angles[1], "start", "end");
        picture.point(kCenter, "center");
        const DTPOINT b1{40, 20}, b2{70, 22};
        call(&b1, &b2, &kCenter, kRadius, angles, &none[0], &none[1], &kept);
        picture.segment(b1, b2, "b1", "b2");
        drawLineFound(picture, out, count);
        picture.returns(result).figure("b: count", kept);
    };
    album.add(PICTURES_NAMED(ca_inslc), segmentAndArc);
    album.add(PICTURES_NAMED(a2d_inslc), segmentAndArc);
}

} // namespace pictures
