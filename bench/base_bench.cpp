// Settings, degree trigonometry, angle ranges and points.

#include "inputs.h"

namespace {

using namespace bench;

struct Value {
    double v;
};
struct Range {
    double start, end, angle;
};

Value angle(Random &random) { return {random.uniform(-360.0, 360.0)}; }
Value sine(Random &random) { return {random.uniform(-1.0, 1.0)}; }
Range range(Random &random) { return {random.angleDeg(), random.angleDeg(), random.angleDeg()}; }

const int kSettings[] = {
    row("ca_geterrdist", angle, [](const Value &) { return ca_geterrdist(); }),
    singleThreadRow("ca_seterrdist", angle, [](const Value &) { return ca_seterrdist(1e-6), 0; }),
    row("ca_GetStartendFlg", angle, [](const Value &) { return ca_GetStartendFlg(); }),
    singleThreadRow("ca_SetStartendFlg", angle,
                    [](const Value &) { return ca_SetStartendFlg(0), 0; }),
    row("ca_Simpson_getParmtbl", angle, [](const Value &) { return ca_Simpson_getParmtbl()[0]; }),
};

const int kAngles[] = {
    row("sind", angle, [](const Value &in) { return sind(in.v); }),
    row("cosd", angle, [](const Value &in) { return cosd(in.v); }),
    row("tand", angle, [](const Value &in) { return tand(in.v); }),
    row("asind", sine, [](const Value &in) { return asind(in.v); }),
    row("acosd", sine, [](const Value &in) { return acosd(in.v); }),
    row("atand", sine, [](const Value &in) { return atand(in.v); }),
    row("atan2d", points, [](const Points &in) { return atan2d(in.p.y, in.p.x); }),
    row("a2d_StdSedeg", range,
        [](Range in) { return a2d_StdSedeg(&in.start, &in.end) + in.start + in.end; }),
    row("a2d_ChkDegr", range,
        [](const Range &in) { return a2d_ChkDegr(in.start, in.end, in.angle); }),
    row("a2d_GetBedeg", range,
        [](const Range &in) {
            double start, end;
            a2d_GetBedeg(1, in.angle > 180.0, in.start, in.end, &start, &end);
            return start + end;
        }),
};

template <class Call> int pointRow(const char *name, Call call) {
    return row(name, points, [call](const Points &in) {
        DTPOINT out;
        call(in, out);
        return out.x + out.y;
    });
}

const int kPoints[] = {
    pointRow("c_pnt", [](const Points &in, DTPOINT &out) { c_pnt(&in.p, &in.q, &out, in.angle); }),
    pointRow("ca_rvpnt",
             [](const Points &in, DTPOINT &out) { ca_rvpnt(&in.p, &in.q, &out, in.angle); }),
    pointRow("pnt_std",
             [](const Points &in, DTPOINT &out) { pnt_std(&in.p, &in.q, in.angle, &out); }),
    pointRow("pnt_formd",
             [](const Points &in, DTPOINT &out) { pnt_formd(&in.p, &in.q, in.angle, &out); }),
    pointRow("pnt_mer", [](const Points &in, DTPOINT &out) { pnt_mer(&in.p, &in.q, &in.r, &out); }),
    pointRow("ca_vmpnt",
             [](const Points &in, DTPOINT &out) { ca_vmpnt(&in.p, &in.q, &in.r, &out); }),
    row("ca_vcrad", points, [](const Points &in) { return ca_vcrad(&in.p, &in.q); }),
    row("ca_dstpt", points, [](const Points &in) { return ca_dstpt(&in.p, &in.q); }),
};

} // namespace
