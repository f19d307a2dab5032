// Writes a drawing with a few things wrong, for seeing that a program survives them.
//
// Usage: mutate_drawing SEED FILE OUT

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <random>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

#include "output_file.h"

namespace {

using Lines = std::vector<std::string>;

class Random {
  public:
    explicit Random(std::uint64_t seed) : engine_(seed) {}
    /// Below a bound, which is above zero.
    std::size_t below(std::size_t bound) { return static_cast<std::size_t>(engine_() % bound); }
    char byte() { return static_cast<char>(below(256)); }

  private:
    std::mt19937_64 engine_;
};

std::string contentOf(const std::string &path) {
    std::ifstream in(path, std::ios::binary);
    if (!in) throw std::runtime_error(path + ": cannot be read");
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

Lines linesOf(const std::string &text) {
    std::istringstream in(text);
    Lines lines;
    for (std::string line; std::getline(in, line);)
        lines.push_back(line);
    return lines;
}

std::string textOf(const Lines &lines) {
    std::string text;
    for (const std::string &line : lines)
        text += line + "\n";
    return text;
}

/// Numbers that programs stumble over, and values that are no numbers of a drawing.
constexpr std::array<const char *, 20> kNumbers = {
    "0",     "0.0", "-0.0", "1",   "-1",   "2",   "1e-9",       "1e-300",      "4.9e-324", "1e12",
    "-1e12", "1e6", "360",  "180", "-720", "1e9", "2147483647", "-2147483648", "65536",    "64"};
constexpr std::array<const char *, 11> kOthers = {"1e13", "1e308", "1e999", "nan",  "inf",   "-inf",
                                                  "",     "0x10",  "1.2.3", "LINE", "ENDSEC"};
/// Codes of what the program reads.
constexpr std::array<const char *, 24> kCodes = {
    "0",  "2",  "5",  "8",  "10", "11", "20", "21", "30",  "38",  "40",  "41",
    "42", "50", "51", "66", "67", "70", "71", "90", "100", "210", "230", "999"};

/// Where the next record begins, at a code 0; the end if there is none.
std::size_t nextRecord(const Lines &lines, std::size_t from) {
    for (std::size_t i = from - from % 2; i + 1 < lines.size(); i += 2) {
        const bool isBlank = lines[i].find_first_not_of(" \r") == std::string::npos;
        if (!isBlank && std::atoi(lines[i].c_str()) == 0) return i;
    }
    return lines.size();
}

void mutateLines(Lines &lines, Random &random) {
    const std::size_t at = random.below(lines.size());
    const std::size_t other = random.below(lines.size());
    const auto value = [&](std::size_t i) -> std::string & {
        return lines[std::min(i | 1U, lines.size() - 1)];
    };
    const auto place = [&](std::size_t i) {
        return lines.begin() + static_cast<std::ptrdiff_t>(i);
    };
    // Most drawings that come out should be read to their end, so wrong pairs are few.
    constexpr std::array<int, 16> kChances = {0, 0, 0, 0, 2, 2, 2, 6, 6, 6, 7, 7, 8, 1, 3, 4};
    switch (kChances[random.below(kChances.size())]) {
    case 0: // a value
        value(at) = random.below(8) == 0 ? kOthers[random.below(kOthers.size())]
                                         : kNumbers[random.below(kNumbers.size())];
        break;
    case 1: // a code
        lines[at - at % 2] = kCodes[random.below(kCodes.size())];
        break;
    case 2: // a value for another
        value(at) = value(other);
        break;
    case 3:
        lines.erase(place(at));
        break;
    case 4:
        lines.insert(place(at), lines[other]);
        break;
    case 6: { // a record twice
        const std::size_t from = nextRecord(lines, at);
        const std::size_t to = nextRecord(lines, std::min(from + 2, lines.size()));
        const Lines record(place(from), place(to));
        lines.insert(place(nextRecord(lines, other)), record.begin(), record.end());
        break;
    }
    case 7: { // a record less
        const std::size_t from = nextRecord(lines, at);
        lines.erase(place(from), place(nextRecord(lines, std::min(from + 2, lines.size()))));
        break;
    }
    default:
        lines[at] += std::string(random.below(3000), static_cast<char>('0' + random.below(70)));
    }
}

void mutateBytes(std::string &text, Random &random) {
    const std::size_t at = random.below(text.size());
    switch (random.below(4)) {
    case 0:
        text[at] = random.byte();
        break;
    case 1:
        text.insert(at, 1, random.byte());
        break;
    case 2:
        text.erase(at, 1 + random.below(40));
        break;
    default:
        text.resize(at);
    }
}

std::string mutated(const std::string &text, Random &random) {
    constexpr std::size_t kMost = 4;
    Lines lines = linesOf(text);
    for (std::size_t i = random.below(kMost) + 1; i > 0 && !lines.empty(); --i)
        mutateLines(lines, random);
    std::string out = textOf(lines);
    if (!out.empty() && random.below(12) == 0) mutateBytes(out, random);
    return out;
}

} // namespace

int main(int argc, char **argv) {
    if (argc != 4) {
        std::cerr << "usage: mutate_drawing SEED FILE OUT\n";
        return 2;
    }
    try {
        Random random(std::strtoull(argv[1], nullptr, 10));
        draft::writeFile(argv[3], mutated(contentOf(argv[2]), random));
    } catch (const std::exception &error) {
        std::cerr << "mutate_drawing: " << error.what() << '\n';
        return 1;
    }
    return 0;
}
