// A drawing as the program keeps it: flat entities in the geometry library's own records.
#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <variant>
#include <vector>

#include "planegeo.h"

namespace draft {

/// A full circle is a DTARC from 0 to 360, a full ellipse a DTELLIPSE from 0 to 360; the range
/// of an arc is normalised as by a2d_StdSedeg().
using Shape = std::variant<DTLINE, DTARC, DTELLIPSE>;

enum class Kind { line, circle, arc, ellipse, ellipticArc };
inline constexpr std::size_t kKindCount = 5;

Kind kindOf(const Shape &shape);
const char *nameOf(Kind kind);
/// "1 ellipse", "2 ellipses".
std::string counted(std::size_t count, Kind kind);

/// The smallest upright rectangle around something; empty until it is widened.
struct Box {
    double minX = 1.0, minY = 1.0, maxX = 0.0, maxY = 0.0;

    bool empty() const { return minX > maxX; }
    double width() const { return empty() ? 0.0 : maxX - minX; }
    double height() const { return empty() ? 0.0 : maxY - minY; }
    void widen(DTPOINT p);
    void join(const Box &other);
};

Box extentsOf(const Shape &shape);

struct Entity {
    Shape shape;
    std::uint32_t layer; ///< index into Drawing::layers
};

/// How often something was met, by what it is called.
using Tally = std::map<std::string, std::size_t>;

struct Drawing {
    std::string path;
    std::vector<Entity> entities; ///< told to people by their place, counted from 1
    std::vector<std::string> layers;
    Tally leftOut;    ///< what the file holds and the drawing does not
    Tally simplified; ///< what the drawing holds in a simpler form than the file
};

Box extentsOf(const Drawing &drawing);
/// "12 lines, 3 circles".
std::string inventory(const Drawing &drawing);

} // namespace draft
