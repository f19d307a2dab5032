// One row of the benchmark: a function called over a table of random well-posed inputs.
#pragma once

#include <array>
#include <cmath>
#include <cstdint>
#include <random>

#include <benchmark/benchmark.h>

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

/// 1024 inputs made by `make(Random &)`.
template <class Make> auto table(Make make) {
    Random random;
    std::array<decltype(make(random)), kTableSize> inputs;
    for (auto &input : inputs) {
        input = make(random);
    }
    return inputs;
}

/// Calls `call(input)` for every input of the table; its result is kept from being optimised
/// away. The counter per_call is the time divided by the number of calls.
template <class Inputs, class Call>
void run(benchmark::State &state, const Inputs &inputs, Call call) {
    for (auto _ : state) {
        for (const auto &input : inputs) {
            benchmark::DoNotOptimize(call(input));
        }
    }
    state.counters["per_call"] = benchmark::Counter(static_cast<double>(kTableSize),
                                                    benchmark::Counter::kIsIterationInvariantRate |
                                                        benchmark::Counter::kInvert);
}

/// Registers a row under the function's name.
template <class Make, class Call> int row(const char *name, Make make, Call call) {
    benchmark::RegisterBenchmark(
        name, [inputs = table(make), call](benchmark::State &state) { run(state, inputs, call); });
    return 0;
}

} // namespace bench
