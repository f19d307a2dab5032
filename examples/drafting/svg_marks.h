// How results look on a picture, and the legend that tells them apart.
#pragma once

#include <string>

namespace draft {

enum class ResultKind {
    crossing,
    joint,
    overlap,
    tangent,
    division,
    removed,
    pointer,
    end,
    middle,
    center,
    quadrant,
    intersection,
    perpendicular,
    touch,
    nearest
};

/// Whether its points have a mark of their own, not a dot.
bool hasMark(ResultKind kind);
std::string colorOf(ResultKind kind);
/// Of the strokes of a result's shapes: a style of its own, if it has one.
std::string dashesOf(ResultKind kind);
/// The mark of a point on the page; of a dot the radius counts, other marks have their size.
std::string markOf(ResultKind kind, double x, double y, double radius);

/// Places the keys of the legend one after the other, in rows of a width.
class Legend {
  public:
    Legend(double x, double y, double width) : left_(x), right_(x + width), x_(x), y_(y) {}

    void addLine(const std::string &attributes, const std::string &text);
    void addMark(ResultKind kind, const std::string &text);
    void startRow();

    const std::string &text() const { return text_; }
    /// Where the next row would stand.
    double bottom() const { return y_ + kRow; }

    static constexpr double kRow = 22.0;

  private:
    void add(const std::string &swatch, const std::string &text);

    double left_, right_, x_, y_;
    std::string text_;
};

} // namespace draft
