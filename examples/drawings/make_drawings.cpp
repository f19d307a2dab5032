// Writes the sample drawings: a machine part and a floor plan.
//
// Usage: make_drawings DIRECTORY

#include <cmath>
#include <iostream>
#include <string>
#include <vector>

#include "dxf_frame.h"
#include "output_file.h"

namespace {

using draft::onLayer;

constexpr double kPi = 3.141592653589793;
/// tan(90 / 4): a quarter of a turn.
constexpr double kQuarter = 0.41421356237309503;

/// Adds entities to one layer of a file.
class Pen {
  public:
    Pen(DL_Dxf &dxf, DL_WriterA &out, std::string layer)
        : dxf_(dxf), out_(out), layer_(std::move(layer)) {}

    void line(double x1, double y1, double x2, double y2) {
        dxf_.writeLine(out_, DL_LineData(x1, y1, 0.0, x2, y2, 0.0), onLayer(layer_));
    }
    void circle(double x, double y, double r) {
        dxf_.writeCircle(out_, DL_CircleData(x, y, 0.0, r), onLayer(layer_));
    }
    void arc(double x, double y, double r, double start, double end) {
        dxf_.writeArc(out_, DL_ArcData(x, y, 0.0, r, start, end), onLayer(layer_));
    }
    /// Half axes; the angles in degrees, as everywhere here.
    void ellipse(double x, double y, double first, double second, double rotation,
                 double start = 0.0, double end = 360.0) {
        const double turn = rotation * kPi / 180.0;
        dxf_.writeEllipse(out_,
                          DL_EllipseData(x, y, 0.0, first * std::cos(turn), first * std::sin(turn),
                                         0.0, second / first, start * kPi / 180.0,
                                         end * kPi / 180.0),
                          onLayer(layer_));
    }
    struct Corner {
        double x, y, bulge;
    };
    void polyline(const std::vector<Corner> &corners, bool closed) {
        const auto count = static_cast<int>(corners.size());
        dxf_.writePolyline(out_, DL_PolylineData(count, 0, 0, closed ? 1 : 0), onLayer(layer_));
        for (const Corner &corner : corners)
            dxf_.writeVertex(out_, DL_VertexData(corner.x, corner.y, 0.0, corner.bulge));
        dxf_.writePolylineEnd(out_);
    }
    void rectangle(double x, double y, double width, double height, double radius = 0.0) {
        const double r = radius;
        if (r == 0.0) {
            polyline({{x, y, 0}, {x + width, y, 0}, {x + width, y + height, 0}, {x, y + height, 0}},
                     true);
            return;
        }
        const double x2 = x + width;
        const double y2 = y + height;
        polyline({{x + r, y, 0},
                  {x2 - r, y, kQuarter},
                  {x2, y + r, 0},
                  {x2, y2 - r, kQuarter},
                  {x2 - r, y2, 0},
                  {x + r, y2, kQuarter},
                  {x, y2 - r, 0},
                  {x, y + r, kQuarter}},
                 true);
    }
    void insert(const std::string &block, double x, double y, double angle = 0.0, double sx = 1.0,
                double sy = 1.0) {
        dxf_.writeInsert(out_, DL_InsertData(block, x, y, 0.0, sx, sy, 1.0, angle, 1, 1, 0.0, 0.0),
                         onLayer(layer_));
    }

  private:
    DL_Dxf &dxf_;
    DL_WriterA &out_;
    std::string layer_;
};

void drawBoltHole(DL_Dxf &dxf, DL_WriterA &out) {
    Pen pen(dxf, out, "0");
    pen.circle(0, 0, 3.3);
    pen.arc(0, 0, 4.0, 100, 10);
}

/// A bearing plate: bore, bolt circle, slot, lightening holes, a cam groove.
void drawMachinePart(DL_Dxf &dxf, DL_WriterA &out) {
    Pen body(dxf, out, "outline");
    body.rectangle(0, 0, 180, 110, 12);
    body.circle(62, 55, 20);
    body.circle(62, 55, 26);
    body.polyline({{110, 14, 0}, {148, 14, 1}, {148, 26, 0}, {110, 26, 1}}, true);
    body.ellipse(138, 66, 30, 15, 60);
    body.ellipse(138, 66, 22, 9, 60);
    body.ellipse(62, 55, 52, 46, 0, 100, 260);
    body.arc(62, 55, 46, -70, 70);

    Pen holes(dxf, out, "holes");
    for (int i = 0; i < 6; ++i) {
        const double angle = 30.0 + 60.0 * i;
        holes.insert("BOLT-HOLE", 62 + 36 * std::cos(angle * kPi / 180.0),
                     55 + 36 * std::sin(angle * kPi / 180.0), angle);
    }
    for (const double x : {12.0, 168.0}) {
        for (const double y : {12.0, 98.0})
            holes.circle(x, y, 4.5);
    }

    Pen axes(dxf, out, "centre lines");
    axes.line(-8, 55, 188, 55);
    axes.line(62, -8, 62, 118);
    axes.circle(62, 55, 36);
    axes.line(138 - 38 * std::cos(kPi / 3), 66 - 38 * std::sin(kPi / 3),
              138 + 38 * std::cos(kPi / 3), 66 + 38 * std::sin(kPi / 3));
    axes.line(100, 20, 158, 20);
}

/// A door of width 1 in a wall along x: its leaf and its swing.
void drawDoor(DL_Dxf &dxf, DL_WriterA &out) {
    Pen pen(dxf, out, "0");
    pen.line(0, 0, 0, 1);
    pen.arc(0, 0, 1, 0, 90);
}

/// A window of width 1 in a wall 0.3 thick.
void drawWindow(DL_Dxf &dxf, DL_WriterA &out) {
    Pen pen(dxf, out, "0");
    pen.line(0, 0.1, 1, 0.1);
    pen.line(0, 0.2, 1, 0.2);
}

void drawChair(DL_Dxf &dxf, DL_WriterA &out) {
    Pen pen(dxf, out, "0");
    pen.rectangle(-0.22, -0.22, 0.44, 0.44, 0.08);
    pen.arc(0, 0, 0.3, 40, 140);
}

/// A table and its chairs: blocks within a block.
void drawDiningPlace(DL_Dxf &dxf, DL_WriterA &out) {
    Pen pen(dxf, out, "0");
    pen.circle(0, 0, 0.6);
    for (int i = 0; i < 5; ++i) {
        const double angle = 90.0 + 72.0 * i;
        pen.insert("CHAIR", 0.85 * std::cos(angle * kPi / 180.0),
                   0.85 * std::sin(angle * kPi / 180.0), angle - 90.0);
    }
}

void drawWalls(Pen &walls) {
    walls.rectangle(0, 0, 12, 9);
    walls.rectangle(0.3, 0.3, 5.2, 4.2);
    walls.rectangle(0.3, 4.7, 5.2, 4.0);
    walls.polyline({{5.7, 0.3, 0},
                    {11.7, 0.3, 0},
                    {11.7, 3.4, 0},
                    {9.0, 3.4, 0},
                    {9.0, 3.6, 0},
                    {11.7, 3.6, 0},
                    {11.7, 8.7, 0},
                    {5.7, 8.7, 0}},
                   true);
}

/// A small house, in metres.
void drawFloorPlan(DL_Dxf &dxf, DL_WriterA &out) {
    Pen walls(dxf, out, "walls");
    drawWalls(walls);
    // The bay of the living room, and its inner face.
    walls.arc(12, 6.2, 1.4, -90, 90);
    walls.arc(12, 6.2, 1.1, -90, 90);

    Pen doors(dxf, out, "doors");
    doors.insert("DOOR", 5.5, 2.2, 90, 0.9, 0.9);
    doors.insert("DOOR", 5.5, 7.4, -90, -0.9, 0.9);
    doors.insert("DOOR", 7.0, 0.3, 0, 1.1, 1.1);
    doors.insert("DOOR", 9.0, 3.5, 180, 0.8, -0.8);

    Pen windows(dxf, out, "windows");
    windows.insert("WINDOW", 1.6, 0, 0, 2.4, 1);
    windows.insert("WINDOW", 1.6, 8.7, 0, 2.0, 1);
    windows.insert("WINDOW", 7.2, 8.7, 0, 3.0, 1);
    windows.insert("WINDOW", 0.3, 1.4, 90, 1.8, 1);

    Pen furniture(dxf, out, "furniture");
    furniture.insert("DINING PLACE", 8.0, 6.4, 18);
    furniture.insert("DINING PLACE", 2.2, 2.0, 0, 0.8, 0.8);
    furniture.rectangle(0.5, 6.4, 1.6, 2.1, 0.1);
    furniture.ellipse(10.6, 1.2, 0.85, 0.42, 0);
    furniture.ellipse(10.6, 1.2, 0.72, 0.32, 0);
    furniture.ellipse(10.6, 2.9, 0.3, 0.22, 90, 180, 360);
    furniture.line(10.38, 2.9, 10.82, 2.9);
    for (int i = 0; i <= 8; ++i)
        furniture.line(3.4 + 0.25 * i, 4.7, 3.4 + 0.25 * i, 5.7);
    furniture.line(3.4, 5.2, 5.4, 5.2);
}

} // namespace

int main(int argc, char **argv) {
    if (argc != 2) {
        std::cerr << "usage: make_drawings DIRECTORY\n";
        return 2;
    }
    const std::string directory = argv[1];
    try {
        draft::writeFile(directory + "/machine-part.dxf",
                         draft::framedText({{"outline", 7}, {"holes", 5}, {"centre lines", 1}},
                                           {{"BOLT-HOLE", drawBoltHole}}, drawMachinePart));
        draft::writeFile(
            directory + "/floor-plan.dxf",
            draft::framedText({{"walls", 7}, {"doors", 3}, {"windows", 4}, {"furniture", 8}},
                              {{"DOOR", drawDoor},
                               {"WINDOW", drawWindow},
                               {"CHAIR", drawChair},
                               {"DINING PLACE", drawDiningPlace}},
                              drawFloorPlan));
    } catch (const std::exception &error) {
        std::cerr << "make_drawings: " << error.what() << '\n';
        return 1;
    }
    return 0;
}
