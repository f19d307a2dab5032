#include "drawing.h"

#include <algorithm>
#include <array>

namespace draft {

namespace {

constexpr double kFullTurnDeg = 360.0;

bool isWholeTurn(double start, double end) { return end - start == kFullTurnDeg; }

struct KindOf {
    Kind operator()(const DTLINE & /*line*/) const { return Kind::line; }
    Kind operator()(const DTARC &arc) const {
        return isWholeTurn(arc.start, arc.end) ? Kind::circle : Kind::arc;
    }
    Kind operator()(const DTELLIPSE &e) const {
        return isWholeTurn(e.start, e.end) ? Kind::ellipse : Kind::ellipticArc;
    }
};

DTPOINT pointOn(const DTARC &arc, double deg) {
    return {arc.cx + arc.r * cosd(deg), arc.cy + arc.r * sind(deg)};
}

struct ExtentsOf {
    Box operator()(const DTLINE &line) const {
        Box box;
        box.widen({line.x1, line.y1});
        box.widen({line.x2, line.y2});
        return box;
    }
    Box operator()(const DTARC &arc) const {
        Box box;
        box.widen(pointOn(arc, arc.start));
        box.widen(pointOn(arc, arc.end));
        for (const double quadrant : {0.0, 90.0, 180.0, 270.0}) {
            if (a2d_ChkDegr(arc.start, arc.end, quadrant) == 0) box.widen(pointOn(arc, quadrant));
        }
        return box;
    }
    /// Of the whole ellipse, also for an arc.
    Box operator()(const DTELLIPSE &e) const {
        const double c = cosd(e.rot);
        const double s = sind(e.rot);
        const DTPOINT origin = {0.0, 0.0};
        const DTPOINT acrossX = {e.a / 2.0 * c, e.b / 2.0 * s};
        const DTPOINT acrossY = {e.a / 2.0 * s, e.b / 2.0 * c};
        const double halfWidth = ca_dstpt(&origin, &acrossX);
        const double halfHeight = ca_dstpt(&origin, &acrossY);
        return {e.cx - halfWidth, e.cy - halfHeight, e.cx + halfWidth, e.cy + halfHeight};
    }
};

} // namespace

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

std::string counted(std::size_t count, Kind kind) {
    return std::to_string(count) + " " + nameOf(kind) + (count == 1 ? "" : "s");
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
        text += counted(counts[i], static_cast<Kind>(i));
    }
    return text.empty() ? "nothing that can be drawn" : text;
}

} // namespace draft
