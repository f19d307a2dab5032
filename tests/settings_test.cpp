// The process-wide settings.

#include <vector>

#include "support.h"

using namespace support;

namespace {

struct Settings {
    double tolerance = ca_geterrdist();
    int32_t startendFlag = ca_GetStartendFlg();
    std::vector<double> table{ca_Simpson_getParmtbl(), ca_Simpson_getParmtbl() + 10};
} const kAtLoad; // before any test

} // namespace

TEST(Settings, holdTheirDefaultsAtLoad) {
    EXPECT_EQ(kAtLoad.tolerance, 1e-6);
    EXPECT_EQ(kAtLoad.startendFlag, 0);
    EXPECT_EQ(kAtLoad.table, std::vector<double>(10, 0.0));
}

TEST(Settings, storeAnyValueUnchanged) {
    const ToleranceGuard tolerance(1.0);
    ca_seterrdist(-3.0);
    EXPECT_EQ(ca_geterrdist(), -3.0);
    const StartendGuard flag(1);
    ca_SetStartendFlg(-7);
    EXPECT_EQ(ca_GetStartendFlg(), -7);
}

TEST(Settings, giveTheSameWritableTableAtEveryCall) {
    double *table = ca_Simpson_getParmtbl();
    table[9] = 12.5;
    EXPECT_EQ(ca_Simpson_getParmtbl(), table);
    EXPECT_EQ(ca_Simpson_getParmtbl()[9], 12.5);
    table[9] = 0.0;
}
