// Every function that may be called from several threads at once, called so: each must answer as
// it does alone. Under the thread sanitizer also what they share without agreement shows.

#include <cstdlib>
#include <string>
#include <thread>

#include "harness.h"

namespace {

using namespace fuzz;

constexpr std::size_t kThreads = 8;

/// The digest of one call; NaN is NaN whatever its sign.
std::uint64_t digest(const Outcome &outcome, const std::vector<unsigned char> &image) {
    std::uint64_t hash = static_cast<std::uint64_t>(outcome.code);
    const auto mix = [&hash](std::uint64_t bits) {
        hash = (hash ^ bits) * 0x9e3779b97f4a7c15u;
        hash ^= hash >> 29;
    };
    const auto mixNumber = [&mix](const void *at) {
        double x;
        std::memcpy(&x, at, sizeof x);
        std::uint64_t bits = 0;
        if (!std::isnan(x)) std::memcpy(&bits, &x, sizeof bits);
        mix(bits);
    };
    for (const double &x : outcome.value)
        mixNumber(&x);
    std::size_t i = 0;
    for (; i + sizeof(double) <= image.size(); i += sizeof(double))
        mixNumber(&image[i]);
    for (; i < image.size(); ++i)
        mix(image[i]);
    return hash;
}

/// Calls an entry with arguments that the seed decides.
std::uint64_t answer(std::size_t entry, std::uint32_t seed, Frame &frame) {
    std::uint8_t bytes[sizeof seed];
    std::memcpy(bytes, &seed, sizeof seed);
    Bytes in(bytes, sizeof bytes);
    in.word<std::uint32_t>(); // the seed itself: random ones follow
    in.setWildness(wildness(static_cast<std::uint8_t>(seed)));
    const Outcome outcome = kEntries[entry].call(in, frame);
    std::vector<unsigned char> image;
    remember(frame, image);
    return digest(outcome, image);
}

using Answers = std::vector<std::uint64_t>;

/// All answers of all entries, from some entry on, so that threads meet in different ones.
Answers answers(std::size_t rounds, std::size_t first) {
    Frame frame;
    Answers all(kEntries.size() * rounds);
    for (std::size_t round = 0; round < rounds; ++round) {
        for (std::size_t i = 0; i < kEntries.size(); ++i) {
            const std::size_t entry = (first + i) % kEntries.size();
            if (kEntries[entry].isAlone()) continue;
            const std::size_t k = round * kEntries.size() + entry;
            all[k] = answer(entry, static_cast<std::uint32_t>(k), frame);
        }
    }
    return all;
}

} // namespace

int main(int argc, char **argv) {
    const std::size_t rounds = argc > 1 ? std::strtoul(argv[1], nullptr, 10) : 1000;
    restoreSettings();
    ca_Simpson_getParmtbl()[0] = 30.0;
    ca_Simpson_getParmtbl()[1] = 20.0;
    // At once first: alone would already have filled what a first call fills.
    std::vector<Answers> atOnce(kThreads);
    std::vector<std::thread> threads;
    for (std::size_t t = 0; t < kThreads; ++t) {
        threads.emplace_back([&atOnce, rounds, t] { atOnce[t] = answers(rounds, t * 16); });
    }
    for (std::thread &thread : threads)
        thread.join();
    const Answers alone = answers(rounds, 0);
    for (const Answers &some : atOnce) {
        for (std::size_t k = 0; k < alone.size(); ++k) {
            if (some[k] != alone[k]) {
                fail(kEntries[k % kEntries.size()].name(), "answers otherwise beside other calls");
            }
        }
    }
    std::printf("%zu answers in each of %zu threads, as alone\n", alone.size(), kThreads);
}
