#include "parallel.h"

#include <algorithm>
#include <atomic>
#include <exception>
#include <mutex>
#include <thread>
#include <vector>

namespace draft {

void inParallel(std::size_t count, const std::function<void(std::size_t)> &work) {
    std::atomic<std::size_t> next{0};
    std::exception_ptr failure;
    std::mutex failing;
    const auto run = [&] {
        try {
            for (std::size_t i = next++; i < count; i = next++)
                work(i);
        } catch (...) {
            const std::lock_guard lock(failing);
            failure = std::current_exception();
            next = count;
        }
    };
    const std::size_t processors = std::max(1U, std::thread::hardware_concurrency());
    std::vector<std::thread> others;
    for (std::size_t i = 1; i < std::min(processors, count); ++i)
        others.emplace_back(run);
    run();
    for (std::thread &other : others)
        other.join();
    if (failure) std::rethrow_exception(failure);
}

} // namespace draft
