// Ellipses: record and parameters, queries and transforms, extents.

#include "inputs.h"

namespace {

using namespace bench;

struct Record {
    DTELLIPSE ellipse;
    DTPOINT p;
    DTLINE line;
    double angle;
};

/// Half of the points lie on the curve.
Loose onCurve(Random &random) {
    Loose e = loose(random);
    if (random.uniform(0.0, 1.0) < 0.5) e.p = at(e, random.angleDeg(), 1.0);
    return e;
}
/// Two ends of conjugate semi-diameters.
Loose conjugates(Random &random) {
    Loose e = loose(random);
    e.p = at(e, e.angle, 1.0);
    e.q = at(e, e.angle + 90.0, 1.0);
    return e;
}
Record record(Random &random) {
    const Loose e = loose(random);
    return {{0, e.center.x, e.center.y, e.a, e.b, e.angles[0], e.angles[1], e.rot},
            e.p,
            {0, e.p.x, e.p.y, e.q.x, e.q.y},
            e.angle};
}

const int kConversions[] = {
    row("ca_elpcd", loose,
        [](const Loose &e) {
            double points[4];
            ca_elpcd(&e.center, e.a, e.b, e.rot, e.angles, points);
            return points[0] + points[3];
        }),
    row("a2d_elpdeg", loose,
        [](const Loose &e) {
            double angle;
            return a2d_elpdeg(&e.p, &e.center, e.a, e.b, e.rot, &angle) + angle;
        }),
    row("a2dGetEllipsDt", conjugates,
        [](const Loose &e) {
            double a, b, rot;
            return a2dGetEllipsDt(&e.p, &e.q, &e.center, &a, &b, &rot) + a + b + rot;
        }),
    row("ca_ElpAngle", record,
        [](Record in) {
            double polar;
            return ca_ElpAngle(0, &in.ellipse, &in.angle, &polar) + polar;
        }),
    row("ca_ElpAngle/parametric", record,
        [](Record in) {
            double parametric;
            return ca_ElpAngle(1, &in.ellipse, &parametric, &in.angle) + parametric;
        }),
    row("ca_ElpCordXY", record,
        [](const Record &in) {
            DTPOINT out;
            return ca_ElpCordXY(1, &in.ellipse, in.angle, &out) + out.x;
        }),
};

const int kQueries[] = {
    row("GetElpFocusPnt", loose,
        [](const Loose &e) {
            DTPOINT f, g;
            return GetElpFocusPnt(&e.center, e.a + e.b, e.b, e.rot, &f, &g) + f.x + g.y;
        }),
    row("a2d_GetTangentVectorOnElp", loose,
        [](const Loose &e) {
            DTPOINT out;
            return a2d_GetTangentVectorOnElp(e.b / (e.a + e.b), &e.p, &out) + out.x;
        }),
    row("a2d_GetTangentVectorOnDTELLIPSE", record,
        [](const Record &in) {
            DTPOINT out;
            return a2d_GetTangentVectorOnDTELLIPSE(&in.ellipse, &in.p, &out) + out.x;
        }),
    row("CheckEllipseArcAngle", record,
        [](const Record &in) { return CheckEllipseArcAngle(&in.ellipse, &in.p); }),
    row("a2d_hanel", record, [](const Record &in) { return a2d_hanel(&in.line, &in.ellipse); }),
    row("ca_onelp", onCurve,
        [](const Loose &e) { return ca_onelp(&e.center, e.a, e.b, e.rot, e.angles, &e.p); }),
    row("pin_chk", loose, [](const Loose &e) { return pin_chk(&e.center, e.rot, e.angles, &e.p); }),
    row("ca_posel", onCurve,
        [](const Loose &e) {
            uint16_t position;
            return ca_posel(&e.center, e.a, e.b, e.rot, &e.p, &position) + position;
        }),
};

template <class Call> int transformRow(const char *name, Call call) {
    return row(name, loose, [call](Loose e) {
        call(e);
        return e.center.x + e.rot;
    });
}

const int kTransforms[] = {
    row("a2d_elp_trans", record,
        [](const Record &in) {
            DTELLIPSE out;
            return a2d_elp_trans(&in.ellipse, 1.5, &out) + out.start;
        }),
    transformRow("ca_rvelp",
                 [](Loose &e) {
                     ca_rvelp(&e.center, e.a, e.b, e.rot, e.angles, &e.q, e.angle, &e.center, &e.a,
                              &e.b, &e.rot, e.angles);
                 }),
    transformRow("ca_vmelp",
                 [](Loose &e) {
                     ca_vmelp(&e.center, e.a, e.b, e.rot, e.angles, &e.p, &e.q, &e.center, &e.a,
                              &e.b, &e.rot, e.angles);
                 }),
    transformRow("ca_samel",
                 [](Loose &e) {
                     ca_samel(&e.center, e.a, e.b, e.rot, e.angles, &e.q, &e.center, &e.a, &e.b,
                              &e.rot, e.angles);
                 }),
};

const int kExtents[] = {
    row("ca_elaln", loose,
        [](const Loose &e) {
            DTPOINT p, q;
            return ca_elaln(&e.center, e.a, e.b, e.rot, e.angle, &p, &q) + p.x + q.y;
        }),
    row("ang_pnt", loose,
        [](const Loose &e) {
            DTPOINT p, q;
            return ang_pnt(&e.center, e.a, e.b, e.rot, e.angles, e.angle, &p, &q) + p.x + q.y;
        }),
    row("ca_elamn", loose,
        [](const Loose &e) {
            DTPOINT lower, upper;
            return ca_elamn(&e.center, e.a, e.b, e.rot, e.angles, &lower, &upper) + lower.x;
        }),
    row("ca_elpmn", loose,
        [](const Loose &e) {
            DTPOINT lower, upper, extremes[4];
            return ca_elpmn(&e.center, e.a, e.b, e.rot, e.angles, &lower, &upper, extremes) +
                   extremes[0].x;
        }),
};

} // namespace
