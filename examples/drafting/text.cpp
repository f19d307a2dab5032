#include "text.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>

namespace draft {

namespace {

constexpr int kShownDigits = 8;
constexpr int kMostDecimals = 12;

void appendCell(std::string &line, const std::string &cell, std::size_t width, Table::Align align) {
    const std::string blanks(width - std::min(width, cell.size()), ' ');
    line += align == Table::Align::right ? blanks + cell : cell + blanks;
}

} // namespace

std::string fixed(double value, int decimals) {
    std::array<char, 400> buffer{};
    std::snprintf(buffer.data(), buffer.size(), "%.*f", decimals, value);
    std::string text = buffer.data();
    const bool isZero = text.find_first_of("123456789") == std::string::npos;
    if (isZero && text.front() == '-') text.erase(0, 1);
    return text;
}

std::string countedAs(std::size_t count, const std::string &name) {
    return std::to_string(count) + " " + name + (count == 1 ? "" : "s");
}

int decimalsFor(const Box &extents) {
    const double size = std::max(extents.width(), extents.height());
    if (!(size > 0.0)) return kShownDigits / 2;
    const int wholeDigits = static_cast<int>(std::floor(std::log10(size))) + 1;
    return std::clamp(kShownDigits - wholeDigits, 0, kMostDecimals);
}

std::string label(const Drawing &drawing, std::size_t index) {
    return std::string(nameOf(kindOf(drawing.entities[index].shape))) + " #" +
           std::to_string(index + 1);
}

std::string Table::text() const {
    std::vector<std::size_t> widths;
    std::vector<std::string> heads;
    for (std::size_t i = 0; i < columns_.size(); ++i) {
        std::size_t width = columns_[i].head.size();
        for (const auto &row : rows_)
            width = std::max(width, row[i].size());
        widths.push_back(width);
        heads.push_back(columns_[i].head);
    }
    std::string text;
    const auto addLine = [&](const std::vector<std::string> &cells) {
        std::string line;
        for (std::size_t i = 0; i < cells.size(); ++i) {
            line += "  ";
            appendCell(line, cells[i], widths[i], columns_[i].align);
        }
        line.erase(line.find_last_not_of(' ') + 1);
        text += line + '\n';
    };
    addLine(heads);
    for (const auto &row : rows_)
        addLine(row);
    return text;
}

} // namespace draft
