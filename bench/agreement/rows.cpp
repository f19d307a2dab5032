#include "rows.h"

#include <tuple>

namespace agreement {
namespace {

void report(Record &record, double result) { record.number(result); }
void report(Record &record, std::int32_t result) { record.integer(result); }
void report(Record &record, DTCOMPLEX result) {
    record.number(result.re);
    record.number(result.im);
}

/// A function whose arguments do not depend on each other.
template <class... Arguments, class Function> Row row(const char *name, Function function) {
    return {name, [function](Inputs &in, Record &record) {
                std::tuple<Arguments...> arguments{Arguments(in)...};
                std::apply(
                    [&](auto &...argument) {
                        if constexpr (std::is_void_v<decltype(function(argument.pass()...))>) {
                            function(argument.pass()...);
                        } else {
                            report(record, function(argument.pass()...));
                        }
                        (argument.report(record), ...);
                    },
                    arguments);
            }};
}

std::vector<Row> mathematics() {
    const auto of = [](double (*function)(double), double low, double high) {
        return [=](Inputs &in, Record &record) { record.number(function(in.uniform(low, high))); };
    };
    return {
        {"std::sin", of(std::sin, -7.0, 7.0)},
        {"std::cos", of(std::cos, -7.0, 7.0)},
        {"std::tan", of(std::tan, -7.0, 7.0)},
        {"std::asin", of(std::asin, -1.0, 1.0)},
        {"std::acos", of(std::acos, -1.0, 1.0)},
        {"std::atan", of(std::atan, -9.0, 9.0)},
        {"std::sqrt", of(std::sqrt, 0.0, 100.0)},
        {"std::cbrt", of(std::cbrt, -100.0, 100.0)},
        {"std::log2", of(std::log2, 0.0, 100.0)},
        row<Coordinate, Coordinate>("std::atan2",
                                    [](double y, double x) { return std::atan2(y, x); }),
        row<Coordinate, Coordinate>("std::hypot",
                                    [](double x, double y) { return std::hypot(x, y); }),
        row<Length, Ratio>("std::pow", [](double x, double y) { return std::pow(x, y); }),
        row<Coordinate, Coordinate, Coordinate>(
            "std::fma", [](double x, double y, double z) { return std::fma(x, y, z); }),
        row<Angle, Length>("std::fmod", [](double x, double y) { return std::fmod(x, y); }),
        row<Angle, Length>("std::remainder",
                           [](double x, double y) { return std::remainder(x, y); }),
    };
}

std::vector<Row> base() {
    return {
        row<Length>("ca_geterrdist/ca_seterrdist",
                    [](double length) {
                        const double before = ca_geterrdist();
                        ca_seterrdist(length);
                        const double got = ca_geterrdist();
                        ca_seterrdist(before);
                        return got;
                    }),
        row<Whole<std::int32_t, -3, 3>>("ca_GetStartendFlg/ca_SetStartendFlg",
                                        [](std::int32_t flag) {
                                            ca_SetStartendFlg(flag);
                                            return ca_GetStartendFlg();
                                        }),
        row<Length>("ca_Simpson_getParmtbl",
                    [](double length) { return ca_Simpson_getParmtbl()[9] + length; }),
        row<Angle>("sind", sind),
        row<Angle>("cosd", cosd),
        row<Angle>("tand", tand),
        row<Ratio>("asind", asind),
        row<Ratio>("acosd", acosd),
        row<Coordinate>("atand", atand),
        row<Coordinate, Coordinate>("atan2d", atan2d),
        row<ChangedAngle, ChangedAngle>("a2d_StdSedeg", a2d_StdSedeg),
        row<Angle, Angle, Angle>("a2d_ChkDegr", a2d_ChkDegr),
        row<Whole<std::int32_t, 0, 1>, Whole<std::int32_t, 0, 1>, Angle, Angle, OutNumbers<>,
            OutNumbers<>>("a2d_GetBedeg", a2d_GetBedeg),
        row<Point, Point, OutPoints<>, Angle>("c_pnt", c_pnt),
        row<Point, Point, OutPoints<>, Angle>("ca_rvpnt", ca_rvpnt),
        row<Point, Point, Angle, OutPoints<>>("pnt_std", pnt_std),
        row<Point, Point, Angle, OutPoints<>>("pnt_formd", pnt_formd),
        row<Point, Point, Point, OutPoints<>>("pnt_mer", pnt_mer),
        row<Point, Point, Point, OutPoints<>>("ca_vmpnt", ca_vmpnt),
        row<Point, Point>("ca_vcrad", ca_vcrad),
        row<Point, Point>("ca_dstpt", ca_dstpt),
    };
}

/// An element and what cuts it, which lie on one line, circle or ellipse.
void collinear(Inputs &in, Record &record) {
    const DTPOINT p = in.point(), q = in.point();
    const auto at = [&](double t) { return DTPOINT{p.x + (q.x - p.x) * t, p.y + (q.y - p.y) * t}; };
    const DTPOINT a = at(0.25 * static_cast<double>(in.whole(-4, 8))),
                  b = at(in.uniform(-1.0, 2.0));
    const DTLINE elem = {0, a.x, a.y, b.x, b.y}, cut = {0, p.x, p.y, q.x, q.y};
    OutPoints<> out(in);
    ca_SetStartendFlg(static_cast<std::int32_t>(in.whole(0, 1)));
    record.integer(a2d_InsDl(&elem, &cut, out.pass()));
    out.report(record);
}
void sameCircle(Inputs &in, Record &record) {
    const Ellipse e(in), f(in);
    const DTARC elem = {e.value.attr, e.value.cx,    e.value.cy,
                        e.value.a,    e.value.start, e.value.end};
    const DTARC cut = {f.value.attr, e.value.cx, e.value.cy, e.value.a, f.value.start, f.value.end};
    OutPoints<> out(in);
    ca_SetStartendFlg(static_cast<std::int32_t>(in.whole(0, 1)));
    record.integer(a2d_InsDc(&elem, &cut, out.pass()));
    out.report(record);
}
void sameEllipse(Inputs &in, Record &record) {
    const Ellipse elem(in);
    Ellipse cut(in);
    cut.value.cx = elem.value.cx, cut.value.cy = elem.value.cy;
    cut.value.a = elem.value.a, cut.value.b = elem.value.b, cut.value.rot = elem.value.rot;
    OutPoints<> out(in);
    ca_SetStartendFlg(static_cast<std::int32_t>(in.whole(0, 1)));
    record.integer(a2d_InsDe(&elem.value, &cut.value, out.pass()));
    out.report(record);
}
void mergedRuns(Inputs &in, Record &record) {
    std::array<DTPOINT, 12> points;
    points[0] = in.point();
    for (std::size_t i = 1; i < points.size(); ++i) {
        points[i] = {points[i - 1].x + in.length(), points[i - 1].y + 0.01 * in.coordinate()};
    }
    DTPOINT *list = points.data();
    const std::int32_t left =
        ca_AutoUnionNrb(static_cast<std::int32_t>(points.size()), &list, in.uniform(0.0, 5.5));
    record.integer(left);
    for (std::int32_t i = 0; i < left; ++i) {
        record.number(points[static_cast<std::size_t>(i)].x);
        record.number(points[static_cast<std::size_t>(i)].y);
    }
}

std::vector<Row> lines() {
    return {
        row<Point, Point, Point, Point, OutPoints<>>("a2dCrs2L", a2dCrs2L),
        row<Point, Point, Point, Point, OutPoints<>>("a2d_ins2l", a2d_ins2l),
        row<Point, Point, Point, Point, OutPoints<>>("ca_ins2l", ca_ins2l),
        {"aatCalCrs2l",
         [](Inputs &in, Record &record) {
             Numbers<6> rec(in);
             double angles[2] = {in.angle(), in.angle()};
             record.integer(aatCalCrs2l(rec.pass(), angles));
             rec.report(record);
             record.number(angles[0]);
             record.number(angles[1]);
         }},
        row<Point, Point, Point, OutPoints<>, OutNumbers<>>("ca_perln", ca_perln),
        row<Point, Point, Length, Whole<std::int16_t, -1, 1>, OutPoints<>, OutPoints<>>("ca_palds",
                                                                                        ca_palds),
        row<Point, Point, Point, OutCount>("ca_posln", ca_posln),
        row<Point, Point, Point>("a2d_onlin", a2d_onlin),
        row<Point, Point, Point>("ca_onlin", ca_onlin),
        row<Point, Point, Coordinate, OutPoints<>>("ca_DistAlongbyLineFromSpnt",
                                                   ca_DistAlongbyLineFromSpnt),
        {"a2d_InsDl", collinear},
        row<Point, Point, Point>("a2d_Chk3pnt", a2d_Chk3pnt),
    };
}

std::vector<Row> circles() {
    using Mode = Whole<std::uint32_t, 0, 3>;
    using Out = OutPoints<>;
    using Number = OutNumbers<>;
    return {
        row<Point, Point, Point, Length, Out, Out, OutCount>("cross_lin_cir", cross_lin_cir),
        row<Mode, Point, Point, Point, Length, Angles, Out, Out, OutCount>("a2d_lin_arc",
                                                                           a2d_lin_arc),
        row<Point, Point, Point, Length, OutPoints<2>>("a2dCrsLC", a2dCrsLC),
        row<Point, Point, Point, Length, Out, Out, OutCount>("ca_crslc", ca_crslc),
        row<Point, Point, Point, Length, Angles, Out, Out, OutCount>("ca_crslc2", ca_crslc2),
        row<Point, Point, Point, Length, Angles, Out, Out, OutCount>("ca_inslc", ca_inslc),
        row<Point, Point, Point, Length, Angles, Out, Out, OutCount>("a2d_inslc", a2d_inslc),
        row<Point, Point, Point, Length, Angles, Out, Out, OutCount>("sb_inslc", sb_inslc),
        row<Point, Length, Point, Length, OutNumbers<4>>("a2dCrs2C", a2dCrs2C),
        row<Point, Point, Length, Length, Angles, Angles, Out, Out, OutCount>("a2d_ins2c",
                                                                              a2d_ins2c),
        row<Point, Point, Length, Length, Angles, Angles, Out, Out, OutCount>("ca_ins2c", ca_ins2c),
        row<Point, Point, Point, Out, Number, OutNumbers<2>>("ca_arc3p", ca_arc3p),
        row<Whole<std::int32_t, 0, 1>, Ratio, Coordinate, Coordinate, Coordinate, Coordinate, Out,
            Number, OutNumbers<2>>("ca_arc2pratio", ca_arc2pratio),
        row<ChangedAngle, ChangedAngle>("ca_arcan", ca_arcan),
        row<Point, Length, AnglesInRadians, Out, Out>("ca_arccd", ca_arccd),
        row<Point, Length, Angle, Angle, Out, Out>("ca_arcXY", ca_arcXY),
        row<Point, Length, Angle, Angle, Point, Number>("ca_onarc", ca_onarc),
        row<Point, Length, Point, OutCount>("ca_posar", ca_posar),
        row<Point, Length, AnglesInRadians, Point, Radians, Out, Number, OutNumbers<2>>("ca_rvarc",
                                                                                        ca_rvarc),
        row<Point, Length, Angle, Angle, Length, Number>("ca_DistAlongbyArcFromSpnt",
                                                         ca_DistAlongbyArcFromSpnt),
        {"a2d_InsDc", sameCircle},
        {"ca_AutoUnionNrb", mergedRuns},
        row<Point, Length, Point, Out, Out, OutCount>("ca_pctan", ca_pctan),
        row<Point, Length, Point, Length, Out, Out, Out, Out, Out, Out, Out, Out, OutCount>(
            "ca_cctan", ca_cctan),
    };
}

template <std::size_t degree, class Solver> Row polynomial(const char *name, Solver solver) {
    return {name, [solver](Inputs &in, Record &record) {
                Numbers<degree + 1> c(in);
                OutNumbers<2 * degree> out(in);
                record.integer(solver(c.pass(), out.pass()));
                c.report(record);
                out.report(record);
            }};
}

std::vector<Row> solvers() {
    return {
        polynomial<1>("amaSolveLinerEquation", amaSolveLinerEquation),
        polynomial<2>("amaSolveEquationOf2ndD", amaSolveEquationOf2ndD),
        polynomial<3>("amaSolveEquationOf3rdD", amaSolveEquationOf3rdD),
        polynomial<4>("amaSolveEquationOf4thD", amaSolveEquationOf4thD),
        row<Coordinate, Coordinate>("ama_c_sqrt",
                                    [](double re, double im) {
                                        return ama_c_sqrt({re, im});
                                    }),
        polynomial<5>("amaNewtonRaphson",
                      [](auto *c, auto *x) { return amaNewtonRaphson(c, 5, x); }),
        polynomial<5>("amaBairstaw", [](auto *c, auto *out) { return amaBairstaw(c, 5, out); }),
        polynomial<6>("amaDKA", [](auto *c, auto *out) { return amaDKA(c, 6, 1e-9, 200.0, out); }),
    };
}

/// A point of the ellipse, or one a little off it, and the ellipse without a rotation: made by
/// sums and products.
struct OnCurve {
    DTELLIPSE e;
    DTPOINT p;
};
OnCurve onCurve(Inputs &in) {
    DTELLIPSE e = Ellipse(in).value;
    e.rot = 0.0;
    const double t = in.uniform(-1.0, 1.0), unit = 1.0 / (1.0 + t * t);
    const double off = in.whole(0, 1) == 0 ? 0.0 : 4e-6 * in.uniform(-1.0, 1.0);
    return {
        e,
        {e.cx + (e.a / 2 + off) * (1.0 - t * t) * unit, e.cy + (e.b / 2 + off) * 2.0 * t * unit}};
}
template <class Call> Row onCurveRow(const char *name, Call call) {
    return {name, [call](Inputs &in, Record &record) {
                const OnCurve asked = onCurve(in);
                const DTPOINT center = {asked.e.cx, asked.e.cy};
                const double angles[2] = {asked.e.start, asked.e.end};
                record.integer(call(asked.e, center, angles, asked.p));
            }};
}

std::vector<Row> ellipses() {
    using Mode = Whole<std::int16_t, 0, 1>;
    using Out = OutPoints<>;
    using Number = OutNumbers<>;
    return {
        row<Point, Length, Length, Angle, Angles, OutNumbers<4>>("ca_elpcd", ca_elpcd),
        row<Point, Point, Length, Length, Angle, Number>("a2d_elpdeg", a2d_elpdeg),
        row<Point, Point, Point, Number, Number, Number>("a2dGetEllipsDt", a2dGetEllipsDt),
        row<Mode, Ellipse, ChangedAngle, ChangedAngle>("ca_ElpAngle", ca_ElpAngle),
        row<Mode, Ellipse, Angle, Out>("ca_ElpCordXY", ca_ElpCordXY),
        row<Point, Length, Length, Angle, Out, Out>("GetElpFocusPnt", GetElpFocusPnt),
        row<Ratio, Point, Out>("a2d_GetTangentVectorOnElp", a2d_GetTangentVectorOnElp),
        row<Ellipse, Point, Out>("a2d_GetTangentVectorOnDTELLIPSE",
                                 a2d_GetTangentVectorOnDTELLIPSE),
        row<Ellipse, Point>("CheckEllipseArcAngle", CheckEllipseArcAngle),
        {"a2d_hanel",
         [](Inputs &in, Record &record) {
             const DTPOINT p = in.point(), q = in.point();
             const DTLINE line = {0, p.x, p.y, q.x, q.y};
             record.integer(a2d_hanel(&line, Ellipse(in).pass()));
         }},
        row<Point, Length, Length, Angle, Angles, Point>("ca_onelp", ca_onelp),
        onCurveRow("ca_onelp/curve",
                   [](const DTELLIPSE &e, DTPOINT center, const double *angles, DTPOINT p) {
                       return ca_onelp(&center, e.a, e.b, e.rot, angles, &p);
                   }),
        row<Point, Angle, Angles, Point>("pin_chk", pin_chk),
        row<Point, Length, Length, Angle, Point, OutCount>("ca_posel", ca_posel),
        onCurveRow("ca_posel/curve",
                   [](const DTELLIPSE &e, DTPOINT center, const double *, DTPOINT p) {
                       std::uint16_t position = 4711;
                       ca_posel(&center, e.a, e.b, e.rot, &p, &position);
                       return position;
                   }),
        row<Ellipse, Ratio, Ellipse>("a2d_elp_trans", a2d_elp_trans),
        row<Point, Length, Length, Angle, Angles, Point, Angle, Out, Number, Number, Number,
            OutNumbers<2>>("ca_rvelp", ca_rvelp),
        row<Point, Length, Length, Angle, Angles, Point, Point, Out, Number, Number, Number,
            OutNumbers<2>>("ca_vmelp", ca_vmelp),
        row<Point, Length, Length, Angle, Angles, Point, Out, Number, Number, Number,
            OutNumbers<2>>("ca_samel", ca_samel),
        row<Point, Length, Length, Angle, Angle, Out, Out>("ca_elaln", ca_elaln),
        row<Point, Length, Length, Angle, Angles, Angle, Out, Out>("ang_pnt", ang_pnt),
        row<Point, Length, Length, Angle, Angles, Out, Out>("ca_elamn", ca_elamn),
        row<Point, Length, Length, Angle, Angles, Out, Out, OutPoints<4>>("ca_elpmn", ca_elpmn),
    };
}

/// Measures by the parameter table, which holds the half axes of the ellipse.
template <class Call> Row measured(const char *name, Call call, int cost = 1) {
    return {name,
            [call](Inputs &in, Record &record) {
                Ellipse e(in);
                ca_Simpson_getParmtbl()[0] = 0.5 * e.value.a;
                ca_Simpson_getParmtbl()[1] = 0.5 * e.value.b;
                call(in, e, record);
                ca_Simpson_getParmtbl()[0] = ca_Simpson_getParmtbl()[1] = 0.0;
            },
            cost};
}
template <class Integrand> Row integrand(const char *name, Integrand function) {
    return measured(name, [function](Inputs &in, Ellipse &, Record &record) {
        double value = kUntouched;
        record.integer(function(in.angle(), &value));
        record.number(value);
    });
}

/// Of ellipses that are not so flat that arcs of the chain are nearly lines, whose centres and
/// radii no double holds well.
void chained(Inputs &in, Record &record) {
    const Ellipse e(in);
    const DTPOINT center = {e.value.cx, e.value.cy};
    const double angles[2] = {e.value.start, e.value.end};
    const double b = e.value.a * in.uniform(0.2, 1.0), tolerance = b * in.uniform(1e-3, 1e-2);
    OutPoints<40> centers(in);
    OutNumbers<40> radii(in);
    OutNumbers<80> ranges(in);
    std::uint16_t count = 40;
    record.integer(ca_elip2(&center, e.value.a, b, e.value.rot, angles, tolerance, centers.pass(),
                            radii.pass(), ranges.pass(), &count));
    record.integer(count);
    centers.report(record);
    radii.report(record);
    ranges.report(record);
}

/// All points of a division, as hosts ask for them.
void dividedInTurn(Inputs &in, Record &record) {
    const Ellipse e(in);
    const RisingAngles angles(in);
    const DTPOINT center = {e.value.cx, e.value.cy};
    const auto pieces = static_cast<std::int32_t>(in.whole(1, 9));
    for (std::int32_t k = 1; k <= pieces; ++k) {
        OutPoints<> out(in);
        OutNumbers<> length(in);
        record.integer(a2d_elpdn(&center, e.value.a, e.value.b, e.value.rot, angles.value.data(),
                                 pieces, k, out.pass(), length.pass()));
        out.report(record);
        length.report(record);
    }
}

std::vector<Row> measures() {
    using Radius = OutNumbers<5>;
    return {
        integrand("ca_lengelp", ca_lengelp),
        integrand("ca_AreaElp", ca_AreaElp),
        measured("ca_Simpson",
                 [](Inputs &in, Ellipse &e, Record &record) {
                     double result = kUntouched;
                     record.integer(ca_Simpson(in.whole(0, 1) == 0 ? ca_lengelp : ca_AreaElp,
                                               e.value.start, e.value.end, &result));
                     record.number(result);
                 }),
        measured(
            "ca_Simpson2",
            [](Inputs &in, Ellipse &e, Record &record) {
                const double wanted = e.value.a * in.uniform(0.1, 2.0);
                const auto which = static_cast<std::int32_t>(in.whole(0, 1));
                record.integer(
                    ca_Simpson2(ca_lengelp, &e.value.start, &e.value.end, wanted, which));
                e.report(record);
            },
            50),
        measured("ca_ElpLen",
                 [](Inputs &, Ellipse &e, Record &record) {
                     double length = kUntouched;
                     record.integer(ca_ElpLen(&e.value, &length));
                     record.number(length);
                 }),
        measured(
            "ca_ElpLen2",
            [](Inputs &in, Ellipse &e, Record &record) {
                const double wanted = e.value.a * in.uniform(0.1, 2.0);
                const auto which = static_cast<std::int32_t>(in.whole(0, 1));
                record.integer(ca_ElpLen2(&e.value, wanted, which));
                e.report(record);
            },
            50),
        row<Point, Length, Length, AnglesInRadians, Radians, OutPoints<5>, Radius, OutNumbers<10>,
            OutWhole<std::uint32_t>>("ca_elips", ca_elips),
        row<Point, Length, Length, Angle, Angles, OutPoints<5>, Radius, OutNumbers<10>, OutCount>(
            "ca_elip1", ca_elip1),
        {"ca_elip2", chained},
        {"a2d_elpdn", dividedInTurn, 100},
        row<Point, Length, Length, Angle, RisingAngles, Whole<std::int32_t, 5, 6>,
            Whole<std::int32_t, 1, 5>, OutPoints<>, OutNumbers<>>("ca_elpdn", ca_elpdn),
    };
}

void repeatedPoints(Inputs &in, Record &record) {
    std::array<DTPOINT, 4> points = {in.point(), in.point(), in.point(), in.point()};
    points[2] = {points[0].x + 1e-3 * in.uniform(-1.0, 1.0), points[0].y};
    if (in.whole(0, 1) == 0) points[3] = points[1];
    const Pair center(in);
    OutPoints<4> out(in);
    const double rot = in.angle(), a = in.length(), b = in.length();
    record.integer(a2d_chk_distdeg(points.data(), 4, center.value.data(), rot, a, b, out.pass()));
    out.report(record);
}

/// Half axes, the first not the shorter.
void circleAndStandardEllipse(Inputs &in, Record &record) {
    const LongEllipse e(in);
    OutPoints<4> out(in);
    const double r = in.length();
    record.integer(
        a2dIntersectionEC(e.value.cx, e.value.cy, 0.5 * e.value.a, 0.5 * e.value.b, r, out.pass()));
    out.report(record);
}

std::vector<Row> ellipseIntersections() {
    using Out = OutPoints<>;
    using Count = OutWhole<std::int16_t>;
    struct Tolerance : Plain<double> {
        explicit Tolerance(Inputs &) { value = 1e-6; }
    };
    return {
        row<Point, Point, Point, Length, Length, Angle, Out, Out, OutWhole<std::uint32_t>,
            Tolerance>("a2d_CrsLE", a2d_CrsLE),
        row<Point, Point, Point, Length, Length, Angle, Out, Out, OutCount>("a2d_insle", a2d_insle),
        row<Point, Point, Point, Length, Length, Angle, Out, Out, OutCount>("ca_insle", ca_insle),
        row<Point, Point, Point, Length, Length, Angle, Out, Out, OutCount>("a2d_insle2",
                                                                            a2d_insle2),
        row<Point, Point, Point, Length, Length, Angle, Angles, Out, Out, OutCount>("a2d_insl1",
                                                                                    a2d_insl1),
        row<Point, Point, Length, Length, Out, Out, OutCount>("a2d_insLStandardE",
                                                              a2d_insLStandardE),
        row<Point, Point, Length, Length, Out>("a2d_IsElpTangentLine", a2d_IsElpTangentLine),
        {"a2d_InsDe", sameEllipse},
        {"a2dIntersectionEC", circleAndStandardEllipse},
        row<Pair, Length, Angles, Pair, Length, Length, Angle, Angles, Out, Out, Out, Out, Count>(
            "a2d_insce", a2d_insce),
        row<Pair, Length, Angles, Pair, Length, Length, Angle, Angles, Out, Out, Out, Out, Count>(
            "ca_insce", ca_insce),
        row<Pair, Pair, Length, Length, Length, Length, Angle, Angle, Angles, Angles, Out, Out, Out,
            Out, Count>("a2d_ins2e", a2d_ins2e),
        row<Pair, Pair, Length, Length, Length, Length, Angle, Angle, Angles, Angles, Out, Out, Out,
            Out, Count>("ca_ins2e", ca_ins2e),
        {"a2d_chk_distdeg", repeatedPoints},
    };
}

std::vector<Row> ellipseDistances() {
    using Out = OutPoints<>;
    using Count = OutWhole<std::uint32_t>;
    return {
        row<Point, LongEllipse, OutPoints<2>, OutNumbers<>>("a2dEllpsPer", a2dEllpsPer),
        row<Point, LongEllipse, OutPoints<4>>("a2dEllpsPerPnts", a2dEllpsPerPnts),
        row<Point, LongEllipse, OutPoints<4>>("a2dEllpsArcPerPnts", a2dEllpsArcPerPnts),
        row<Point, Ellipse, OutPoints<4>, Count>("a2d_PerEP", a2d_PerEP),
        row<Point, Ellipse, OutPoints<4>, Count>("a2d_PerEP2", a2d_PerEP2),
        row<Point, Ellipse, Out>("a2d_perle", a2d_perle),
        row<Point, Point, Length, Length, Angle, Out, Out>("ca_inspe", ca_inspe),
        row<Point, Point, Length, Length, Angle, Out, Out>("a2d_tchpe", a2d_tchpe),
        row<Point, Point, Length, Length, Length, Length, Angle, Angle, Out, Out, Out, Out, Out,
            Out, Out, Out, OutCount>("a2d_tch2e", a2d_tch2e),
        row<Point, Ellipse>("a2d_distpe", a2d_distpe),
        onCurveRow("a2d_distpe/curve", [](const DTELLIPSE &e, DTPOINT, const double *,
                                          DTPOINT p) { return a2d_distpe(&p, &e); }),
        row<Point, Length, Length, Angle, Angles, Point, Out>("ca_dstpp", ca_dstpp),
        row<Point, Length, Length, Angle, Angles, Point>("ca_dstpe", ca_dstpe),
        row<Point, Length, Length, Angle, Angles, Point, Out>("a2d_dstpp", a2d_dstpp),
        row<Point, Length, Length, Angle, Angles, Point>("a2d_dstpe", a2d_dstpe),
    };
}

} // namespace

std::vector<Row> allRows() {
    std::vector<Row> rows;
    for (const auto &part : {mathematics(), base(), lines(), circles(), solvers(), ellipses(),
                             measures(), ellipseIntersections(), ellipseDistances()}) {
        rows.insert(rows.end(), part.begin(), part.end());
    }
    return rows;
}

} // namespace agreement
