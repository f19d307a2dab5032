// Ellipses beside Open CASCADE, and their lengths beside the elliptic integrals of the C++ library,
// Boost and GSL.

#include <cmath>

#include <GCPnts_AbscissaPoint.hxx>
#include <GCPnts_UniformAbscissa.hxx>
#include <Geom2dAdaptor_Curve.hxx>
#include <Geom2dGcc.hxx>
#include <Geom2dGcc_Lin2d2Tan.hxx>
#include <Geom2dGcc_QualifiedCurve.hxx>
#include <Geom2d_Ellipse.hxx>
#include <boost/math/special_functions/ellint_2.hpp>
#include <boost/math/tools/roots.hpp>
#include <gsl/gsl_sf_ellint.h>

#include "compare.h"
#include "occt.h"

namespace {

using namespace bench;

template <class Count> Answer found(const DTPOINT *p, Count count) {
    Answer answer;
    for (Count i = 0; i < count; ++i) {
        answer.add(p[i]);
    }
    return answer;
}

constexpr double kWhole[] = {0.0, 360.0};

// Intersections.

struct OcctLineEllipse {
    gp_Lin2d line;
    occt::EllipticArc arc;
};
OcctLineEllipse occtLineEllipse(const LineAndEllipse &in) {
    return {occt::line(in.p1, in.p2),
            occt::EllipticArc::of(in.center, in.a, in.b, in.rot, in.angles)};
}

const int kLineEllipse =
    Comparison("line with ellipse", lineAndEllipse)
        .ours("a2d_insle",
              [](const LineAndEllipse &in) {
                  DTPOINT p[2];
                  uint16_t count = 0;
                  a2d_insle(&in.p1, &in.p2, &in.center, in.a, in.b, in.rot, p, p + 1, &count);
                  return found(p, count);
              })
        .peer("OCCT", occtLineEllipse, [](const OcctLineEllipse &in) {
            return occt::points(IntAna2d_AnaIntersection(in.line, IntAna2d_Conic(in.arc.ellipse)));
        });

const int kLineEllipticArc =
    Comparison("line with elliptic arc", lineAndEllipse)
        .ours("a2d_insl1",
              [](const LineAndEllipse &in) {
                  DTPOINT p[2];
                  uint16_t count = 0;
                  a2d_insl1(&in.p1, &in.p2, &in.center, in.a, in.b, in.rot, in.angles, p, p + 1,
                            &count);
                  return found(p, count);
              })
        .peer("OCCT", occtLineEllipse, [](const OcctLineEllipse &in) {
            const IntAna2d_AnaIntersection points(in.line, IntAna2d_Conic(in.arc.ellipse));
            return occt::pointsWhere(points, [&](const IntAna2d_IntPoint &p) {
                return in.arc.range.holds(ElCLib::Parameter(in.arc.ellipse, p.Value()));
            });
        });

DTPOINT point(const double *p) { return {p[0], p[1]}; }

struct OcctCircleEllipse {
    gp_Circ2d circle;
    gp_Elips2d ellipse;
};

const int kCircleEllipse =
    Comparison("circle with ellipse", circleAndEllipse)
        .ours("a2d_insce",
              [](const TwoConicArcs &in) {
                  DTPOINT p[4];
                  int16_t count = 0;
                  a2d_insce(in.center1, in.a1 / 2, in.angles1, in.center2, in.a2, in.b2, in.rot2,
                            in.angles2, p, p + 1, p + 2, p + 3, &count);
                  return found(p, count);
              })
        .peer(
            "OCCT",
            [](const TwoConicArcs &in) {
                return OcctCircleEllipse{
                    occt::circle(point(in.center1), in.a1 / 2),
                    occt::EllipticArc::of(point(in.center2), in.a2, in.b2, in.rot2, kWhole)
                        .ellipse};
            },
            [](const OcctCircleEllipse &in) {
                return occt::points(
                    IntAna2d_AnaIntersection(in.circle, IntAna2d_Conic(in.ellipse)));
            });

struct OcctTwoEllipses {
    gp_Elips2d one, other;
};
OcctTwoEllipses occtTwoEllipses(const TwoConicArcs &in) {
    return {occt::EllipticArc::of(point(in.center1), in.a1, in.b1, in.rot1, kWhole).ellipse,
            occt::EllipticArc::of(point(in.center2), in.a2, in.b2, in.rot2, kWhole).ellipse};
}

const int kTwoEllipses =
    Comparison("ellipse with ellipse", twoConicArcs)
        .ours("a2d_ins2e",
              [](const TwoConicArcs &in) {
                  DTPOINT p[4];
                  int16_t count = 0;
                  a2d_ins2e(in.center1, in.center2, in.a1, in.a2, in.b1, in.b2, in.rot1, in.rot2,
                            in.angles1, in.angles2, p, p + 1, p + 2, p + 3, &count);
                  return found(p, count);
              })
        .peer("OCCT", occtTwoEllipses, [](const OcctTwoEllipses &in) {
            return occt::points(IntAna2d_AnaIntersection(in.one, IntAna2d_Conic(in.other)));
        });

// Points against ellipses.

struct OcctPointEllipse {
    gp_Pnt2d point;
    gp_Elips2d ellipse;
};
OcctPointEllipse occtPointEllipse(const PointAndEllipse &in) {
    return {occt::point(in.p),
            occt::EllipticArc::of(in.center, in.a, in.b, in.rot, kWhole).ellipse};
}
Extrema_ExtPElC2d occtFeet(const OcctPointEllipse &in) {
    return {in.point, in.ellipse, 1e-9, 0.0, 2.0 * M_PI};
}

const int kFeet = Comparison("feet of perpendiculars on an ellipse", wholeEllipse)
                      .ours("a2dEllpsPerPnts",
                            [](const PointAndEllipse &in) {
                                DTPOINT p[4];
                                const DTELLIPSE e = in.record();
                                return found(p, a2dEllpsPerPnts(&in.p, &e, p));
                            })
                      .peer("OCCT", occtPointEllipse, [](const OcctPointEllipse &in) {
                          Answer answer;
                          const Extrema_ExtPElC2d feet = occtFeet(in);
                          if (!feet.IsDone()) return answer;
                          for (int i = 1; i <= feet.NbExt(); ++i) {
                              const gp_Pnt2d &p = feet.Point(i).Value();
                              answer.add(p.X(), p.Y());
                          }
                          return answer;
                      });

template <class Call> Answer nearest(const PointAndEllipse &in, Call call) {
    Answer answer;
    DTPOINT p;
    const double distance = call(&in.center, in.a, in.b, in.rot, in.angles, &in.p, &p);
    answer.add(distance);
    return answer;
}

const int kNearest =
    Comparison("distance to an ellipse", wholeEllipse, 1e-3) // ca_dstpp takes steps of 0.1 degrees
        .ours("a2d_dstpp", [](const PointAndEllipse &in) { return nearest(in, a2d_dstpp); })
        .ours("ca_dstpp", [](const PointAndEllipse &in) { return nearest(in, ca_dstpp); })
        .peer("OCCT", occtPointEllipse, [](const OcctPointEllipse &in) {
            Answer answer;
            const Extrema_ExtPElC2d feet = occtFeet(in);
            if (!feet.IsDone() || feet.NbExt() == 0) return answer;
            int best = 1;
            for (int i = 2; i <= feet.NbExt(); ++i) {
                if (feet.SquareDistance(i) < feet.SquareDistance(best)) best = i;
            }
            benchmark::DoNotOptimize(feet.Point(best).Value().X());
            answer.add(std::sqrt(feet.SquareDistance(best)));
            return answer;
        });

Handle(Geom2d_Ellipse) curve(const gp_Elips2d &ellipse) { return new Geom2d_Ellipse(ellipse); }

struct OcctPointCurve {
    gp_Pnt2d point;
    Geom2dAdaptor_Curve curve;
};

template <class Call> Answer tangents(const PointAndEllipse &in, int32_t foundBoth, Call call) {
    DTPOINT p[2] = {};
    const int32_t status = call(&in.p, &in.center, in.a, in.b, in.rot, p, p + 1);
    return found(p, status == foundBoth ? 2 : 0);
}

const int kTangents =
    Comparison("tangents, point to ellipse", wholeEllipse, 1e-5)
        .ours("ca_inspe", [](const PointAndEllipse &in) { return tangents(in, 0, ca_inspe); })
        .ours("a2d_tchpe", [](const PointAndEllipse &in) { return tangents(in, 2, a2d_tchpe); })
        .peer(
            "OCCT",
            [](const PointAndEllipse &in) {
                return OcctPointCurve{occt::point(in.p),
                                      Geom2dAdaptor_Curve(curve(occtPointEllipse(in).ellipse))};
            },
            [](const OcctPointCurve &in) {
                return occt::contacts(Geom2dGcc_Lin2d2Tan(Geom2dGcc::Unqualified(in.curve),
                                                          in.point, occt::kTolerance),
                                      false);
            });

struct OcctCurves {
    Geom2dAdaptor_Curve one, other;
};

const int kCommonTangents =
    Comparison("common tangents of two ellipses", twoConicArcs, 1e-5)
        .ours("a2d_tch2e",
              [](const TwoConicArcs &in) {
                  const DTPOINT c1 = point(in.center1), c2 = point(in.center2);
                  DTPOINT t[8];
                  uint16_t count = 0;
                  a2d_tch2e(&c1, &c2, in.a1, in.a2, in.b1, in.b2, in.rot1, in.rot2, t, t + 1, t + 2,
                            t + 3, t + 4, t + 5, t + 6, t + 7, &count);
                  return found(t, 2 * count);
              })
        .peer(
            "OCCT",
            [](const TwoConicArcs &in) {
                const OcctTwoEllipses e = occtTwoEllipses(in);
                return OcctCurves{Geom2dAdaptor_Curve(curve(e.one)),
                                  Geom2dAdaptor_Curve(curve(e.other))};
            },
            [](const OcctCurves &in) {
                return occt::contacts(Geom2dGcc_Lin2d2Tan(Geom2dGcc::Unqualified(in.one),
                                                          Geom2dGcc::Unqualified(in.other),
                                                          occt::kTolerance),
                                      true);
            });

// Extents.

template <class Make> int boxes(const char *task, Make make) {
    return Comparison(task, make)
        .ours("ca_elamn",
              [](const PointAndEllipse &in) {
                  DTPOINT corner[2];
                  ca_elamn(&in.center, in.a, in.b, in.rot, in.angles, corner, corner + 1);
                  return found(corner, 2);
              })
        .peer(
            "OCCT",
            [](const PointAndEllipse &in) {
                return occt::EllipticArc::of(in.center, in.a, in.b, in.rot, in.angles);
            },
            [](const occt::EllipticArc &in) {
                Bnd_Box2d box;
                BndLib::Add(in.ellipse, in.range.start, in.range.end, 0.0, box);
                return occt::corners(box);
            });
}

const int kBoxes[] = {boxes("box of an ellipse", wholeEllipse),
                      boxes("box of an elliptic arc", ellipticArc)};

// Lengths.

struct OcctArcCurve {
    Geom2dAdaptor_Curve curve;
    occt::Range range;
};
OcctArcCurve occtArcCurve(const PointAndEllipse &in) {
    const occt::EllipticArc arc = occt::EllipticArc::of(in.center, in.a, in.b, in.rot, in.angles);
    return {Geom2dAdaptor_Curve(curve(arc.ellipse)), arc.range};
}

Answer one(double value) {
    Answer answer;
    answer.add(value);
    return answer;
}
PointAndEllipse same(const PointAndEllipse &in) { return in; }

void tellAxes(const PointAndEllipse &in) {
    ca_Simpson_getParmtbl()[0] = in.a / 2;
    ca_Simpson_getParmtbl()[1] = in.b / 2;
}
double eccentricity(const PointAndEllipse &in) {
    return std::sqrt((in.a - in.b) * (in.a + in.b)) / in.a;
}

template <class Make> int circumference(const char *task, Make make) {
    return Comparison(task, make)
        .ours("ca_ElpLen",
              [](const PointAndEllipse &in) {
                  tellAxes(in);
                  const DTELLIPSE e = in.record();
                  double length;
                  ca_ElpLen(&e, &length);
                  return one(length);
              })
        .peer("OCCT", occtArcCurve,
              [](const OcctArcCurve &in) { return one(GCPnts_AbscissaPoint::Length(in.curve)); })
        .peer("libstdc++", same,
              [](const PointAndEllipse &in) {
                  return one(2.0 * in.a * std::comp_ellint_2(eccentricity(in)));
              })
        .peer("Boost", same,
              [](const PointAndEllipse &in) {
                  return one(2.0 * in.a * boost::math::ellint_2(eccentricity(in)));
              })
        .peer("GSL", same, [](const PointAndEllipse &in) {
            return one(2.0 * in.a * gsl_sf_ellint_Ecomp(eccentricity(in), GSL_PREC_DOUBLE));
        });
}
const int kCircumference[] = {circumference("length of an ellipse", roundedEllipse),
                              circumference("length of an ellipse, up to flat ones", wholeEllipse)};
/// The length from a parameter to another by an elliptic integral of the second kind, whose angle
/// is measured from the short axis.
template <class Integral> Answer lengthBy(const PointAndEllipse &in, Integral integral) {
    const double k = eccentricity(in);
    const auto from = [&](double deg) { return integral(k, (deg + 90.0) * kRadPerDeg); };
    return one(in.a / 2 * (from(in.angles[1]) - from(in.angles[0])));
}

template <class Make> int arcLength(const char *task, Make make) {
    return Comparison(task, make)
        .ours("ca_Simpson",
              [](const PointAndEllipse &in) {
                  tellAxes(in);
                  double length;
                  ca_Simpson(ca_lengelp, in.angles[0], in.angles[1], &length);
                  return one(length);
              })
        .peer("OCCT", occtArcCurve,
              [](const OcctArcCurve &in) {
                  return one(GCPnts_AbscissaPoint::Length(in.curve, in.range.start, in.range.end));
              })
        .peer("libstdc++", same,
              [](const PointAndEllipse &in) {
                  return lengthBy(in, [](double k, double phi) { return std::ellint_2(k, phi); });
              })
        .peer("Boost", same,
              [](const PointAndEllipse &in) {
                  return lengthBy(
                      in, [](double k, double phi) { return boost::math::ellint_2(k, phi); });
              })
        .peer("GSL", same, [](const PointAndEllipse &in) {
            return lengthBy(
                in, [](double k, double phi) { return gsl_sf_ellint_E(phi, k, GSL_PREC_DOUBLE); });
        });
}
const int kLength[] = {arcLength("length of an elliptic arc", roundedArc),
                       arcLength("length of an elliptic arc, up to flat ones", ellipticArc)};
/// The length of the arc wanted; it ends before a turn.
double wanted(const PointAndEllipse &in) { return 0.8 * in.a; }

template <class Make> int endAtLength(const char *task, Make make) {
    return Comparison(task, make, 1e-5)
        .ours("ca_ElpLen2",
              [](const PointAndEllipse &in) {
                  tellAxes(in);
                  DTELLIPSE e = in.record();
                  if (ca_ElpLen2(&e, wanted(in), 1) != 0) return Answer{};
                  // The angle may come out a turn lower.
                  return one(std::cos(e.end * kRadPerDeg));
              })
        .peer("OCCT", occtArcCurve,
              [](const OcctArcCurve &in) {
                  const double length = 0.8 * 2.0 * in.curve.Ellipse().MajorRadius();
                  const GCPnts_AbscissaPoint end(in.curve, length, in.range.start);
                  return end.IsDone() ? one(std::cos(end.Parameter())) : Answer{};
              })
        .peer("Boost", same, [](const PointAndEllipse &in) {
            // Newton's method on the elliptic integral.
            const double k = eccentricity(in), start = in.angles[0] * kRadPerDeg;
            const auto length = [&](double t) {
                return in.a / 2 * boost::math::ellint_2(k, t + M_PI / 2);
            };
            const double goal = length(start) + wanted(in);
            const auto step = [&](double t) {
                return std::pair(length(t) - goal,
                                 in.a / 2 * std::sqrt(1.0 - k * k * std::cos(t) * std::cos(t)));
            };
            const double end = boost::math::tools::newton_raphson_iterate(
                step, start + wanted(in) / (in.a / 2), start, start + 2.0 * M_PI, 40);
            return one(std::cos(end));
        });
}
const int kPointAtLength[] = {
    endAtLength("end of an arc of given length", roundedArc),
    endAtLength("end of an arc of given length, up to flat ones", ellipticArc)};
constexpr int kPieces = 12;

template <class Make> int equalParts(const char *task, Make make) {
    return Comparison(task, make, 1e-4) // a2d_elpdn takes steps of 0.001 degrees
        .ours("a2d_elpdn",
              [](const PointAndEllipse &in) {
                  Answer answer;
                  for (int k = 1; k <= kPieces; ++k) {
                      DTPOINT p;
                      double piece;
                      if (a2d_elpdn(&in.center, in.a, in.b, in.rot, in.angles, kPieces, k, &p,
                                    &piece) == 0) {
                          answer.add(p);
                      }
                  }
                  return answer;
              })
        .peer("OCCT", occtArcCurve,
              [](const OcctArcCurve &in) {
                  Answer answer;
                  const GCPnts_UniformAbscissa parts(in.curve, kPieces + 1);
                  if (!parts.IsDone()) return answer;
                  for (int k = 2; k <= parts.NbPoints(); ++k) {
                      const gp_Pnt2d p = in.curve.Value(parts.Parameter(k));
                      answer.add(p.X(), p.Y());
                  }
                  return answer;
              })
        .peer("Boost", same, [](const PointAndEllipse &in) {
            // Newton's method on the elliptic integral, each from the one before.
            Answer answer;
            const double k = eccentricity(in), c = std::cos(in.rot * kRadPerDeg),
                         s = std::sin(in.rot * kRadPerDeg);
            const auto length = [&](double t) {
                return in.a / 2 * boost::math::ellint_2(k, t + M_PI / 2);
            };
            const double first = length(0.0);
            const double piece = 2.0 * in.a * boost::math::ellint_2(k) / kPieces;
            double t = 0.0;
            for (int i = 1; i <= kPieces; ++i) {
                const double goal = first + i * piece;
                const auto step = [&](double u) {
                    return std::pair(length(u) - goal,
                                     in.a / 2 * std::sqrt(1.0 - k * k * std::cos(u) * std::cos(u)));
                };
                t = boost::math::tools::newton_raphson_iterate(step, t + 2.0 * M_PI / kPieces, t,
                                                               t + 2.0 * M_PI, 40);
                const double x = in.a / 2 * std::cos(t), y = in.b / 2 * std::sin(t);
                answer.add(in.center.x + x * c - y * s, in.center.y + x * s + y * c);
            }
            return answer;
        });
}
const int kEqualParts[] = {equalParts("twelve equal parts", roundedEllipse),
                           equalParts("twelve equal parts, up to flat ones", wholeEllipse)};
} // namespace
