#include "divide.h"

#include <array>

#include "failure.h"
#include "measure.h"

namespace draft {

namespace {

struct DivisionOf {
    int pieces;

    Division operator()(const DTLINE &line) const {
        const Ends ends = endsOf(line);
        Division division{measureOf(line).length / pieces, {}};
        for (int k = 1; k < pieces; ++k) {
            DTPOINT point;
            ca_DistAlongbyLineFromSpnt(&ends.points[0], &ends.points[1], division.pieceLength * k,
                                       &point);
            division.points.push_back(point);
        }
        return division;
    }

    Division operator()(const DTARC &arc) const {
        Division division{measureOf(arc).length / pieces, {}};
        const double step = (arc.end - arc.start) / pieces;
        const int last = isClosed(arc) ? pieces : pieces - 1;
        for (int k = 1; k <= last; ++k)
            division.points.push_back(pointAt(arc, arc.start + step * k));
        return division;
    }

    Division operator()(const DTELLIPSE &e) const {
        const DTPOINT center = {e.cx, e.cy};
        const std::array<double, 2> angles = {e.start, e.end};
        Division division{0.0, {}};
        for (int k = 1; k <= pieces; ++k) {
            DTPOINT point;
            const int outcome = a2d_elpdn(&center, e.a, e.b, e.rot, angles.data(), pieces, k,
                                          &point, &division.pieceLength);
            if (outcome != 0)
                throw Failure("an ellipse cannot be divided: its length is unsettled");
            // The call for the last point releases the library's table, so it is made in any case.
            if (k < pieces || isClosed(e)) division.points.push_back(point);
        }
        return division;
    }
};

} // namespace

Division divisionOf(const Shape &shape, int pieces) {
    return std::visit(DivisionOf{pieces}, shape);
}

} // namespace draft
