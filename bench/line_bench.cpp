// Lines and segments.

#include "inputs.h"

namespace {

using namespace bench;

struct Directions {
    double rec[6];
    double angles[2];
};
struct Collinear {
    DTLINE elem, cut;
};

Directions directions(Random &random) {
    const DTPOINT p = random.point(), q = random.point();
    return {{p.x, p.y, q.x, q.y, 0.0, 0.0}, {random.angleDeg(), random.angleDeg()}};
}
Collinear collinear(Random &random) {
    const DTPOINT p = random.point(), q = random.point();
    const double s = random.uniform(-0.5, 1.5), t = random.uniform(-0.5, 1.5);
    const DTLINE elem = {0, p.x + (q.x - p.x) * s, p.y + (q.y - p.y) * s, p.x + (q.x - p.x) * t,
                         p.y + (q.y - p.y) * t};
    return {elem, {0, p.x, p.y, q.x, q.y}};
}

template <class Call> int crossingRow(const char *name, Call call) {
    return row(name, twoLines, [call](const TwoLines &in) {
        DTPOINT out;
        return call(&in.a1, &in.a2, &in.b1, &in.b2, &out) + out.x;
    });
}

const int kLines[] = {
    crossingRow("a2dCrs2L", a2dCrs2L),
    crossingRow("a2d_ins2l", a2d_ins2l),
    crossingRow("ca_ins2l", ca_ins2l),
    row("aatCalCrs2l", directions,
        [](Directions in) { return aatCalCrs2l(in.rec, in.angles) + in.rec[4]; }),
    row("ca_perln", pointAndLine,
        [](const PointAndLine &in) {
            DTPOINT foot;
            double dist;
            return ca_perln(&in.a1, &in.a2, &in.p, &foot, &dist) + dist + foot.x;
        }),
    row("ca_palds", pointAndLine,
        [](const PointAndLine &in) {
            DTPOINT p, q;
            return ca_palds(&in.a1, &in.a2, in.d, 1, &p, &q) + p.x + q.y;
        }),
    row("ca_posln", pointAndLine,
        [](const PointAndLine &in) {
            uint16_t side;
            return ca_posln(&in.a1, &in.a2, &in.p, &side) + side;
        }),
    row("a2d_onlin", onSegment,
        [](const PointAndLine &in) { return a2d_onlin(&in.a1, &in.a2, &in.p); }),
    row("ca_onlin", onSegment,
        [](const PointAndLine &in) { return ca_onlin(&in.a1, &in.a2, &in.p); }),
    row("ca_DistAlongbyLineFromSpnt", pointAndLine,
        [](const PointAndLine &in) {
            DTPOINT out;
            return ca_DistAlongbyLineFromSpnt(&in.a1, &in.a2, in.d, &out) + out.x;
        }),
    row("a2d_InsDl", collinear,
        [](const Collinear &in) {
            DTPOINT out{};
            return a2d_InsDl(&in.elem, &in.cut, &out) + out.x;
        }),
    row("a2d_Chk3pnt", onSegment,
        [](const PointAndLine &in) { return a2d_Chk3pnt(&in.a1, &in.a2, &in.p); }),
};

} // namespace
