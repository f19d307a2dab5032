// Division of elliptic arcs from the polyline through every whole degree, without any state.

#include <algorithm>
#include <array>
#include <optional>

#include "ellipse/cosine_series.h"
#include "ellipse/frame.h"
#include "ellipse/speed.h"
#include "planegeo.h"

namespace {

using namespace planegeo;

constexpr std::int32_t kNoSuchPoint = 1;
constexpr int kMostSamples = 362;

/// A start that is no whole degree rounds its samples, at most by so much in all; one further off
/// by more.
constexpr double kFarthestStartDeg = 1000000.0;
constexpr double kCountSlackDeg = 0x1p-20;

/// Radians by a form that is a rounding apart from kRadPerDeg, and kept so.
double radians(double deg) { return deg * kPi / 180.0; }

struct Arc {
    EllipseFrame frame;
    double start;
    double end;

    static Arc of(Vec2 center, double a, double b, double rot, Vec2 angles) {
        return {{center, Rotation::ofRadians(radians(rot)), a * 0.5, b * 0.5}, angles.x, angles.y};
    }
    Vec2 at(Rotation parameter) const {
        return frame.toPlane({frame.halfFirst * parameter.c, frame.halfSecond * parameter.s});
    }
    Vec2 at(double parameterDeg) const { return at(Rotation::ofRadians(radians(parameterDeg))); }
};

/// The chord in which the running sum of chords exceeds the wanted length.
struct Chord {
    double from; ///< parameter of its first sample, degrees; the second is 1 degree on
    double length;
    double rest; ///< of the sum beyond the wanted length
};

struct Division {
    double piece;
    std::optional<Chord> chord; ///< none where the wanted length lies beyond the polyline
};

bool isWhole(double deg) { return deg == std::floor(deg); }

/// The turns of 0, 1, ... 360 degrees, as radians() gives them.
struct WholeDegrees {
    std::array<double, 361> c;
    std::array<double, 361> s;

    static const WholeDegrees &table() {
        static const WholeDegrees degrees = [] {
            WholeDegrees made = {};
            for (std::size_t i = 0; i < made.c.size(); ++i) {
                const Rotation turn = Rotation::ofRadians(radians(static_cast<double>(i)));
                made.c[i] = turn.c;
                made.s[i] = turn.s;
            }
            return made;
        }();
        return degrees;
    }
};

struct Samples {
    std::array<double, kMostSamples> x;
    std::array<double, kMostSamples> y;
    std::size_t count = 0;

    void set(std::size_t i, Vec2 p) {
        x[i] = p.x;
        y[i] = p.y;
    }
};

/// Samples the arc at whole degrees from its start. False when there are more than kMostSamples.
bool sample(const Arc &arc, Samples &samples) {
    if (isWhole(arc.start) && arc.start >= 0.0 && arc.end <= 360.0) {
        const WholeDegrees &table = WholeDegrees::table();
        const auto first = static_cast<std::size_t>(arc.start);
        samples.count = static_cast<std::size_t>(arc.end) - first + 1;
        for (std::size_t i = 0; i < samples.count; ++i) {
            samples.set(i, arc.at(Rotation{table.c[first + i], table.s[first + i]}));
        }
        return true;
    }
    double t = arc.start;
    for (; t <= arc.end && samples.count < kMostSamples; t += 1.0) {
        samples.set(samples.count++, arc.at(t));
    }
    return !(t <= arc.end);
}

/// The parameter of a sample, which is found by adding degree after degree.
double sampleDeg(double start, std::size_t i) {
    if (isWhole(start)) return start + static_cast<double>(i);
    for (; i > 0; --i) {
        start += 1.0;
    }
    return start;
}

/// Chord by chord. Nothing when the arc has more than kMostSamples.
std::optional<Division> divideByWalking(const Arc &arc, std::int32_t n, std::int32_t k) {
    Samples samples;
    if (!sample(arc, samples)) return std::nullopt;
    const std::size_t count = samples.count > 0 ? samples.count - 1 : 0;
    std::array<double, kMostSamples> chords;
    std::array<double, kMostSamples> sums;
    for (std::size_t i = 0; i < count; ++i) {
        chords[i] = plainLength({samples.x[i + 1] - samples.x[i], samples.y[i + 1] - samples.y[i]});
    }
    double total = 0.0;
    for (std::size_t i = 0; i < count; ++i) {
        sums[i] = total += chords[i];
    }

    const double piece = total / n;
    const double wanted = k * piece;
    const double *sum = std::upper_bound(sums.data(), sums.data() + count, wanted);
    const auto i = static_cast<std::size_t>(sum - sums.data());
    if (i == count) return Division{piece, std::nullopt};
    return Division{piece, Chord{sampleDeg(arc.start, i), chords[i], *sum - wanted}};
}

// A chord of an ellipse is parallel to the tangent at its middle parameter: over a degree it is
// 2 sin(1/2 degree) f at the middle, f being the speed. So the sum of chords is a sum over
// equidistant samples of f, and of a term cos 2kt it is
//     2 sin(1/2 degree) (sin 2kb - sin 2ka) / (2 sin(k degrees)).

constexpr Rotation kDegree = {0.99984769515639124, 0.017452406437283512};
constexpr double kChordOfDegree = 0.017453070996747869; ///< 2 sin(1/2 degree)
constexpr double kChordPerArc = kChordOfDegree / kRadPerDeg;

/// A Newton step this short leaves some thousandths of a degree, seldom another chord, and a
/// few terms do for it.
constexpr double kCloseDeg = 1.0;
constexpr int kRoughTerms = 8;

/// 1 degree over 2 sin(k degrees), in place of the 1 / 2k of the integral.
constexpr auto kChordFactors = [] {
    std::array<double, CosineSeries::kMostTerms + 1> factors = {};
    Rotation turn = kDegree;
    for (std::size_t k = 1; k < factors.size(); ++k) {
        factors[k] = kRadPerDeg / (2.0 * turn.s);
        turn = turn * kDegree;
    }
    return factors;
}();

/// Chords of a whole degree up to the end of the arc. Nothing where the samples, found by adding
/// degree after degree, might be rounded past the end or short of it.
std::optional<int> chordCount(const Arc &arc) {
    const double span = arc.end - arc.start;
    if (!(span < kMostSamples && std::fabs(arc.start) < kFarthestStartDeg)) return std::nullopt;
    const auto count = static_cast<int>(span);
    if (isWhole(arc.start)) return arc.start + count > arc.end ? count - 1 : count;
    const double rest = span - count;
    const bool isClear = rest > kCountSlackDeg && rest < 1.0 - kCountSlackDeg;
    return isClear ? std::optional(count) : std::nullopt;
}

/// In roundings u: the walk has `count` of the total for its additions, and per chord 3 of the
/// coordinates and of (8 + 3T) (A + B) for its ends, T being the larger angle; the series has
/// 64 + 32T of its weight.
double uncertainty(const Arc &arc, int count, double total, double weight) {
    const EllipseFrame &frame = arc.frame;
    const double farthest = (std::fabs(arc.start) + std::fabs(arc.end)) * kRadPerDeg;
    const double coordinates =
        std::fabs(frame.center.x) + std::fabs(frame.center.y) +
        (8.0 + 3.0 * farthest) * (std::fabs(frame.halfFirst) + std::fabs(frame.halfSecond));
    return kUnitRoundoff *
           (count * (total + 3.0 * coordinates) + (64.0 + 32.0 * farthest) * weight);
}

/// Whether the chord is the one sought, and its length in rests truncates to one number, within
/// an uncertainty of the rest.
bool isDecided(const Chord &chord, double slack) {
    if (!(chord.rest > kShortRestLength + slack && chord.rest < chord.length - slack)) return false;
    const double rests = chord.length / chord.rest;
    const double restsSlack = 2.0 * rests * (slack / chord.rest + 8.0 * kUnitRoundoff);
    return std::fabs(rests - std::nearbyint(rests)) > restsSlack;
}

constexpr int kMostNewtonSteps = 60;

/// The parameter between lo and hi, degrees, at which a length reaches a value: Newton's method
/// from a guess t, kept in the bracket by halving it, until a step is shorter than `close`. The
/// length need not rise by exactly the speed, nor be summed to its last term.
double parameterAt(double value, const SineSeries &length, const ArcSpeed &speed, double t,
                   double lo, double hi, double close, int terms) {
    for (int i = 0; i < kMostNewtonSteps; ++i) {
        const Rotation turn = Rotation::ofDegrees(t);
        const double missing = value - length.at(t, turn, terms);
        const double step = missing / speed(turn) * kDegPerRad;
        const double next = t + step;
        if (std::fabs(step) < close) return next;
        (missing > 0.0 ? lo : hi) = t;
        t = next > lo && next < hi ? next : (lo + hi) * 0.5;
    }
    return t;
}

/// The same without the walk. Nothing where rounding decides: the wanted length may fall on a
/// sample, as by symmetry it does in many divisions of a whole turn.
std::optional<Division> divideBySeries(const Arc &arc, std::int32_t n, std::int32_t k) {
    const auto count = chordCount(arc);
    if (!count) return std::nullopt;
    const auto series = CosineSeries::ofArcSpeed(arc.frame.halfFirst, arc.frame.halfSecond);
    if (!series.isUsable()) return std::nullopt;
    const SineSeries chords =
        series.sines([](int i) { return kChordFactors[static_cast<std::size_t>(i)]; });
    const double atStart = chords(arc.start);
    const auto lengthTo = [&](double deg) { return (chords(deg) - atStart) * kChordPerArc; };

    // Over half turns the sines cancel.
    const double total =
        *count % 180 == 0 ? chords.slope * (*count * kChordOfDegree) : lengthTo(arc.start + *count);
    const double piece = total / n;
    if (k >= n) return Division{piece, std::nullopt};
    const double wanted = k * piece;
    const auto speed = ArcSpeed::of(arc.frame.halfFirst, arc.frame.halfSecond);
    const double guess = arc.start + *count * (static_cast<double>(k) / n);
    const double x = parameterAt(wanted / kChordPerArc + atStart, chords, speed, guess, arc.start,
                                 arc.end, kCloseDeg, std::min(chords.terms, kRoughTerms));
    const double from = arc.start + static_cast<int>(x - arc.start);
    const Chord chord = {from, kChordOfDegree * speed(from + 0.5), lengthTo(from + 1.0) - wanted};
    if (!isDecided(chord, uncertainty(arc, *count, total, series.weight()))) return std::nullopt;
    return Division{piece, chord};
}

/// The rest beyond the wanted length decides how the ends of the chord are weighted. This is not
/// the interpolation along the chord; hosts have stored points placed by it.
Vec2 pointIn(const Arc &arc, Chord chord) {
    if (chord.rest < kShortRestLength) chord.rest += kShortRestLength;
    const double m = std::trunc(chord.length / chord.rest);
    return (arc.at(chord.from + 1.0) * m + arc.at(chord.from) * (m - 1.0)) / (2.0 * m - 1.0);
}

} // namespace

extern "C" {

int32_t ca_elpdn(const DTPOINT *center, double a, double b, double rot, const double *angles,
                 int32_t n, int32_t k, DTPOINT *out, double *len) {
    if (n <= 0 || k <= 0 || angles[0] > angles[1]) return kNoSuchPoint;
    const Arc arc = Arc::of(load(center), a, b, rot, {angles[0], angles[1]});
    auto division = divideBySeries(arc, n, k);
    if (!division) division = divideByWalking(arc, n, k);
    if (!division) return kNoSuchPoint;

    *len = division->piece;
    if (k == n) {
        store(arc.at(arc.end), out);
        return 0;
    }
    if (!division->chord) return kNoSuchPoint;
    store(pointIn(arc, *division->chord), out);
    return 0;
}

} // extern "C"
