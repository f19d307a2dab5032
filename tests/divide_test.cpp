// Division of elliptic arcs: the points, and what is kept between calls.

#include <vector>

#include "plain_measure.h"
#include "support.h"

namespace {

using namespace support;

constexpr DTPOINT kCenter = {12.0, -7.0};

using Answer = plain::Division;
Answer kept(const plain::Arc &arc, int32_t n, int32_t k) {
    return plain::ask(a2d_elpdn, arc, n, k, {0, kUntouchedPoint, kUntouched});
}
Answer stateless(const plain::Arc &arc, int32_t n, int32_t k) {
    return plain::ask(ca_elpdn, arc, n, k, {0, kUntouchedPoint, kUntouched});
}
/// No division is kept afterwards.
void release() { kept({kCenter, 1, 1, 0, 0, 1}, 1, 2); }

double parameterDeg(const plain::Arc &arc, DTPOINT p) {
    const double r = arc.rot * kRadPerDeg, x = p.x - arc.center.x, y = p.y - arc.center.y;
    return std::atan2((y * std::cos(r) - x * std::sin(r)) / arc.b,
                      (x * std::cos(r) + y * std::sin(r)) / arc.a) /
           kRadPerDeg;
}

const plain::Arc kArc = {kCenter, 10, 6, 30, 0, 250};

TEST(KeptDivision, circle) {
    const plain::Arc circle = {kCenter, 2, 2, 0, 0, 360};
    for (int k = 1; k <= 4; ++k) {
        const Answer got = kept(circle, 4, k);
        EXPECT_EQ(got.code, 0);
        EXPECT_NEAR(got.piece, kPi / 2, 1e-6);
        EXPECT_NEAR(std::remainder(parameterDeg(circle, got.point) - 90.0 * k, 360.0), 0.0, 0.002);
    }
}

TEST(KeptDivision, piecesAreEqual) {
    const auto f = [](double t) { return plain::speed(kArc.a / 2, kArc.b / 2, t); };
    double from = kArc.start;
    for (int k = 1; k <= 7; ++k) {
        const Answer got = kept(kArc, 7, k);
        ASSERT_EQ(got.code, 0);
        const double to =
            kArc.start + std::fmod(parameterDeg(kArc, got.point) - kArc.start + 720, 360.0);
        // Each end lies up to two steps of 0.001 degrees early; the speed is at most 5.
        EXPECT_NEAR(plain::simpson(f, from, to).value, got.piece, 5 * 0.004 * kRadPerDeg);
        from = to;
    }
    EXPECT_NEAR(from, kArc.end, 1e-9);
}

/// One step of a host: a call, and what it should find.
struct Step {
    const char *about;
    plain::Arc arc;
    int32_t n, k;
    int32_t code;
    bool reuses; ///< the piece length still is the first arc's
};

TEST(KeptDivision, whatIsKept) {
    plain::Arc nudged = kArc, turned = kArc, moved = kArc, reversed = kArc, longer = kArc;
    nudged.a += 0.5e-6, nudged.rot += 0.5e-8, nudged.center.x -= 0.5e-6, nudged.start += 1e-8;
    turned.start += 2e-8;
    moved.b += 2e-6;
    longer.a += 2e-6;
    std::swap(reversed.start, reversed.end);
    plain::Arc further = kArc;
    further.end += 2e-8;
    plain::Arc lifted = kArc;
    lifted.a += 0.5e-6, lifted.center.y += 2e-6;
    plain::Arc spun = lifted;
    spun.a += 0.5e-6, spun.rot += 2e-8;
    const Step steps[] = {
        {"the first call measures", kArc, 5, 2, 0, false},
        {"within the tolerances it is the same arc", nudged, 5, 1, 0, true},
        {"any order of points", kArc, 5, 4, 0, true},
        {"no point below 1, and nothing forgotten", kArc, 5, 0, 1, true},
        {"the last point still comes from the table", nudged, 5, 5, 0, true},
        {"and releases it: the same tolerances ask anew", nudged, 5, 1, 0, false},
        {"a point above n releases too", nudged, 5, 6, 1, false},
        {"so that this is measured", kArc, 5, 1, 0, false},
        {"another start", turned, 5, 1, 0, false},
        {"another first axis", longer, 5, 1, 0, false},
        {"another axis", moved, 5, 1, 0, false},
        {"the first again", kArc, 5, 1, 0, false},
        {"another end", further, 5, 1, 0, false},
        {"the first once more", kArc, 5, 1, 0, false},
        {"another centre", lifted, 5, 1, 0, false},
        {"another rotation", spun, 5, 1, 0, false},
        {"another count", moved, 6, 1, 0, false},
        {"a reversed range is refused", reversed, 6, 1, -1, false},
        {"and again, from no table", reversed, 6, 1, -1, false},
        {"and releases nothing at its last point", reversed, 6, 6, -1, false},
        {"measured anew", moved, 6, 1, 0, false},
        {"a negative count", moved, -1, -2, 1, false},
        {"too many pieces for a table", moved, 2147483647, 1, 1, false},
    };
    release();
    for (const Step &step : steps) {
        SCOPED_TRACE(step.about);
        const Answer got = kept(step.arc, step.n, step.k);
        EXPECT_EQ(got.code, step.code);
        if (step.code != 0) {
            EXPECT_EQ(got.point, kUntouchedPoint);
            EXPECT_EQ(got.piece, kUntouched);
            continue;
        }
        const plain::Arc &measured = step.reuses ? kArc : step.arc;
        const plain::Table want = plain::divisionTable(measured, step.n);
        EXPECT_NEAR(got.piece, want.piece, 1e-12 * want.piece);
        const double t = want.parameters[static_cast<std::size_t>(step.k)];
        EXPECT_TRUE(near(got.point, plain::pointOf(step.arc, t), 1e-12));
    }
    release();
}

TEST(KeptDivision, oddArguments) {
    const plain::Arc tiny = {kCenter, 10, 6, 0, 40, 40.003};
    Answer got = kept(tiny, 3, 1);
    EXPECT_EQ(got.code, 0);
    EXPECT_EQ(got.piece, 0.0);
    EXPECT_TRUE(near(got.point, plain::pointOf(tiny, tiny.end), 1e-14));
    const plain::Arc point = {kCenter, 0, 0, 0, 0, 90};
    got = kept(point, 3, 1);
    EXPECT_EQ(got.code, 0);
    EXPECT_EQ(got.point, kCenter);
    const plain::Arc endless = {kCenter, 10, 6, 0, 0, 1e6};
    got = kept(endless, 3, 1);
    EXPECT_EQ(got.code, -2);
    EXPECT_EQ(got.piece, 0.0);
    EXPECT_TRUE(near(got.point, plain::pointOf(endless, 1e6), 1e-12));
    EXPECT_EQ(kept(endless, 3, 2).code, 0) << "the code is that of the call that measures";
    EXPECT_EQ(kept({kCenter, 10, 6, 0, 0, kInfinity}, 3, 3).code, -2);
    EXPECT_EQ(kept({kCenter, 10, 6, 0, 0, 36000.5}, 3, 1).code, -2);
    EXPECT_EQ(kept({kCenter, 10, 6, 0, 0, 36000}, 65536, 1).code, 0);
    EXPECT_EQ(kept({kCenter, 10, 6, 0, 0, 36000}, 65537, 1).code, -2) << "too many to look for";
    EXPECT_EQ(kept({kCenter, 10, 1, 0, 0, 1440}, 3, 1).code, 0);
    got = kept({kCenter, 10, 1, 0, 0, 1440.5}, 3, 1);
    EXPECT_EQ(got.code, -2) << "too long a walk";
    EXPECT_EQ(got.piece, 0.0);
    EXPECT_EQ(kept({kCenter, 10, 6, 0, kNaN, 90}, 3, 3).code, -2);
    EXPECT_TRUE(std::isnan(kept({kCenter, kNaN, 6, 0, 0, 90}, 3, 3).piece));
    EXPECT_TRUE(std::isnan(kept({kCenter, 10, kNaN, 0, 0, 90}, 3, 3).piece));
    for (const plain::Arc &walked :
         {plain::Arc{kCenter, 1e-123, 6e-124, 0, 0, 90}, plain::Arc{kCenter, 1e123, 6e122, 0, 0, 9},
          plain::Arc{kCenter, 10, 6, 0, 2e6, 2e6 + 9}}) {
        const plain::Table want = plain::divisionTable(walked, 4);
        got = kept(walked, 4, 3);
        EXPECT_NEAR(got.piece, want.piece, 1e-9 * want.piece);
        EXPECT_TRUE(near(got.point, plain::pointOf(walked, want.parameters[3]), 1e-9 * walked.a));
    }
    EXPECT_EQ(kept({kCenter, 1e200, 1e200, 0, 0, 90}, 3, 3).code, 0);
    EXPECT_EQ(kept({kCenter, 10, 6, 0, 0, 90}, 1 << 20, 1 << 20).code, 0);
    EXPECT_EQ(kept({kCenter, 10, 6, 0, 0, 90}, (1 << 20) + 1, 3).code, 1);
    release();
}

TEST(StatelessDivision, wholeDegrees) {
    const plain::Arc circle = {kCenter, 2, 2, 0, 0, 360};
    EXPECT_EQ(stateless(circle, 4, 4).code, 0);
    EXPECT_TRUE(near(stateless(circle, 4, 4).point, {13.0, -7.0}, 1e-15));
    EXPECT_NEAR(stateless(circle, 4, 1).piece, 720.0 * std::sin(0.5 * kRadPerDeg) / 4, 1e-12);
    const Answer beyond = stateless(circle, 4, 5);
    EXPECT_EQ(beyond.code, 1);
    EXPECT_EQ(beyond.point, kUntouchedPoint);
    EXPECT_NEAR(beyond.piece, kPi / 2, 1e-4) << "the length is written";
    const plain::Arc half = {kCenter, 2, 2, 0, 10.5, 20};
    EXPECT_NEAR(parameterDeg(half, stateless(half, 9, 8).point), 18.5, 1.001);
    EXPECT_NEAR(parameterDeg(half, stateless(half, 9, 9).point), 20.0, 1e-12);
    EXPECT_NEAR(stateless(half, 9, 9).piece, 2.0 * std::sin(0.5 * kRadPerDeg), 1e-15)
        << "nine chords, from 10.5 to 19.5";
}

TEST(StatelessDivision, theRuleWithinADegree) {
    // A quarter of a turn in 7: the rest beyond the target is 1/7 ... 6/7 of a chord.
    const plain::Arc arc = {kCenter, 200, 200, 10, 0, 90};
    const auto at = [&](int i) { return plain::pointOf(arc, i); };
    const Answer got = stateless(arc, 7, 1); // 12 6/7 chords, so 1/7 is left over: m = 7
    const DTPOINT p = at(12), q = at(13);
    EXPECT_TRUE(near(got.point, {(7 * q.x + 6 * p.x) / 13, (7 * q.y + 6 * p.y) / 13}, 1e-12) ||
                near(got.point, {(6 * q.x + 5 * p.x) / 11, (6 * q.y + 5 * p.y) / 11}, 1e-12));
    const DTPOINT r = at(38), u = at(39); // 38 4/7 chords, 3/7 left over: m = 2
    EXPECT_TRUE(
        near(stateless(arc, 7, 3).point, {(2 * u.x + r.x) / 3, (2 * u.y + r.y) / 3}, 1e-12));
}

TEST(StatelessDivision, oddArguments) {
    struct Case {
        const char *about;
        plain::Arc arc;
        int32_t n, k;
        int32_t code;
        bool piece; ///< is written
    };
    const plain::Arc arc = {kCenter, 10, 6, 0, 0, 90}, none = {kCenter, 0, 0, 0, 0, 90};
    const auto range = [](double start, double end) {
        return plain::Arc{kCenter, 10, 6, 0, start, end};
    };
    const Case cases[] = {
        {"no pieces", arc, 0, 1, 1, false},
        {"no point", arc, 4, 0, 1, false},
        {"no point of negative pieces", arc, -4, -5, 1, false},
        {"a reversed range", range(10, 5), 4, 1, 1, false},
        {"no size", none, 4, 2, 1, true},
        {"no size, but the end", none, 4, 4, 0, true},
        {"no chord", range(10, 10.5), 4, 1, 1, true},
        {"no chord, but the end", range(10, 10.5), 4, 4, 0, true},
        {"361 degrees", range(5, 366), 4, 1, 0, true},
        {"362 degrees", range(5, 367), 4, 1, 1, false},
        {"362 degrees, the end", range(5, 367), 4, 4, 1, false},
        {"endless", range(5, kInfinity), 4, 4, 1, false},
        {"where a degree adds nothing", range(1e17, 1e17), 4, 1, 1, false},
        {"huge counts", arc, 2147483647, 2147483646, 0, true},
        {"chords that overflow", {kCenter, 1e200, 1e200, 0, 0, 90}, 4, 1, 1, true},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.about);
        const Answer got = stateless(c.arc, c.n, c.k);
        EXPECT_EQ(got.code, c.code);
        EXPECT_EQ(got.point == kUntouchedPoint, c.code != 0);
        EXPECT_EQ(got.piece != kUntouched, c.piece);
    }
}

} // namespace
