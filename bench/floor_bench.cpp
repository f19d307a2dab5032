// What an operation cannot do without, on the machine at hand: the routines of the C library and
// the instructions that take long, over inputs such as the rows have. floors.txt tells which of
// them each function needs.

#include "inputs.h"

namespace {

using namespace bench;

struct Operands {
    double angle, unit;
    DTPOINT p, q;
};

Operands operands(Random &random) {
    return {random.angleDeg() * kRadPerDeg, random.uniform(-1.0, 1.0), random.point(),
            random.point()};
}

template <class Operation> int floorRow(const char *name, Operation operation) {
    timeRow(name, sharedTable(operands), operation);
    return 0;
}

/// Sine and cosine of one angle, which compilers and C libraries take together.
double sineAndCosine(double angle) { return std::sin(angle) + std::cos(angle); }

const int kFloors[] = {
    floorRow("floor/nothing", [](const Operands &in) { return in.p.x; }),
    floorRow("floor/call", [](const Operands &) { return ca_geterrdist(); }),
    floorRow("floor/divide", [](const Operands &in) { return in.p.x / in.q.x; }),
    floorRow("floor/sqrt", [](const Operands &in) { return std::sqrt(std::fabs(in.p.x)); }),
    floorRow("floor/hypot", [](const Operands &in) { return std::hypot(in.p.x, in.p.y); }),
    floorRow("floor/fmod", [](const Operands &in) { return std::fmod(100.0 * in.angle, 360.0); }),
    floorRow("floor/sin", [](const Operands &in) { return std::sin(in.angle); }),
    floorRow("floor/cos", [](const Operands &in) { return std::cos(in.angle); }),
    floorRow("floor/sincos", [](const Operands &in) { return sineAndCosine(in.angle); }),
    floorRow("floor/tan", [](const Operands &in) { return std::tan(in.angle); }),
    floorRow("floor/asin", [](const Operands &in) { return std::asin(in.unit); }),
    floorRow("floor/acos", [](const Operands &in) { return std::acos(in.unit); }),
    floorRow("floor/atan", [](const Operands &in) { return std::atan(in.unit); }),
    floorRow("floor/atan2", [](const Operands &in) { return std::atan2(in.p.y, in.p.x); }),
    floorRow("floor/pow",
             [](const Operands &in) { return std::pow(std::fabs(in.p.x), 0.3333333333333333); }),
};

} // namespace
