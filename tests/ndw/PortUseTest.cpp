#include "ndw/PortUse.h"

#include <gtest/gtest.h>

TEST(PortUse, Captions) {
    EXPECT_EQ(PortCaption(1, false, L""), L"COM1");
    EXPECT_EQ(PortCaption(256, true, L""), L"COM256 - on this computer");
    EXPECT_EQ(PortCaption(3, false, L"LATHE2"), L"COM3 - used by LATHE2");
    EXPECT_EQ(PortCaption(3, true, L"LATHE2, Mill 1"), L"COM3 - on this computer, used by LATHE2, Mill 1");
}
