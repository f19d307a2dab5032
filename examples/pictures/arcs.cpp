// Pictures: construction and queries of arcs.
#include <vector>

#include "album.h"

namespace pictures {

namespace {

constexpr DTPOINT kCenter{50, 30};
constexpr double kRadius = 25;
constexpr double kPi = 3.14159265358979323846;

} // namespace

void drawArcs(Album &album) {
    album.add(PICTURES_NAMED(ca_arc3p), [](Picture &picture, auto &call) {
        const DTPOINT p1{75, 15}, p2{60, 55}, p3{20, 40};
        DTPOINT center;
        double r = 0, angles[2];
        const int32_t result = call(&p1, &p2, &p3, &center, &r, angles);
        picture.aid().circle(center, r).distance(center, p1, "r " + number(r));
        picture.found().arc(center, r, angles[0], angles[1]).point(center, "center");
        picture.given().point(p1, "p1").point(p2, "p2").point(p3, "p3");
        picture.returns(result).figure("angles[0]", angles[0]).figure("angles[1]", angles[1]);
    });

    album.add(PICTURES_NAMED(ca_arc2pratio), [](Picture &picture, auto &call) {
        const DTPOINT p{15, 25}, q{85, 35};
        picture.given().segment(p, q, "x1, y1", "x2, y2");
        for (const double ratio : {0.2, 0.35, -0.2}) {
            DTPOINT center;
            double r = 0, angles[2];
            if (call(0, ratio, p.x, p.y, q.x, q.y, &center, &r, angles) != 0) continue;
            picture.found().arc(center, r, angles[0], angles[1]);
            const double middle = 0.5 * (angles[0] + angles[1]);
            picture.text(center + polar(r, middle), "ratio " + number(ratio));
        }
        picture.given().figure("dir", 0);
    });

    album.add(PICTURES_NAMED(ca_arcan), [](Picture &picture, auto &call) {
        double x = 0;
        for (const auto &[from, to] : {std::pair{270.0, 90.0}, {400.0, 130.0}, {30.0, 390.0}}) {
            const DTPOINT center{x, 0};
            double start = from, end = to;
            call(&start, &end);
            picture.aid().circle(center, 20);
            picture.given().arc(center, 20, from, to);
            picture.text(center + polar(20, from), "start " + number(from));
            picture.text(center + polar(20, to), "end " + number(to));
            picture.found().angle(center, 12, start, end,
                                  "(" + number(start) + ", " + number(end) + ")");
            x += 75;
        }
    });

    album.add(PICTURES_NAMED(ca_arccd), [](Picture &picture, auto &call) {
        const double angles[2] = {kPi / 6, kPi};
        DTPOINT start, end;
        call(&kCenter, kRadius, angles, &start, &end);
        picture.aid().segment(kCenter, start).segment(kCenter, end);
        picture.given().arc(kCenter, kRadius, 30, 180).point(kCenter, "center");
        picture.figure("angles[0] pi/6, angles[1] pi,", "in radians");
        picture.found().point(start, "pstart").point(end, "pend");
    });

    album.add(PICTURES_NAMED(ca_arcXY), [](Picture &picture, auto &call) {
        DTPOINT upper, lower;
        call(&kCenter, kRadius, 20, 200, &upper, &lower);
        picture.aid().circle(kCenter, kRadius);
        picture.given().arc(kCenter, kRadius, 20, 200, "start", "end").point(kCenter, "center");
        picture.found().box(lower, upper).point(lower, "pmin").point(upper, "pmax");
    });

    album.add(PICTURES_NAMED(ca_onarc), [](Picture &picture, auto &call) {
        const double start = 20, end = 140;
        double ang = 0;
        picture.aid().segment(kCenter, kCenter + polar(38, start));
        picture.segment(kCenter, kCenter + polar(38, end));
        picture.found().field({0, 0}, {100, 60}, 5, [&](DTPOINT p) {
            return call(&kCenter, kRadius, start, end, &p, &ang) == 0 ? Shape::dot : Shape::ring;
        });
        picture.given().arc(kCenter, kRadius, start, end, "start", "end").point(kCenter, "center");
        picture.found().key(Shape::dot, "0, in the range").key(Shape::ring, "1, off it");
    });

    album.add(PICTURES_NAMED(ca_posar), [](Picture &picture, auto &call) {
        uint16_t side = 0;
        picture.found().field({5, 0}, {95, 60}, 5, [&](DTPOINT p) {
            call(&kCenter, kRadius, &p, &side);
            if (side == 0) return Shape::cross;
            return side == 1 ? Shape::ring : Shape::dot;
        });
        picture.given().circle(kCenter, kRadius, "center");
        picture.found().key(Shape::dot, "65535, inside").key(Shape::cross, "0, on the circle");
        picture.key(Shape::ring, "1, outside");
    });

    album.add(PICTURES_NAMED(ca_rvarc), [](Picture &picture, auto &call) {
        const DTPOINT center{55, 20}, pivot{15, 15};
        const double angles[2] = {0.0, 0.75 * kPi}, rot = kPi / 4;
        DTPOINT turned;
        double r = 0, turnedAngles[2];
        call(&center, 18, angles, &pivot, rot, &turned, &r, turnedAngles);
        picture.aid().segment(pivot, center).segment(pivot, turned);
        picture.given().arc(center, 18, 0, 135, "start", "end").point(center, "center");
        picture.point(pivot, "pivot").angle(pivot, 24, atan2d(5, 40), atan2d(5, 40) + 45, "rot");
        const double degrees = 180.0 / kPi;
        picture.found().arc(turned, r, turnedAngles[0] * degrees, turnedAngles[1] * degrees,
                            "start", "end");
        picture.point(turned, "out_center").figure("out_angles[0]", turnedAngles[0]);
        picture.figure("out_angles[1]", turnedAngles[1]);
        picture.given().figure("rot", rot);
    });

    album.add(PICTURES_NAMED(ca_DistAlongbyArcFromSpnt), [](Picture &picture, auto &call) {
        const double start = -20, end = 200;
        picture.given().arc(kCenter, kRadius, start, end, "start", "end").point(kCenter, "center");
        for (const double dist : {25.0, 50.0, 75.0, 200.0}) {
            double ang = 0;
            if (call(&kCenter, kRadius, start, end, dist, &ang) != 1) continue;
            picture.aid().segment(kCenter, kCenter + polar(kRadius, ang));
            picture.found().point(kCenter + polar(kRadius, ang),
                                  "dist " + number(dist) + ": ang " + number(ang));
        }
    });

    album.add(PICTURES_NAMED(a2d_InsDc), [](Picture &picture, auto &call) {
        const DTARC elem{0, 50, 30, 25, 20, 200}, cut{0, 50, 30, 25, 160, 320};
        const DTARC other{0, 50, 30, 25, 60, 110};
        DTPOINT out;
        picture.given().arc(kCenter, 25, elem.start, elem.end, "elem", "elem");
        picture.aid().arc(kCenter, 29, cut.start, cut.end).text(kCenter + polar(29, 250), "cut");
        picture.arc(kCenter, 29, other.start, other.end);
        picture.text(kCenter + polar(29, 85), "another cut");
        const int32_t result = call(&elem, &cut, &out);
        picture.found().point(out, "out").figure("cut: returns", result).figure("out", out);
        picture.figure("another cut: returns", call(&elem, &other, &out));
        picture.aid().figure("both cuts", "are arcs of elem's circle");
    });

    album.add(PICTURES_NAMED(ca_AutoUnionNrb), [](Picture &picture, auto &call) {
        std::vector<DTPOINT> points;
        for (int i = 0; i <= 20; ++i) {
            const double x = 5.0 * i;
            points.push_back({x, x < 50 ? 10 + 0.5 * x : 35 - 0.012 * (x - 50) * (x - 50)});
        }
        picture.given().polyline(points);
        for (const DTPOINT p : points) {
            picture.point(p, "", Shape::ring);
        }
        const auto before = static_cast<int32_t>(points.size());
        DTPOINT *list = points.data();
        const int32_t after = call(before, &list, 5.0);
        picture.figure("n", before).figure("tol", 5).found();
        for (int32_t i = 0; i < after; ++i) {
            picture.point(points[static_cast<std::size_t>(i)]);
        }
        picture.returns(after);
    });
}

} // namespace pictures
