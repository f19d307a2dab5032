// Points against ellipses: distances, feet of perpendiculars, tangents. The row plain/ca_dstpp
// evaluates the same steps sample by sample.

#include "../tests/plain_distance.h"
#include "inputs.h"

namespace {

using namespace bench;

struct TwoEllipses {
    PointAndEllipse e, f;
};

TwoEllipses twoEllipses(Random &random) { return {wholeEllipse(random), wholeEllipse(random)}; }

double plainly(const DTPOINT *center, double a, double b, double rot, const double *angles,
               const DTPOINT *p, DTPOINT *out) {
    return plain::dstpp(*center, a, b, rot, angles, *p, out);
}

template <class Make, class Call> int nearestRow(const char *name, Make make, Call call) {
    return row(name, make, [call](const PointAndEllipse &in) {
        DTPOINT out;
        return call(&in.center, in.a, in.b, in.rot, in.angles, &in.p, &out) + out.x;
    });
}
template <class Call> int distanceRow(const char *name, Call call) {
    return row(name, ellipticArc, [call](const PointAndEllipse &in) {
        return call(&in.center, in.a, in.b, in.rot, in.angles, &in.p);
    });
}

const int kDistances[] = {
    row("a2d_distpe", wholeEllipse,
        [](const PointAndEllipse &in) {
            const DTELLIPSE e = in.record();
            return a2d_distpe(&in.p, &e);
        }),
    nearestRow("ca_dstpp/whole", wholeEllipse, ca_dstpp),
    nearestRow("plain/ca_dstpp/whole", wholeEllipse, plainly),
    nearestRow("ca_dstpp/arc", ellipticArc, ca_dstpp),
    nearestRow("plain/ca_dstpp/arc", ellipticArc, plainly),
    distanceRow("ca_dstpe", ca_dstpe),
    nearestRow("a2d_dstpp/whole", wholeEllipse, a2d_dstpp),
    nearestRow("a2d_dstpp/arc", ellipticArc, a2d_dstpp),
    distanceRow("a2d_dstpe", a2d_dstpe),
};

template <class Call> int feetRow(const char *name, Call call) {
    return row(name, ellipticArc, [call](const PointAndEllipse &in) {
        const DTELLIPSE e = in.record();
        DTPOINT out[4] = {};
        return call(&in.p, &e, out) + out[0].x;
    });
}
template <class Call> int countedFeetRow(const char *name, Call call) {
    return feetRow(name, [call](const DTPOINT *p, const DTELLIPSE *e, DTPOINT *out) {
        uint32_t count = 0;
        return call(p, e, out, &count) + static_cast<double>(count);
    });
}

const int kFeet[] = {
    feetRow("a2dEllpsPer",
            [](const DTPOINT *p, const DTELLIPSE *e, DTPOINT *out) {
                double dist = 0.0;
                return a2dEllpsPer(p, e, out, &dist) + dist;
            }),
    feetRow("a2dEllpsPerPnts", a2dEllpsPerPnts),
    feetRow("a2dEllpsArcPerPnts", a2dEllpsArcPerPnts),
    countedFeetRow("a2d_PerEP", a2d_PerEP),
    countedFeetRow("a2d_PerEP2", a2d_PerEP2),
    feetRow("a2d_perle", a2d_perle),
};

template <class Call> int contactsRow(const char *name, Call call) {
    return row(name, wholeEllipse, [call](const PointAndEllipse &in) {
        DTPOINT out1{}, out2{};
        return call(&in.p, &in.center, in.a, in.b, in.rot, &out1, &out2) + out1.x + out2.y;
    });
}

const int kTangents[] = {
    contactsRow("ca_inspe", ca_inspe),
    contactsRow("a2d_tchpe", a2d_tchpe),
    row("a2d_tch2e", twoEllipses,
        [](const TwoEllipses &in) {
            const PointAndEllipse &e = in.e, &f = in.f;
            DTPOINT t[8] = {};
            uint16_t count;
            return a2d_tch2e(&e.center, &f.center, e.a, f.a, e.b, f.b, e.rot, f.rot, t, t + 1,
                             t + 2, t + 3, t + 4, t + 5, t + 6, t + 7, &count) +
                   t[0].x + count;
        }),
};

} // namespace
