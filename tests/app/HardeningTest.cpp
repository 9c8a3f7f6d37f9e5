#include "app/Hardening.h"

#include <windows.h>

#include <gtest/gtest.h>

TEST(Hardening, NoSystemBoxesForThisThreadAlone) {
    const UINT process = GetErrorMode();
    SetThreadErrorMode(0, nullptr);
    RefuseSystemBoxes();
    EXPECT_EQ(GetThreadErrorMode(), SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX);
    EXPECT_EQ(GetErrorMode() & ~GetThreadErrorMode(), process & ~GetThreadErrorMode());
    SetThreadErrorMode(0, nullptr);
    EXPECT_EQ(GetErrorMode(), process);
}
