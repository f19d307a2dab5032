// What one call answered, as a line of text that is the same on every platform.
#pragma once

#include <cinttypes>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <string>

namespace agreement {

/// Integers as they are, doubles by their bits; every NaN counts as the same.
class Record {
  public:
    void integer(std::int64_t value) {
        char text[32];
        std::snprintf(text, sizeof text, " i%" PRId64, value);
        text_ += text;
    }
    void number(double value) {
        std::uint64_t bits = 0x7ff8000000000000;
        if (!std::isnan(value)) std::memcpy(&bits, &value, sizeof bits);
        char text[32];
        std::snprintf(text, sizeof text, " x%016" PRIx64, bits);
        text_ += text;
    }
    const std::string &text() const { return text_; }

  private:
    std::string text_;
};

} // namespace agreement
