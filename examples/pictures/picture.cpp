#include "picture.h"

#include <cmath>
#include <cstdio>

namespace pictures {

namespace {

/// Samples of a curve, two degrees apart at most.
template <class At> std::vector<DTPOINT> sampled(double start, double end, At at) {
    const int steps = std::max(1, static_cast<int>(std::ceil(std::fabs(end - start) / 2.0)));
    std::vector<DTPOINT> path;
    for (int i = 0; i <= steps; ++i) {
        path.push_back(at(start + (end - start) * i / steps));
    }
    return path;
}

/// The end of an arc that runs anticlockwise, at most a turn above its start.
double endAbove(double start, double end) {
    while (end <= start) {
        end += 360.0;
    }
    return end;
}

} // namespace

DTPOINT operator+(DTPOINT p, DTPOINT q) { return {p.x + q.x, p.y + q.y}; }
DTPOINT operator-(DTPOINT p, DTPOINT q) { return {p.x - q.x, p.y - q.y}; }
DTPOINT operator*(double k, DTPOINT p) { return {k * p.x, k * p.y}; }

DTPOINT polar(double distance, double deg) {
    const double radians = deg * std::acos(-1.0) / 180.0;
    return {distance * std::cos(radians), distance * std::sin(radians)};
}

DTPOINT Ellipse::at(double parameter) const {
    const DTPOINT onCircle = polar(1.0, parameter);
    return center + 0.5 * a * onCircle.x * polar(1.0, rot) +
           0.5 * b * onCircle.y * polar(1.0, rot + 90.0);
}

DTELLIPSE Ellipse::record() const {
    return {0, center.x, center.y, a, b, angles[0], angles[1], rot};
}

std::string number(double value) {
    char text[40];
    std::snprintf(text, sizeof text, "%.6g", value == 0.0 ? 0.0 : value);
    return text;
}

void Picture::stroke(std::vector<DTPOINT> path, bool dashed, bool infinite, bool arrow) {
    strokes_.push_back({std::move(path), role_, dashed, infinite, arrow});
}

void Picture::small(DTPOINT p, Shape shape) { marks_.push_back({p, role_, shape, 2.6}); }

Picture &Picture::point(DTPOINT p, const std::string &name, Shape shape) {
    marks_.push_back({p, role_, shape, role_ == Role::found ? 4.6 : 3.6});
    return text(p, name);
}

Picture &Picture::points(const DTPOINT *points, std::size_t count, const std::string &name) {
    for (std::size_t i = 0; i < count; ++i) {
        point(points[i], name + "[" + std::to_string(i) + "]");
    }
    return *this;
}

Picture &Picture::text(DTPOINT at, const std::string &words) {
    if (!words.empty()) labels_.push_back({at, role_, words, false});
    return *this;
}

Picture &Picture::textOn(DTPOINT middle, const std::string &words) {
    labels_.push_back({middle, role_, words, true});
    return *this;
}

Picture &Picture::line(DTPOINT p, DTPOINT q, const std::string &nameP, const std::string &nameQ) {
    stroke({p, q}, false, true);
    if (!nameP.empty()) point(p, nameP);
    if (!nameQ.empty()) point(q, nameQ);
    return *this;
}

Picture &Picture::segment(DTPOINT p, DTPOINT q, const std::string &nameP,
                          const std::string &nameQ) {
    stroke({p, q});
    if (!nameP.empty()) point(p, nameP);
    if (!nameQ.empty()) point(q, nameQ);
    return *this;
}

Picture &Picture::segment(const DTLINE &line) {
    return segment({line.x1, line.y1}, {line.x2, line.y2});
}

Picture &Picture::arrow(DTPOINT from, DTPOINT to, const std::string &name) {
    stroke({from, to}, false, false, true);
    return text(0.5 * (from + to), name);
}

Picture &Picture::distance(DTPOINT p, DTPOINT q, const std::string &name) {
    stroke({p, q}, true);
    return text(0.5 * (p + q), name);
}

Picture &Picture::box(DTPOINT lower, DTPOINT upper) {
    return polyline({lower, {upper.x, lower.y}, upper, {lower.x, upper.y}, lower});
}

Picture &Picture::polyline(const std::vector<DTPOINT> &path) {
    stroke(path);
    return *this;
}

Picture &Picture::circle(DTPOINT center, double r, const std::string &name) {
    stroke(sampled(0.0, 360.0, [&](double deg) { return center + polar(r, deg); }));
    if (!name.empty()) point(center, name);
    return *this;
}

Picture &Picture::arc(DTPOINT center, double r, double start, double end,
                      const std::string &nameStart, const std::string &nameEnd) {
    end = endAbove(start, end);
    stroke(sampled(start, end, [&](double deg) { return center + polar(r, deg); }));
    if (!nameStart.empty()) point(center + polar(r, start), nameStart);
    if (!nameEnd.empty()) point(center + polar(r, end), nameEnd);
    return *this;
}

Picture &Picture::angle(DTPOINT center, double r, double from, double to, const std::string &name) {
    stroke(sampled(from, to, [&](double deg) { return center + polar(r, deg); }), false, false,
           true);
    return text(center + polar(r, 0.5 * (from + to)), name);
}

Picture &Picture::ellipse(const Ellipse &e, const std::string &name) {
    stroke(sampled(0.0, 360.0, [&](double t) { return e.at(t); }));
    if (!name.empty()) point(e.center, name);
    return *this;
}

Picture &Picture::ellipticArc(const Ellipse &e, const std::string &nameStart,
                              const std::string &nameEnd) {
    stroke(sampled(e.angles[0], endAbove(e.angles[0], e.angles[1]),
                   [&](double t) { return e.at(t); }));
    if (!nameStart.empty()) point(e.at(e.angles[0]), nameStart);
    if (!nameEnd.empty()) point(e.at(e.angles[1]), nameEnd);
    return *this;
}

Picture &Picture::graph(const Scale &x, const Scale &y) {
    isGraph_ = true;
    xScale_ = x;
    yScale_ = y;
    return *this;
}

Picture &Picture::key(Shape shape, const std::string &words) {
    figures_.push_back({role_, words, true, shape});
    return *this;
}

Picture &Picture::figure(const std::string &name, double value) {
    return figure(name, number(value));
}

Picture &Picture::figure(const std::string &name, DTPOINT value) {
    return figure(name, "(" + number(value.x) + ", " + number(value.y) + ")");
}

Picture &Picture::figure(const std::string &name, const std::string &value) {
    figures_.push_back({role_, name + " " + value, false, Shape::dot});
    return *this;
}

} // namespace pictures
