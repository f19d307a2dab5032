// A bar on the terminal for work that takes its time; nothing of it in a pipe.
#pragma once

#include <atomic>
#include <chrono>
#include <cstddef>
#include <mutex>
#include <string>

namespace draft {

/// Appears after a second and vanishes with its object. Any thread may add to it.
class Progress {
  public:
    Progress(std::string what, std::size_t total);
    ~Progress();
    Progress(const Progress &) = delete;
    Progress &operator=(const Progress &) = delete;

    void add(std::size_t done);

  private:
    using Clock = std::chrono::steady_clock;

    void show(std::size_t done);

    std::string what_;
    std::size_t total_;
    bool onTerminal_;
    std::atomic<std::size_t> done_{0};
    std::mutex showing_;
    Clock::time_point next_;
    bool shown_ = false;
};

} // namespace draft
