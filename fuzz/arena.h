/// Storage for arguments that notices a touch beside them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <memory>

#if defined(__has_feature)
#if __has_feature(address_sanitizer)
#define PLANEGEO_FUZZ_POISONS
#include <sanitizer/asan_interface.h>
#endif
#endif

namespace fuzz {

/// Each piece lies between gaps: under the address sanitizer they must not be touched, else they
/// must not be changed.
class Arena {
  public:
    static constexpr std::size_t kSize = std::size_t{4} << 20; ///< the longest chain of arcs fits
    static constexpr std::size_t kGap = 32;

    Arena() : bytes_(new unsigned char[kSize]) { close(0, kSize); }
    ~Arena() { open(0, kSize); }
    Arena(const Arena &) = delete;
    Arena &operator=(const Arena &) = delete;

    unsigned char *take(std::size_t size) {
        const std::size_t begin = used_ + kGap;
        open(begin, size);
        used_ = (begin + size + 15) / 16 * 16;
        return bytes_.get() + begin;
    }
    void reset() {
        close(0, used_);
        used_ = 0;
    }
    /// Whether the gap before a piece and the one after it are whole.
    static bool isIntact([[maybe_unused]] const unsigned char *piece,
                         [[maybe_unused]] std::size_t size) {
#if !defined(PLANEGEO_FUZZ_POISONS)
        for (std::size_t i = 0; i < kGap / 2; ++i) {
            if (piece[size + i] != kFiller || *(piece - 1 - i) != kFiller) return false;
        }
#endif
        return true;
    }

  private:
    static constexpr unsigned char kFiller = 0xa5;

    void open([[maybe_unused]] std::size_t begin, [[maybe_unused]] std::size_t size) {
#if defined(PLANEGEO_FUZZ_POISONS)
        ASAN_UNPOISON_MEMORY_REGION(bytes_.get() + begin, size);
#endif
    }
    void close(std::size_t begin, std::size_t size) {
#if defined(PLANEGEO_FUZZ_POISONS)
        ASAN_POISON_MEMORY_REGION(bytes_.get() + begin, size);
#else
        std::memset(bytes_.get() + begin, kFiller, size);
#endif
    }

    std::unique_ptr<unsigned char[]> bytes_;
    std::size_t used_ = 0;
};

} // namespace fuzz
