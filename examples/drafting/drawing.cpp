#include "drawing.h"

#include <algorithm>
#include <array>

#include "text.h"

namespace draft {

namespace {

constexpr double kFullTurnDeg = 360.0;

struct EndsOf {
    Ends operator()(const DTLINE &line) const {
        return {{DTPOINT{line.x1, line.y1}, DTPOINT{line.x2, line.y2}}, 2};
    }
    template <typename Curve> Ends operator()(const Curve &curve) const {
        if (isClosed(curve)) return {};
        return {{pointAt(curve, curve.start), pointAt(curve, curve.end)}, 2};
    }
};

struct KindOf {
    Kind operator()(const DTLINE & /*line*/) const { return Kind::line; }
    Kind operator()(const DTARC &arc) const { return isClosed(arc) ? Kind::circle : Kind::arc; }
    Kind operator()(const DTELLIPSE &e) const {
        return isClosed(e) ? Kind::ellipse : Kind::ellipticArc;
    }
};

struct ExtentsOf {
    Box operator()(const DTLINE &line) const {
        Box box;
        box.widen({line.x1, line.y1});
        box.widen({line.x2, line.y2});
        return box;
    }
    Box operator()(const DTARC &arc) const {
        const DTPOINT center = {arc.cx, arc.cy};
        DTPOINT upper;
        DTPOINT lower;
        ca_arcXY(&center, arc.r, arc.start, arc.end, &upper, &lower);
        return {lower.x, lower.y, upper.x, upper.y};
    }
    /// ca_elamn() may leave out an end of the arc, so the box is made here: of the ends, and of
    /// the points on the arc whose tangents are upright or level.
    Box operator()(const DTELLIPSE &e) const {
        const DTPOINT center = {e.cx, e.cy};
        Box box;
        box.widen(pointAt(e, e.start));
        box.widen(pointAt(e, e.end));
        for (const double direction : {0.0, 90.0}) {
            std::array<DTPOINT, 2> extremes{};
            ca_elaln(&center, e.a, e.b, e.rot, direction, &extremes[0], &extremes[1]);
            for (const DTPOINT extreme : extremes)
                if (CheckEllipseArcAngle(&e, &extreme) == 0) box.widen(extreme);
        }
        return box;
    }
};

} // namespace

bool isClosed(const DTARC &arc) { return arc.end - arc.start == kFullTurnDeg; }
bool isClosed(const DTELLIPSE &ellipse) { return ellipse.end - ellipse.start == kFullTurnDeg; }

DTPOINT pointAt(const DTARC &arc, double deg) {
    return {arc.cx + arc.r * cosd(deg), arc.cy + arc.r * sind(deg)};
}

DTPOINT pointAt(const DTELLIPSE &ellipse, double deg) {
    const DTPOINT center = {ellipse.cx, ellipse.cy};
    const DTPOINT local = {ellipse.a / 2.0 * cosd(deg), ellipse.b / 2.0 * sind(deg)};
    DTPOINT point;
    pnt_formd(&local, &center, ellipse.rot, &point);
    return point;
}

Ends endsOf(const Shape &shape) { return std::visit(EndsOf{}, shape); }

bool isTogether(DTPOINT p, DTPOINT q) { return ca_dstpt(&p, &q) < ca_geterrdist(); }

Kind kindOf(const Shape &shape) { return std::visit(KindOf{}, shape); }

const char *nameOf(Kind kind) {
    switch (kind) {
    case Kind::line:
        return "line";
    case Kind::circle:
        return "circle";
    case Kind::arc:
        return "arc";
    case Kind::ellipse:
        return "ellipse";
    case Kind::ellipticArc:
        return "elliptic arc";
    }
    return "";
}

void Box::widen(DTPOINT p) { join(Box{p.x, p.y, p.x, p.y}); }

void Box::join(const Box &other) {
    if (other.empty()) return;
    if (empty()) {
        *this = other;
        return;
    }
    minX = std::min(minX, other.minX);
    minY = std::min(minY, other.minY);
    maxX = std::max(maxX, other.maxX);
    maxY = std::max(maxY, other.maxY);
}

bool areNear(const Box &a, const Box &b, double distance) {
    return a.minX <= b.maxX + distance && b.minX <= a.maxX + distance &&
           a.minY <= b.maxY + distance && b.minY <= a.maxY + distance;
}

Box extentsOf(const Shape &shape) { return std::visit(ExtentsOf{}, shape); }

Box extentsOf(const Drawing &drawing) {
    Box box;
    for (const Entity &entity : drawing.entities)
        box.join(extentsOf(entity.shape));
    return box;
}

std::string inventory(const Drawing &drawing) {
    std::array<std::size_t, kKindCount> counts{};
    for (const Entity &entity : drawing.entities)
        ++counts[static_cast<std::size_t>(kindOf(entity.shape))];
    std::string text;
    for (std::size_t i = 0; i < kKindCount; ++i) {
        if (counts[i] == 0) continue;
        if (!text.empty()) text += ", ";
        text += countedAs(counts[i], nameOf(static_cast<Kind>(i)));
    }
    return text.empty() ? "nothing that can be drawn" : text;
}

} // namespace draft
