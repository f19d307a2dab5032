// The distance of a point to an elliptic arc, taken at samples: whole degrees of the parameter,
// then tenths of a degree around the nearest of those.
//
// The answer is that of the plain steps, bit for bit: every sample's distance computed, the first
// of the smallest taken. But only samples whose distance is the smallest to within rounding are
// computed so; a rough distance from tables tells which. Not even that is needed for all degrees:
// along the ellipse the distance has one or two minima, and it is known where.

#include "ellipse/sampled_distance.h"

#include <algorithm>
#include <bitset>
#include <cstdint>
#include <optional>

#include "base/tolerance.h"
#include "ellipse/degree_table.h"
#include "ellipse/normal_feet.h"
#include "ellipse/query.h"

namespace planegeo {

namespace {

/// Room for a whole turn of degrees and three more; a longer span is sampled that far.
constexpr int kMaxSamples = 364;
/// Two degrees in tenths, ends included, and one more should rounding admit it.
constexpr int kMaxTenths = DegreeTable::kTenths;
/// Whole degrees of a turn.
constexpr int kTurn = 360;

/// Whole, and so small that every step from it is exact.
bool isWhole(double value) { return std::fabs(value) < 0x1p30 && value == static_cast<int>(value); }

/// The double that a loop reaches which adds 1 the given number of times.
///
/// Sums below a power of two are exact once the power before is passed; the one that reaches it
/// rounds. (From below 1, too: digits that the last sum loses were there from the start.)
double countedUp(double from, int steps) {
    if (isWhole(from)) return from + steps;
    double value = from;
    for (double power = 1.0; steps > 0 && value + 1.0 != value; power *= 2.0) {
        if (!(value < power)) continue;
        const int within = static_cast<int>(std::fmin(steps, std::floor(power - value)));
        value += within;
        steps -= within;
        if (steps == 0) break;
        value += 1.0;
        --steps;
    }
    return value;
}

/// The parameters (from + 1 + ... + 1) * unitDeg, while the sum does not exceed a bound.
struct Samples {
    double from;
    double unitDeg;
    int count;

    static Samples upTo(double bound, double from, double unitDeg, int room) {
        if (!(from <= bound)) return {from, unitDeg, 0};
        const int whole = static_cast<int>(std::min(room - 1.0, bound - from));
        // That difference is rounded, and so are the sums.
        if (isWhole(from)) return {from, unitDeg, from + whole > bound ? whole : whole + 1};
        const int last = countedUp(from, whole) > bound ? whole - 1 : whole;
        const bool oneMore = last + 1 < room && countedUp(from, last + 1) <= bound;
        return {from, unitDeg, last + 1 + (oneMore ? 1 : 0)};
    }

    double parameterDeg(int i) const { return countedUp(from, i) * unitDeg; }
    double aboutFirstDeg() const { return from * unitDeg; }
    bool hold(int i) const { return i >= 0 && i < count; }
    bool closeTheTurn() const { return count * unitDeg > 360.0; }
};

/// The greatest whole number not above a value between -2^31 and 2^31.
int wholePart(double value) {
    const int towardsZero = static_cast<int>(value);
    return towardsZero > value ? towardsZero - 1 : towardsZero;
}

/// Directions (cos t, sin t) of samples, to a few roundings.
class RoughUnits {
  public:
    explicit RoughUnits(double fromDeg) : degree_(wholePart(fromDeg)) {
        const double t = (fromDeg - degree_) * kRadPerDeg, t2 = t * t;
        rest_.s = t - t * t2 * (1.0 / 6 - t2 * (1.0 / 120 - t2 * (1.0 / 5040)));
        rest_.c = 1.0 - t2 * (0.5 - t2 * (1.0 / 24 - t2 * (1.0 / 720)));
        if (degree_ < 0 || degree_ >= kTurn) degree_ = (degree_ % kTurn + kTurn) % kTurn;
    }

    /// Some degrees on, 0 to 363.
    Vec2 after(int degrees) const {
        const int t = degree_ + degrees;
        return rest_.apply(kDegrees.unit[t < kTurn ? t : t - kTurn]);
    }

  private:
    int degree_;
    Rotation rest_{};
};

/// Indices in the order in which they were chosen, none twice.
struct Chosen {
    std::bitset<kMaxSamples> has;
    int index[kMaxSamples];
    int count = 0;

    bool add(int i) {
        const auto place = static_cast<std::size_t>(i);
        if (has[place]) return false;
        has.set(place);
        index[count++] = i;
        return true;
    }
};

/// The distances of a point from samples of an ellipse.
class SampledDistance {
  public:
    /// The point in the frame of the ellipse.
    SampledDistance(Vec2 q, const EllipseFrame &ellipse)
        : q_(q), ellipse_(ellipse), squares_((ellipse.halfFirst - ellipse.halfSecond) *
                                             (ellipse.halfFirst + ellipse.halfSecond)),
          twice_{2.0 * ellipse.halfFirst * q.x, 2.0 * ellipse.halfSecond * q.y},
          reach_(std::fabs(q.x) + std::fabs(q.y) +
                 std::max(std::fabs(ellipse.halfFirst), std::fabs(ellipse.halfSecond))) {}

    double plainTo(Vec2 sample) const { return plainLength(sample - q_); }
    /// The first of the nearest samples, of which there must be one.
    int nearestDegree(const Samples &samples) const;
    int nearestTenth(const Samples &samples) const;

  private:
    /// Where rounding stays within what is allowed for below; a NaN does not.
    bool isScreened(const Samples &samples) const {
        constexpr double kMaxReach = 1e100, kMaxDeg = 1e4;
        return reach_ < kMaxReach && std::fabs(samples.aboutFirstDeg()) < kMaxDeg;
    }
    /// A rough square above it cannot belong to the nearest sample, where `least` belongs to one.
    /// A plain distance and a rough one are each wrong by less than 2^9 roundings of reach_, most
    /// of it from a parameter of up to 1e4 degrees.
    double limit(double least) const { return least + 0x1p-40 * reach_ * reach_; }
    /// The square of the distance, less what all parameters share:
    ///   (A^2 - B^2) cos^2 - 2 A x cos - 2 B y sin.
    double roughSquare(Vec2 unit) const {
        return unit.x * (squares_ * unit.x - twice_.x) - twice_.y * unit.y;
    }
    std::optional<int> nearestInWholeTurn(const Samples &degrees) const;
    void chooseDegrees(const Samples &samples, Chosen &chosen) const;
    int firstNearest(const Samples &samples, const Chosen &chosen) const;

    Vec2 q_;
    EllipseFrame ellipse_;
    double squares_; ///< the difference of those of the half axes
    Vec2 twice_;
    double reach_; ///< no point of the ellipse is further away
};

/// Indices from which every stretch of nearest samples can be reached.
struct Seeds {
    static constexpr int kMost = 16;
    int index[kMost];
    int count = 0;

    void add(int i, const Samples &samples) {
        if (samples.hold(i)) index[count++] = i;
    }
    /// The samples around a minimum of the distance that lies between a parameter and one so many
    /// degrees on.
    void addAround(double fromDeg, int degrees, const Samples &samples) {
        double offset = fromDeg - samples.aboutFirstDeg();
        if (offset < 0.0 || offset >= 360.0) offset -= 360.0 * std::floor(offset / 360.0);
        const int first = static_cast<int>(offset);
        const int last = first + degrees + (offset > first ? 1 : 0);
        for (int i = first; i <= last; ++i) {
            add(i, samples);
            add(i - kTurn, samples);
        }
    }
};

/// A whole turn in whole degrees, where one sample alone is below the limit.
///
/// Of every sample the mirror images in both axes are samples, too. Outside the point's own
/// quadrant they are further away, by squares of at least 4 |A x| sin 1 or 4 |B y| sin 1; within
/// it the distance has a single minimum, and falls up to the one sample and grows from the other.
std::optional<int> SampledDistance::nearestInWholeTurn(const Samples &degrees) const {
    constexpr double kTwiceSineOfDegree = 0.0349;
    if (!degrees.closeTheTurn() || !isWhole(degrees.from)) return std::nullopt;
    const double apart = kTwiceSineOfDegree * std::min(std::fabs(twice_.x), std::fabs(twice_.y));
    if (!(apart > 2.0 * limit(0.0))) return std::nullopt;
    const int before = NormalFeet(q_, ellipse_.halfFirst, ellipse_.halfSecond).degreeOfNearest();
    const auto square = [&](int t) { return roughSquare(kDegrees.unit[t]); };
    const double last = square(before), next = square(before + 1);
    const bool isBefore = last < next;
    const double beyond = square(isBefore ? (before > 0 ? before : kTurn) - 1 : before + 2);
    const double most = limit(std::min(last, next));
    if (!(std::max(last, next) > most && beyond > most)) return std::nullopt;
    const int nearest = isBefore ? before : before + 1;
    const int index = ((nearest - static_cast<int>(degrees.from)) % kTurn + kTurn) % kTurn;
    if (degrees.hold(index + kTurn)) return std::nullopt;
    return index;
}

/// Of the samples below any limit each unbroken stretch has a smallest one, and that one has a
/// minimum of the distance beside it or is at an end: it is a seed. From those below the limit
/// the stretches are followed to both sides; around a whole turn they close. (A seed some samples
/// off would do: all from there to the smallest would be chosen, at the price of computing them.)
void SampledDistance::chooseDegrees(const Samples &samples, Chosen &chosen) const {
    const NormalFeet feet(q_, ellipse_.halfFirst, ellipse_.halfSecond);
    const bool closed = samples.closeTheTurn();
    Seeds seeds;
    const int nearest = feet.degreeOfNearest();
    seeds.addAround(nearest, 1, samples);
    if (feet.areFour()) {
        const double second = directionDeg(feet.secondNearest());
        seeds.addAround(second, 0, samples);
    }
    if (!closed) {
        seeds.add(0, samples);
        seeds.add(samples.count - 1, samples);
    }
    const RoughUnits units(samples.aboutFirstDeg());
    const auto square = [&](int i) { return roughSquare(units.after(i)); };
    double squares[Seeds::kMost] = {};
    double least = HUGE_VAL;
    for (int n = 0; n < seeds.count; ++n) {
        squares[n] = square(seeds.index[n]);
        least = std::min(least, squares[n]);
    }
    const double most = limit(least);
    const auto add = [&](int i) {
        const bool isNew = chosen.add(i);
        if (closed && samples.hold(i + kTurn)) chosen.add(i + kTurn);
        return isNew;
    };
    const auto next = [&](int i, int step) {
        i += step;
        if (closed && i < 0) i += kTurn;
        return closed && i >= kTurn ? i - kTurn : i;
    };
    const auto addAround = [&](int seed) {
        add(next(seed, 0));
        for (const int step : {1, -1}) {
            int i = next(seed, step);
            while (samples.hold(i) && square(i) <= most && add(i)) {
                i = next(i, step);
            }
        }
    };
    for (int n = 0; n < seeds.count; ++n) {
        if (squares[n] <= most) addAround(seeds.index[n]);
    }
}

/// The plain steps over the chosen samples, or over all if none was chosen.
int SampledDistance::firstNearest(const Samples &samples, const Chosen &chosen) const {
    if (chosen.count == 1) return chosen.index[0];
    const bool all = chosen.count == 0;
    const int count = all ? samples.count : chosen.count;
    int nearest = 0;
    double least = 0.0;
    for (int n = 0; n < count; ++n) {
        const int i = all ? n : chosen.index[n];
        const double distance = plainTo(ellipse_.localAt(samples.parameterDeg(i)));
        if (n == 0 || distance < least || (distance == least && i < nearest)) {
            nearest = i;
            least = distance;
        }
    }
    return nearest;
}

int SampledDistance::nearestDegree(const Samples &samples) const {
    Chosen chosen;
    if (isScreened(samples)) {
        if (const auto alone = nearestInWholeTurn(samples)) return *alone;
        chooseDegrees(samples, chosen);
    }
    return firstNearest(samples, chosen);
}

/// roughSquare() from a parameter t0 on, by cosines and sines in t - t0 and in twice that.
struct SquareBesideDegree {
    double c, s, c2, s2;

    double atTenth(int i) const {
        return c * kDegrees.cosOfTenth[i] + s * kDegrees.sinOfTenth[i] +
               c2 * kDegrees.cosOfFifth[i] + s2 * kDegrees.sinOfFifth[i];
    }
    /// The tenth next to its minimum, by a Newton step from the tenth in the middle of two
    /// degrees; nothing unless it is convex on all of them.
    std::optional<int> tenthOfLeast() const {
        constexpr int kMiddle = 10;
        constexpr double kTenthsPerRad = 10.0 * kDegPerRad, kDegreeRad = 1.1 * kRadPerDeg;
        const double cosine = kDegrees.cosOfTenth[kMiddle], sine = kDegrees.sinOfTenth[kMiddle];
        const double cosine2 = kDegrees.cosOfFifth[kMiddle], sine2 = kDegrees.sinOfFifth[kMiddle];
        const double slope = s * cosine - c * sine + 2.0 * (s2 * cosine2 - c2 * sine2);
        const double bend = -(c * cosine + s * sine) - 4.0 * (c2 * cosine2 + s2 * sine2);
        const double bendChange =
            std::fabs(c) + std::fabs(s) + 8.0 * (std::fabs(c2) + std::fabs(s2));
        if (!(bend > kDegreeRad * bendChange)) return std::nullopt;
        const double tenth = kMiddle + 0.5 - slope / bend * kTenthsPerRad;
        return static_cast<int>(std::clamp(tenth, 0.0, kMaxTenths - 1.0));
    }
};

int SampledDistance::nearestTenth(const Samples &samples) const {
    Chosen chosen;
    if (isScreened(samples)) {
        const Vec2 t0 = RoughUnits(samples.aboutFirstDeg()).after(0);
        const SquareBesideDegree square = {
            -(twice_.x * t0.x + twice_.y * t0.y), twice_.x * t0.y - twice_.y * t0.x,
            0.5 * squares_ * (t0.x - t0.y) * (t0.x + t0.y), -squares_ * t0.x * t0.y};
        // A convex one grows to both sides of a tenth that both neighbours exceed.
        if (const auto least = square.tenthOfLeast()) {
            const int i = std::min(*least, samples.count - 1);
            const double most = limit(square.atTenth(i));
            const bool growsDown = i == 0 || square.atTenth(i - 1) > most;
            const bool growsUp = i + 1 == samples.count || square.atTenth(i + 1) > most;
            if (growsDown && growsUp) return i;
        }
        double squares[kMaxTenths], least = HUGE_VAL;
        for (int i = 0; i < samples.count; ++i) {
            squares[i] = square.atTenth(i);
            least = std::min(least, squares[i]);
        }
        for (int i = 0; i < samples.count; ++i) {
            if (squares[i] <= limit(least)) chosen.add(i);
        }
    }
    return firstNearest(samples, chosen);
}

/// A start above its end means an arc through 0: the end counts as many turns higher as it takes.
AngleRange ascending(AngleRange range) {
    if (range.start > range.end) {
        const double turns = std::ceil((range.start - range.end) / 360.0);
        range.end = std::fmax(range.start, range.end + 360.0 * turns); // the sum may round down
    }
    return range;
}

double snapped(double coordinate) {
    return std::fabs(coordinate) < kSampleSnapLength ? 0.0 : coordinate;
}

} // namespace

SampledNearest sampledNearest(Vec2 point, const EllipseFrame &ellipse, double rotationDeg,
                              AngleRange parameters) {
    if (onEllipseArc(point, ellipse, rotationDeg, parameters) == OnEllipseArc::yes) {
        return {0.0, point};
    }
    const SampledDistance distance(ellipse.toLocal(point), ellipse);
    const auto [start, end] = ascending(parameters);
    const Samples degrees = Samples::upTo(end, start, 1.0, kMaxSamples);
    if (degrees.count == 0) return {NAN, {0.0, 0.0}}; // a NaN for an angle
    const int degree = distance.nearestDegree(degrees);
    const double first = std::max(start + degree - 1.0, start);
    const double last = std::min(start + degree + 1.0, end);
    const Samples tenths = Samples::upTo(last * 10.0, first * 10.0, 0.1, kMaxTenths);
    const Vec2 sample = ellipse.localAt(tenths.parameterDeg(distance.nearestTenth(tenths)));
    // In the plane on purpose: the zeros are those of the drawing's axes.
    const Vec2 nearest = ellipse.toPlane(sample);
    return {distance.plainTo(sample), {snapped(nearest.x), snapped(nearest.y)}};
}

} // namespace planegeo
