// Writes a drawing of many short entities, for measuring how the time grows with their number.
//
// Usage: make_random_drawing COUNT FILE

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <random>

#include "dxf_frame.h"
#include "output_file.h"

namespace {

constexpr double kTurn = 6.283185307179586;
/// Entities are about one unit long and have a unit square each, wherever they lie.
constexpr double kArea = 1.0;

class Random {
  public:
    double uniform(double low, double high) {
        return low + (high - low) * (static_cast<double>(engine_() >> 11) * 0x1p-53);
    }
    bool chance(double share) { return uniform(0.0, 1.0) < share; }

  private:
    std::mt19937_64 engine_{20240229};
};

void writeEntities(DL_Dxf &dxf, DL_WriterA &out, long count) {
    const DL_Attributes layer = draft::onLayer("0");
    const double side = std::sqrt(kArea * static_cast<double>(count));
    Random random;
    for (long i = 0; i < count; ++i) {
        const double x = random.uniform(0.0, side);
        const double y = random.uniform(0.0, side);
        const double size = random.uniform(0.2, 0.6);
        const double turn = random.uniform(0.0, kTurn);
        const double dx = size * std::cos(turn);
        const double dy = size * std::sin(turn);
        const double start = random.uniform(0.0, 360.0);
        if (random.chance(0.7)) {
            dxf.writeLine(out, DL_LineData(x - dx, y - dy, 0.0, x + dx, y + dy, 0.0), layer);
        } else if (random.chance(0.5)) {
            dxf.writeArc(out, DL_ArcData(x, y, 0.0, size, start, start + 120.0), layer);
        } else if (random.chance(0.8)) {
            dxf.writeCircle(out, DL_CircleData(x, y, 0.0, size / 2.0), layer);
        } else {
            dxf.writeEllipse(out, DL_EllipseData(x, y, 0.0, dx, dy, 0.0, 0.5, 0.0, kTurn), layer);
        }
    }
}

} // namespace

int main(int argc, char **argv) {
    const long count = argc == 3 ? std::strtol(argv[1], nullptr, 10) : 0;
    if (count < 1) {
        std::cerr << "usage: make_random_drawing COUNT FILE\n";
        return 2;
    }
    try {
        draft::writeFile(argv[2], draft::framedText({}, {}, [count](DL_Dxf &dxf, DL_WriterA &out) {
                             writeEntities(dxf, out, count);
                         }));
    } catch (const std::exception &error) {
        std::cerr << "make_random_drawing: " << error.what() << '\n';
        return 1;
    }
    return 0;
}
