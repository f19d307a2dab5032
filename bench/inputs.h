/// Inputs of the rows, as a host has them: most with an answer, some without. The peers get the
/// same ones.
#pragma once

#include "table.h"

namespace bench {

inline constexpr double kRadPerDeg = 0.017453292519943295;

struct Points {
    DTPOINT p, q, r;
    double angle;
};

inline Points points(Random &random) {
    return {random.point(), random.point(), random.point(), random.angleDeg()};
}

struct TwoLines {
    DTPOINT a1, a2, b1, b2;
};
struct PointAndLine {
    DTPOINT a1, a2, p;
    double d;
};

inline TwoLines twoLines(Random &random) {
    return {random.point(), random.point(), random.point(), random.point()};
}
inline PointAndLine pointAndLine(Random &random) {
    return {random.point(), random.point(), random.point(), random.length()};
}
/// Half of the points lie on the segment.
inline PointAndLine onSegment(Random &random) {
    PointAndLine in = pointAndLine(random);
    if (random.uniform(0.0, 1.0) < 0.5) {
        const double t = random.uniform(0.0, 1.0);
        in.p = {in.a1.x + (in.a2.x - in.a1.x) * t, in.a1.y + (in.a2.y - in.a1.y) * t};
    }
    return in;
}

struct LineAndArc {
    DTPOINT a1, a2, center;
    double r;
    double angles[2];
};
struct TwoArcs {
    DTPOINT c1, c2;
    double r1, r2;
    double angles1[2], angles2[2];
};
struct Chord {
    DTPOINT p, q, between;
    double ratio;
};
struct ArcAndPoint {
    DTPOINT center, point;
    double r, start, end;
    double radians[2];
};

inline DTPOINT onCircle(DTPOINT center, double r, double deg) {
    const double rad = deg * kRadPerDeg;
    return {center.x + r * std::cos(rad), center.y + r * std::sin(rad)};
}

/// The segment reaches from inside the circle to somewhere.
inline LineAndArc lineAndArc(Random &random) {
    const DTPOINT center = random.point();
    const double r = random.length();
    const DTPOINT inside = onCircle(center, 0.9 * r, random.angleDeg());
    return {inside, random.point(), center, r, {random.angleDeg(), random.angleDeg()}};
}
/// The second circle goes through a point of the first.
inline TwoArcs twoArcs(Random &random) {
    const DTPOINT c1 = random.point(), c2 = random.point();
    const double r1 = random.length();
    const DTPOINT shared = onCircle(c1, r1, random.angleDeg());
    const double r2 = std::hypot(shared.x - c2.x, shared.y - c2.y);
    return {c1,
            c2,
            r1,
            r2,
            {random.angleDeg(), random.angleDeg()},
            {random.angleDeg(), random.angleDeg()}};
}

inline Chord chord(Random &random) {
    return {random.point(), random.point(), random.point(), random.uniform(0.05, 1.0)};
}
/// The point is as often inside the circle as outside.
inline ArcAndPoint arcAndPoint(Random &random) {
    const DTPOINT center = random.point();
    const double r = random.length(), start = random.angleDeg();
    const double end = start + random.uniform(1.0, 359.0);
    const DTPOINT point = onCircle(center, r * random.uniform(0.1, 1.9), random.angleDeg());
    return {center, point, r, start, end, {start * kRadPerDeg, end * kRadPerDeg}};
}

struct LineAndEllipse {
    DTPOINT p1, p2, center;
    double a, b, rot;
    double angles[2];
};
struct TwoConicArcs {
    double center1[2], center2[2];
    double a1, a2, b1, b2, rot1, rot2; // a1 is twice the radius where the first is a circle
    double angles1[2], angles2[2];
};

/// A line that passes the centre nearby: most cut the ellipse.
inline LineAndEllipse lineAndEllipse(Random &random) {
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
/// Through a common point, so that all cross; the first axes are the longer ones.
inline TwoConicArcs twoConicArcs(Random &random) {
    TwoConicArcs in = {{},           {},          random.length(),   random.length(),
                       0.0,          0.0,         random.angleDeg(), random.angleDeg(),
                       {0.0, 360.0}, {0.0, 360.0}};
    in.b1 = in.a1 * random.uniform(0.1, 1.0);
    in.b2 = in.a2 * random.uniform(0.1, 1.0);
    const DTPOINT common = random.point();
    const auto place = [&](double *center, double a, double b, double rot) {
        const double t = random.angleDeg();
        const double x = a / 2 * cosd(t), y = b / 2 * sind(t);
        center[0] = common.x - x * cosd(rot) + y * sind(rot);
        center[1] = common.y - x * sind(rot) - y * cosd(rot);
    };
    place(in.center1, in.a1, in.b1, in.rot1);
    place(in.center2, in.a2, in.b2, in.rot2);
    return in;
}
inline TwoConicArcs circleAndEllipse(Random &random) {
    TwoConicArcs in = twoConicArcs(random);
    const double t = random.angleDeg();
    in.center1[0] += in.a1 / 2 * cosd(t);
    in.center1[1] += in.a1 / 2 * sind(t);
    return in;
}

struct PointAndEllipse {
    DTPOINT p, center;
    double a, b, rot;
    double angles[2];

    DTELLIPSE record() const { return {0, center.x, center.y, a, b, angles[0], angles[1], rot}; }
};
/// The first axis is the longer; the point may lie inside.
inline PointAndEllipse wholeEllipse(Random &random) {
    const double a = random.length(), b = random.length();
    const DTPOINT p = random.point(), center = random.point();
    return {p, center, std::fmax(a, b), std::fmin(a, b), random.angleDeg(), {0.0, 360.0}};
}
/// No flatter than 4 : 1, as most in drawings are.
inline PointAndEllipse roundedEllipse(Random &random) {
    PointAndEllipse in = wholeEllipse(random);
    in.b = in.a * random.uniform(0.25, 1.0);
    return in;
}
inline PointAndEllipse ellipticArc(Random &random) {
    PointAndEllipse in = wholeEllipse(random);
    in.angles[0] = random.angleDeg();
    in.angles[1] = in.angles[0] + random.angleDeg();
    return in;
}
inline PointAndEllipse roundedArc(Random &random) {
    PointAndEllipse in = ellipticArc(random);
    in.b = in.a * random.uniform(0.25, 1.0);
    return in;
}

struct Loose {
    DTPOINT center;
    double a, b, rot;
    double angles[2];
    double angle;
    DTPOINT p, q;
};

/// The point on the curve at a parameter, scaled from the centre.
inline DTPOINT at(const Loose &e, double t, double scale) {
    const double x = e.a / 2 * std::cos(t * kRadPerDeg), y = e.b / 2 * std::sin(t * kRadPerDeg);
    const double c = std::cos(e.rot * kRadPerDeg), s = std::sin(e.rot * kRadPerDeg);
    return {e.center.x + scale * (x * c - y * s), e.center.y + scale * (x * s + y * c)};
}

inline Loose loose(Random &random) {
    Loose e{random.point(),
            random.length(),
            random.length(),
            random.angleDeg(),
            {random.angleDeg(), random.angleDeg()},
            random.angleDeg(),
            {},
            random.point()};
    e.p = at(e, random.angleDeg(), random.uniform(0.5, 1.5));
    return e;
}

inline constexpr int kMaxDegree = 40;
struct Equation {
    double c[kMaxDegree + 1];
};

inline Equation equation(Random &random) {
    Equation in;
    for (double &v : in.c) {
        v = random.uniform(-10.0, 10.0);
    }
    return in;
}

} // namespace bench
