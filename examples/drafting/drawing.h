// A drawing as the program keeps it: flat entities in the geometry library's own records.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <variant>
#include <vector>

#include "planegeo.h"

namespace draft {

/// A full circle is a DTARC from 0 to 360, a full ellipse a DTELLIPSE from 0 to 360; the range
/// of an arc is normalised as by a2d_StdSedeg(). The attribute word tells whether an arc of a
/// polyline is run through against its direction.
using Shape = std::variant<DTLINE, DTARC, DTELLIPSE>;

enum class Kind { line, circle, arc, ellipse, ellipticArc };
inline constexpr std::size_t kKindCount = 5;

bool isClosed(const DTARC &arc);
bool isClosed(const DTELLIPSE &ellipse);
/// At a direction from the centre, or at a parametric angle.
DTPOINT pointAt(const DTARC &arc, double deg);
DTPOINT pointAt(const DTELLIPSE &ellipse, double deg);

/// The start and the end of a shape; none of a closed one.
struct Ends {
    std::array<DTPOINT, 2> points{};
    std::size_t count = 0;
};
Ends endsOf(const Shape &shape);
/// Closer than errdist.
bool isTogether(DTPOINT p, DTPOINT q);

Kind kindOf(const Shape &shape);
const char *nameOf(Kind kind);

/// The smallest upright rectangle around something; empty until it is widened.
struct Box {
    double minX = 1.0, minY = 1.0, maxX = 0.0, maxY = 0.0;

    bool empty() const { return minX > maxX; }
    double width() const { return empty() ? 0.0 : maxX - minX; }
    double height() const { return empty() ? 0.0 : maxY - minY; }
    void widen(DTPOINT p);
    void join(const Box &other);
};

/// Whether two boxes come within a distance of each other, in x and in y.
bool areNear(const Box &a, const Box &b, double distance);

Box extentsOf(const Shape &shape);

/// No place: of what was not read from a file.
inline constexpr std::uint32_t kNowhere = 0xFFFFFFFF;

struct Entity {
    Shape shape;
    std::uint32_t layer;             ///< index into Drawing::layers
    std::uint32_t source = kNowhere; ///< index into DxfFile::sources
};

struct Layer {
    std::string name;
    int color = 7; ///< index of the usual palette, 1 to 255
};

/// Consecutive entities that were one polyline.
struct Outline {
    std::size_t first, count;
    bool closed;
};

/// How often something was met, by what it is called.
using Tally = std::map<std::string, std::size_t>;

struct Drawing {
    std::string path;
    std::vector<Entity> entities; ///< told to people by their place, counted from 1
    std::vector<Outline> outlines;
    std::vector<Layer> layers;
    Tally leftOut;    ///< what the file holds and the drawing does not
    Tally simplified; ///< what the drawing holds in a simpler form than the file
};

Box extentsOf(const Drawing &drawing);
/// "12 lines, 3 circles".
std::string inventory(const Drawing &drawing);

} // namespace draft
