// From a picture to its SVG: scale, places of the labels, colours.

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <limits>

#include "picture.h"

namespace pictures {

namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kWidth = 480.0;
constexpr double kMargin = 26.0;
constexpr double kLeastHeight = 150.0, kMostHeight = 290.0;
constexpr double kGraphHeight = 210.0;
constexpr double kTickRoom = 30.0;
constexpr double kFontSize = 13.0;
constexpr double kLetterWidth = 7.6; ///< of a wide font, on average
constexpr double kRow = 20.0;

/// Colours for both backgrounds; a viewer that knows no preference takes the light ones.
constexpr const char *kStyle = R"(<style>
svg { --paper: #ffffff; --edge: #d8dee4; --given: #1f5fa8; --found: #c2410c; --aid: #86909c; }
@media (prefers-color-scheme: dark) {
svg { --paper: #161b22; --edge: #30363d; --given: #79b8ff; --found: #ff9d5c; --aid: #7d8590; } }
.paper { fill: #ffffff; fill: var(--paper); stroke: #d8dee4; stroke: var(--edge); }
text { font: 13px "DejaVu Sans", "Segoe UI", "Helvetica Neue", Arial, sans-serif;
stroke: #ffffff; stroke: var(--paper); stroke-width: 3.5; stroke-linejoin: round;
paint-order: stroke; }
path { fill: none; stroke-linecap: round; stroke-linejoin: round; }
.given { stroke: #1f5fa8; stroke: var(--given); stroke-width: 1.6; }
.found { stroke: #c2410c; stroke: var(--found); stroke-width: 2.4; }
.aid { stroke: #86909c; stroke: var(--aid); stroke-width: 1; }
.dashed { stroke-dasharray: 5 4; }
.givenDot { fill: #1f5fa8; fill: var(--given); }
.foundDot { fill: #c2410c; fill: var(--found); }
.aidDot { fill: #86909c; fill: var(--aid); }
.small { font-size: 11px; }
</style>
)";

const char *nameOf(Role role) {
    switch (role) {
    case Role::given:
        return "given";
    case Role::found:
        return "found";
    case Role::aid:
        return "aid";
    }
    return "";
}

std::string pixels(double value) {
    char text[32];
    std::snprintf(text, sizeof text, "%.1f", value);
    return text;
}

std::string escaped(const std::string &words) {
    std::string text;
    for (const char c : words) {
        if (c == '&') {
            text += "&amp;";
        } else if (c == '<') {
            text += "&lt;";
        } else {
            text += c;
        }
    }
    return text;
}

struct Box {
    double left, top, right, bottom;

    bool holds(DTPOINT p) const {
        return p.x >= left && p.x <= right && p.y >= top && p.y <= bottom;
    }
    bool meets(const Box &other) const {
        return left < other.right && other.left < right && top < other.bottom && other.top < bottom;
    }
};

/// Letters, not bytes, of UTF-8.
double widthOf(const std::string &words) {
    const auto letters =
        std::count_if(words.begin(), words.end(), [](char c) { return (c & 0xC0) != 0x80; });
    return kLetterWidth * static_cast<double>(letters);
}

std::string drawnText(DTPOINT at, const std::string &words, const std::string &style) {
    return "<text class=\"" + style + "\" x=\"" + pixels(at.x) + "\" y=\"" + pixels(at.y) + "\">" +
           escaped(words) + "</text>\n";
}

std::string drawnMark(DTPOINT at, Shape shape, double size, const std::string &role) {
    const std::string place =
        "cx=\"" + pixels(at.x) + "\" cy=\"" + pixels(at.y) + "\" r=\"" + pixels(size) + "\"";
    switch (shape) {
    case Shape::dot:
        return "<circle class=\"" + role + "Dot\" " + place + "/>\n";
    case Shape::ring:
        return "<circle class=\"" + role + "\" style=\"stroke-width:1.2;fill:none\" " + place +
               "/>\n";
    case Shape::cross:
        break;
    }
    const std::string x = pixels(at.x - size), y = pixels(at.y - size), d = pixels(2.0 * size);
    return "<path class=\"" + role + "\" style=\"stroke-width:1.2\" d=\"M" + x + " " + y + "l" + d +
           " " + d + "m-" + d + " 0l" + d + " -" + d + "\"/>\n";
}

} // namespace

/// Places one picture on its page, in pixels with y downwards.
class Layout {
  public:
    explicit Layout(const Picture &picture) : picture_(picture) {
        chooseScale();
        for (const auto &stroke : picture.strokes_) {
            addObstacles(stroke);
        }
    }

    std::string svg(const std::string &title);

  private:
    using Path = std::vector<DTPOINT>;

    DTPOINT onPage(DTPOINT p) const { return {originX_ + p.x * scaleX_, originY_ - p.y * scaleY_}; }
    Box area() const { return {2.0, 2.0, kWidth - 2.0, height_ - 2.0}; }

    void chooseScale();
    void fit(DTPOINT low, DTPOINT high);
    Path onPage(const Picture::Stroke &stroke) const;
    void addObstacles(const Picture::Stroke &stroke);
    DTPOINT placeFor(const Picture::Label &label);
    double costOf(const Box &box) const;
    bool isOnGraph(DTPOINT page) const;
    std::string axes() const;
    std::string drawn(const Picture::Stroke &stroke) const;
    std::string footer(double &bottom) const;

    const Picture &picture_;
    double originX_ = 0.0, originY_ = 0.0, scaleX_ = 1.0, scaleY_ = 1.0, height_ = kLeastHeight;
    std::vector<DTPOINT> obstacles_; ///< points of the strokes
    std::vector<Box> labels_;
};

void Layout::chooseScale() {
    if (picture_.isGraph_) {
        const Scale &x = picture_.xScale_, &y = picture_.yScale_;
        scaleX_ = (kWidth - 2.0 * kMargin - kTickRoom) / (x.high - x.low);
        scaleY_ = kGraphHeight / (y.high - y.low);
        originX_ = kMargin + kTickRoom - x.low * scaleX_;
        originY_ = kMargin + y.high * scaleY_;
        height_ = kGraphHeight + 2.0 * kMargin + kTickRoom / 2.0;
        return;
    }
    DTPOINT low{kInfinity, kInfinity}, high{-kInfinity, -kInfinity};
    const auto include = [&](DTPOINT p) {
        low = {std::min(low.x, p.x), std::min(low.y, p.y)};
        high = {std::max(high.x, p.x), std::max(high.y, p.y)};
    };
    for (const auto &stroke : picture_.strokes_) {
        for (const DTPOINT p : stroke.path) {
            include(p);
        }
    }
    for (const auto &mark : picture_.marks_) {
        include(mark.at);
    }
    if (low.x <= high.x) {
        fit(low, high);
    } else {
        height_ = kMargin / 2.0;
    }
}

void Layout::fit(DTPOINT low, DTPOINT high) {
    const double room = kWidth - 2.0 * kMargin;
    const double width = std::max(high.x - low.x, 1e-9), height = std::max(high.y - low.y, 1e-9);
    const double inner = std::clamp(room * height / width, kLeastHeight - 2.0 * kMargin,
                                    kMostHeight - 2.0 * kMargin);
    scaleX_ = scaleY_ = std::min(room / width, inner / height);
    height_ = inner + 2.0 * kMargin;
    originX_ = kWidth / 2.0 - 0.5 * (low.x + high.x) * scaleX_;
    originY_ = height_ / 2.0 + 0.5 * (low.y + high.y) * scaleY_;
}

Layout::Path Layout::onPage(const Picture::Stroke &stroke) const {
    Path path;
    for (const DTPOINT p : stroke.path) {
        path.push_back(onPage(p));
    }
    if (!stroke.infinite) return path;

    // p + t d, cut where it leaves the area.
    const DTPOINT p = path.front(), d = path.back() - path.front();
    const Box page = area();
    double from = -kInfinity, to = kInfinity;
    const auto cut = [&](double origin, double step, double low, double high) {
        if (step == 0.0) return;
        from = std::max(from, std::min((low - origin) / step, (high - origin) / step));
        to = std::min(to, std::max((low - origin) / step, (high - origin) / step));
    };
    cut(p.x, d.x, page.left, page.right);
    cut(p.y, d.y, page.top, page.bottom);
    return {p + from * d, p + to * d};
}

void Layout::addObstacles(const Picture::Stroke &stroke) {
    constexpr double kStep = 4.0;
    const Path path = onPage(stroke);
    for (std::size_t i = 1; i < path.size(); ++i) {
        const DTPOINT d = path[i] - path[i - 1];
        const int steps = std::max(1, static_cast<int>(std::hypot(d.x, d.y) / kStep));
        for (int k = 0; k <= steps; ++k) {
            obstacles_.push_back(path[i - 1] + (1.0 * k / steps) * d);
        }
    }
}

double Layout::costOf(const Box &box) const {
    const Box page = area();
    double cost = 0.0;
    if (box.left < page.left || box.right > page.right || box.top < page.top ||
        box.bottom > page.bottom)
        cost += 1000.0;
    for (const Box &other : labels_) {
        if (box.meets(other)) cost += 300.0;
    }
    for (const auto &mark : picture_.marks_) {
        const DTPOINT p = onPage(mark.at);
        const double r = mark.size + 1.0;
        if (box.meets({p.x - r, p.y - r, p.x + r, p.y + r})) cost += 60.0;
    }
    const Box wide{box.left - 3.0, box.top - 2.0, box.right + 3.0, box.bottom + 2.0};
    for (const DTPOINT p : obstacles_) {
        if (wide.holds(p)) cost += 4.0;
    }
    return cost;
}

DTPOINT Layout::placeFor(const Picture::Label &label) {
    const DTPOINT at = onPage(label.at);
    const double halfWidth = 0.5 * widthOf(label.words), halfHeight = 0.5 * kFontSize;
    if (label.fixed) return {at.x - 0.9 * halfWidth, at.y + 0.7 * halfHeight};
    Box best{};
    double least = kInfinity;
    for (const double gap : {7.0, 13.0, 22.0, 34.0}) {
        for (int direction = 0; direction < 16; ++direction) {
            const DTPOINT ray = polar(1.0, 45.0 + 22.5 * direction);
            const DTPOINT middle{at.x + ray.x * (gap + halfWidth),
                                 at.y - ray.y * (gap + halfHeight)};
            const Box box{middle.x - halfWidth, middle.y - halfHeight, middle.x + halfWidth,
                          middle.y + halfHeight};
            const double cost = costOf(box) + gap + 0.1 * direction;
            if (cost < least) {
                least = cost;
                best = box;
            }
        }
    }
    labels_.push_back(best);
    return {best.left, best.bottom - 2.0};
}

bool Layout::isOnGraph(DTPOINT page) const {
    const DTPOINT low = onPage({picture_.xScale_.low, picture_.yScale_.low});
    const DTPOINT high = onPage({picture_.xScale_.high, picture_.yScale_.high});
    return Box{low.x - 1.0, high.y - 1.0, high.x + 1.0, low.y + 1.0}.holds(page);
}

std::string Layout::axes() const {
    const Scale &x = picture_.xScale_, &y = picture_.yScale_;
    const DTPOINT low = onPage({x.low, y.low}), high = onPage({x.high, y.high});
    std::string out;
    const auto rule = [&](DTPOINT p, DTPOINT q) {
        out += "<path class=\"aid\" style=\"stroke-width:.5\" d=\"M" + pixels(p.x) + " " +
               pixels(p.y) + "L" + pixels(q.x) + " " + pixels(q.y) + "\"/>\n";
    };
    const auto ticks = [](const Scale &scale) {
        return static_cast<int>((scale.high - scale.low) / scale.step + 1e-6);
    };
    for (int i = 0; i <= ticks(x); ++i) {
        const double value = x.low + i * x.step, at = onPage({value, 0.0}).x;
        const std::string words = number(value);
        rule({at, low.y}, {at, high.y});
        out += drawnText({at - 0.42 * widthOf(words), low.y + 15.0}, words, "small aidDot");
    }
    for (int i = 0; i <= ticks(y); ++i) {
        const double value = y.low + i * y.step, at = onPage({0.0, value}).y;
        const std::string words = number(value);
        rule({low.x, at}, {high.x, at});
        out += drawnText({low.x - 6.0 - 0.88 * widthOf(words), at + 4.0}, words, "small aidDot");
    }
    out += drawnText({high.x - widthOf(x.label), low.y + 31.0}, x.label, "aidDot");
    return out + drawnText({low.x - kTickRoom, high.y - 9.0}, y.label, "aidDot");
}

std::string Layout::drawn(const Picture::Stroke &stroke) const {
    const Path path = onPage(stroke);
    const std::string role = nameOf(stroke.role);
    std::string d;
    bool penIsDown = false;
    for (const DTPOINT p : path) {
        const bool isDrawn = std::isfinite(p.x) && std::fabs(p.y) < 5.0 * height_ &&
                             (!picture_.isGraph_ || isOnGraph(p));
        if (isDrawn) d += (penIsDown ? "L" : "M") + pixels(p.x) + " " + pixels(p.y);
        penIsDown = isDrawn;
    }
    std::string out =
        "<path class=\"" + role + (stroke.dashed ? " dashed" : "") + "\" d=\"" + d + "\"/>\n";
    if (stroke.arrow) {
        const DTPOINT tip = path.back(), way = tip - path[path.size() - 2];
        const DTPOINT along = (9.0 / std::hypot(way.x, way.y)) * way;
        const DTPOINT across{-0.4 * along.y, 0.4 * along.x};
        const DTPOINT left = tip - along + across, right = tip - along - across;
        out += "<path class=\"" + role + "Dot\" d=\"M" + pixels(tip.x) + " " + pixels(tip.y) + "L" +
               pixels(left.x) + " " + pixels(left.y) + "L" + pixels(right.x) + " " +
               pixels(right.y) + "Z\"/>\n";
    }
    return out;
}

std::string Layout::footer(double &bottom) const {
    constexpr double kGap = 18.0, kMarkRoom = 14.0;
    std::string out;
    double x = kMargin, y = height_ + 20.0;
    for (const auto &figure : picture_.figures_) {
        const double width = widthOf(figure.words) + (figure.hasMark ? kMarkRoom : 0.0);
        if (x > kMargin && x + width > kWidth - kMargin / 2.0) {
            x = kMargin;
            y += kRow;
        }
        const std::string role = nameOf(figure.role);
        double at = x;
        if (figure.hasMark) {
            out += drawnMark({x + 4.0, y - 4.5}, figure.shape, 3.6, role);
            at += kMarkRoom;
        }
        out += drawnText({at, y}, figure.words, role + "Dot");
        x += width + kGap;
    }
    bottom = picture_.figures_.empty() ? height_ : y + 12.0;
    if (picture_.figures_.empty()) return out;
    return out + "<path class=\"paper\" d=\"M0 " + pixels(height_) + "H" + pixels(kWidth) +
           "\"/>\n";
}

std::string Layout::svg(const std::string &title) {
    std::string body = picture_.isGraph_ ? axes() : "";
    for (const Role role : {Role::aid, Role::given, Role::found}) {
        for (const auto &stroke : picture_.strokes_) {
            if (stroke.role == role) body += drawn(stroke);
        }
    }
    for (const auto &mark : picture_.marks_) {
        body += drawnMark(onPage(mark.at), mark.shape, mark.size, nameOf(mark.role));
    }
    for (const auto &label : picture_.labels_) {
        const DTPOINT at = placeFor(label);
        body += drawnText(at, label.words, std::string(nameOf(label.role)) + "Dot");
    }
    double bottom = 0.0;
    body += footer(bottom);

    const std::string width = pixels(kWidth), height = pixels(bottom);
    return "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" + width + "\" height=\"" + height +
           "\" viewBox=\"0 0 " + width + " " + height + "\">\n<title>" + title + "</title>\n" +
           kStyle + "<rect class=\"paper\" x=\".5\" y=\".5\" width=\"" + pixels(kWidth - 1.0) +
           "\" height=\"" + pixels(bottom - 1.0) + "\" rx=\"6\"/>\n" + body + "</svg>\n";
}

std::string Picture::svg(const std::string &title) const { return Layout(*this).svg(title); }

} // namespace pictures
