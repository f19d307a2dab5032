// Executes files, without a fuzzer, and tells the longest call of each function; after --tell also
// every call before it is made.

#include <cstdlib>
#include <fstream>
#include <iterator>

#include "harness.h"

namespace {

using namespace fuzz;

struct Slowest {
    std::chrono::nanoseconds time;
    const char *file;
};

const char *current = nullptr;
std::vector<Slowest> &slowest() {
    static std::vector<Slowest> times(kEntries.size());
    return times;
}

void note(std::size_t entry, std::chrono::nanoseconds time) {
    if (time > slowest()[entry].time) slowest()[entry] = {time, current};
}

} // namespace

int main(int argc, char **argv) {
    Frame frame;
    for (int i = 1; i < argc; ++i) {
        current = argv[i];
        if (std::strcmp(current, "--tell") == 0) {
            frame.tells = true;
            continue;
        }
        std::ifstream file(current, std::ios::binary);
        const std::vector<char> bytes{std::istreambuf_iterator<char>(file), {}};
        execute(reinterpret_cast<const std::uint8_t *>(bytes.data()), bytes.size(), frame, note);
    }
    for (std::size_t i = 0; i < kEntries.size(); ++i) {
        const Slowest &s = slowest()[i];
        std::printf("%-34s %10.3f ms  %s\n", kEntries[i].name(),
                    static_cast<double>(s.time.count()) * 1e-6, s.file ? s.file : "never called");
    }
}
