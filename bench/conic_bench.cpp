// Ellipses with lines, circles and ellipses.

#include "table.h"

namespace {

using bench::Random;
using bench::row;

struct LineAndEllipse {
    DTPOINT p1, p2, center;
    double a, b, rot;
    double angles[2];
};
struct TwoRecords {
    DTELLIPSE e1, e2;
};

/// A line that passes the centre nearby: most cut the ellipse.
LineAndEllipse lineAndEllipse(Random &random) {
    const DTPOINT center = random.point(), through = random.point(), from = random.point();
    const double a = random.length(), b = random.length();
    return {{center.x + through.x / 4, center.y + through.y / 4},
            from,
            center,
            a,
            b,
            random.angleDeg(),
            {random.angleDeg(), random.angleDeg()}};
}
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
