#include "truths.h"

#include <cstdio>
#include <initializer_list>

#include "entry.h"

namespace fuzz {

namespace {

constexpr double kRadPerDeg = 0.017453292519943295;
constexpr double kRounding = 0x1p-46; ///< some hundred roundings of a quantity of size 1
constexpr double kErrdist = 1e-6;
constexpr double kWhole[] = {0.0, 360.0};

DTPOINT operator+(DTPOINT p, DTPOINT q) { return {p.x + q.x, p.y + q.y}; }
DTPOINT operator-(DTPOINT p, DTPOINT q) { return {p.x - q.x, p.y - q.y}; }
DTPOINT operator*(double k, DTPOINT p) { return {k * p.x, k * p.y}; }
double dot(DTPOINT p, DTPOINT q) { return p.x * q.x + p.y * q.y; }
double cross(DTPOINT p, DTPOINT q) { return p.x * q.y - p.y * q.x; }
double length(DTPOINT p) { return std::hypot(p.x, p.y); }
double distance(DTPOINT p, DTPOINT q) { return length(p - q); }
DTPOINT polar(double r, double deg) {
    return {r * std::cos(deg * kRadPerDeg), r * std::sin(deg * kRadPerDeg)};
}
DTPOINT turned(DTPOINT p, double deg) {
    const DTPOINT t = polar(1.0, deg);
    return {t.x * p.x - t.y * p.y, t.y * p.x + t.x * p.y};
}
double size(DTPOINT p) { return std::fmax(std::fabs(p.x), std::fabs(p.y)); }

/// A finding, unless it holds. Numbers tell the scene; a NaN of theirs never holds.
void hold(bool holds, const char *name, const char *what, std::initializer_list<double> scene) {
    if (holds) return;
    for (const double x : scene)
        show(x);
    std::fputs("\n", stderr);
    fail(name, what);
}

struct Line {
    DTPOINT p, q;

    DTPOINT direction() const { return q - p; }
    double off(DTPOINT at) const {
        return std::fabs(cross(at - p, direction())) / length(direction());
    }
    double reach() const { return size(p) + size(q); }
};

struct Circle {
    DTPOINT center;
    double r;

    double off(DTPOINT at) const { return std::fabs(distance(at, center) - r); }
    double reach() const { return size(center) + r; }
};

struct Ellipse {
    DTPOINT center;
    double a, b, rot;

    DTELLIPSE record() const { return {0, center.x, center.y, a, b, 0.0, 360.0, rot}; }
    DTPOINT local(DTPOINT p) const { return turned(p - center, -rot); }
    DTPOINT at(double deg) const {
        const DTPOINT t = polar(0.5, deg);
        return center + turned({a * t.x, b * t.y}, rot);
    }
    /// The distance, to first order where it is small.
    double off(DTPOINT p) const {
        const DTPOINT q = local(p);
        const double u = 2.0 * q.x / a, v = 2.0 * q.y / b;
        return std::fabs(u * u + v * v - 1.0) / (4.0 * length({u / a, v / b}));
    }
    /// The direction square to the curve through a point.
    DTPOINT normal(DTPOINT p) const {
        const DTPOINT q = local(p);
        const DTPOINT n = {q.x / (a * a), q.y / (b * b)};
        return turned((1.0 / length(n)) * n, rot);
    }
    double reach() const { return size(center) + a + b; }
    double thinness() const { return std::fmax(a / b, b / a); }
};

/// Numbers of one scene, so chosen that much coincides.
class Scene {
  public:
    explicit Scene(Bytes &in) : in_(in) {
        constexpr double kUnits[] = {1.0, 1.0, 10.0, 1000.0, 0.1, 1e5, 1.0, 100.0};
        const std::uint8_t choice = in.byte();
        unit_ = kUnits[choice % 8];
        origin_ = choice < 128 ? DTPOINT{0.0, 0.0} : point();
    }

    unsigned choice(unsigned n) { return in_.below(n); }
    double nudged(double x) { return in_.nudged(x); }
    DTPOINT nudged(DTPOINT p) { return {nudged(p.x), nudged(p.y)}; }
    double angle() { return choice(2) == 0 ? 15.0 * choice(25) : in_.uniform(0.0, 360.0); }
    double length() { return unit_ * (choice(2) == 0 ? 1.0 + choice(8) : in_.uniform(0.2, 10.0)); }
    DTPOINT point() {
        if (choice(2) == 0) {
            return unit_ * DTPOINT{choice(9) - 4.0, choice(9) - 4.0} + origin_;
        }
        const double x = in_.uniform(-5.0, 5.0);
        return unit_ * DTPOINT{x, in_.uniform(-5.0, 5.0)} + origin_;
    }
    Line line() {
        const DTPOINT p = point();
        return {p, p + polar(length(), angle())};
    }
    Circle circle() { return {point(), length()}; }
    /// Circles, nearly circles, and thin ones among them; either axis may be the longer.
    Ellipse ellipse() {
        constexpr double kRatios[] = {1.0, 1.0, 0.5, 0.999, 0.9, 0.1, 0.01, 2.0};
        const double a = length();
        const unsigned c = choice(12);
        const double b = c < 8 ? nudged(a * kRatios[c]) : length();
        return {point(), a, b, angle()};
    }
    Ellipse longFirst() {
        Ellipse e = ellipse();
        if (e.b > e.a) std::swap(e.a, e.b);
        return e;
    }
    /// A line that touches a circle, or nearly.
    Line tangent(const Circle &c) {
        const double deg = angle();
        const DTPOINT n = polar(1.0, deg);
        const DTPOINT foot = c.center + nudged(c.r) * n;
        const DTPOINT along = length() * DTPOINT{-n.y, n.x};
        return {nudged(foot - along), nudged(foot + along)};
    }
    Line tangent(const Ellipse &e) {
        const double deg = angle();
        const DTPOINT touch = e.at(deg);
        const DTPOINT n = e.normal(touch);
        const DTPOINT along = length() * DTPOINT{-n.y, n.x};
        return {nudged(touch - along), nudged(touch + along)};
    }

  private:
    Bytes &in_;
    double unit_;
    DTPOINT origin_ = {0.0, 0.0};
};

// Each truth makes a scene, asks, and holds the answers to it. Tolerances are the documented one of
// the question, and so many roundings of the largest length in the scene.

void linesMeet(Scene &s) {
    const Line a = s.line();
    Line b = s.line();
    switch (s.choice(4)) {
    case 0:
        b.q = s.nudged(b.p + a.direction());
        break; // parallel
    case 1:
        b = {s.nudged(a.q), s.nudged(a.p)};
        break; // the same
    case 2:
        b.p = s.nudged(a.p + 0.5 * a.direction());
        break; // begins on it
    default:
        break;
    }
    if (length(b.direction()) == 0.0) return;
    DTPOINT p = {0.0, 0.0};
    const auto holds = [&](bool ok, const char *name, const char *what) {
        hold(ok, name, what, {a.p.x, a.p.y, a.q.x, a.q.y, b.p.x, b.p.y, b.q.x, b.q.y, p.x, p.y});
    };
    const std::int32_t code = a2d_ins2l(&a.p, &a.q, &b.p, &b.q, &p);
    // The point solves the equations of both lines: rounding shifts it along the bisector.
    const double sine = std::fabs(cross(a.direction(), b.direction())) /
                        (length(a.direction()) * length(b.direction()));
    const auto tolerance = [&] {
        return kRounding * (a.reach() + b.reach() + size(p)) * (1.0 + 1.0 / sine);
    };
    if (code != 2) {
        holds(a.off(p) <= tolerance() && b.off(p) <= tolerance(), "a2d_ins2l", "is off a line");
        if (code == 0) {
            holds(a2d_onlin(&a.p, &a.q, &p) == 0 || length(a.direction()) < 2 * kErrdist ||
                      size(p) > 1e3,
                  "a2d_ins2l", "is off the segment that it is said to be on");
        }
    }
    if (a2dCrs2L(&a.p, &a.q, &b.p, &b.q, &p) == 1) {
        holds(a.off(p) <= tolerance() && b.off(p) <= tolerance(), "a2dCrs2L", "is off a line");
    }
}

void perpendiculars(Scene &s) {
    const Line a = s.line();
    const DTPOINT p = s.choice(2) == 0 ? s.nudged(a.p + 0.25 * a.direction()) : s.point();
    const double tolerance = kRounding * (a.reach() + size(p));
    DTPOINT foot, image, back;
    double dist;
    const auto holds = [&](bool ok, const char *name, const char *what) {
        hold(ok, name, what, {a.p.x, a.p.y, a.q.x, a.q.y, p.x, p.y, foot.x, foot.y, dist});
    };
    if (ca_perln(&a.p, &a.q, &p, &foot, &dist) == -1) return;
    holds(a.off(foot) <= tolerance, "ca_perln", "foot off the line");
    holds(std::fabs(dot(p - foot, a.direction())) <= tolerance * length(a.direction()), "ca_perln",
          "not perpendicular");
    holds(std::fabs(dist - distance(p, foot)) <= tolerance, "ca_perln", "another distance");
    pnt_mer(&p, &a.p, &a.q, &image);
    pnt_mer(&image, &a.p, &a.q, &back);
    holds(distance(p, back) <= 4 * tolerance, "pnt_mer", "the image of the image is another point");
    holds(a.off(0.5 * (p + image)) <= tolerance, "pnt_mer", "the middle is off the line");
    std::uint16_t side = 0;
    if (ca_posln(&a.p, &a.q, &p, &side) == 0 && side != 0) {
        const double area = cross(a.direction(), p - a.p);
        holds((area < 0.0) == (side == 1), "ca_posln", "another side");
    }
}

void lineMeetsCircle(Scene &s) {
    const Circle c = s.circle();
    const Line l = s.choice(3) != 0 ? s.tangent(c) : s.line();
    if (length(l.direction()) < 2 * kErrdist) return;
    const double deg = s.angle();
    const double angles[] = {deg, deg + s.angle()};
    DTPOINT p[2] = {};
    std::uint16_t count = 0;
    const auto mode = s.choice(4);
    const double tolerance =
        kErrdist + kRounding * (l.reach() + c.reach()) * (1.0 + c.reach() / length(l.direction()));
    const std::int32_t code =
        a2d_lin_arc(mode, &l.p, &l.q, &c.center, c.r, angles, &p[0], &p[1], &count);
    const auto holds = [&](bool ok, const char *what) {
        hold(ok, "a2d_lin_arc", what,
             {double(mode), l.p.x, l.p.y, l.q.x, l.q.y, c.center.x, c.center.y, c.r, angles[0],
              angles[1], p[0].x, p[0].y, p[1].x, p[1].y});
    };
    holds(code == 0, "refused");
    for (int i = 0; i < count; ++i) {
        holds(l.off(p[i]) <= tolerance, "off the line");
        holds(c.off(p[i]) <= tolerance, "off the circle");
        holds(mode < 2 || a2d_onlin(&l.p, &l.q, &p[i]) == 0, "off the segment");
    }
    if (mode == 0 && count != 1) {
        const double gap = l.off(c.center) - c.r;
        holds(gap < 0.0 ? count == 2 || gap > -2 * tolerance : count == 0 || gap < 2 * tolerance,
              "another count");
    }
}

void circlesMeet(Scene &s) {
    const Circle c = s.circle();
    Circle d = s.circle();
    const double deg = s.angle();
    switch (s.choice(5)) {
    case 0:
        d.center = c.center + s.nudged(c.r + d.r) * polar(1.0, deg);
        break;
    case 1:
        d.center = c.center + s.nudged(std::fabs(c.r - d.r)) * polar(1.0, deg);
        break;
    case 2:
        d.center = s.nudged(c.center);
        break;
    case 3:
        d.r = s.nudged(c.r);
        break;
    default:
        break;
    }
    const double apart = distance(c.center, d.center);
    if (d.r < 2 * kErrdist) return;
    // Along the line of the centres the points come from a difference of squares over `apart`.
    const double most = c.reach() + d.reach();
    // One point of contact is off by the gap, from inside enlarged as the radii are to it.
    const double tolerance = 2 * kErrdist * (1.0 + std::fmax(c.r, d.r) / apart) +
                             kRounding * most * most / std::fmin(std::fmin(c.r, d.r), apart);
    DTPOINT p[2] = {};
    const auto check = [&](const char *name, int count) {
        for (int i = 0; i < count; ++i) {
            hold(c.off(p[i]) <= tolerance && d.off(p[i]) <= tolerance, name, "off a circle",
                 {c.center.x, c.center.y, c.r, d.center.x, d.center.y, d.r, p[i].x, p[i].y});
        }
    };
    check("a2dCrs2C", a2dCrs2C(&c.center, c.r, &d.center, d.r, &p[0].x));
    std::uint16_t count = 0;
    if (a2d_ins2c(&c.center, &d.center, c.r, d.r, kWhole, kWhole, &p[0], &p[1], &count) == 0) {
        check("a2d_ins2c", apart > 2 * kErrdist ? count : 0);
    }
    DTPOINT t[8] = {};
    if (ca_cctan(&c.center, c.r, &d.center, d.r, t, t + 1, t + 2, t + 3, t + 4, t + 5, t + 6, t + 7,
                 &count) != 0) {
        return;
    }
    for (int i = 0; i < 2 * count; ++i) {
        const Circle &on = i % 2 == 0 ? c : d;
        hold(on.off(t[i]) <= kRounding * most, "ca_cctan", "contact off its circle",
             {c.center.x, c.center.y, c.r, d.center.x, d.center.y, d.r, t[i].x, t[i].y});
        const DTPOINT along = t[i ^ 1] - t[i];
        hold(std::fabs(dot(along, t[i] - on.center)) <=
                 1e-3 * kErrdist + 4 * kRounding * most * most,
             "ca_cctan", "line not square to the radius",
             {c.center.x, c.center.y, c.r, d.center.x, d.center.y, d.r, t[i].x, t[i].y});
    }
}

void tangentsFromPoint(Scene &s) {
    const Circle c = s.circle();
    const DTPOINT p =
        s.choice(2) == 0 ? c.center + s.nudged(c.r) * polar(1.0, s.angle()) : s.point();
    DTPOINT t[2] = {};
    std::uint16_t count = 0;
    ca_pctan(&c.center, c.r, &p, &t[0], &t[1], &count);
    const double most = c.reach() + size(p);
    for (int i = 0; i < count; ++i) {
        hold(c.off(t[i]) <= kRounding * most &&
                 std::fabs(dot(t[i] - c.center, t[i] - p)) <= kRounding * most * most,
             "ca_pctan", "no tangent", {c.center.x, c.center.y, c.r, p.x, p.y, t[i].x, t[i].y});
    }
}

void arcThroughPoints(Scene &s) {
    const DTPOINT p = s.point(), q = s.point();
    const DTPOINT r = s.choice(2) == 0 ? s.nudged(p + 2.0 * (q - p)) : s.point();
    DTPOINT center;
    double radius, angles[2];
    if (ca_arc3p(&p, &q, &r, &center, &radius, angles) != 0) return;
    const Circle c = {center, radius};
    const double shortest = std::fmin(std::fmin(distance(p, q), distance(q, r)), distance(p, r));
    const double tolerance =
        kRounding * (size(p) + size(q) + size(r)) * (1.0 + radius * radius / (shortest * shortest));
    for (const DTPOINT &at : {p, q, r}) {
        hold(c.off(at) <= tolerance, "ca_arc3p", "misses a point",
             {p.x, p.y, q.x, q.y, r.x, r.y, center.x, center.y, radius, tolerance});
    }
    hold(angles[0] >= 0.0 && angles[0] <= 360.0 && angles[1] >= 0.0 && angles[1] <= 360.0,
         "ca_arc3p", "angle out of range", {p.x, p.y, q.x, q.y, r.x, r.y, angles[0], angles[1]});
}

void rangesOfAngles(Scene &s) {
    const double a = s.nudged(s.angle() - 360.0 * s.choice(4));
    const double b = s.choice(2) == 0 ? s.nudged(a + 360.0) : s.nudged(s.angle());
    double start = a, end = b;
    a2d_StdSedeg(&start, &end);
    const auto holds = [&](bool ok, const char *name, const char *what) {
        hold(ok, name, what, {a, b, start, end});
    };
    // A start so little below 0 that a turn more makes it 360 stays there.
    holds(end > 0.0 && end <= 360.0 && start > -360.0 && end - start <= 360.0 + 1e-12 &&
              (end > start || (start == 360.0 && end == 360.0)),
          "a2d_StdSedeg", "out of range");
    for (const double on : {a, b, start, end, 0.5 * (start + end)}) {
        holds(a2d_ChkDegr(a, b, on) == 0, "a2d_ChkDegr", "an angle of the range is off it");
    }
}

void quadratics(Scene &s) {
    const double x = s.length(), y = s.nudged(s.choice(2) == 0 ? x : -s.length());
    const double c[] = {s.length(), 0.0, 0.0};
    const double k[] = {c[0], -c[0] * (x + y), c[0] * x * y};
    double out[4] = {};
    const std::int32_t found = amaSolveEquationOf2ndD(k, out);
    const double residual = kRounding * (std::fabs(k[2]) + k[1] * k[1] / std::fabs(k[0]));
    for (std::int32_t i = 0; i < 2 * found; i += 2) {
        const double root = out[i];
        hold(std::fabs((k[0] * root + k[1]) * root + k[2]) <= residual, "amaSolveEquationOf2ndD",
             "no root", {k[0], k[1], k[2], root});
    }
}

void nearestOfEllipse(Scene &s) {
    const Ellipse e = s.ellipse();
    const double deg = s.angle();
    DTPOINT p = s.point();
    switch (s.choice(5)) {
    case 0:
        p = s.nudged(e.at(deg));
        break;
    case 1:
        p = s.nudged(e.center);
        break;
    case 2:
        p = e.center + turned({s.nudged(0.0), s.length()}, e.rot);
        break;
    case 3: { // on the evolute, or nearly
        const double c = std::cos(deg * kRadPerDeg), v = std::sin(deg * kRadPerDeg);
        const double f = (e.a * e.a - e.b * e.b) / 2.0;
        p = e.center +
            turned({s.nudged(f / e.a * c * c * c), s.nudged(-f / e.b * v * v * v)}, e.rot);
        break;
    }
    default:
        break;
    }
    const double tolerance = kRounding * (e.reach() + size(p));
    DTPOINT out;
    const double d = a2d_dstpp(&e.center, e.a, e.b, e.rot, kWhole, &p, &out);
    const auto holds = [&](bool ok, const char *name, const char *what) {
        hold(ok, name, what, {e.center.x, e.center.y, e.a, e.b, e.rot, p.x, p.y, out.x, out.y, d});
    };
    if (d == 0.0) {
        holds(out.x == p.x && out.y == p.y, "a2d_dstpp", "a distance of 0 to another point");
    } else {
        holds(e.off(out) <= tolerance, "a2d_dstpp", "nearest point off the ellipse");
        holds(std::fabs(d - distance(p, out)) <= tolerance, "a2d_dstpp", "another distance");
    }
    for (int t = 0; t < 360; t += 24) {
        holds(d <= distance(p, e.at(t + deg)) + tolerance, "a2d_dstpp", "a point is nearer");
    }
    DTPOINT sample;
    holds(ca_dstpp(&e.center, e.a, e.b, e.rot, kWhole, &p, &sample) >=
              d - 2e-6 * e.thinness() - tolerance,
          "ca_dstpp", "a sample nearer than the nearest point");

    const DTELLIPSE record = e.record();
    DTPOINT feet[4];
    const std::int32_t count = a2dEllpsPerPnts(&p, &record, feet);
    for (int i = 0; i < count; ++i) {
        out = feet[i];
        holds(e.off(out) <= kErrdist * e.thinness() + tolerance, "a2dEllpsPerPnts",
              "foot off the ellipse");
    }
}

void lineMeetsEllipse(Scene &s) {
    const Ellipse e = s.ellipse();
    const Line l = s.choice(3) != 0 ? s.tangent(e) : s.line();
    if (length(l.direction()) < 1e-2 || e.thinness() > 1e3) return;
    DTPOINT p[2] = {};
    std::uint16_t count = 0;
    const std::int32_t code =
        a2d_insle(&l.p, &l.q, &e.center, e.a, e.b, e.rot, &p[0], &p[1], &count);
    const double touch = 1.001 * kErrdist; // off() tells distances to the first order
    const double tolerance =
        touch * std::fmax(1.0, e.b / e.a) + kRounding * (l.reach() + e.reach()) * e.thinness() *
                                                (1.0 + e.reach() / length(l.direction()));
    const auto holds = [&](bool ok, const char *name, const char *what) {
        hold(ok, name, what,
             {e.center.x, e.center.y, e.a, e.b, e.rot, l.p.x, l.p.y, l.q.x, l.q.y, p[0].x, p[0].y,
              p[1].x, p[1].y});
    };
    holds(code == 0, "a2d_insle", "refused");
    for (int i = 0; i < count; ++i) {
        holds(l.off(p[i]) <= tolerance, "a2d_insle", "off the line");
        holds(e.off(p[i]) <= tolerance, "a2d_insle", "off the ellipse");
    }
}

void commonTangents(Scene &s) {
    const Ellipse e = s.longFirst();
    Ellipse f = s.ellipse();
    const double deg = s.angle();
    switch (s.choice(5)) {
    case 0:
        f.center = s.nudged(e.center);
        break;
    case 1:
        f.center = f.center + (s.nudged(e.at(deg)) - f.at(s.angle()));
        break; // share a point
    case 2:
        f = {s.nudged(e.center), s.nudged(e.b), s.nudged(e.a), e.rot + 90.0 * s.choice(4)};
        break;
    case 3:
        f.b = s.nudged(f.a);
        break; // a circle
    default:
        break;
    }
    DTPOINT t[8] = {};
    std::uint16_t count = 0;
    const std::int32_t code = a2d_tch2e(&e.center, &f.center, e.a, f.a, e.b, f.b, e.rot, f.rot, t,
                                        t + 1, t + 2, t + 3, t + 4, t + 5, t + 6, t + 7, &count);
    const double most = e.reach() + f.reach();
    for (int i = 0; i < 2 * count; ++i) {
        const Ellipse &on = i % 2 == 0 ? e : f;
        const DTPOINT along = t[i ^ 1] - t[i];
        const double miss = std::fabs(dot(along, on.normal(t[i])));
        const double thin = std::fmax(e.thinness(), f.thinness());
        hold(on.off(t[i]) <= 2 * kErrdist + kRounding * most * thin &&
                 miss <= 2 * kErrdist * most * thin * thin,
             "a2d_tch2e", "no tangent",
             {e.center.x, e.center.y, e.a, e.b, e.rot, f.center.x, f.center.y, f.a, f.b, f.rot,
              t[i].x, t[i].y, miss, double(code)});
    }
}

/// An ellipse as seen from the middle of a circle, along its own axes, the first the longer.
struct Seen {
    DTPOINT center;
    double a, b;
    double skew; ///< how far off the axes that it is taken to have are

    /// By definition the curves meet in two points where this is nothing, even such as do not meet.
    bool isTouch(double r) const {
        const double h = (a - b) * (a + b), x2 = center.x * center.x, y2 = center.y * center.y;
        const double terms = b * b * (a * a * y2 + h * (a * a + x2 + r * r));
        return std::fabs(b * b * (a * a * y2 + h * (a * a - x2 - r * r))) <
               1.1e-6 + kRounding * terms;
    }
    /// How far off the curves common points may be: either equation is a ratio, and a centre beside
    /// an axis counts as on it.
    double slack(double r) const {
        const double roundness = a - b < 1.1 * kErrdist ? slackOfCircles(r) : 0.0;
        return kErrdist * (3.0 + a + r) + 2.0 * skew + roundness;
    }

  private:
    /// A point of contact from inside is enlarged from the gap as a radius is from the difference
    /// of both; crossing points come from a difference of squares.
    double slackOfCircles(double r) const {
        const double apart = length(center), between = std::fabs(a - r), most = a + r + apart;
        const bool isTouch = std::fabs(apart - between) < 2.1 * kErrdist;
        if (isTouch && between < 1e-11) return HUGE_VAL; // midway between the centres
        return isTouch ? 2.1 * kErrdist * std::fmax(a, r) / between
                       : kRounding * most * most / std::fmin(r, apart);
    }
};

/// The second ellipse where the first is a circle of its first half axis.
Seen seen(const Ellipse &first, const Ellipse &second) {
    const double k = first.a / first.b, deg = second.rot - first.rot;
    const DTPOINT center = first.local(second.center);
    DTPOINT u = turned({0.5 * second.a, 0.0}, deg), v = turned({0.0, 0.5 * second.b}, deg);
    u.y *= k, v.y *= k;
    const double lean = std::fabs(dot(u, v)), p = length(u), q = length(v);
    if (lean < 1e-6) { // conjugate half axes are then taken for the axes themselves
        const double tilt = std::atan2(u.y, u.x) / kRadPerDeg + (p < q ? 90.0 : 0.0);
        return {turned({center.x, center.y * k}, -tilt), std::fmax(p, q), std::fmin(p, q),
                lean / p};
    }
    const double tilt = 0.5 * std::atan2(2.0 * (u.x * u.y + v.x * v.y),
                                         u.x * u.x + v.x * v.x - u.y * u.y - v.y * v.y);
    const DTPOINT axis = {std::cos(tilt), std::sin(tilt)};
    const double a = length({dot(axis, u), dot(axis, v)});
    const double b = std::fabs(cross(u, v)) / a;
    return {turned({center.x, center.y * k}, -tilt / kRadPerDeg), a, b, 0.0};
}

void conicsMeet(Scene &s) {
    Ellipse e = s.ellipse(), f = s.longFirst();
    const double deg = s.angle();
    const bool withCircle = s.choice(2) == 0;
    if (withCircle) e.b = e.a, e.rot = 0.0;
    switch (s.choice(5)) {
    case 0:
        f.center = s.nudged(e.center);
        break;
    case 1:
        f.center = f.center + (s.nudged(e.at(deg)) - f.at(s.angle()));
        break; // share a point
    case 2:    // touch, or nearly
        f.rot = e.rot + 90.0 * s.choice(4);
        f.center =
            e.center + turned({0.5 * s.nudged(e.a + (s.choice(2) == 0 ? f.a : -f.b)), 0.0}, e.rot);
        break;
    case 3:
        f.center = e.center + s.length() * polar(1.0, e.rot + 90.0 * s.choice(4));
        f.rot = e.rot;
        break; // on an axis
    default:
        break;
    }
    const double r = 0.5 * e.a, thin = e.thinness();
    const Seen image = seen(e, f);
    // Small images are taken for what they are not.
    if (image.a * image.b < 1.1e-6 || image.isTouch(r)) return;
    const double tolerance =
        thin * (image.slack(r) + kRounding * (e.reach() + f.reach()) * thin * image.a / image.b);
    DTPOINT p[4] = {};
    std::int16_t count = 0;
    const auto check = [&](const char *name) {
        for (int i = 0; i < count; ++i) {
            hold(e.off(p[i]) <= tolerance && f.off(p[i]) <= tolerance, name, "off a curve",
                 {e.center.x, e.center.y, e.a, e.b, e.rot, f.center.x, f.center.y, f.a, f.b, f.rot,
                  p[i].x, p[i].y, e.off(p[i]), f.off(p[i]), tolerance});
        }
    };
    if (withCircle && a2d_insce(&e.center.x, r, kWhole, &f.center.x, f.a, f.b, f.rot, kWhole, p,
                                p + 1, p + 2, p + 3, &count) == 0) {
        check("a2d_insce");
    }
    if (a2d_ins2e(&e.center.x, &f.center.x, e.a, f.a, e.b, f.b, e.rot, f.rot, kWhole, kWhole, p,
                  p + 1, p + 2, p + 3, &count) == 0) {
        check("a2d_ins2e");
    }
}

void tangentsToEllipse(Scene &s) {
    const Ellipse e = s.longFirst();
    const DTPOINT p = s.choice(2) == 0 ? s.nudged(e.at(s.angle())) : s.point();
    if (e.b < 0.05 * e.a) return;
    DTPOINT t[2] = {};
    const auto check = [&](const char *name) {
        for (const DTPOINT &at : t) {
            hold(e.off(at) <= 1e-4 * e.a, name, "contact off the ellipse",
                 {e.center.x, e.center.y, e.a, e.b, e.rot, p.x, p.y, at.x, at.y});
        }
    };
    if (ca_inspe(&p, &e.center, e.a, e.b, e.rot, &t[0], &t[1]) == 0) check("ca_inspe");
    if (a2d_tchpe(&p, &e.center, e.a, e.b, e.rot, &t[0], &t[1]) == 2) check("a2d_tchpe");
}

void chains(Scene &s) {
    const Ellipse e = s.ellipse();
    const double start = s.angle();
    const double angles[] = {start, s.nudged(start + s.angle())};
    const double tol = std::fmin(e.a, e.b) * (s.choice(2) == 0 ? 1e-3 : 1e-2);
    constexpr std::uint16_t kRoom = 500;
    DTPOINT centers[kRoom];
    double radii[kRoom], ranges[2 * kRoom];
    std::uint16_t count = kRoom;
    if (ca_elip2(&e.center, e.a, e.b, e.rot, angles, tol, centers, radii, ranges, &count) != 0) {
        return;
    }
    for (std::size_t k = 0; k < count; ++k) {
        for (const double part : {0.0, 0.3, 1.0}) {
            const double deg = ranges[2 * k] + part * (ranges[2 * k + 1] - ranges[2 * k]);
            const DTPOINT p = centers[k] + polar(radii[k], deg);
            const double d = a2d_dstpe(&e.center, e.a, e.b, e.rot, kWhole, &p);
            hold(d <= tol * (1 + 1e-9) + kErrdist, "ca_elip2", "further off than the tolerance",
                 {e.center.x, e.center.y, e.a, e.b, e.rot, angles[0], angles[1], tol, p.x, p.y, d});
        }
    }
}

void divisions(Scene &s) {
    const Ellipse e = s.ellipse();
    const double start = s.angle();
    const double angles[] = {start, s.nudged(start + s.angle() + 1.0)};
    const auto n = static_cast<std::int32_t>(1 + s.choice(12));
    const double tolerance = kRounding * e.reach();
    DTPOINT p = {};
    double piece = 0.0;
    for (std::int32_t k = 1; k <= n; ++k) {
        const std::int32_t code = a2d_elpdn(&e.center, e.a, e.b, e.rot, angles, n, k, &p, &piece);
        hold(code == 0 && e.off(p) <= tolerance * e.thinness(), "a2d_elpdn", "off the ellipse",
             {e.center.x, e.center.y, e.a, e.b, e.rot, angles[0], angles[1], double(n), double(k),
              p.x, p.y});
    }
    hold(distance(p, e.at(angles[1])) <= tolerance, "a2d_elpdn", "ends elsewhere",
         {e.center.x, e.center.y, e.a, e.b, e.rot, angles[0], angles[1], double(n), p.x, p.y});
}

void lengths(Scene &s) {
    const Ellipse e = s.ellipse();
    double *table = ca_Simpson_getParmtbl();
    table[0] = 0.5 * e.a;
    table[1] = 0.5 * e.b;
    const double from = s.angle(), to = from + s.angle(), between = 0.5 * (from + to);
    // A span of four of the shortest steps is the shortest that counts: below it all is 0.
    const auto isShort = [](double lo, double hi) { return (hi - lo) / 4.0 < 1e-3; };
    for (const PLANEGEO_INTEGRAND f : {ca_lengelp, ca_AreaElp}) {
        double whole = 0.0, first = 0.0, second = 0.0;
        const bool done = ca_Simpson(f, from, to, &whole) == 0 &&
                          ca_Simpson(f, from, between, &first) == 0 &&
                          ca_Simpson(f, between, to, &second) == 0;
        const double tolerance = (3e-6 + 1e-9 * whole) * e.thinness();
        // A peak less wide than some steps can be missed by two passes alike: these then settle.
        const bool partsCount =
            !isShort(from, between) && !isShort(between, to) && e.thinness() <= 8.0;
        const auto holds = [&](bool ok, const char *what) {
            hold(ok, "ca_Simpson", what, {e.a, e.b, from, to, whole, first, second});
        };
        holds(done, "refused");
        holds(!partsCount || std::fabs(first + second - whole) <= tolerance,
              "the parts are not the whole");
        holds((!isShort(from, to) || whole == 0.0) && (!isShort(from, between) || first == 0.0) &&
                  (!isShort(between, to) || second == 0.0),
              "a span too short is not 0");
    }
}

void boxes(Scene &s) {
    const Ellipse e = s.ellipse();
    DTPOINT low, high, extremes[4];
    const double tolerance = kRounding * e.reach() * e.thinness();
    ca_elpmn(&e.center, e.a, e.b, e.rot, kWhole, &low, &high, extremes);
    for (int t = 0; t < 360; t += 15) {
        const DTPOINT p = e.at(t);
        hold(p.x >= low.x - tolerance && p.x <= high.x + tolerance && p.y >= low.y - tolerance &&
                 p.y <= high.y + tolerance,
             "ca_elpmn", "the box leaves out a point",
             {e.center.x, e.center.y, e.a, e.b, e.rot, low.x, low.y, high.x, high.y, p.x, p.y});
    }
    for (const DTPOINT &p : extremes) {
        hold(e.off(p) <= tolerance, "ca_elpmn", "extreme off the ellipse",
             {e.center.x, e.center.y, e.a, e.b, e.rot, p.x, p.y});
    }
}

void conversions(Scene &s) {
    const Ellipse e = s.ellipse();
    const double t = s.angle();
    const DTPOINT p = e.at(t);
    double back = 0.0;
    const double tolerance = 1e-9 * e.thinness() * (1.0 + size(e.center) / std::fmin(e.a, e.b));
    if (a2d_elpdeg(&p, &e.center, e.a, e.b, e.rot, &back) == 0) {
        // Directions snap to the axes of the plane within 1e-7 units.
        const double off = std::fabs(std::remainder(back - t, 360.0));
        hold(off <= tolerance + 1e-5 * e.thinness() / std::fmin(e.a, e.b), "a2d_elpdeg",
             "another parameter", {e.center.x, e.center.y, e.a, e.b, e.rot, t, back});
    }
    const DTELLIPSE record = e.record();
    double parameter = t, direction = 0.0;
    ca_ElpAngle(0, &record, &parameter, &direction);
    ca_ElpAngle(1, &record, &parameter, &direction);
    hold(std::fabs(std::remainder(parameter - t, 360.0)) <= tolerance * 10.0, "ca_ElpAngle",
         "does not come back", {e.a, e.b, t, direction, parameter});
}

} // namespace

void checkTruths(Bytes &in) {
    constexpr void (*kTruths[])(Scene &) = {
        linesMeet,
        perpendiculars,
        lineMeetsCircle,
        circlesMeet,
        tangentsFromPoint,
        arcThroughPoints,
        rangesOfAngles,
        quadratics,
        nearestOfEllipse,
        lineMeetsEllipse,
        commonTangents,
        tangentsToEllipse,
        chains,
        divisions,
        lengths,
        boxes,
        conversions,
        conicsMeet,
    };
    const unsigned which = in.below(std::size(kTruths));
    Scene scene(in);
    kTruths[which](scene);
}

} // namespace fuzz
