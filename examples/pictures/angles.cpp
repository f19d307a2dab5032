// Pictures: degree trigonometry and angle ranges.
#include "album.h"

namespace pictures {

namespace {

const Scale kTurn{"deg", 0, 360, 45};

/// The curve of a function of one number, over a range and with the scale of its values.
auto curveOver(const Scale &x, const Scale &y) {
    return [x, y](Picture &picture, auto &call) {
        picture.graph(x, y).found().curve(x.low, x.high, [&](double v) { return call(v); });
    };
}

void drawRange(Picture &picture, DTPOINT center, double start, double end) {
    constexpr double kRadius = 20.0;
    picture.aid().circle(center, kRadius);
    picture.given().arc(center, kRadius, start, end);
    picture.segment(center, center + polar(kRadius, start));
    picture.text(center + polar(kRadius, start), "start " + number(start));
    picture.text(center + polar(kRadius, end), "end " + number(end));
    const int32_t isFull = a2d_StdSedeg(&start, &end);
    picture.found().angle(center, 0.6 * kRadius, start, end, "");
    picture.figure("(" + number(start) + ", " + number(end) + "):", "returns " + number(isFull));
}

} // namespace

void drawAngles(Album &album) {
    album.add(PICTURES_NAMED(sind), curveOver(kTurn, {"sind(deg)", -1, 1, 0.5}));
    album.add(PICTURES_NAMED(cosd), curveOver(kTurn, {"cosd(deg)", -1, 1, 0.5}));
    album.add(PICTURES_NAMED(tand), curveOver(kTurn, {"tand(deg)", -4, 4, 2}));
    const Scale clamped{"v", -1.5, 1.5, 0.5};
    album.add(PICTURES_NAMED(asind), curveOver(clamped, {"asind(v), degrees", -90, 90, 45}));
    album.add(PICTURES_NAMED(acosd), curveOver(clamped, {"acosd(v), degrees", 0, 180, 45}));
    album.add(PICTURES_NAMED(atand),
              curveOver({"v", -8, 8, 2}, {"atand(v), degrees", -90, 90, 45}));

    album.add(PICTURES_NAMED(atan2d), [](Picture &picture, auto &call) {
        int ring = 0;
        for (const DTPOINT v : {DTPOINT{45, 20}, {-30, 40}, {-40, -15}, {25, -38}}) {
            const double deg = call(v.y, v.x);
            picture.given().arrow({0, 0}, v).text(v, "(" + number(v.x) + ", " + number(v.y) + ")");
            picture.found().angle({0, 0}, 12.0 + 5.0 * ring++, 0, deg, number(deg));
        }
        picture.aid().segment({0, 0}, {60, 0});
    });

    album.add(PICTURES_NAMED(a2d_StdSedeg), [](Picture &picture, auto &call) {
        double start = 350, end = 10;
        call(&start, &end);
        drawRange(picture, {0, 0}, 350, 10);
        drawRange(picture, {75, 0}, 400, 130);
        drawRange(picture, {150, 0}, 30, 30);
    });

    album.add(PICTURES_NAMED(a2d_ChkDegr), [](Picture &picture, auto &call) {
        const double start = 300, end = 60;
        picture.given().arc({0, 0}, 20, start, end, "start 300", "end 60");
        picture.found();
        for (int deg = 0; deg < 360; deg += 10) {
            const bool isOn = call(start, end, deg) == 0;
            picture.point(polar(25, deg), "", isOn ? Shape::dot : Shape::ring);
        }
        picture.key(Shape::dot, "0, on the arc").key(Shape::ring, "1, off it");
    });

    album.add(PICTURES_NAMED(a2d_GetBedeg), [](Picture &picture, auto &call) {
        const double a = 30, b = 150;
        double x = 0;
        for (const int32_t dir2 : {0, 1}) {
            double start = 0, end = 0;
            call(0, dir2, a, b, &start, &end);
            const DTPOINT center{x, 0};
            picture.given().circle(center, 20);
            picture.point(center + polar(20, a), "a").point(center + polar(20, b), "b");
            picture.found().angle(center, 14, start, start < end ? end : end + 360,
                                  "(" + number(start) + ", " + number(end) + ")");
            picture.aid().text(center + DTPOINT{0, -20},
                               dir2 == 0 ? "dir1 = dir2" : "dir1 and dir2 differ");
            x += 70;
        }
    });
}

} // namespace pictures
