// Circles and arcs.

#include "table.h"

namespace {

using bench::Random;
using bench::row;

struct LineAndArc {
    DTPOINT a1, a2, center;
    double r;
    double angles[2];
};
struct TwoArcs {
    DTPOINT c1, c2;
    double r1, r2;
    double angles1[2], angles2[2];
};

DTPOINT onCircle(DTPOINT center, double r, double deg) {
    const double rad = deg * 0.017453292519943295;
    return {center.x + r * std::cos(rad), center.y + r * std::sin(rad)};
}

/// The segment reaches from inside the circle to somewhere.
LineAndArc lineAndArc(Random &random) {
    const DTPOINT center = random.point();
    const double r = random.length();
    const DTPOINT inside = onCircle(center, 0.9 * r, random.angleDeg());
    return {inside, random.point(), center, r, {random.angleDeg(), random.angleDeg()}};
}
/// The second circle goes through a point of the first.
TwoArcs twoArcs(Random &random) {
    const DTPOINT c1 = random.point(), c2 = random.point();
    const double r1 = random.length();
    const DTPOINT shared = onCircle(c1, r1, random.angleDeg());
    const double r2 = std::hypot(shared.x - c2.x, shared.y - c2.y);
    return {c1,
            c2,
            r1,
            r2,
            {random.angleDeg(), random.angleDeg()},
            {random.angleDeg(), random.angleDeg()}};
}

template <class Call> int lineArcRow(const char *name, Call call) {
    return row(name, lineAndArc, [call](const LineAndArc &in) {
        DTPOINT out[2];
        uint16_t count = 0;
        return call(in, out, &count) + count + out[0].x + out[1].y;
    });
}

const int kLineCircle[] = {
    lineArcRow("cross_lin_cir",
               [](const LineAndArc &in, DTPOINT *out, uint16_t *count) {
                   return cross_lin_cir(&in.a1, &in.a2, &in.center, in.r, out, out + 1, count);
               }),
    lineArcRow("a2d_lin_arc",
               [](const LineAndArc &in, DTPOINT *out, uint16_t *count) {
                   return a2d_lin_arc(3, &in.a1, &in.a2, &in.center, in.r, in.angles, out, out + 1,
                                      count);
               }),
    lineArcRow("a2dCrsLC",
               [](const LineAndArc &in, DTPOINT *out, uint16_t *) {
                   return a2dCrsLC(&in.a1, &in.a2, &in.center, in.r, out);
               }),
    lineArcRow("ca_crslc",
               [](const LineAndArc &in, DTPOINT *out, uint16_t *count) {
                   return ca_crslc(&in.a1, &in.a2, &in.center, in.r, out, out + 1, count);
               }),
    lineArcRow("ca_crslc2",
               [](const LineAndArc &in, DTPOINT *out, uint16_t *count) {
                   return ca_crslc2(&in.a1, &in.a2, &in.center, in.r, in.angles, out, out + 1,
                                    count);
               }),
    lineArcRow("ca_inslc",
               [](const LineAndArc &in, DTPOINT *out, uint16_t *count) {
                   return ca_inslc(&in.a1, &in.a2, &in.center, in.r, in.angles, out, out + 1,
                                   count);
               }),
    lineArcRow("a2d_inslc",
               [](const LineAndArc &in, DTPOINT *out, uint16_t *count) {
                   return a2d_inslc(&in.a1, &in.a2, &in.center, in.r, in.angles, out, out + 1,
                                    count);
               }),
    lineArcRow("sb_inslc",
               [](const LineAndArc &in, DTPOINT *out, uint16_t *count) {
                   return sb_inslc(&in.a1, &in.a2, &in.center, in.r, in.angles, out, out + 1,
                                   count);
               }),
};

const int kCircleCircle[] = {
    row("a2dCrs2C", twoArcs,
        [](const TwoArcs &in) {
            double out[4];
            return a2dCrs2C(&in.c1, in.r1, &in.c2, in.r2, out) + out[0];
        }),
    row("a2d_ins2c", twoArcs,
        [](const TwoArcs &in) {
            DTPOINT p, q;
            uint16_t count;
            return a2d_ins2c(&in.c1, &in.c2, in.r1, in.r2, in.angles1, in.angles2, &p, &q, &count) +
                   count + p.x;
        }),
    row("ca_ins2c", twoArcs,
        [](const TwoArcs &in) {
            DTPOINT p, q;
            uint16_t count;
            return ca_ins2c(&in.c1, &in.c2, in.r1, in.r2, in.angles1, in.angles2, &p, &q, &count) +
                   count + p.x;
        }),
};

} // namespace
