/// The bytes of one execution, read as arguments.
#pragma once

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>

namespace fuzz {

/// What the bytes hold comes first; then random bytes go on that the whole input decides, so that
/// short inputs call with arguments as rich as those of long ones.
class Bytes {
  public:
    Bytes(const std::uint8_t *data, std::size_t size) : at_(data), end_(data + size) {
        for (const std::uint8_t *p = data; p < end_; ++p) {
            state_ = (state_ ^ *p) * 0x100000001b3u; // FNV-1a
        }
    }

    bool isEmpty() const { return at_ == end_; }
    /// How often numbers are such as no drawing holds, in 256ths.
    void setWildness(unsigned wildness) { wildness_ = wildness; }

    std::uint8_t byte() {
        if (at_ != end_) return *at_++;
        if (spareCount_ == 0) {
            spare_ = random();
            spareCount_ = 8;
        }
        const auto low = static_cast<std::uint8_t>(spare_);
        spare_ >>= 8;
        --spareCount_;
        return low;
    }
    template <class Word> Word word() {
        std::uint64_t bits = 0;
        for (std::size_t i = 0; i < sizeof(Word); ++i) {
            bits |= static_cast<std::uint64_t>(byte()) << (8 * i);
        }
        return static_cast<Word>(bits);
    }
    unsigned below(unsigned n) {
        return n <= 256 ? byte() * n / 256 : word<std::uint16_t>() * n / 65536;
    }

    /// Any double whatever, but most often one that is to do with those before.
    double number() {
        const double x = byte() < wildness_ ? wild() : tame();
        earlier_[made_++ % earlier_.size()] = x;
        return x;
    }
    double uniform(double low, double high) {
        return low + (high - low) * (word<std::uint32_t>() * 0x1p-32);
    }

    /// Any integer, but most often a small one or an extreme.
    std::int64_t integer() {
        constexpr std::int64_t kSome[] = {
            -2147483648, 2147483647, 65535,      4294967295, 32767, -32768, 1001,    3600,
            0x20000000,  0x10000000, 0x30000000, 200,        201,   150,    4194304, 4194305};
        const unsigned kind = byte();
        if (kind < 160) return kind % 10;
        if (kind < 200) return kind % 64;
        if (kind < 216) return -static_cast<int>(kind % 4);
        if (kind < 240) return kSome[kind % 16];
        if (kind < 248) return word<std::uint16_t>();
        return word<std::int32_t>();
    }

    /// A number moved by so little that a decision may turn on it.
    double nudged(double x) {
        constexpr double kInfinity = std::numeric_limits<double>::infinity();
        switch (byte() % 16) {
        case 0:
            return std::nextafter(x, kInfinity);
        case 1:
            return std::nextafter(x, -kInfinity);
        case 2:
            return x + 1e-6;
        case 3:
            return x - 1e-6;
        case 4:
            return x + 1e-8;
        case 5:
            return x - 1e-8;
        case 6:
            return x + 1e-7;
        case 7:
            return x - 0.999e-6;
        case 8:
            return x + 1e-12;
        case 9:
            return x * (1.0 + 4e-16 * byte());
        case 10:
            return x + 1e-4;
        default:
            return x;
        }
    }

  private:
    /// splitmix64
    std::uint64_t random() {
        std::uint64_t z = state_ += 0x9e3779b97f4a7c15u;
        z = (z ^ (z >> 30)) * 0xbf58476d1ce4e5b9u;
        z = (z ^ (z >> 27)) * 0x94d049bb133111ebu;
        return z ^ (z >> 31);
    }

    double tame() {
        constexpr double kNice[] = {0,   1,   2,   3,   4,   5,    6,    10,   100,  0.5, -0.5,
                                    -1,  -2,  -3,  -4,  -10, 30,   45,   60,   90,   120, 135,
                                    180, 270, 360, -90, 450, 1e-3, 1e-6, 1e-8, 1e-7, 1e-4};
        const unsigned kind = byte();
        if (kind < 96) return kNice[kind % 32];
        if (kind < 120) return static_cast<std::int8_t>(byte()) / 4.0;
        if (kind < 190) return related(earlier_[kind % earlier_.size()]);
        if (kind < 235) return uniform(-360.0, 360.0);
        return std::exp(uniform(-28.0, 28.0)) * (kind % 2 == 0 ? 1.0 : -1.0);
    }
    double related(double x) {
        switch (byte() % 16) {
        case 0:
            return -x;
        case 1:
            return 2.0 * x;
        case 2:
            return 0.5 * x;
        case 3:
            return x + 360.0;
        case 4:
            return x - 360.0;
        case 5:
            return x + 90.0;
        case 6:
            return x + 180.0;
        case 7:
            return x + earlier_[byte() % earlier_.size()];
        default:
            return nudged(x);
        }
    }
    double wild() {
        using Limits = std::numeric_limits<double>;
        constexpr double kSome[] = {Limits::quiet_NaN(),
                                    Limits::infinity(),
                                    -Limits::infinity(),
                                    Limits::max(),
                                    Limits::lowest(),
                                    Limits::min(),
                                    Limits::denorm_min(),
                                    -0.0,
                                    1e300,
                                    1e-300,
                                    1e154,
                                    1.5e154,
                                    1e-154,
                                    0x1p53,
                                    0x1p56,
                                    2147483648.0,
                                    -1e10,
                                    1e15,
                                    1e20,
                                    1e8,
                                    36000.0,
                                    0x1p30,
                                    1e77,
                                    1e-77};
        const unsigned kind = byte();
        if (kind < 144) return kSome[kind % 24];
        if (kind < 200) return std::exp(uniform(-700.0, 700.0)) * (kind % 2 == 0 ? 1.0 : -1.0);
        double x;
        const auto bits = word<std::uint64_t>();
        std::memcpy(&x, &bits, sizeof x);
        return x;
    }

    const std::uint8_t *at_, *end_;
    std::uint64_t state_ = 0xcbf29ce484222325u;
    std::uint64_t spare_ = 0;
    int spareCount_ = 0;
    unsigned wildness_ = 0;
    std::array<double, 8> earlier_ = {};
    std::size_t made_ = 0;
};

} // namespace fuzz
