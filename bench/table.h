// One row of the benchmark: a function called over a table of random well-posed inputs.
#pragma once

#include <array>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <memory>
#include <random>
#include <string>
#include <type_traits>

#include <benchmark/benchmark.h>

#include "counting.h"
#include "planegeo.h"

namespace bench {

inline constexpr std::size_t kTableSize = 1024;
/// Drawing units; coordinates lie within it to both sides of the origin.
inline constexpr double kDrawingSize = 100.0;

class Random {
  public:
    double uniform(double low, double high) {
        return low + (high - low) * (static_cast<double>(engine_() >> 11) * 0x1p-53);
    }
    double angleDeg() { return uniform(0.0, 360.0); }
    double length() { return uniform(1.0, kDrawingSize); }
    DTPOINT point() {
        const double x = uniform(-kDrawingSize, kDrawingSize);
        return {x, uniform(-kDrawingSize, kDrawingSize)};
    }

  private:
    std::mt19937_64 engine_{20240229};
};

template <class Make> using Table = std::array<std::invoke_result_t<Make, Random &>, kTableSize>;

/// 1024 inputs made by `make(Random &)`.
template <class Make> Table<Make> table(Make make) {
    Random random;
    Table<Make> inputs;
    for (auto &input : inputs) {
        input = make(random);
    }
    return inputs;
}

inline benchmark::Counter perCall(double calls) {
    return benchmark::Counter(calls, benchmark::Counter::kIsIterationInvariantRate |
                                         benchmark::Counter::kAvgThreads |
                                         benchmark::Counter::kInvert);
}

/// Calls `call(input)` for every input of the table; its result is kept from being optimised
/// away. The counter per_call is the time divided by the number of calls.
template <class Inputs, class Call>
void run(benchmark::State &state, const std::string &name, const Inputs &inputs, Call call) {
    beginCounting();
    for (auto _ : state) {
        for (const auto &input : inputs) {
            benchmark::DoNotOptimize(call(input));
        }
    }
    endCounting(name.c_str());
    state.counters["per_call"] = perCall(static_cast<double>(kTableSize));
}

/// Each call waits for the result of the one before, by which its input is found.
template <class Inputs, class Call>
void runDependent(benchmark::State &state, const Inputs &inputs, Call call) {
    std::uint64_t none = 0;
    benchmark::DoNotOptimize(none); // the compiler does not know that it is zero
    for (auto _ : state) {
        std::uint64_t before = 0;
        for (std::size_t i = 0; i < inputs.size(); ++i) {
            const double result = static_cast<double>(call(inputs[i + (before & none)]));
            std::memcpy(&before, &result, sizeof result);
        }
        benchmark::DoNotOptimize(before);
    }
    state.counters["per_call"] = perCall(static_cast<double>(kTableSize));
}

/// Registers a row under the function's name.
template <class Inputs, class Call>
void timeRow(const std::string &name, const Inputs &inputs, Call call) {
    benchmark::RegisterBenchmark(name.c_str(), [name, inputs, call](benchmark::State &state) {
        run(state, name, *inputs, call);
    });
}

template <class Make> auto sharedTable(Make make) {
    return std::make_shared<const Table<Make>>(table(make));
}

/// A row, and rows of the same calls in a chain and in two threads.
template <class Make, class Call> int row(const std::string &name, Make make, Call call) {
    const auto inputs = sharedTable(make);
    timeRow(name, inputs, call);
    benchmark::RegisterBenchmark(
        ("latency/" + name).c_str(),
        [inputs, call](benchmark::State &state) { runDependent(state, *inputs, call); });
    benchmark::RegisterBenchmark(
        ("threads/" + name).c_str(),
        [name, inputs, call](benchmark::State &state) { run(state, name, *inputs, call); })
        ->Threads(2)
        ->UseRealTime();
    return 0;
}

/// For a function that writes what all threads share.
template <class Make, class Call> int singleThreadRow(const char *name, Make make, Call call) {
    timeRow(name, sharedTable(make), call);
    return 0;
}

} // namespace bench
