// The vocabulary of the pictures: points, lines, arcs and figures, given and found.
#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "planegeo.h"

namespace pictures {

DTPOINT operator+(DTPOINT p, DTPOINT q);
DTPOINT operator-(DTPOINT p, DTPOINT q);
DTPOINT operator*(double k, DTPOINT p);
/// The point at a distance and a direction in degrees from the origin.
DTPOINT polar(double distance, double deg);

/// An ellipse as the functions take it that want no record.
struct Ellipse {
    DTPOINT center;
    double a, b, rot; ///< full axes, degrees
    double angles[2]; ///< parametric, degrees

    DTPOINT at(double parameter) const;
    DTELLIPSE record() const;
};

/// What is put into a call, what comes out of it, and what only helps the eye.
enum class Role { given, found, aid };
enum class Shape { dot, ring, cross };

/// The range of a graph and the distance of its ticks along one axis.
struct Scale {
    const char *label;
    double low, high, step;
};

/// One drawing, with a row of figures below. What is drawn after given(), found() or aid()
/// has that role.
class Picture {
  public:
    Picture &given() { return as(Role::given); }
    Picture &found() { return as(Role::found); }
    Picture &aid() { return as(Role::aid); }

    Picture &point(DTPOINT p, const std::string &name = "", Shape shape = Shape::dot);
    /// The first `count` of `points`, each with its name and number where there are several.
    Picture &points(const DTPOINT *points, std::size_t count, const std::string &name);
    /// Beside the point, where there is room.
    Picture &text(DTPOINT at, const std::string &words);
    /// Around the point, whatever is there.
    Picture &textOn(DTPOINT middle, const std::string &words);

    /// Across the whole picture; the names are those of the two points.
    Picture &line(DTPOINT p, DTPOINT q, const std::string &nameP = "",
                  const std::string &nameQ = "");
    Picture &segment(DTPOINT p, DTPOINT q, const std::string &nameP = "",
                     const std::string &nameQ = "");
    Picture &segment(const DTLINE &line);
    /// The name is that of the arrow, beside its middle.
    Picture &arrow(DTPOINT from, DTPOINT to, const std::string &name = "");
    /// A dashed stretch with its length or name.
    Picture &distance(DTPOINT p, DTPOINT q, const std::string &name);
    Picture &box(DTPOINT lower, DTPOINT upper);
    Picture &polyline(const std::vector<DTPOINT> &path);

    Picture &circle(DTPOINT center, double r, const std::string &name = "");
    /// The names are those of the start and the end.
    Picture &arc(DTPOINT center, double r, double start, double end,
                 const std::string &nameStart = "", const std::string &nameEnd = "");
    /// An angle about a point, with an arrow at its end.
    Picture &angle(DTPOINT center, double r, double from, double to, const std::string &name);
    Picture &ellipse(const Ellipse &e, const std::string &name = "");
    Picture &ellipticArc(const Ellipse &e, const std::string &nameStart = "",
                         const std::string &nameEnd = "");

    /// From now on the axes of a graph: x and y have scales of their own.
    Picture &graph(const Scale &x, const Scale &y);
    template <class Function> Picture &curve(double low, double high, Function function) {
        constexpr int kSteps = 1200;
        std::vector<DTPOINT> path;
        for (int i = 0; i <= kSteps; ++i) {
            const double x = low + (high - low) * i / kSteps;
            path.push_back({x, function(x)});
        }
        return polyline(path);
    }
    /// A mark at each point of a grid, the shape that `shapeOf` names for it.
    template <class ShapeOf>
    Picture &field(DTPOINT low, DTPOINT high, double step, ShapeOf shapeOf) {
        const int columns = static_cast<int>((high.x - low.x) / step + 1e-6);
        const int rows = static_cast<int>((high.y - low.y) / step + 1e-6);
        for (int i = 0; i <= columns; ++i) {
            for (int k = 0; k <= rows; ++k) {
                const DTPOINT p{low.x + i * step, low.y + k * step};
                small(p, shapeOf(p));
            }
        }
        return *this;
    }

    /// The rows below the drawing.
    Picture &key(Shape shape, const std::string &words);
    Picture &figure(const std::string &name, double value);
    Picture &figure(const std::string &name, DTPOINT value);
    Picture &figure(const std::string &name, const std::string &value);
    template <class Result> Picture &returns(Result result) {
        found();
        return figure("returns", static_cast<double>(result));
    }

    std::string svg(const std::string &title) const;

  private:
    friend class Layout;

    struct Stroke {
        std::vector<DTPOINT> path;
        Role role;
        bool dashed, infinite, arrow;
    };
    struct Mark {
        DTPOINT at;
        Role role;
        Shape shape;
        double size;
    };
    struct Label {
        DTPOINT at;
        Role role;
        std::string words;
        bool fixed;
    };
    struct Figure {
        Role role;
        std::string words;
        bool hasMark;
        Shape shape;
    };

    Picture &as(Role role) {
        role_ = role;
        return *this;
    }
    void small(DTPOINT p, Shape shape);
    void stroke(std::vector<DTPOINT> path, bool dashed = false, bool infinite = false,
                bool arrow = false);

    Role role_ = Role::given;
    bool isGraph_ = false;
    Scale xScale_{}, yScale_{};
    std::vector<Stroke> strokes_;
    std::vector<Mark> marks_;
    std::vector<Label> labels_;
    std::vector<Figure> figures_;
};

/// A number as a reader wants it: six digits, no negative zero.
std::string number(double value);

} // namespace pictures
