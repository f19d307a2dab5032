// Circles and arcs.

#include "inputs.h"

namespace {

using namespace bench;

struct CutArcs {
    DTARC elem, cut;
};
struct Polyline {
    std::array<DTPOINT, 16> points;
};

CutArcs cutArcs(Random &random) {
    const DTPOINT c = random.point();
    const double r = random.length();
    const DTARC elem = {0, c.x, c.y, r, random.angleDeg(), random.angleDeg()};
    return {elem, {0, c.x, c.y, r, random.angleDeg(), random.angleDeg()}};
}
/// Every other bend is too small to be kept.
Polyline polyline(Random &random) {
    Polyline line{};
    double deg = 0.0;
    for (std::size_t i = 0; i < line.points.size(); ++i) {
        const DTPOINT before = i == 0 ? random.point() : line.points[i - 1];
        deg += random.uniform(-1.0, 1.0) * (i % 2 == 0 ? 0.5 : 60.0);
        line.points[i] = onCircle(before, random.length(), deg);
    }
    return line;
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

const int kArcs[] = {
    row("ca_arc3p", chord,
        [](const Chord &in) {
            DTPOINT center;
            double r, angles[2];
            return ca_arc3p(&in.p, &in.between, &in.q, &center, &r, angles) + angles[0];
        }),
    row("ca_arc2pratio", chord,
        [](const Chord &in) {
            DTPOINT center;
            double r, angles[2];
            return ca_arc2pratio(0, in.ratio, in.p.x, in.p.y, in.q.x, in.q.y, &center, &r, angles) +
                   angles[0];
        }),
    row("ca_arcan", arcAndPoint,
        [](ArcAndPoint in) { return ca_arcan(&in.start, &in.end) + in.start + in.end; }),
    row("ca_arccd", arcAndPoint,
        [](const ArcAndPoint &in) {
            DTPOINT p, q;
            return ca_arccd(&in.center, in.r, in.radians, &p, &q) + p.x + q.y;
        }),
    row("ca_arcXY", arcAndPoint,
        [](const ArcAndPoint &in) {
            DTPOINT p, q;
            return ca_arcXY(&in.center, in.r, in.start, in.end, &p, &q) + p.x + q.y;
        }),
    row("ca_onarc", arcAndPoint,
        [](const ArcAndPoint &in) {
            double ang;
            return ca_onarc(&in.center, in.r, in.start, in.end, &in.point, &ang) + ang;
        }),
    row("ca_posar", arcAndPoint,
        [](const ArcAndPoint &in) {
            uint16_t side;
            return ca_posar(&in.center, in.r, &in.point, &side) + side;
        }),
    row("ca_rvarc", arcAndPoint,
        [](const ArcAndPoint &in) {
            DTPOINT center;
            double r, angles[2];
            return ca_rvarc(&in.center, in.r, in.radians, &in.point, 0.5, &center, &r, angles) +
                   center.x + angles[0];
        }),
    row("ca_DistAlongbyArcFromSpnt", arcAndPoint,
        [](const ArcAndPoint &in) {
            double ang;
            return ca_DistAlongbyArcFromSpnt(&in.center, in.r, in.start, in.end, in.r, &ang) + ang;
        }),
    row("a2d_InsDc", cutArcs,
        [](const CutArcs &in) {
            DTPOINT out{};
            return a2d_InsDc(&in.elem, &in.cut, &out) + out.x;
        }),
    // 16 points in each call.
    row("ca_AutoUnionNrb", polyline,
        [](Polyline in) {
            DTPOINT *array = in.points.data();
            return ca_AutoUnionNrb(static_cast<int32_t>(in.points.size()), &array, 1.0);
        }),
};

const int kTangents[] = {
    row("ca_pctan", arcAndPoint,
        [](const ArcAndPoint &in) {
            DTPOINT p, q;
            uint16_t count;
            return ca_pctan(&in.center, in.r, &in.point, &p, &q, &count) + count + p.x + q.y;
        }),
    row("ca_cctan", twoArcs,
        [](const TwoArcs &in) {
            DTPOINT t[8];
            uint16_t count;
            return ca_cctan(&in.c1, 0.3 * in.r1, &in.c2, 0.3 * in.r2, t, t + 1, t + 2, t + 3, t + 4,
                            t + 5, t + 6, t + 7, &count) +
                   count;
        }),
};

} // namespace
