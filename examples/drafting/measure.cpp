#include "measure.h"

#include <cmath>

namespace draft {

namespace {

constexpr double kRadPerDeg = 0.017453292519943295;

/// The integral of one of the library's integrands over a range of an ellipse.
double integral(PLANEGEO_INTEGRAND integrand, const DTELLIPSE &e) {
    double *table = ca_Simpson_getParmtbl();
    table[0] = e.a / 2.0;
    table[1] = e.b / 2.0;
    double sum = 0.0;
    ca_Simpson(integrand, e.start, e.end, &sum);
    return sum;
}

double lengthOf(const DTARC &arc) { return arc.r * (arc.end - arc.start) * kRadPerDeg; }

struct MeasureOf {
    Measure operator()(const DTLINE &line) const {
        const Ends ends = endsOf(line);
        return {ca_dstpt(&ends.points[0], &ends.points[1]), {}};
    }
    Measure operator()(const DTARC &arc) const {
        Measure measure{lengthOf(arc), {}};
        if (isClosed(arc)) measure.area = measure.length * arc.r / 2.0;
        return measure;
    }
    /// ca_ElpLen() is exact for whole and quarter turns alone; the integral over the parameter
    /// holds for every arc.
    Measure operator()(const DTELLIPSE &e) const {
        Measure measure{integral(ca_lengelp, e), {}};
        if (isClosed(e)) measure.area = integral(ca_AreaElp, e);
        return measure;
    }
};

bool isReversed(std::uint32_t attr) { return (attr & PLANEGEO_ATTR_REVERSED) != 0; }

/// What the way along a segment sweeps, seen from a point: the sum over a closed outline is its
/// area, positive when it runs anticlockwise.
struct SweptArea {
    DTPOINT from;

    double operator()(const DTLINE &line) const { return triangle(endsOf(line)); }
    /// The triangle of the chord, and what lies between the chord and the arc.
    double operator()(const DTARC &arc) const {
        const double turn = (arc.end - arc.start) * kRadPerDeg;
        const double cap = arc.r * arc.r * (turn - std::sin(turn)) / 2.0;
        const double area = triangle(endsOf(arc)) + cap;
        return isReversed(arc.attr) ? -area : area;
    }
    double operator()(const DTELLIPSE &e) const {
        const double turn = (e.end - e.start) * kRadPerDeg;
        const double cap = e.a * e.b / 4.0 * (turn - std::sin(turn)) / 2.0;
        const double area = triangle(endsOf(e)) + cap;
        return isReversed(e.attr) ? -area : area;
    }

  private:
    double triangle(const Ends &ends) const {
        const DTPOINT a = {ends.points[0].x - from.x, ends.points[0].y - from.y};
        const DTPOINT b = {ends.points[1].x - from.x, ends.points[1].y - from.y};
        return (a.x * b.y - a.y * b.x) / 2.0;
    }
};

} // namespace

Measure measureOf(const Shape &shape) { return std::visit(MeasureOf{}, shape); }

Measure measureOf(const Drawing &drawing, const Outline &outline) {
    Measure measure{0.0, {}};
    double area = 0.0;
    const SweptArea swept{endsOf(drawing.entities[outline.first].shape).points[0]};
    for (std::size_t i = outline.first; i < outline.first + outline.count; ++i) {
        const Shape &shape = drawing.entities[i].shape;
        measure.length += measureOf(shape).length;
        area += std::visit(swept, shape);
    }
    if (outline.closed) measure.area = std::fabs(area);
    return measure;
}

} // namespace draft
