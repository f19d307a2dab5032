#include "svg_writer.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <filesystem>

#include "progress.h"
#include "svg_page.h"
#include "text.h"

namespace draft {

namespace {

/// Entities and results have the colours of this sheet, by class.
constexpr const char *kStyle = R"(<style>
text { font-family: "DejaVu Sans", "Helvetica Neue", Arial, sans-serif; fill: #1f2933; }
.title { font-size: 19px; font-weight: bold; }
.note { font-size: 12px; fill: #616e7c; }
.key { font-size: 12.5px; }
.tick { font-size: 10px; fill: #7b8794; }
.paper { fill: #f7f8fa; }
.area { fill: #ffffff; stroke: #cbd2d9; }
.grid { fill: none; stroke: #e9edf1; }
.bar { fill: none; stroke: #3e4c59; stroke-width: 1.5; }
.shape { fill: none; stroke-width: 1.5; stroke-linecap: round; stroke-linejoin: round; }
.lines { stroke: #323f4b; }
.arcs { stroke: #0b69a3; }
.ellipses { stroke: #0c8a6d; }
.result { fill: none; stroke-width: 1.5; }
.point { stroke: #ffffff; stroke-width: 1.2; }
.mark { fill: none; stroke-width: 1.8; }
.halo { fill: none; stroke: #ffffff; stroke-width: 3.6; stroke-opacity: 0.8; }
</style>
)";

enum class Group { lines, arcs, ellipses };
constexpr std::size_t kGroupCount = 3;
constexpr std::array<const char *, kGroupCount> kGroupClass = {"lines", "arcs", "ellipses"};

/// Above this many entities a picture has no names on them, for the viewer's sake.
constexpr std::size_t kMostNamed = 5000;

Group groupOf(Kind kind) {
    switch (kind) {
    case Kind::line:
        return Group::lines;
    case Kind::circle:
    case Kind::arc:
        return Group::arcs;
    default:
        return Group::ellipses;
    }
}

/// The outline of a shape on the page.
class Outline {
  public:
    explicit Outline(const Page &page) : page_(page) {}

    std::string operator()(const DTLINE &line) const {
        return "M" + at({line.x1, line.y1}) + "L" + at({line.x2, line.y2});
    }
    std::string operator()(const DTARC &arc) const { return turn(arc, arc.r, arc.r, 0.0); }
    std::string operator()(const DTELLIPSE &e) const {
        return turn(e, e.a / 2.0, e.b / 2.0, e.rot);
    }

  private:
    std::string at(DTPOINT p) const { return pixels(page_.x(p.x)) + " " + pixels(page_.y(p.y)); }

    /// In pieces of at most a third of a turn, so that no piece's ends fall together and none
    /// could be taken for the rest of its turn.
    template <typename Curve>
    std::string turn(const Curve &curve, double first, double second, double rot) const {
        constexpr double kPiece = 120.0;
        const double span = curve.end - curve.start;
        const int pieces = std::max(1, static_cast<int>(std::ceil(span / kPiece)));
        const std::string radii = "A" + pixels(first * page_.scale()) + " " +
                                  pixels(second * page_.scale()) + " " + pixels(-rot) + " 0 0 ";
        std::string path = "M" + at(pointAt(curve, curve.start));
        for (int i = 1; i <= pieces; ++i)
            path += radii + at(pointAt(curve, curve.start + span * i / pieces));
        return path;
    }

    const Page &page_;
};

std::string element(const std::string &outline, const char *attributes, const std::string &title) {
    std::string text = "<path " + std::string(attributes) + " d=\"" + outline + "\"";
    return text + (title.empty() ? "/>\n" : "><title>" + xmlText(title) + "</title></path>\n");
}

std::string entities(const Drawing &drawing, const Page &page, const Box &view) {
    std::array<std::string, kGroupCount> groups;
    const bool named = drawing.entities.size() <= kMostNamed;
    const Outline outline(page);
    Progress progress("picture", drawing.entities.size());
    for (std::size_t i = 0; i < drawing.entities.size(); ++i) {
        progress.add(1);
        const Entity &entity = drawing.entities[i];
        if (!areNear(extentsOf(entity.shape), view, 0.0)) continue;
        const std::string path = std::visit(outline, entity.shape);
        std::string &group = groups[static_cast<std::size_t>(groupOf(kindOf(entity.shape)))];
        group += named
                     ? element(path, "",
                               label(drawing, i) + " on layer " + drawing.layers[entity.layer].name)
                     : path;
    }
    std::string text;
    for (std::size_t i = 0; i < kGroupCount; ++i) {
        const std::string css = std::string("class=\"shape ") + kGroupClass[i] + "\"";
        if (groups[i].empty()) continue;
        text += named ? "<g " + css + ">\n" + groups[i] + "</g>\n"
                      : element(groups[i], css.c_str(), "");
    }
    return text;
}

double pointRadius(std::size_t count) { return count <= 300 ? 4.0 : count <= 3000 ? 2.5 : 1.5; }

std::string strokeOf(ResultKind kind) {
    return "class=\"result\" stroke=\"" + colorOf(kind) + "\"" + dashesOf(kind);
}

std::string resultLayer(const ResultLayer &layer, const Page &page) {
    std::string text = "<g " + strokeOf(layer.kind) + ">\n";
    for (const Shape &shape : layer.shapes)
        text += element(std::visit(Outline(page), shape), "", "");
    text += "</g>\n";
    const double radius = pointRadius(layer.points.size());
    for (const DTPOINT p : layer.points)
        text += markOf(layer.kind, page.x(p.x), page.y(p.y), radius);
    return text;
}

Legend legendOf(const Drawing &drawing, const std::vector<ResultLayer> &results, const Page &page) {
    constexpr double kBelowTicks = 42.0;
    constexpr double kScaleBarRoom = 210.0;
    constexpr std::array<const char *, kGroupCount> kNames = {"lines", "circles and arcs",
                                                              "ellipses"};
    std::array<std::size_t, kGroupCount> counts{};
    for (const Entity &entity : drawing.entities)
        ++counts[static_cast<std::size_t>(groupOf(kindOf(entity.shape)))];
    Legend legend(page.left(), page.bottom() + kBelowTicks,
                  page.right() - page.left() - kScaleBarRoom);
    for (std::size_t i = 0; i < kGroupCount; ++i) {
        const std::string css = std::string("class=\"shape ") + kGroupClass[i] + "\"";
        if (counts[i] > 0) legend.addLine(css, kNames[i]);
    }
    legend.startRow();
    for (const ResultLayer &layer : results) {
        if (layer.shapes.empty() || hasMark(layer.kind)) {
            legend.addMark(layer.kind, layer.name);
        } else {
            legend.addLine(strokeOf(layer.kind), layer.name);
        }
    }
    return legend;
}

Box extentsOf(const Drawing &drawing, const std::vector<ResultLayer> &results) {
    Box box = draft::extentsOf(drawing);
    for (const ResultLayer &layer : results) {
        for (const DTPOINT point : layer.points)
            box.widen(point);
        for (const Shape &shape : layer.shapes)
            box.join(draft::extentsOf(shape));
    }
    return box;
}

std::string heading(const Drawing &drawing, const Page &page) {
    const std::string name = std::filesystem::path(drawing.path).filename().string();
    const std::string x = pixels(page.left());
    return "<text class=\"title\" x=\"" + x + "\" y=\"32\">" + xmlText(name) + "</text>\n" +
           "<text class=\"note\" x=\"" + x + "\" y=\"51\">" + xmlText(inventory(drawing)) +
           "</text>\n";
}

} // namespace

std::string svgOf(const Drawing &drawing, const std::vector<ResultLayer> &results) {
    return svgOf(drawing, results, extentsOf(drawing, results));
}

std::string svgOf(const Drawing &drawing, const std::vector<ResultLayer> &results,
                  const Box &view) {
    constexpr double kScaleBarDown = 52.0;
    const Page page(view);
    const Legend legend = legendOf(drawing, results, page);
    const std::string width = pixels(page.width());
    const std::string height = pixels(legend.bottom());
    const std::string area = "x=\"" + pixels(page.left()) + "\" y=\"" + pixels(page.top()) +
                             "\" width=\"" + pixels(page.right() - page.left()) + "\" height=\"" +
                             pixels(page.bottom() - page.top()) + "\"";
    std::string svg = "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 " + width + " " +
                      height + "\" width=\"" + width + "\" height=\"" + height + "\">\n";
    svg += kStyle;
    svg += "<clipPath id=\"area\"><rect " + area + "/></clipPath>\n";
    svg += "<rect class=\"paper\" width=\"" + width + "\" height=\"" + height + "\"/>\n";
    svg += "<rect class=\"area\" " + area + "/>\n" + page.grid() + heading(drawing, page);
    svg += "<g clip-path=\"url(#area)\">\n" + entities(drawing, page, page.shown());
    for (const ResultLayer &layer : results)
        svg += resultLayer(layer, page);
    svg += "</g>\n" + legend.text() + page.scaleBar(page.bottom() + kScaleBarDown);
    return svg + "</svg>\n";
}

} // namespace draft
