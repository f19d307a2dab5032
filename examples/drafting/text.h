// Numbers and tables for people.
#pragma once

#include <functional>
#include <ostream>
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

/// Columns as wide as their longest cell. The rows are asked for twice, for their widths and
/// for their text, so that a table of millions of rows needs no memory.
class Table {
  public:
    enum class Align { left, right };
    struct Column {
        std::string head;
        Align align;
    };
    using Row = std::vector<std::string>;

    explicit Table(std::vector<Column> columns) : columns_(std::move(columns)) {}
    void print(std::ostream &out, std::size_t rows,
               const std::function<Row(std::size_t)> &row) const;

  private:
    std::vector<Column> columns_;
};

} // namespace draft
