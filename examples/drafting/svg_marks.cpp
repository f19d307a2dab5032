#include "svg_marks.h"

#include <array>

#include "svg_page.h"

namespace draft {

namespace {

struct Look {
    const char *color;
    const char *outline; ///< of the mark, around its point; none for a dot
    const char *dashes;  ///< of its shapes
};

/// The marks of snap points are those that draughtsmen know from their programs.
constexpr std::array<Look, 15> kLooks = {{
    {"#d64545", nullptr, nullptr},                                   // crossing
    {"#9aa5b1", nullptr, nullptr},                                   // joint
    {"#8719e0", nullptr, nullptr},                                   // overlap
    {"#e07b00", nullptr, nullptr},                                   // tangent
    {"#c2258c", nullptr, nullptr},                                   // division
    {"#d64545", nullptr, "5 4"},                                     // removed
    {"#616e7c", "M-9 0h18M0-9v18", "2 4"},                           // pointer
    {"#1f8f3a", "M-5-5h10v10h-10z", nullptr},                        // end
    {"#1f8f3a", "M-6 5h12L0-6z", nullptr},                           // middle
    {"#1f8f3a", "M-5 0a5 5 0 1 0 10 0a5 5 0 1 0-10 0", nullptr},     // centre
    {"#1f8f3a", "M0-6.5L6.5 0L0 6.5L-6.5 0z", nullptr},              // quadrant
    {"#d64545", "M-7-7L7 7M-7 7L7-7", nullptr},                      // intersection
    {"#e07b00", "M-5-6v11h11M-5-1h6v6", "3 3"},                      // perpendicular
    {"#e07b00", "M-4 1a4 4 0 1 0 8 0a4 4 0 1 0-8 0M-7-4h14", "3 3"}, // touch
    {"#0b69a3", "M-5-6h10L-5 6h10z", nullptr},                       // nearest
}};

const Look &lookOf(ResultKind kind) { return kLooks[static_cast<std::size_t>(kind)]; }

} // namespace

bool hasMark(ResultKind kind) { return lookOf(kind).outline != nullptr; }

std::string colorOf(ResultKind kind) { return lookOf(kind).color; }

std::string dashesOf(ResultKind kind) {
    const char *dashes = lookOf(kind).dashes;
    return dashes == nullptr ? "" : std::string(" stroke-dasharray=\"") + dashes + "\"";
}

std::string markOf(ResultKind kind, double x, double y, double radius) {
    const Look &look = lookOf(kind);
    if (!hasMark(kind)) {
        return "<circle class=\"point\" fill=\"" + std::string(look.color) + "\" cx=\"" +
               pixels(x) + "\" cy=\"" + pixels(y) + "\" r=\"" + pixels(radius) + "\"/>\n";
    }
    const std::string path =
        "transform=\"translate(" + pixels(x) + " " + pixels(y) + ")\" d=\"" + look.outline + "\"/>";
    return "<path class=\"halo\" " + path + "<path class=\"mark\" stroke=\"" + look.color + "\" " +
           path + "\n";
}

void Legend::addLine(const std::string &attributes, const std::string &text) {
    add("<path " + attributes + " d=\"M0 0h22\"/>", text);
}

void Legend::addMark(ResultKind kind, const std::string &text) {
    constexpr double kHalfSwatch = 11.0;
    constexpr double kRadius = 4.0;
    add(markOf(kind, kHalfSwatch, 0.0, kRadius), text);
}

void Legend::add(const std::string &swatch, const std::string &text) {
    constexpr double kSwatch = 29.0;
    constexpr double kPerCharacter = 6.8; // a little more than the widest of usual fonts
    constexpr double kGap = 20.0;
    constexpr double kBaseline = 4.0;
    const double width = kSwatch + kPerCharacter * static_cast<double>(text.size());
    if (x_ + width > right_) startRow();
    text_ += "<g transform=\"translate(" + pixels(x_) + " " + pixels(y_) + ")\">" + swatch +
             "<text class=\"key\" x=\"" + pixels(kSwatch) + "\" y=\"" + pixels(kBaseline) + "\">" +
             xmlText(text) + "</text></g>\n";
    x_ += width + kGap;
}

void Legend::startRow() {
    if (x_ == left_) return;
    x_ = left_;
    y_ += kRow;
}

} // namespace draft
