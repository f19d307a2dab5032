// Points, lines and segments beside CGAL, Boost.Geometry, GEOS and Open CASCADE.

#include <CGAL/Exact_predicates_inexact_constructions_kernel.h>
#include <CGAL/Simple_cartesian.h>
#include <CGAL/intersections.h>
#include <boost/geometry.hpp>
#include <geos_c.h>

#include "compare.h"
#include "occt.h"

namespace {

using namespace bench;

using Plain = CGAL::Simple_cartesian<double>;
using Exact = CGAL::Exact_predicates_inexact_constructions_kernel;

namespace bg = boost::geometry;
using BoostPoint = bg::model::d2::point_xy<double>;
using BoostSegment = bg::model::segment<BoostPoint>;

const GEOSContextHandle_t geos = GEOS_init_r();

template <class Kernel> typename Kernel::Point_2 cgal(const DTPOINT &p) { return {p.x, p.y}; }
BoostPoint toBoost(const DTPOINT &p) { return {p.x, p.y}; }

template <class First, class Second> struct Pair {
    First first;
    Second second;
};

template <class Kernel>
Pair<typename Kernel::Segment_2, typename Kernel::Segment_2> cgalSegments(const TwoLines &in) {
    return {{cgal<Kernel>(in.a1), cgal<Kernel>(in.a2)}, {cgal<Kernel>(in.b1), cgal<Kernel>(in.b2)}};
}
template <class Kernel, class Result> Answer cgalPoint(const Result &result) {
    Answer answer;
    if (!result) return answer;
    if (const auto *p = boost::get<typename Kernel::Point_2>(&*result)) answer.add(p->x(), p->y());
    return answer;
}
template <class Kernel> using CgalSegments = decltype(cgalSegments<Kernel>({}));

/// The lines are made of the segments in the call, as ours are of the points.
template <class Kernel> Answer cgalLinesCross(const CgalSegments<Kernel> &in) {
    return cgalPoint<Kernel>(
        CGAL::intersection(in.first.supporting_line(), in.second.supporting_line()));
}
template <class Kernel> Answer cgalSegmentsCross(const CgalSegments<Kernel> &in) {
    return cgalPoint<Kernel>(CGAL::intersection(in.first, in.second));
}

struct OcctLines {
    gp_Lin2d a, b;
    double lengthA, lengthB;
};
OcctLines occtLines(const TwoLines &in) {
    return {occt::line(in.a1, in.a2), occt::line(in.b1, in.b2), occt::distance(in.a1, in.a2),
            occt::distance(in.b1, in.b2)};
}
bool isWithin(double parameter, double length) { return parameter >= 0.0 && parameter <= length; }

const int kLinesCross = Comparison("line with line", twoLines)
                            .ours("a2dCrs2L",
                                  [](const TwoLines &in) {
                                      Answer answer;
                                      DTPOINT p;
                                      if (a2dCrs2L(&in.a1, &in.a2, &in.b1, &in.b2, &p) == 1)
                                          answer.add(p);
                                      return answer;
                                  })
                            .peer("CGAL (plain)", cgalSegments<Plain>, cgalLinesCross<Plain>)
                            .peer("CGAL (exact)", cgalSegments<Exact>, cgalLinesCross<Exact>)
                            .peer("OCCT", occtLines, [](const OcctLines &in) {
                                const IntAna2d_AnaIntersection found(in.a, in.b);
                                return occt::points(found);
                            });

const int kSegmentsCross =
    Comparison("segment with segment", twoLines)
        .ours("ca_ins2l",
              [](const TwoLines &in) {
                  Answer answer;
                  DTPOINT p;
                  if (ca_ins2l(&in.a1, &in.a2, &in.b1, &in.b2, &p) == 0) answer.add(p);
                  return answer;
              })
        .peer("CGAL (plain)", cgalSegments<Plain>, cgalSegmentsCross<Plain>)
        .peer("CGAL (exact)", cgalSegments<Exact>, cgalSegmentsCross<Exact>)
        .peer(
            "Boost",
            [](const TwoLines &in) {
                return Pair<BoostSegment, BoostSegment>{{toBoost(in.a1), toBoost(in.a2)},
                                                        {toBoost(in.b1), toBoost(in.b2)}};
            },
            [](const Pair<BoostSegment, BoostSegment> &in) {
                std::vector<BoostPoint> found;
                bg::intersection(in.first, in.second, found);
                Answer answer;
                for (const BoostPoint &p : found) {
                    answer.add(p.x(), p.y());
                }
                return answer;
            })
        .peer(
            "GEOS", [](const TwoLines &in) { return in; },
            [](const TwoLines &in) {
                Answer answer;
                double x, y;
                if (GEOSSegmentIntersection_r(geos, in.a1.x, in.a1.y, in.a2.x, in.a2.y, in.b1.x,
                                              in.b1.y, in.b2.x, in.b2.y, &x, &y) == 1) {
                    answer.add(x, y);
                }
                return answer;
            })
        .peer("OCCT", occtLines, [](const OcctLines &in) {
            const IntAna2d_AnaIntersection found(in.a, in.b);
            return occt::pointsWhere(found, [&](const IntAna2d_IntPoint &p) {
                return isWithin(p.ParamOnFirst(), in.lengthA) &&
                       isWithin(p.ParamOnSecond(), in.lengthB);
            });
        });

template <class Kernel>
Pair<typename Kernel::Point_2, typename Kernel::Segment_2>
cgalPointSegment(const PointAndLine &in) {
    return {cgal<Kernel>(in.p), {cgal<Kernel>(in.a1), cgal<Kernel>(in.a2)}};
}

struct OcctPointLine {
    gp_Pnt2d p;
    gp_Lin2d line;
};
OcctPointLine occtPointLine(const PointAndLine &in) {
    return {occt::point(in.p), occt::line(in.a1, in.a2)};
}

const int kPerpendicular =
    Comparison("foot and distance on a line", pointAndLine)
        .ours("ca_perln",
              [](const PointAndLine &in) {
                  Answer answer;
                  DTPOINT foot;
                  double dist;
                  if (ca_perln(&in.a1, &in.a2, &in.p, &foot, &dist) >= 0) {
                      answer.add(foot);
                      answer.add(dist);
                  }
                  return answer;
              })
        .peer("CGAL (plain)", cgalPointSegment<Plain>,
              [](const Pair<Plain::Point_2, Plain::Segment_2> &in) {
                  Answer answer;
                  const Plain::Point_2 foot = in.second.supporting_line().projection(in.first);
                  answer.add(foot.x(), foot.y());
                  answer.add(std::sqrt(CGAL::squared_distance(in.first, foot)));
                  return answer;
              })
        .peer("OCCT", occtPointLine, [](const OcctPointLine &in) {
            Answer answer;
            const Extrema_ExtPElC2d found(in.p, in.line, 1e-9, -RealLast(), RealLast());
            if (found.IsDone() && found.NbExt() == 1) {
                const gp_Pnt2d &foot = found.Point(1).Value();
                answer.add(foot.X(), foot.Y());
                answer.add(std::sqrt(found.SquareDistance(1)));
            }
            return answer;
        });

/// A point counts as on the segment within this distance, as by errdist at load.
constexpr double kTolerance = 1e-6;

const int kOnSegment =
    Comparison("point on segment", onSegment)
        .ours("a2d_onlin",
              [](const PointAndLine &in) {
                  Answer answer;
                  if (a2d_onlin(&in.a1, &in.a2, &in.p) == 0) answer.add(1.0);
                  return answer;
              })
        .peer("CGAL (plain)", cgalPointSegment<Plain>,
              [](const Pair<Plain::Point_2, Plain::Segment_2> &in) {
                  Answer answer;
                  if (CGAL::squared_distance(in.first, in.second) < kTolerance * kTolerance) {
                      answer.add(1.0);
                  }
                  return answer;
              })
        .peer(
            "Boost",
            [](const PointAndLine &in) {
                return Pair<BoostPoint, BoostSegment>{toBoost(in.p),
                                                      {toBoost(in.a1), toBoost(in.a2)}};
            },
            [](const Pair<BoostPoint, BoostSegment> &in) {
                Answer answer;
                if (bg::distance(in.first, in.second) < kTolerance) answer.add(1.0);
                return answer;
            });

const int kSide = Comparison("side of a line", pointAndLine)
                      .ours("ca_posln",
                            [](const PointAndLine &in) {
                                Answer answer;
                                uint16_t side;
                                if (ca_posln(&in.a1, &in.a2, &in.p, &side) == 0) {
                                    answer.add(side == 65535 ? 1.0 : -side);
                                }
                                return answer;
                            })
                      .peer(
                          "CGAL (exact)",
                          [](const PointAndLine &in) {
                              return std::array<Exact::Point_2, 3>{
                                  cgal<Exact>(in.a1), cgal<Exact>(in.a2), cgal<Exact>(in.p)};
                          },
                          [](const std::array<Exact::Point_2, 3> &in) {
                              Answer answer;
                              answer.add(CGAL::orientation(in[0], in[1], in[2]));
                              return answer;
                          })
                      .peer(
                          "GEOS", [](const PointAndLine &in) { return in; },
                          [](const PointAndLine &in) {
                              Answer answer;
                              answer.add(GEOSOrientationIndex_r(geos, in.a1.x, in.a1.y, in.a2.x,
                                                                in.a2.y, in.p.x, in.p.y));
                              return answer;
                          });

struct OcctTurn {
    gp_Pnt2d center, p;
    double rad;
};

const int kTurn =
    Comparison("point turned", points)
        .ours("ca_rvpnt",
              [](const Points &in) {
                  Answer answer;
                  DTPOINT out;
                  ca_rvpnt(&in.p, &in.q, &out, in.angle);
                  answer.add(out);
                  return answer;
              })
        .peer(
            "OCCT",
            [](const Points &in) {
                return OcctTurn{occt::point(in.p), occt::point(in.q), in.angle * kRadPerDeg};
            },
            [](const OcctTurn &in) {
                Answer answer;
                const gp_Pnt2d out = in.p.Rotated(in.center, in.rad);
                answer.add(out.X(), out.Y());
                return answer;
            });

struct OcctMirror {
    gp_Pnt2d p;
    gp_Ax2d axis;
};

const int kMirror =
    Comparison("point mirrored", points)
        .ours("pnt_mer",
              [](const Points &in) {
                  Answer answer;
                  DTPOINT out;
                  pnt_mer(&in.p, &in.q, &in.r, &out);
                  answer.add(out);
                  return answer;
              })
        .peer(
            "OCCT",
            [](const Points &in) {
                return OcctMirror{occt::point(in.p), occt::line(in.q, in.r).Position()};
            },
            [](const OcctMirror &in) {
                Answer answer;
                const gp_Pnt2d out = in.p.Mirrored(in.axis);
                answer.add(out.X(), out.Y());
                return answer;
            });

} // namespace
