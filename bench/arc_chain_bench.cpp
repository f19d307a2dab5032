// Ellipses as chains of circular arcs.

#include "table.h"

namespace {

using bench::Random;
using bench::row;

struct Input {
    DTPOINT center;
    double a, b, rot;
    double angles[2];
};

Input input(Random &random) {
    return {random.point(),
            random.length(),
            random.length(),
            random.angleDeg(),
            {random.angleDeg(), random.angleDeg()}};
}
Input wholeTurn(Random &random) {
    Input in = input(random);
    in.angles[0] = 0.0;
    in.angles[1] = 360.0;
    return in;
}

constexpr uint16_t kRoom = 256;

/// The tolerance is so much of the longer half axis.
template <class Make> int toleranceRow(const char *name, Make make, double tolerance) {
    return row(name, make, [tolerance](const Input &in) {
        DTPOINT centers[kRoom];
        double radii[kRoom], angles[2 * kRoom];
        uint16_t count = kRoom;
        const double tol = tolerance * std::fmax(in.a, in.b) / 2;
        return ca_elip2(&in.center, in.a, in.b, in.rot, in.angles, tol, centers, radii, angles,
                        &count) +
               radii[0];
    });
}

const int kChains[] = {
    row("ca_elips", input,
        [](const Input &in) {
            constexpr double kRadPerDeg = 0.017453292519943295;
            const double angles[] = {in.angles[0] * kRadPerDeg, in.angles[1] * kRadPerDeg};
            DTPOINT centers[5];
            double radii[5], outAngles[10];
            uint32_t count;
            ca_elips(&in.center, in.a, in.b, angles, in.rot, centers, radii, outAngles, &count);
            return count;
        }),
    row("ca_elip1", input,
        [](const Input &in) {
            DTPOINT centers[5];
            double radii[5], angles[10];
            uint16_t count;
            ca_elip1(&in.center, in.a, in.b, in.rot, in.angles, centers, radii, angles, &count);
            return count;
        }),
    toleranceRow("ca_elip2", wholeTurn, 1e-3),
    toleranceRow("ca_elip2/arc", input, 1e-3),
    toleranceRow("ca_elip2/fine", wholeTurn, 1e-5),
};

} // namespace
