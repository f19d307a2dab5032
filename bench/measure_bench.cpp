// Length, area and division of ellipses: a 40 by 20 ellipse, its whole turn unless a row says
// otherwise. The rows plain/... evaluate the same steps sample by sample.

#include "../tests/plain_measure.h"
#include "table.h"

namespace {

constexpr double kHalfFirst = 20.0;
constexpr double kHalfSecond = 10.0;
constexpr int kPieces = 12;
const plain::Arc kArc = {{12.0, -7.0}, 2.0 * kHalfFirst, 2.0 * kHalfSecond, 25.0, 0.0, 360.0};
const double kAngles[2] = {kArc.start, kArc.end};
const DTELLIPSE kEllipse = {0, 12.0, -7.0, kArc.a, kArc.b, 0.0, 360.0, 25.0};
const double kThird = 96.884482205476729 / 3.0; ///< of the circumference

struct Angle {
    double deg;
};
Angle angle(bench::Random &random) { return {random.angleDeg()}; }

/// A call, or several, on the one ellipse, with its half axes in the parameter table.
template <class Call> int single(const char *name, Call call, int calls = 1) {
    benchmark::RegisterBenchmark(name, [name, call, calls](benchmark::State &state) {
        ca_Simpson_getParmtbl()[0] = kHalfFirst;
        ca_Simpson_getParmtbl()[1] = kHalfSecond;
        bench::beginCounting();
        for (auto _ : state) {
            benchmark::DoNotOptimize(call());
        }
        bench::endCounting(name);
        state.counters["per_call"] = bench::perCall(calls);
    });
    return 0;
}

int32_t hostsSpeed(double deg, double *value) {
    return *value = plain::speed(kHalfFirst, kHalfSecond, deg), 0;
}

double simpson(PLANEGEO_INTEGRAND integrand, double hi) {
    double result;
    ca_Simpson(integrand, 0.0, hi, &result);
    return result;
}
double simpson2(PLANEGEO_INTEGRAND integrand) {
    double lo = 0.0, hi = 360.0;
    ca_Simpson2(integrand, &lo, &hi, kThird, 1);
    return hi;
}
double length(const DTELLIPSE &e) {
    double result;
    ca_ElpLen(&e, &result);
    return result;
}

const int kMeasure[] = {
    bench::row("ca_lengelp", angle,
               [](const Angle &in) {
                   double value;
                   ca_lengelp(in.deg, &value);
                   return value;
               }),
    bench::row("ca_AreaElp", angle,
               [](const Angle &in) {
                   double value;
                   ca_AreaElp(in.deg, &value);
                   return value;
               }),
    single("ca_Simpson/length", [] { return simpson(ca_lengelp, 360.0); }),
    single("ca_Simpson/length_of_100_degrees", [] { return simpson(ca_lengelp, 100.0); }),
    single("ca_Simpson/area", [] { return simpson(ca_AreaElp, 360.0); }),
    single("ca_Simpson/hosts_own_integrand", [] { return simpson(hostsSpeed, 360.0); }),
    single("ca_Simpson2/length", [] { return simpson2(ca_lengelp); }),
    single("ca_Simpson2/hosts_own_integrand", [] { return simpson2(hostsSpeed); }),
    single("ca_ElpLen", [] { return length(kEllipse); }),
    single("plain/ca_ElpLen", [] { return plain::length(kEllipse, kHalfFirst, kHalfSecond); }),
    single("ca_ElpLen2",
           [] {
               DTELLIPSE e = kEllipse;
               return ca_ElpLen2(&e, kThird, 1) + e.end;
           }),
    single("plain/ca_ElpLen2",
           [] {
               DTELLIPSE e = kEllipse;
               return plain::lengthTo(e, kThird, 1, kHalfFirst, kHalfSecond) + e.end;
           }),
};

double divided(decltype(ca_elpdn) *divide, int32_t k) {
    DTPOINT out{};
    double piece = 0.0;
    divide(&kArc.center, kArc.a, kArc.b, kArc.rot, kAngles, kPieces, k, &out, &piece);
    return out.x + out.y + piece;
}

/// All points in turn; those at the quarters fall on a sample of ca_elpdn.
template <class Point> double allPoints(Point point) {
    double sum = 0.0;
    for (int32_t k = 1; k <= kPieces; ++k) {
        sum += point(k);
    }
    return sum;
}
double polylinePoint(int32_t k) { return divided(ca_elpdn, k); }
double plainPolylinePoint(int32_t k) { return plain::divide(kArc, kPieces, k).point.x; }

const int kDivide[] = {
    single("a2d_elpdn/first_call",
           [] { return divided(a2d_elpdn, kPieces + 1) + divided(a2d_elpdn, 1); }),
    single("plain/a2d_elpdn/first_call",
           [] { return plain::divisionTable(kArc, kPieces).parameters[1]; }),
    single("a2d_elpdn/next_call", [] { return divided(a2d_elpdn, 1); }),
    single(
        "ca_elpdn/12_points", [] { return allPoints(polylinePoint); }, kPieces),
    single(
        "plain/ca_elpdn/12_points", [] { return allPoints(plainPolylinePoint); }, kPieces),
    single("ca_elpdn/point_5", [] { return polylinePoint(5); }),
    single("plain/ca_elpdn/point_5", [] { return plainPolylinePoint(5); }),
    single("ca_elpdn/point_6", [] { return polylinePoint(6); }),
    single("plain/ca_elpdn/point_6", [] { return plainPolylinePoint(6); }),
};

} // namespace
