#include "svg_page.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

#include "text.h"

namespace draft {

namespace {

constexpr double kWidest = 1040.0;
constexpr double kTallest = 780.0;
constexpr double kNarrowest = 520.0; ///< leaves room for the legend
constexpr double kLowest = 160.0;
/// Room around the drawing, as a share of its larger side.
constexpr double kPadding = 0.04;

/// The largest of 1, 2, 5, 10, ... that is not above a length.
double roundBelow(double length) {
    const double power = std::pow(10.0, std::floor(std::log10(length)));
    for (const double digit : {5.0, 2.0}) {
        if (digit * power <= length) return digit * power;
    }
    return power;
}

int decimalsOfStep(double step) {
    return std::clamp(-static_cast<int>(std::floor(std::log10(step) + 1e-9)), 0, 12);
}

/// Bytes of the UTF-8 sequence at a place, or 0 when there is none.
std::size_t sequenceLength(const std::string &text, std::size_t at) {
    const auto byte = [&](std::size_t i) {
        return i < text.size() ? static_cast<std::uint8_t>(text[i]) : std::uint8_t{0};
    };
    const std::uint8_t lead = byte(at);
    const std::size_t length = lead < 0x80                   ? 1
                               : lead >= 0xC2 && lead < 0xE0 ? 2
                               : lead >= 0xE0 && lead < 0xF0 ? 3
                               : lead >= 0xF0 && lead < 0xF5 ? 4
                                                             : 0;
    for (std::size_t i = 1; i < length; ++i)
        if ((byte(at + i) & 0xC0) != 0x80) return 0;
    return length;
}

std::string tick(double x, double y, const char *anchor, const std::string &text) {
    return "<text class=\"tick\" x=\"" + pixels(x) + "\" y=\"" + pixels(y) + "\" text-anchor=\"" +
           anchor + "\">" + text + "</text>\n";
}

std::string line(double x1, double y1, double x2, double y2) {
    return "M" + pixels(x1) + " " + pixels(y1) + "L" + pixels(x2) + " " + pixels(y2);
}

} // namespace

std::string pixels(double value) {
    std::string text = fixed(value, 3);
    text.erase(text.find_last_not_of('0') + 1);
    if (text.back() == '.') text.pop_back();
    return text;
}

std::string xmlText(const std::string &text) {
    std::string out;
    for (std::size_t i = 0; i < text.size();) {
        const std::size_t length = sequenceLength(text, i);
        const char c = text[i];
        if (length > 1) {
            out += text.substr(i, length);
        } else if (length == 0 || static_cast<unsigned char>(c) < ' ') {
            out += '?';
        } else if (c == '&' || c == '<' || c == '>' || c == '"') {
            out += c == '&' ? "&amp;" : c == '<' ? "&lt;" : c == '>' ? "&gt;" : "&quot;";
        } else {
            out += c;
        }
        i += std::max<std::size_t>(length, 1);
    }
    return out;
}

Page::Page(const Box &extents) {
    double width = extents.width();
    double height = extents.height();
    const double larger = std::max(width, height);
    const double padding = larger > 0.0 ? kPadding * larger : 1.0;
    width += 2.0 * padding;
    height += 2.0 * padding;
    scale_ = std::min(kWidest / width, kTallest / height);
    areaWidth_ = std::max(width * scale_, kNarrowest);
    areaHeight_ = std::max(height * scale_, kLowest);
    const double centerX = extents.empty() ? 0.0 : (extents.minX + extents.maxX) / 2.0;
    const double centerY = extents.empty() ? 0.0 : (extents.minY + extents.maxY) / 2.0;
    originX_ = centerX - areaWidth_ / scale_ / 2.0;
    originY_ = centerY - areaHeight_ / scale_ / 2.0;
    makeGrid();
}

/// Values of many digits take more room.
void Page::makeGrid() {
    constexpr double kLeastSpacing = 70.0;
    constexpr double kPerDigit = 6.4;
    constexpr double kBeside = 6.0;
    const double least = kLeastSpacing / scale_;
    step_ = roundBelow(least);
    while (step_ < least)
        step_ *= 2.0;
    step_ = roundBelow(step_);
    decimals_ = decimalsOfStep(step_);
    const auto widthOf = [&](double value) {
        return kPerDigit * static_cast<double>(fixed(value, decimals_).size());
    };
    const double top = originY_ + areaHeight_ / scale_;
    tickRoom_ = std::max({tickRoom_, widthOf(originY_) + kBeside - kMargin / 2.0,
                          widthOf(top) + kBeside - kMargin / 2.0});
    const double end = originX_ + areaWidth_ / scale_;
    const double widest = std::max(widthOf(originX_), widthOf(end)) + kBeside;
    valueEvery_ = static_cast<int>(std::ceil(widest / (step_ * scale_)));
}

std::string Page::grid() const {
    std::string lines;
    std::string ticks;
    const auto first = [&](double origin) { return std::ceil(origin / step_); };
    for (int i = 0; x((first(originX_) + i) * step_) <= right(); ++i) {
        const double value = (first(originX_) + i) * step_;
        lines += line(x(value), top(), x(value), bottom());
        if (i % valueEvery_ == 0)
            ticks += tick(x(value), bottom() + 14.0, "middle", fixed(value, decimals_));
    }
    for (int i = 0; y((first(originY_) + i) * step_) >= top(); ++i) {
        const double value = (first(originY_) + i) * step_;
        lines += line(left(), y(value), right(), y(value));
        ticks += tick(left() - 6.0, y(value) + 3.5, "end", fixed(value, decimals_));
    }
    return "<path class=\"grid\" d=\"" + lines + "\"/>\n" + ticks;
}

std::string Page::scaleBar(double atY) const {
    constexpr double kLongest = 180.0;
    constexpr double kTick = 5.0;
    const double length = roundBelow(kLongest / scale_);
    const double from = right() - length * scale_;
    const std::string bar = line(from, atY - kTick, from, atY + kTick) +
                            line(from, atY, right(), atY) +
                            line(right(), atY - kTick, right(), atY + kTick);
    return "<path class=\"bar\" d=\"" + bar + "\"/>\n" +
           tick((from + right()) / 2.0, atY - 6.0, "middle",
                fixed(length, decimalsOfStep(length)) + " units");
}

} // namespace draft
