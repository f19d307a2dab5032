// A drawing and results on it as a picture.
#pragma once

#include <string>
#include <vector>

#include "drawing.h"
#include "svg_marks.h"

namespace draft {

/// One kind of result: its points and shapes get one colour and one line of the legend.
struct ResultLayer {
    ResultKind kind;
    std::string name; ///< with its count: "31 crossings"
    std::vector<DTPOINT> points;
    std::vector<Shape> shapes;
};

std::string svgOf(const Drawing &drawing, const std::vector<ResultLayer> &results);
/// The part of it within a view.
std::string svgOf(const Drawing &drawing, const std::vector<ResultLayer> &results, const Box &view);

} // namespace draft
