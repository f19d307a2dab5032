/// Open CASCADE's objects of our inputs, and its answers read out.
#pragma once

#include <BndLib.hxx>
#include <Bnd_Box2d.hxx>
#include <ElCLib.hxx>
#include <Extrema_ExtPElC2d.hxx>
#include <Extrema_POnCurv2d.hxx>
#include <IntAna2d_AnaIntersection.hxx>
#include <IntAna2d_Conic.hxx>
#include <IntAna2d_IntPoint.hxx>
#include <gp_Circ2d.hxx>
#include <gp_Elips2d.hxx>
#include <gp_Lin2d.hxx>
#include <gp_Pnt2d.hxx>

#include "compare.h"

namespace bench::occt {

inline gp_Pnt2d point(const DTPOINT &p) { return {p.x, p.y}; }
inline gp_Lin2d line(const DTPOINT &p, const DTPOINT &q) {
    return {point(p), gp_Dir2d(q.x - p.x, q.y - p.y)};
}
inline double distance(const DTPOINT &p, const DTPOINT &q) { return point(p).Distance(point(q)); }
inline gp_Dir2d direction(double rad) { return {std::cos(rad), std::sin(rad)}; }
inline gp_Circ2d circle(const DTPOINT &center, double r) {
    return {gp_Ax2d(point(center), gp_Dir2d(1.0, 0.0)), r};
}

/// A range of parameters in radians, the end above the start by at most a turn.
struct Range {
    double start, end;

    static Range ofDegrees(const double *angles) {
        const double span = std::fmod(angles[1] - angles[0] + 720.0, 360.0);
        return {angles[0] * kRadPerDeg, (angles[0] + (span > 0.0 ? span : 360.0)) * kRadPerDeg};
    }
    bool holds(double u) const { return ElCLib::InPeriod(u, start, start + 2.0 * M_PI) <= end; }
};

/// An ellipse with its longer axis first, as Open CASCADE wants it, and an arc of it.
struct EllipticArc {
    gp_Elips2d ellipse;
    Range range;

    static EllipticArc of(const DTPOINT &center, double a, double b, double rot,
                          const double *angles) {
        const bool isUpright = a < b;
        const double turned[] = {angles[0] - 90.0, angles[1] - 90.0};
        const gp_Ax2d axis(point(center), direction((isUpright ? rot + 90.0 : rot) * kRadPerDeg));
        return {gp_Elips2d(axis, std::fmax(a, b) / 2, std::fmin(a, b) / 2),
                Range::ofDegrees(isUpright ? turned : angles)};
    }
};

template <class Keeps> Answer pointsWhere(const IntAna2d_AnaIntersection &found, Keeps keeps) {
    Answer answer;
    if (!found.IsDone()) return answer;
    for (int i = 1; i <= found.NbPoints(); ++i) {
        const IntAna2d_IntPoint &p = found.Point(i);
        if (keeps(p)) answer.add(p.Value().X(), p.Value().Y());
    }
    return answer;
}
inline Answer points(const IntAna2d_AnaIntersection &found) {
    return pointsWhere(found, [](const IntAna2d_IntPoint &) { return true; });
}

/// How near to tangent is tangent.
inline constexpr double kTolerance = 1e-6;

/// Where tangents touch the first of two elements, or both.
template <class Tangents> Answer contacts(const Tangents &lines, bool isBoth) {
    Answer answer;
    if (!lines.IsDone()) return answer;
    for (int i = 1; i <= lines.NbSolutions(); ++i) {
        double u, v;
        gp_Pnt2d contact;
        lines.Tangency1(i, u, v, contact);
        answer.add(contact.X(), contact.Y());
        if (!isBoth) continue;
        lines.Tangency2(i, u, v, contact);
        answer.add(contact.X(), contact.Y());
    }
    return answer;
}

inline Answer corners(const Bnd_Box2d &box) {
    Answer answer;
    double left, bottom, right, top;
    box.Get(left, bottom, right, top);
    answer.add(left, bottom);
    answer.add(right, top);
    return answer;
}

} // namespace bench::occt
