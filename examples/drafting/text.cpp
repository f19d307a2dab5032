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

void Table::print(std::ostream &out, std::size_t rows,
                  const std::function<Row(std::size_t)> &row) const {
    Row heads;
    for (const Column &column : columns_)
        heads.push_back(column.head);
    std::vector<std::size_t> widths(columns_.size(), 0);
    const auto widen = [&](const Row &cells) {
        for (std::size_t i = 0; i < cells.size(); ++i)
            widths[i] = std::max(widths[i], cells[i].size());
    };
    const auto print = [&](const Row &cells) {
        std::string line;
        for (std::size_t i = 0; i < cells.size(); ++i) {
            line += "  ";
            appendCell(line, cells[i], widths[i], columns_[i].align);
        }
        line.erase(line.find_last_not_of(' ') + 1);
        out << line << '\n';
    };
    widen(heads);
    for (std::size_t i = 0; i < rows; ++i)
        widen(row(i));
    print(heads);
    for (std::size_t i = 0; i < rows; ++i)
        print(row(i));
}

} // namespace draft
