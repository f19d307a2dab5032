// Executes without a fuzzer, and tells the longest call of each function. Arguments: files; --tell,
// before which files every call is told before it is made; --random SECONDS SEED, for inputs that
// the seed decides.

#include <csignal>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <string>

#include "harness.h"

namespace {

using namespace fuzz;

struct Slowest {
    std::chrono::nanoseconds time;
    std::string input;
};

std::string current;
std::uint64_t executions = 0;
std::uint64_t calls = 0;
std::vector<Slowest> &slowest() {
    static std::vector<Slowest> times(kEntries.size());
    return times;
}

void note(std::size_t entry, std::chrono::nanoseconds time) {
    ++calls;
    if (time > slowest()[entry].time) slowest()[entry] = {time, current};
}

void executeFile(const char *name, Frame &frame) {
    current = name;
    std::ifstream file(name, std::ios::binary);
    const std::vector<char> bytes{std::istreambuf_iterator<char>(file), {}};
    execute(reinterpret_cast<const std::uint8_t *>(bytes.data()), bytes.size(), frame, note);
}

/// The input itself names the execution: its eight bytes are the seed and the turn, mixed.
void executeRandom(std::chrono::seconds time, std::uint64_t seed, Frame &frame) {
    const auto end = std::chrono::steady_clock::now() + time;
    for (; std::chrono::steady_clock::now() < end; ++executions) {
        std::uint64_t bits = (seed << 40 | executions) * 0x9e3779b97f4a7c15u;
        bits = (bits ^ (bits >> 32)) * 0xd6e8feb86659fd93u;
        bits ^= bits >> 32;
        std::uint8_t bytes[sizeof bits];
        std::memcpy(bytes, &bits, sizeof bits);
        char name[17];
        std::snprintf(name, sizeof name, "%016llx", static_cast<unsigned long long>(bits));
        current = name;
        execute(bytes, sizeof bytes, frame, note);
    }
    std::printf("%llu executions, %llu calls\n", static_cast<unsigned long long>(executions),
                static_cast<unsigned long long>(calls));
}

void tellWhere(int) {
    std::fprintf(stderr, "in %s, after %llu executions\n", current.c_str(),
                 static_cast<unsigned long long>(executions));
}

} // namespace

int main(int argc, char **argv) {
    std::signal(SIGABRT, tellWhere);
    Frame frame;
    for (int i = 1; i < argc; ++i) {
        const std::string argument = argv[i];
        if (argument == "--tell") {
            frame.tells = true;
        } else if (argument == "--random" && i + 2 < argc) {
            executeRandom(std::chrono::seconds(std::atoi(argv[i + 1])),
                          std::strtoull(argv[i + 2], nullptr, 10), frame);
            i += 2;
        } else {
            executeFile(argv[i], frame);
        }
    }
    for (std::size_t i = 0; i < kEntries.size(); ++i) {
        const Slowest &s = slowest()[i];
        std::printf("%-34s %10.3f ms  %s\n", kEntries[i].name(),
                    static_cast<double>(s.time.count()) * 1e-6,
                    s.input.empty() ? "never called" : s.input.c_str());
    }
}
