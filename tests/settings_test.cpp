// The process-wide settings.

#include "support.h"

using namespace support;

TEST(Settings, holdTheirDefaultsAtLoad) {
    EXPECT_EQ(ca_geterrdist(), 1e-6);
    EXPECT_EQ(ca_GetStartendFlg(), 0);
    for (int slot = 0; slot < 10; ++slot) {
        EXPECT_EQ(ca_Simpson_getParmtbl()[slot], 0.0) << slot;
    }
}

TEST(Settings, storeAnyValueUnchanged) {
    const ToleranceGuard tolerance(-3.0);
    EXPECT_EQ(ca_geterrdist(), -3.0);
    const StartendGuard flag(-7);
    EXPECT_EQ(ca_GetStartendFlg(), -7);
}

TEST(Settings, giveTheSameWritableTableAtEveryCall) {
    double *table = ca_Simpson_getParmtbl();
    table[9] = 12.5;
    EXPECT_EQ(ca_Simpson_getParmtbl(), table);
    EXPECT_EQ(ca_Simpson_getParmtbl()[9], 12.5);
    table[9] = 0.0;
}
