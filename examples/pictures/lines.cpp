// Pictures: lines.
#include "album.h"

namespace pictures {

namespace {

/// How wide the pictures with points to ask for are.
constexpr DTPOINT kLow{0, 0}, kHigh{100, 60};

} // namespace

void drawLines(Album &album) {
    album.add(PICTURES_NAMED(a2dCrs2L), [](Picture &picture, auto &call) {
        const DTPOINT a1{10, 10}, a2{45, 25}, b1{25, 58}, b2{45, 48};
        DTPOINT out;
        const int32_t result = call(&a1, &a2, &b1, &b2, &out);
        picture.given().line(a1, a2, "a1", "a2").line(b1, b2, "b1", "b2");
        picture.found().point(out, "out").returns(result).figure("out", out);
    });

    const auto segments = [](Picture &picture, auto &call) {
        const DTPOINT a1{5, 8}, a2{60, 50}, b1{12, 45}, b2{55, 12}, c1{85, 15}, c2{100, 50};
        DTPOINT inside, outside;
        picture.given().segment(a1, a2, "a1", "a2").segment(b1, b2, "b1", "b2");
        picture.segment(c1, c2, "c1", "c2");
        const int32_t onBoth = call(&a1, &a2, &b1, &b2, &inside);
        const int32_t beyond = call(&a1, &a2, &c1, &c2, &outside);
        picture.aid().distance(a2, outside, "").distance(c2, outside, "");
        picture.found().point(inside, "a, b: 0").point(outside, "a, c: 1");
        picture.figure("with b: returns", onBoth).figure("out", inside);
        picture.figure("with c: returns", beyond).figure("out", outside);
    };
    album.add(PICTURES_NAMED(a2d_ins2l), segments);
    album.add(PICTURES_NAMED(ca_ins2l), segments);

    album.add(PICTURES_NAMED(aatCalCrs2l), [](Picture &picture, auto &call) {
        double rec[6] = {10, 10, 90, 15, 0, 0}, angles[2] = {35, 130};
        const int32_t result = call(rec, angles);
        const DTPOINT p{rec[0], rec[1]}, q{rec[2], rec[3]}, out{rec[4], rec[5]};
        picture.aid().segment(p, p + DTPOINT{22, 0}).segment(q, q + DTPOINT{22, 0});
        picture.given().line(p, p + polar(1, angles[0])).line(q, q + polar(1, angles[1]));
        picture.point(p, "rec[0], rec[1]").point(q, "rec[2], rec[3]");
        picture.angle(p, 16, 0, angles[0], "angles[0]").angle(q, 12, 0, angles[1], "angles[1]");
        picture.found().point(out, "rec[4], rec[5]").returns(result).figure("out", out);
    });

    album.add(PICTURES_NAMED(ca_perln), [](Picture &picture, auto &call) {
        const DTPOINT a1{10, 15}, a2{65, 30}, p{30, 55}, q{85, 55};
        DTPOINT footP, footQ;
        double distP = 0, distQ = 0;
        const int32_t onSegment = call(&a1, &a2, &p, &footP, &distP);
        const int32_t beyond = call(&a1, &a2, &q, &footQ, &distQ);
        picture.aid().distance(a2, footQ, "");
        picture.given().segment(a1, a2, "a1", "a2").point(p, "p").point(q, "q");
        picture.found().distance(p, footP, number(distP)).distance(q, footQ, number(distQ));
        picture.point(footP, "foot of p").point(footQ, "foot of q");
        picture.figure("p: returns", onSegment).figure("dist", distP);
        picture.figure("q: returns", beyond).figure("dist", distQ);
    });

    album.add(PICTURES_NAMED(ca_palds), [](Picture &picture, auto &call) {
        const DTPOINT a1{15, 20}, a2{80, 35};
        DTPOINT right[2], left[2];
        call(&a1, &a2, 12, 1, &right[0], &right[1]);
        call(&a1, &a2, 12, -1, &left[0], &left[1]);
        picture.given().arrow(a1, a2).point(a1, "a1").point(a2, "a2").figure("d", 12);
        picture.found().segment(right[0], right[1], "out1", "out2 (side 1)");
        picture.segment(left[0], left[1], "out1", "out2 (side -1)");
    });

    album.add(PICTURES_NAMED(ca_posln), [](Picture &picture, auto &call) {
        const DTPOINT a1{30, 20}, a2{70, 40};
        picture.found().field(kLow, kHigh, 5, [&](DTPOINT p) {
            uint16_t side = 0;
            call(&a1, &a2, &p, &side);
            if (side == 0) return Shape::cross;
            return side == 1 ? Shape::dot : Shape::ring;
        });
        picture.given().line(a1, a2, "a1", "a2");
        picture.found().key(Shape::dot, "1, right").key(Shape::ring, "65535, left");
        picture.key(Shape::cross, "0, on the line");
    });

    const auto onSegment = [](Picture &picture, auto &call) {
        const DTPOINT p1{20, 15}, p2{80, 45};
        picture.given().segment(p1, p2, "p1", "p2").found();
        const DTPOINT step{10, 5}, aside{-4, 8};
        for (int i = -1; i <= 7; ++i) {
            for (const DTPOINT q : {p1 + i * step, p1 + i * step + aside, p1 + i * step - aside}) {
                picture.point(q, "", call(&p1, &p2, &q) == 0 ? Shape::dot : Shape::ring);
            }
        }
        picture.key(Shape::dot, "0, on the segment").key(Shape::ring, "1, off it");
    };
    album.add(PICTURES_NAMED(a2d_onlin), onSegment);
    album.add(PICTURES_NAMED(ca_onlin), onSegment);

    album.add(PICTURES_NAMED(ca_DistAlongbyLineFromSpnt), [](Picture &picture, auto &call) {
        const DTPOINT start{10, 15}, end{90, 45};
        picture.given().segment(start, end, "start", "end").found();
        for (const double dist : {25.0, 50.0, 200.0}) {
            DTPOINT out;
            if (call(&start, &end, dist, &out) == 1) picture.point(out, "dist " + number(dist));
        }
    });

    album.add(PICTURES_NAMED(a2d_InsDl), [](Picture &picture, auto &call) {
        const DTLINE elem{0, 10, 20, 90, 45}, cut{0, 58, 35, 106, 50}, other{0, 26, 25, 74, 40};
        DTPOINT out;
        picture.given().segment({10, 20}, {90, 45}, "elem", "elem");
        picture.aid();
        for (const auto &[line, lift] : {std::pair{cut, 7.0}, {other, -7.0}}) {
            picture.segment({line.x1, line.y1 + lift}, {line.x2, line.y2 + lift});
        }
        picture.text({82, 49}, "cut").text({50, 25}, "another cut");
        const int32_t result = call(&elem, &cut, &out);
        picture.found().point(out, "out").figure("cut: returns", result).figure("out", out);
        picture.figure("another cut: returns", call(&elem, &other, &out));
        picture.aid().figure("both cuts", "lie on the line of elem");
    });

    album.add(PICTURES_NAMED(a2d_Chk3pnt), [](Picture &picture, auto &call) {
        const DTPOINT p1{30, 20}, p2{70, 35};
        picture.found().field(kLow, kHigh, 5, [&](DTPOINT p) {
            const int32_t where = call(&p1, &p2, &p);
            if (where == 3) return Shape::dot;
            return where == 1 ? Shape::ring : Shape::cross;
        });
        picture.given().segment(p1, p2, "p1", "p2");
        picture.found().key(Shape::dot, "3, beside the segment").key(Shape::ring, "1, beyond p2");
        picture.key(Shape::cross, "2, before p1");
    });
}

} // namespace pictures
