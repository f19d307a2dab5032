// The library's ways around the samples against the plain steps: the same decisions, and doubles
// within 1e-12, also where a decision hangs on the last digits.

#include <algorithm>
#include <vector>

#include "plain_measure.h"
#include "support.h"

namespace {

using namespace support;

struct HalfAxes {
    double first, second;

    plain::Integral length(double lo, double hi) const {
        return plain::simpson([this](double t) { return plain::speed(first, second, t); }, lo, hi);
    }
    double sector(double deg) const {
        const double c = std::cos(deg * kRadPerDeg), s = std::sin(deg * kRadPerDeg);
        const double aa = first * first, bb = second * second;
        return aa * bb * 0.5 / (bb * (c * c) + aa * (s * s));
    }
};

/// Axes of any size; most of them round, some thin, flat, negative or equal.
HalfAxes axes(Random &random, double thinnest) {
    const double a = random.logUniform(1e-3, 2e4), b = a * random.logUniform(1.0, thinnest);
    switch (random.bits() % 16) {
    case 0:
        return {a, a};
    case 1:
        return {-a, b};
    case 2:
        return {a, -b};
    case 3:
        return {random.bits() % 16 == 0 ? 0.0 : a, b}; // flat ones take long
    default:
        return random.bits() % 2 == 0 ? HalfAxes{a, b} : HalfAxes{b, a};
    }
}

struct Range {
    double lo, hi;
};
Range range(Random &random) {
    const double lo = random.uniform(-400, 400), whole = std::floor(lo);
    switch (random.bits() % 8) {
    case 0:
        return {0.0, 360.0};
    case 1:
        return {lo, lo + 360.0};
    case 2:
        return {lo, lo + random.logUniform(1e-4, 4.0)};
    case 3:
        return {lo, lo + random.uniform(360.0, 900.0)};
    case 4:
        return {whole, whole + std::floor(random.uniform(0, 400))};
    case 5: // near to the end of an axis
        return {90.0 * std::floor(lo / 90.0) + random.logUniform(1e-6, 20), 400 + lo};
    default:
        return {lo, lo + random.uniform(0, 360)};
    }
}

::testing::AssertionResult agree(double got, double want) {
    if (got == want || std::fabs(got - want) <= 1e-12 * std::fabs(want)) {
        return ::testing::AssertionSuccess();
    }
    return ::testing::AssertionFailure() << got << " against " << want;
}

struct Result {
    int32_t code;
    double value = kUntouched;
};
Result integrated(PLANEGEO_INTEGRAND integrand, Range r) {
    Result result = {};
    result.code = ca_Simpson(integrand, r.lo, r.hi, &result.value);
    return result;
}

TEST(PlainAgreement, lengthsAndAreas) {
    Random random(7001);
    for (int i = 0; i < 1500; ++i) {
        const HalfAxes half = axes(random, i % 50 == 0 ? 1e6 : i % 3 == 0 ? 100.0 : 6.0);
        const Range r = range(random);
        SCOPED_TRACE(testing::Message()
                     << half.first << " " << half.second << " over " << r.lo << " " << r.hi);
        const HalfAxesGuard stored(half.first, half.second);
        const auto length = half.length(r.lo, r.hi);
        const Result got = integrated(ca_lengelp, r);
        EXPECT_EQ(got.code, length.code);
        EXPECT_TRUE(agree(got.value, length.value));
        const DTELLIPSE e = {0, 3, 4, 2 * half.first, 2 * half.second, r.lo, r.hi, 30};
        double measured = kUntouched;
        ca_ElpLen(&e, &measured);
        EXPECT_TRUE(agree(measured, plain::length(e, half.first, half.second)));
        if (half.first == 0.0) continue;
        const auto area = plain::simpson([&](double t) { return half.sector(t); }, r.lo, r.hi);
        EXPECT_TRUE(agree(integrated(ca_AreaElp, r).value, area.value));
    }
}

/// Sizes the ellipse so that its second pass differs from the first by almost exactly the 1e-6
/// that settle it. There the passes decide by their rounding, which only the samples have.
TEST(PlainAgreement, wherePassesBarelySettle) {
    Random random(7002);
    for (int i = 0; i < 400; ++i) {
        const double ratio = random.logUniform(1.3, 4.0), lo = random.angleDeg();
        const Range r = {lo, lo + random.uniform(20.0, 340.0)};
        const auto unit = [&](double t) { return plain::speed(1.0, ratio, t); };
        const std::int64_t n = plain::evenCount(r.hi - r.lo);
        const auto pass = [&](std::int64_t count) {
            const double h = (r.hi - r.lo) / static_cast<double>(count);
            return (unit(r.lo) + unit(r.hi) + plain::interior(unit, r.lo, h, count)) * h;
        };
        const double change = std::fabs(pass(2 * n) - pass(n)) * kRadPerDeg / 3.0;
        const double size = 1e-6 / change * (1.0 + random.uniform(-1, 1) * std::pow(10, -(i % 12)));
        if (!(size < 1e7)) continue;
        const HalfAxes half = {size, size * ratio};
        const HalfAxesGuard stored(half.first, half.second);
        const auto want = half.length(r.lo, r.hi);
        EXPECT_TRUE(agree(integrated(ca_lengelp, r).value, want.value)) << want.passes;
    }
}

TEST(PlainAgreement, whereAFirstSumIsBarelyAccepted) {
    Random random(7003);
    for (int i = 0; i < 400; ++i) {
        const double ratio = random.logUniform(1.0, 4.0), size = random.logUniform(1e-9, 1e-5);
        const double span = 1e-6 / size / kRadPerDeg * random.uniform(0.2, 1.2);
        if (span > 400.0) continue;
        const HalfAxes half = {size, size * ratio};
        const HalfAxesGuard stored(half.first, half.second);
        const auto want = half.length(10, 10 + span);
        EXPECT_TRUE(agree(integrated(ca_lengelp, {10, 10 + span}).value, want.value));
    }
}

/// A search over the library's integrand moves exactly as one over its samples.
TEST(PlainAgreement, searches) {
    Random random(7004);
    for (int i = 0; i < 300; ++i) {
        const double a = random.logUniform(0.01, 1e4);
        const double ratio = random.logUniform(0.2, 5.0);
        const HalfAxes half = {a, a * (i % 60 == 7 ? 1e-3 : i % 5 == 0 ? 0.1 * ratio : ratio)};
        const HalfAxesGuard stored(half.first, half.second);
        const double start = random.uniform(-100, 300) + (i % 40 == 9 ? 40000.0 : 0.0);
        DTELLIPSE got = {0, 3, 4, 1, 1, start, start + random.uniform(1, 360), 30};
        const double length = half.length(got.start, got.end).value;
        const double wanted[] = {
            length * random.uniform(0.02, 2.0),   // anywhere
            length + random.uniform(-3e-6, 3e-6), // there, or almost
            length - (1.0 + random.uniform(-1, 1) * std::pow(10, -(i % 12))) * 1e-6,
            random.uniform(-3e-6, 3e-6), // nothing, or less
        };
        const int32_t which = static_cast<int32_t>(random.bits() % 2);
        DTELLIPSE want = got;
        const double l = wanted[i % 4];
        EXPECT_EQ(ca_ElpLen2(&got, l, which),
                  plain::lengthTo(want, l, which, half.first, half.second));
        EXPECT_EQ(got.start, want.start) << "bit by bit, as the limit moves by halved steps";
        EXPECT_EQ(got.end, want.end);
        if (i % 6 != 5) continue;
        const auto sector = [&half](double t) { return half.sector(t); };
        const double area =
            plain::simpson(sector, start, start + 90.0).value * random.uniform(0, 2);
        double lo = start, hi = start + 90.0;
        EXPECT_EQ(ca_Simpson2(ca_AreaElp, &lo, &hi, area, 1), 0);
        EXPECT_EQ(hi, plain::simpson2(sector, start, start + 90.0, area, false).hi);
    }
}

std::size_t calls;
int32_t hostsSpeed(double deg, double *value) {
    ++calls;
    return ca_lengelp(deg, value);
}

TEST(PlainAgreement, aHostsIntegrandIsSampled) {
    Random random(7005);
    for (int i = 0; i < 200; ++i) {
        const HalfAxes half = axes(random, 6.0);
        const Range r = range(random);
        const HalfAxesGuard stored(half.first, half.second);
        const auto want = half.length(r.lo, r.hi);
        calls = 0;
        EXPECT_EQ(integrated(hostsSpeed, r).value, want.value) << "bit by bit";
        const auto n = static_cast<std::size_t>(plain::evenCount(r.hi - r.lo));
        const auto passes = static_cast<unsigned>(want.passes);
        EXPECT_EQ(calls, 2 + n * ((std::size_t{1} << passes) - 1) - passes);
    }
}

/// The tables of a2d_elpdn: every entry is that of the plain walk, unless the walk's own quotient
/// there is a whole number to within its rounding (half an ulp for each of its additions).
TEST(PlainAgreement, divisionTables) {
    Random random(7006);
    for (int i = 0; i < 120; ++i) {
        const HalfAxes half = axes(random, i % 5 == 0 ? 1e3 : 8.0);
        const Range r = i % 3 == 0 ? Range{0, 360} : range(random);
        const auto n =
            static_cast<int32_t>(i % 20 == 0 ? random.logUniform(1e3, 1e5) : random.uniform(1, 30));
        const plain::Arc arc = {{random.point(100)}, 2 * half.first, 2 * half.second,
                                random.angleDeg(),   r.lo,           r.hi};
        SCOPED_TRACE(testing::Message() << half.first << " " << half.second << " over " << r.lo
                                        << " " << r.hi << " by " << n);
        const plain::Table want = plain::divisionTable(arc, n);
        const double steps = static_cast<double>(plain::evenCount((r.hi - r.lo) / 0.001));
        plain::ask(a2d_elpdn, arc, n, n + 1);
        for (int32_t k = 1; k <= n; k += k < n - 100 ? 97 : 1) {
            const auto at = static_cast<std::size_t>(k);
            const auto [code, got, piece] = plain::ask(a2d_elpdn, arc, n, k);
            ASSERT_EQ(code, 0);
            EXPECT_TRUE(agree(piece, want.piece));
            const double noted = want.parameters[at];
            const double t = std::isnan(noted) ? r.hi : noted; // the walk passed over k
            const double size = std::fabs(arc.a) + std::fabs(arc.b) + 200.0;
            if (near(got, plain::pointOf(arc, t), 1e-12 * size)) continue;
            const double off = std::min(std::fabs(want.at[at] - k), std::fabs(want.before[at] - k));
            EXPECT_LE(off / k, steps * 0x1p-53) << k;
            EXPECT_TRUE(near(got, plain::pointOf(arc, t - 0.001), 1e-5 * size)) << k;
        }
    }
}

/// Samples are found by adding degree after degree, and one more or less changes every piece.
TEST(PlainAgreement, samplesOfAPolyline) {
    std::vector<Range> ranges = {{-100.0, -1e-20}, {1e5 + 0.1, 1e5 + 60.1}, {30.5, 390.5}};
    Random random(7008);
    for (int i = 0; i < 300; ++i) {
        const double lo = random.uniform(-300, 100), hi = lo + std::floor(random.uniform(2, 361));
        ranges.push_back({lo, hi});
        ranges.push_back({lo, std::nextafter(hi, -500.0)});
    }
    for (const Range &r : ranges) {
        const plain::Arc arc = {{0, 0}, 6, 4, 0, r.lo, r.hi};
        const plain::Division got = plain::ask(ca_elpdn, arc, 7, 3);
        EXPECT_EQ(got.code, 0);
        EXPECT_NEAR(got.piece, plain::divide(arc, 7, 3).piece, 1e-10) << r.lo << " " << r.hi;
    }
}

TEST(PlainAgreement, polylines) {
    Random random(7007);
    for (int i = 0; i < 4000; ++i) {
        const HalfAxes half = axes(random, i % 10 == 0 ? 1e3 : 5.0);
        const Range r = range(random);
        const double end = std::min(r.hi, r.lo + 361.0);
        const bool plainPlace = random.bits() % 4 == 0;
        const plain::Arc arc = {
            plainPlace ? DTPOINT{0, 0} : random.point(100), 2 * half.first, 2 * half.second,
            plainPlace ? 0.0 : random.angleDeg(),           r.lo,           end};
        const auto n = static_cast<int32_t>(random.uniform(1, 50));
        const auto k = static_cast<int32_t>(random.uniform(1, n + 2));
        const plain::Division want = plain::divide(arc, n, k);
        const auto [code, got, piece] =
            plain::ask(ca_elpdn, arc, n, k, {0, kUntouchedPoint, kUntouched});
        ASSERT_EQ(code, want.code);
        const double size = std::fabs(arc.a) + std::fabs(arc.b) + 200.0;
        // The chords have the rounding of coordinates, some 2 ulps each.
        EXPECT_NEAR(piece, want.piece, 1e-12 * want.piece + 362 * 2 * kEpsilon * size / n);
        EXPECT_TRUE(near(got, want.code == 0 ? want.point : kUntouchedPoint, 1e-12 * size))
            << half.first << " " << half.second << " over " << r.lo << " " << end << ", " << k
            << " of " << n;
    }
}

} // namespace
