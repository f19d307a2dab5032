#include "support.h"
TEST(Smoke, loads) { EXPECT_EQ(ca_geterrdist(), 1e-6); }
