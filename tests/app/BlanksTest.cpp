#include "app/Blanks.h"

#include <gtest/gtest.h>

TEST(Blanks, AtTheEndsGo) {
    EXPECT_EQ(TrimBlanks(L"  a b "), L"a b");
    EXPECT_EQ(TrimBlanks(L"\ta\u00a0 "), L"\ta\u00a0");
    EXPECT_EQ(TrimBlanks(L"   "), L"");
}
