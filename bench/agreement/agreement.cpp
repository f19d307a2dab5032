// A table of calls of every exported function, to be made on several platforms and compared.
//
//   planegeo_agreement table CALLS >FILE
//   planegeo_agreement compare FILE FILE
//
// A line is a call: its row, its number, the size of its inputs, the result and the outputs.

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <tuple>
#include <vector>

#include "rows.h"

namespace {

using namespace agreement;

int makeTable(int calls) {
    const std::vector<Row> rows = allRows();
    const int each = std::max(1, calls / static_cast<int>(rows.size()));
    for (std::size_t i = 0; i < rows.size(); ++i) {
        for (int k = 0; k * rows[i].cost < each; ++k) {
            Inputs in(1000003 * (i + 1) + static_cast<std::uint64_t>(k));
            Record record;
            rows[i].call(in, record);
            Record size;
            size.number(in.size());
            std::printf("%s %d%s%s\n", rows[i].name, k, size.text().c_str(), record.text().c_str());
        }
    }
    return 0;
}

/// How two platforms differ in one row.
struct Differences {
    long calls = 0;
    long integers = 0;  ///< calls whose integers, or number of outputs, differ
    long doubles = 0;   ///< doubles compared: those of calls with equal integers
    long bits = 0;      ///< of them, not equal bit by bit
    long ofSize = 0;    ///< beyond kBound of the inputs' size and the value
    long turns = 0;     ///< equal but for a whole turn: 0 and 360 degrees
    long ofValue = 0;   ///< beyond kBound of the value alone
    double worst = 0.0; ///< the largest difference over the size
};

constexpr double kBound = 1e-12;

/// Rows whose answer jumps where two numbers are equal, as they are on a grid, so that the last bit
/// of a sine decides (docs/platforms.md).
bool jumps(const std::string &name) {
    static const std::set<std::string> rows = {"aatCalCrs2l", "ca_elpdn", "ang_pnt", "ca_elamn",
                                               "ca_elpmn"};
    return rows.count(name) > 0;
}

double doubleOf(const std::string &token) {
    const std::uint64_t bits = std::strtoull(token.c_str() + 1, nullptr, 16);
    double value = 0.0;
    std::memcpy(&value, &bits, sizeof value);
    return value;
}

std::vector<std::string> tokensOf(const std::string &line) {
    std::istringstream stream(line);
    std::vector<std::string> tokens;
    for (std::string token; stream >> token;) {
        tokens.push_back(token);
    }
    return tokens;
}

bool sameIntegers(const std::vector<std::string> &a, const std::vector<std::string> &b) {
    if (a.size() != b.size()) return false;
    for (std::size_t i = 0; i < a.size(); ++i) {
        const bool isDouble = a[i].front() == 'x' && b[i].front() == 'x';
        if (!isDouble && a[i] != b[i]) return false;
    }
    return true;
}

void compareDoubles(double a, double b, double size, Differences &row) {
    ++row.bits;
    const double apart = std::fabs(a - b), value = std::fmax(std::fabs(a), std::fabs(b));
    if (!(apart <= kBound * value)) ++row.ofValue;
    const double over = apart / std::fmax(value, size);
    if (over > kBound && std::fabs(apart - 360.0) <= kBound * size) {
        ++row.turns;
        return;
    }
    if (!(over <= kBound)) ++row.ofSize;
    row.worst = std::isnan(over) ? HUGE_VAL : std::fmax(row.worst, over);
}

int compare(const char *first, const char *second) {
    std::ifstream a(first), b(second);
    std::map<std::string, Differences> rows;
    std::string lineA, lineB;
    while (std::getline(a, lineA)) {
        if (!std::getline(b, lineB)) lineB = "";
        if (!lineB.empty() && lineB.back() == '\r') lineB.pop_back();
        const auto tokensA = tokensOf(lineA), tokensB = tokensOf(lineB);
        Differences &row = rows[tokensA[0]];
        ++row.calls;
        const bool same = lineA == lineB;
        if (!same && !sameIntegers(tokensA, tokensB)) {
            ++row.integers;
            std::cerr << "- " << lineA << "\n+ " << lineB << "\n";
            continue;
        }
        for (std::size_t i = 3; i < tokensA.size(); ++i) {
            if (tokensA[i].front() != 'x') continue;
            ++row.doubles;
            if (tokensA[i] == tokensB[i]) continue;
            compareDoubles(doubleOf(tokensA[i]), doubleOf(tokensB[i]), doubleOf(tokensA[2]), row);
        }
    }
    const bool sameLength = !std::getline(b, lineB);
    Differences all;
    long jumped = 0;
    for (const auto &[name, row] : rows) {
        if (row.integers + row.bits > 0) {
            std::printf("%-32s integers %ld  bits %ld  of size %ld  of value %ld  worst %.2g\n",
                        name.c_str(), row.integers, row.bits, row.ofSize, row.ofValue, row.worst);
        }
        if (name.rfind("std::", 0) == 0) continue; // not ours to answer for
        all.calls += row.calls;
        all.integers += row.integers;
        all.doubles += row.doubles;
        all.bits += row.bits;
        (jumps(name) ? jumped : all.ofSize) += row.ofSize;
        jumped += row.turns;
        all.ofValue += row.ofValue;
    }
    std::printf(
        "%ld calls: %ld with other integers; of %ld doubles %ld with other bits, beyond 1e-12 "
        "of the inputs' size %ld, where answers jump %ld; beyond 1e-12 of themselves %ld\n",
        all.calls, all.integers, all.doubles, all.bits, all.ofSize, jumped, all.ofValue);
    return sameLength && all.calls > 0 && all.integers + all.ofSize == 0 ? 0 : 1;
}

} // namespace

int main(int argc, char **argv) {
    const std::string task = argc > 1 ? argv[1] : "";
    if (task == "table" && argc == 3) return makeTable(std::atoi(argv[2]));
    if (task == "compare" && argc == 4) return compare(argv[2], argv[3]);
    std::cerr << "usage: planegeo_agreement table CALLS | compare FILE FILE\n";
    return 2;
}
