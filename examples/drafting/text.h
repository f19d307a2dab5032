// Numbers and tables for people.
#pragma once

#include <string>
#include <vector>

#include "drawing.h"

namespace draft {

/// A number with so many decimals; a zero has no sign.
std::string fixed(double value, int decimals);

/// "1 crossing", "2 crossings".
std::string countedAs(std::size_t count, const std::string &name);

/// Decimals that show eight digits of a drawing's size.
int decimalsFor(const Box &extents);

/// "arc #12": how people are told of an entity.
std::string label(const Drawing &drawing, std::size_t index);

/// Columns as wide as their longest cell.
class Table {
  public:
    enum class Align { left, right };
    struct Column {
        std::string head;
        Align align;
    };

    explicit Table(std::vector<Column> columns) : columns_(std::move(columns)) {}
    void add(std::vector<std::string> cells) { rows_.push_back(std::move(cells)); }
    std::string text() const;

  private:
    std::vector<Column> columns_;
    std::vector<std::vector<std::string>> rows_;
};

} // namespace draft
