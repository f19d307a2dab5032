// The commands of the program: each adds itself to the command line.
#pragma once

#include <CLI/CLI.hpp>

namespace draft {

void addArcs(CLI::App &app);
void addDivide(CLI::App &app);
void addIntersect(CLI::App &app);
void addMeasure(CLI::App &app);
void addPlot(CLI::App &app);
void addSnap(CLI::App &app);
void addTangents(CLI::App &app);
void addTrim(CLI::App &app);

} // namespace draft
