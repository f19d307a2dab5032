// Arguments of the exported functions: each makes its value, is passed, and reports what the call
// stored. Values come from sums and products alone, so that they are the same on every platform.
#pragma once

#include <array>
#include <cmath>
#include <cstdint>
#include <utility>

#include "planegeo.h"
#include "record.h"

namespace agreement {

inline constexpr double kUntouched = -7.25e77;

/// Inputs of one call: anywhere, on a coarse grid (where much is parallel, tangent or equal), or
/// of very different sizes.
class Inputs {
  public:
    explicit Inputs(std::uint64_t seed) : state_(seed), kind_(bits() % 20) {}

    std::int64_t whole(std::int64_t low, std::int64_t high) {
        return low + static_cast<std::int64_t>(bits() % static_cast<std::uint64_t>(high - low + 1));
    }
    double uniform(double low, double high) {
        return low + (high - low) * (static_cast<double>(bits() >> 11) * 0x1p-53);
    }
    double coordinate() {
        if (isGrid()) return noted(0.5 * static_cast<double>(whole(-6, 6)));
        return noted(uniform(-100.0, 100.0) * scale());
    }
    double length() {
        if (isGrid()) return noted(0.5 * static_cast<double>(whole(1, 12)));
        return noted(uniform(0.5, 100.0) * scale());
    }
    double angle() {
        if (isGrid()) return noted(15.0 * static_cast<double>(whole(-24, 48)));
        return noted(whole(0, 3) == 0 ? uniform(-400.0, 800.0) : uniform(0.0, 360.0));
    }
    DTPOINT point() {
        const double x = coordinate();
        return {x, coordinate()};
    }
    /// The largest coordinate, length or angle given so far.
    double size() const { return size_; }

  private:
    bool isGrid() const { return kind_ < 8; }
    /// SplitMix64: as cheap to start as to step.
    std::uint64_t bits() {
        std::uint64_t z = state_ += 0x9e3779b97f4a7c15;
        z = (z ^ (z >> 30)) * 0xbf58476d1ce4e5b9;
        z = (z ^ (z >> 27)) * 0x94d049bb133111eb;
        return z ^ (z >> 31);
    }
    double scale() { return kind_ < 18 ? 1.0 : std::ldexp(1.0, static_cast<int>(whole(-12, 12))); }
    double noted(double value) {
        size_ = std::fmax(size_, std::fabs(value));
        return value;
    }

    std::uint64_t state_;
    std::uint64_t kind_;
    double size_ = 0.0;
};

/// Passed as it is.
template <class Value> struct Plain {
    Value value{};
    Value pass() { return value; }
    void report(Record &) const {}
};
struct Coordinate : Plain<double> {
    explicit Coordinate(Inputs &in) { value = in.coordinate(); }
};
struct Length : Plain<double> {
    explicit Length(Inputs &in) { value = in.length(); }
};
struct Angle : Plain<double> {
    explicit Angle(Inputs &in) { value = in.angle(); }
};
struct Radians : Plain<double> {
    explicit Radians(Inputs &in) { value = in.angle() * 0.017453292519943295; }
};
/// In [-1.1, 1.1].
struct Ratio : Plain<double> {
    explicit Ratio(Inputs &in) { value = 1.1 * in.uniform(-1.0, 1.0); }
};
template <class Integer, int low, int high> struct Whole : Plain<Integer> {
    explicit Whole(Inputs &in) { this->value = static_cast<Integer>(in.whole(low, high)); }
};

/// Passed by address; what is not const is reported, as the call may write it.
struct Point {
    DTPOINT value;
    explicit Point(Inputs &in) : value(in.point()) {}
    const DTPOINT *pass() { return &value; }
    void report(Record &) const {}
};
/// Two doubles.
struct Pair {
    std::array<double, 2> value;
    explicit Pair(Inputs &in) : value{in.coordinate(), 0.0} { value[1] = in.coordinate(); }
    const double *pass() { return value.data(); }
    void report(Record &) const {}
};
struct Angles {
    std::array<double, 2> value;
    explicit Angles(Inputs &in) : value{in.angle(), 0.0} { value[1] = in.angle(); }
    const double *pass() { return value.data(); }
    void report(Record &) const {}
};
/// Start not above end.
struct RisingAngles : Angles {
    explicit RisingAngles(Inputs &in) : Angles(in) {
        value[0] = std::fmod(value[0], 360.0);
        value[1] = value[0] + std::fabs(std::fmod(value[1], 360.0));
    }
};
struct AnglesInRadians : Angles {
    explicit AnglesInRadians(Inputs &in) : Angles(in) {
        for (double &angle : value)
            angle *= 0.017453292519943295;
    }
};
struct Ellipse {
    DTELLIPSE value;
    explicit Ellipse(Inputs &in) {
        value.attr = static_cast<std::uint32_t>(in.whole(0, 3)) << 28;
        value.cx = in.coordinate();
        value.cy = in.coordinate();
        value.a = in.length();
        value.b = in.length();
        value.start = in.angle();
        value.end = in.angle();
        value.rot = in.angle();
    }
    DTELLIPSE *pass() { return &value; }
    void report(Record &record) const {
        for (const double field :
             {value.cx, value.cy, value.a, value.b, value.start, value.end, value.rot}) {
            record.number(field);
        }
    }
};
/// The first axis is the longer.
struct LongEllipse : Ellipse {
    explicit LongEllipse(Inputs &in) : Ellipse(in) {
        if (value.b > value.a) std::swap(value.a, value.b);
    }
};
template <std::size_t count> struct Numbers {
    std::array<double, count> value;
    explicit Numbers(Inputs &in) {
        for (double &number : value)
            number = in.coordinate();
    }
    double *pass() { return value.data(); }
    void report(Record &record) const {
        for (const double number : value)
            record.number(number);
    }
};
struct ChangedAngle {
    double value;
    explicit ChangedAngle(Inputs &in) : value(in.angle()) {}
    double *pass() { return &value; }
    void report(Record &record) const { record.number(value); }
};

/// Outputs.
template <std::size_t count = 1> struct OutPoints {
    std::array<DTPOINT, count> value;
    explicit OutPoints(Inputs &) { value.fill({kUntouched, kUntouched}); }
    DTPOINT *pass() { return value.data(); }
    void report(Record &record) const {
        for (const DTPOINT p : value)
            record.number(p.x), record.number(p.y);
    }
};
template <std::size_t count = 1> struct OutNumbers : Numbers<count> {
    explicit OutNumbers(Inputs &in) : Numbers<count>(in) { this->value.fill(kUntouched); }
};
template <class Integer> struct OutWhole {
    Integer value = 4711;
    explicit OutWhole(Inputs &) {}
    Integer *pass() { return &value; }
    void report(Record &record) const { record.integer(value); }
};
using OutCount = OutWhole<std::uint16_t>;

} // namespace agreement
