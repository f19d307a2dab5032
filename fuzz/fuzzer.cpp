// The libFuzzer target.

#include "harness.h"

namespace {

using namespace fuzz;

/// What a call may take: 50 ms as hosts have it built, of which sanitizers and coverage make
/// about six times as much.
constexpr std::chrono::milliseconds kLimit(300);

void judge(std::size_t entry, std::chrono::nanoseconds time) {
    if (time <= kLimit) return;
    std::fprintf(stderr, "%lld ms\n", static_cast<long long>(time.count() / 1'000'000));
    fail(kEntries[entry].name(), "took too long");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    static Frame frame;
    execute(data, size, frame, judge);
    return 0;
}
