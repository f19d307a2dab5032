// Circles and arcs beside Open CASCADE and CGAL.

#include <CGAL/Simple_cartesian.h>
#include <GccAna_Lin2d2Tan.hxx>
#include <GccEnt.hxx>
#include <GccEnt_QualifiedCirc.hxx>
#include <gce_MakeCirc2d.hxx>

#include "compare.h"
#include "occt.h"

namespace {

using namespace bench;

struct OcctLineArc {
    gp_Lin2d line;
    double length;
    gp_Circ2d circle;
    occt::Range range;
};
OcctLineArc occtLineArc(const LineAndArc &in) {
    return {occt::line(in.a1, in.a2), occt::distance(in.a1, in.a2), occt::circle(in.center, in.r),
            occt::Range::ofDegrees(in.angles)};
}

Answer pointPair(const DTPOINT *p, int count) {
    Answer answer;
    for (int i = 0; i < count; ++i) {
        answer.add(p[i]);
    }
    return answer;
}

const int kLineCircle =
    Comparison("line with circle", lineAndArc)
        .ours("cross_lin_cir",
              [](const LineAndArc &in) {
                  DTPOINT p[2];
                  uint16_t count;
                  cross_lin_cir(&in.a1, &in.a2, &in.center, in.r, p, p + 1, &count);
                  return pointPair(p, count);
              })
        .peer("OCCT", occtLineArc, [](const OcctLineArc &in) {
            return occt::points(IntAna2d_AnaIntersection(in.line, in.circle));
        });

const int kSegmentArc =
    Comparison("segment with arc", lineAndArc)
        .ours("ca_inslc",
              [](const LineAndArc &in) {
                  DTPOINT p[2];
                  uint16_t count;
                  ca_inslc(&in.a1, &in.a2, &in.center, in.r, in.angles, p, p + 1, &count);
                  return pointPair(p, count);
              })
        .peer("OCCT", occtLineArc, [](const OcctLineArc &in) {
            const IntAna2d_AnaIntersection found(in.line, in.circle);
            return occt::pointsWhere(found, [&](const IntAna2d_IntPoint &p) {
                return p.ParamOnFirst() >= 0.0 && p.ParamOnFirst() <= in.length &&
                       in.range.holds(p.ParamOnSecond());
            });
        });

struct OcctTwoArcs {
    gp_Circ2d c1, c2;
    occt::Range range1, range2;
};
OcctTwoArcs occtTwoArcs(const TwoArcs &in) {
    return {occt::circle(in.c1, in.r1), occt::circle(in.c2, in.r2),
            occt::Range::ofDegrees(in.angles1), occt::Range::ofDegrees(in.angles2)};
}

const int kTwoCircles = Comparison("circle with circle", twoArcs)
                            .ours("a2dCrs2C",
                                  [](const TwoArcs &in) {
                                      DTPOINT p[2];
                                      const int count =
                                          a2dCrs2C(&in.c1, in.r1, &in.c2, in.r2, &p[0].x);
                                      return pointPair(p, count);
                                  })
                            .peer("OCCT", occtTwoArcs, [](const OcctTwoArcs &in) {
                                return occt::points(IntAna2d_AnaIntersection(in.c1, in.c2));
                            });

const int kTwoArcs =
    Comparison("arc with arc", twoArcs)
        .ours("ca_ins2c",
              [](const TwoArcs &in) {
                  DTPOINT p[2];
                  uint16_t count;
                  ca_ins2c(&in.c1, &in.c2, in.r1, in.r2, in.angles1, in.angles2, p, p + 1, &count);
                  return pointPair(p, count);
              })
        .peer("OCCT", occtTwoArcs, [](const OcctTwoArcs &in) {
            const IntAna2d_AnaIntersection found(in.c1, in.c2);
            return occt::pointsWhere(found, [&](const IntAna2d_IntPoint &p) {
                return in.range1.holds(p.ParamOnFirst()) && in.range2.holds(p.ParamOnSecond());
            });
        });

/// A radius, a centre, and the directions of both ends.
Answer arc(double x, double y, double r, double start, double end) {
    Answer answer;
    answer.add(x, y);
    answer.add(r);
    answer.add(start + end);
    return answer;
}
double degrees(double rad) {
    const double deg = rad / kRadPerDeg;
    return deg < 0.0 ? deg + 360.0 : deg;
}

using Plain = CGAL::Simple_cartesian<double>;

const int kThreePoints =
    Comparison("arc through three points", chord)
        .ours("ca_arc3p",
              [](const Chord &in) {
                  DTPOINT center;
                  double r, angles[2];
                  if (ca_arc3p(&in.p, &in.between, &in.q, &center, &r, angles) != 0) {
                      return Answer{};
                  }
                  return arc(center.x, center.y, r, angles[0], angles[1]);
              })
        .peer(
            "OCCT",
            [](const Chord &in) {
                return std::array<gp_Pnt2d, 3>{occt::point(in.p), occt::point(in.between),
                                               occt::point(in.q)};
            },
            [](const std::array<gp_Pnt2d, 3> &in) {
                const gce_MakeCirc2d made(in[0], in[1], in[2]);
                if (!made.IsDone()) return Answer{};
                const gp_Circ2d &circle = made.Value();
                const gp_Vec2d start(circle.Location(), in[0]), end(circle.Location(), in[2]);
                return arc(circle.Location().X(), circle.Location().Y(), circle.Radius(),
                           degrees(std::atan2(start.Y(), start.X())),
                           degrees(std::atan2(end.Y(), end.X())));
            })
        .peer(
            "CGAL (plain)",
            [](const Chord &in) {
                return std::array<Plain::Point_2, 3>{Plain::Point_2{in.p.x, in.p.y},
                                                     Plain::Point_2{in.between.x, in.between.y},
                                                     Plain::Point_2{in.q.x, in.q.y}};
            },
            [](const std::array<Plain::Point_2, 3> &in) {
                if (CGAL::collinear(in[0], in[1], in[2])) return Answer{};
                const Plain::Point_2 center = CGAL::circumcenter(in[0], in[1], in[2]);
                const Plain::Vector_2 start = in[0] - center, end = in[2] - center;
                return arc(center.x(), center.y(), std::sqrt(start.squared_length()),
                           degrees(std::atan2(start.y(), start.x())),
                           degrees(std::atan2(end.y(), end.x())));
            });

struct OcctArc {
    gp_Circ2d circle;
    occt::Range range;
};

const int kBox =
    Comparison("box of an arc", arcAndPoint)
        .ours("ca_arcXY",
              [](const ArcAndPoint &in) {
                  Answer answer;
                  DTPOINT upper, lower;
                  // Angles of which the first is negative where the arc crosses 0.
                  const bool isRaised = in.end > 360.0;
                  ca_arcXY(&in.center, in.r, isRaised ? in.start - 360.0 : in.start,
                           isRaised ? in.end - 360.0 : in.end, &upper, &lower);
                  answer.add(lower);
                  answer.add(upper);
                  return answer;
              })
        .peer(
            "OCCT",
            [](const ArcAndPoint &in) {
                const double angles[] = {in.start, in.end};
                return OcctArc{occt::circle(in.center, in.r), occt::Range::ofDegrees(angles)};
            },
            [](const OcctArc &in) {
                Bnd_Box2d box;
                BndLib::Add(in.circle, in.range.start, in.range.end, 0.0, box);
                return occt::corners(box);
            });

struct OcctCirclePoint {
    gp_Circ2d circle;
    gp_Pnt2d point;
};

const int kTangentsFromPoint =
    Comparison("tangents, point to circle", arcAndPoint)
        .ours("ca_pctan",
              [](const ArcAndPoint &in) {
                  DTPOINT p[2];
                  uint16_t count;
                  ca_pctan(&in.center, in.r, &in.point, p, p + 1, &count);
                  return pointPair(p, count);
              })
        .peer(
            "OCCT",
            [](const ArcAndPoint &in) {
                return OcctCirclePoint{occt::circle(in.center, in.r), occt::point(in.point)};
            },
            [](const OcctCirclePoint &in) {
                return occt::contacts(
                    GccAna_Lin2d2Tan(GccEnt::Unqualified(in.circle), in.point, occt::kTolerance),
                    false);
            });

const int kCommonTangents =
    Comparison("common tangents of two circles", twoArcs)
        .ours("ca_cctan",
              [](const TwoArcs &in) {
                  DTPOINT t[8];
                  uint16_t count;
                  ca_cctan(&in.c1, 0.3 * in.r1, &in.c2, 0.3 * in.r2, t, t + 1, t + 2, t + 3, t + 4,
                           t + 5, t + 6, t + 7, &count);
                  return pointPair(t, 2 * count);
              })
        .peer(
            "OCCT",
            [](const TwoArcs &in) {
                return std::array<gp_Circ2d, 2>{occt::circle(in.c1, 0.3 * in.r1),
                                                occt::circle(in.c2, 0.3 * in.r2)};
            },
            [](const std::array<gp_Circ2d, 2> &in) {
                return occt::contacts(GccAna_Lin2d2Tan(GccEnt::Unqualified(in[0]),
                                                       GccEnt::Unqualified(in[1]),
                                                       occt::kTolerance),
                                      true);
            });

} // namespace
