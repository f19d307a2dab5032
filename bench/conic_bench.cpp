// Ellipses with lines, circles and ellipses.

#include "inputs.h"

namespace {

using namespace bench;

struct TwoRecords {
    DTELLIPSE e1, e2;
};
struct Points {
    DTPOINT at[4];
    double center[2];
    double a, b, rot;
};

LineAndEllipse lineAndStandardEllipse(Random &random) {
    LineAndEllipse in = lineAndEllipse(random);
    in.p1 = {in.p1.x - in.center.x, in.p1.y - in.center.y};
    return in;
}
LineAndEllipse tangent(Random &random) {
    LineAndEllipse in = lineAndEllipse(random);
    const double t = random.angleDeg(), before = random.length(), behind = random.length();
    const double x = in.a / 2 * cosd(t), y = in.b / 2 * sind(t);
    in.p1 = {x + in.a * sind(t) * before, y - in.b * cosd(t) * before};
    in.p2 = {x - in.a * sind(t) * behind, y + in.b * cosd(t) * behind};
    return in;
}
TwoRecords sameEllipse(Random &random) {
    const DTPOINT center = random.point();
    const DTELLIPSE e1 = {0,
                          center.x,
                          center.y,
                          random.length(),
                          random.length(),
                          random.angleDeg(),
                          random.angleDeg(),
                          random.angleDeg()};
    DTELLIPSE e2 = e1;
    e2.start = random.angleDeg();
    return {e1, e2};
}

Points points(Random &random) {
    const TwoConicArcs arc = twoConicArcs(random);
    return {{random.point(), random.point(), random.point(), random.point()},
            {arc.center2[0], arc.center2[1]},
            arc.a2,
            arc.b2,
            arc.rot2};
}

template <class Make, class Call> int arcRow(const char *name, Make make, Call call) {
    return row(name, make, [call](const TwoConicArcs &in) {
        DTPOINT p[4] = {};
        int16_t count = 0;
        return call(in, p, &count) + count + p[0].x;
    });
}
template <class Call> int insceRow(const char *name, Call call) {
    return arcRow(name, circleAndEllipse,
                  [call](const TwoConicArcs &in, DTPOINT *p, int16_t *count) {
                      return call(in.center1, in.a1 / 2, in.angles1, in.center2, in.a2, in.b2,
                                  in.rot2, in.angles2, p, p + 1, p + 2, p + 3, count);
                  });
}
template <class Call> int ins2eRow(const char *name, Call call) {
    return arcRow(name, twoConicArcs, [call](const TwoConicArcs &in, DTPOINT *p, int16_t *count) {
        return call(in.center1, in.center2, in.a1, in.a2, in.b1, in.b2, in.rot1, in.rot2,
                    in.angles1, in.angles2, p, p + 1, p + 2, p + 3, count);
    });
}

const int kConics[] = {
    arcRow("a2dIntersectionEC", circleAndEllipse,
           [](const TwoConicArcs &in, DTPOINT *p, int16_t *) {
               return a2dIntersectionEC(in.center2[0] - in.center1[0],
                                        in.center2[1] - in.center1[1], in.a2 / 2, in.b2 / 2,
                                        in.a1 / 2, p);
           }),
    insceRow("a2d_insce", a2d_insce),
    insceRow("ca_insce", ca_insce),
    ins2eRow("a2d_ins2e", a2d_ins2e),
    ins2eRow("ca_ins2e", ca_ins2e),
    row("a2d_chk_distdeg", points,
        [](const Points &in) {
            DTPOINT out[4];
            return a2d_chk_distdeg(in.at, 4, in.center, in.rot, in.a, in.b, out) + out[0].x;
        }),
};

template <class Make, class Call> int lineRow(const char *name, Make make, Call call) {
    return row(name, make, [call](const LineAndEllipse &in) {
        DTPOINT out1{}, out2{};
        return call(in, out1, out2) + out1.x + out2.y;
    });
}
template <class Call> int insleRow(const char *name, Call call) {
    return lineRow(
        name, lineAndEllipse, [call](const LineAndEllipse &in, DTPOINT &out1, DTPOINT &out2) {
            uint16_t count;
            return call(&in.p1, &in.p2, &in.center, in.a, in.b, in.rot, &out1, &out2, &count);
        });
}

int32_t crossStandard(const LineAndEllipse &in, DTPOINT &out1, DTPOINT &out2) {
    uint16_t count;
    return a2d_insLStandardE(&in.p1, &in.p2, in.a, in.b, &out1, &out2, &count);
}

const int kLines[] = {
    lineRow("a2d_CrsLE", lineAndEllipse,
            [](const LineAndEllipse &in, DTPOINT &out1, DTPOINT &out2) {
                uint32_t count;
                return a2d_CrsLE(&in.p1, &in.p2, &in.center, in.a, in.b, in.rot, &out1, &out2,
                                 &count, 1e-6);
            }),
    insleRow("a2d_insle", a2d_insle),
    insleRow("ca_insle", ca_insle),
    insleRow("a2d_insle2", a2d_insle2),
    lineRow("a2d_insl1", lineAndEllipse,
            [](const LineAndEllipse &in, DTPOINT &out1, DTPOINT &out2) {
                uint16_t count;
                return a2d_insl1(&in.p1, &in.p2, &in.center, in.a, in.b, in.rot, in.angles, &out1,
                                 &out2, &count);
            }),
    lineRow("a2d_insLStandardE", lineAndStandardEllipse, crossStandard),
    lineRow("a2d_insLStandardE/tangent", tangent, crossStandard),
    lineRow("a2d_IsElpTangentLine", tangent,
            [](const LineAndEllipse &in, DTPOINT &out1, DTPOINT &) {
                return a2d_IsElpTangentLine(&in.p1, &in.p2, in.a, in.b, &out1);
            }),
    row("a2d_InsDe", sameEllipse,
        [](const TwoRecords &in) {
            DTPOINT out{};
            return a2d_InsDe(&in.e1, &in.e2, &out) + out.x;
        }),
};

} // namespace
