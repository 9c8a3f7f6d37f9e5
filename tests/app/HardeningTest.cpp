#include "app/Hardening.h"

#include <windows.h>

#include <gtest/gtest.h>

TEST(Hardening, NoSystemBoxesForThisThreadAlone) {
    const UINT process = GetErrorMode();
    RefuseSystemBoxes();
    EXPECT_EQ(GetThreadErrorMode(), SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX);
    SetThreadErrorMode(0, nullptr);
    EXPECT_EQ(GetErrorMode(), process);
}
