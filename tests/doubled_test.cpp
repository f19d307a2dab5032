// Numbers of twice the digits: the low half is exactly what rounding took off the high one.

#include "support.h"

#include "base/doubled.h"

using namespace support;
using planegeo::Doubled;

TEST(Doubled, aProductKeepsWhatRoundingTookOff) {
    Random random(20);
    for (int i = 0; i < 100000; ++i) {
        const auto a = static_cast<std::int64_t>(random.bits() >> 11);
        const auto b = static_cast<std::int64_t>(random.bits() >> 11);
        const Doubled product = Doubled::product(static_cast<double>(a), static_cast<double>(-b));
        const __int128 lost = -static_cast<__int128>(a) * b - static_cast<__int128>(product.hi);
        ASSERT_EQ(product.lo, static_cast<double>(lost)) << a << " times " << -b;
    }
}
