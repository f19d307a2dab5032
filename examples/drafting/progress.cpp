#include "progress.h"

#include <algorithm>
#include <cstdio>
#include <utility>

#include <unistd.h>

namespace draft {

namespace {

constexpr std::chrono::milliseconds kFirstShown{1000};
constexpr std::chrono::milliseconds kBetween{100};

} // namespace

Progress::Progress(std::string what, std::size_t total)
    : what_(std::move(what)), total_(std::max<std::size_t>(total, 1)),
      onTerminal_(isatty(STDERR_FILENO) == 1), next_(Clock::now() + kFirstShown) {}

Progress::~Progress() {
    // Clears the line from its start.
    if (shown_) std::fputs("\r\033[K", stderr);
}

void Progress::add(std::size_t done) {
    const std::size_t sum = done_ += done;
    if (!onTerminal_) return;
    const std::unique_lock lock(showing_, std::try_to_lock);
    if (lock.owns_lock() && Clock::now() >= next_) show(sum);
}

void Progress::show(std::size_t done) {
    constexpr std::size_t kWidth = 30;
    const std::size_t filled = std::min(kWidth, done * kWidth / total_);
    const std::string bar = std::string(filled, '#') + std::string(kWidth - filled, '.');
    std::fprintf(stderr, "\r%s [%s] %zu %%", what_.c_str(), bar.c_str(), done * 100 / total_);
    std::fflush(stderr);
    shown_ = true;
    next_ = Clock::now() + kBetween;
}

} // namespace draft
