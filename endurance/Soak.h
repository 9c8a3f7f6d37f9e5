#pragma once

// What the checks of ./soak share. Each is a test of its own; ./soak names them without "Soak.".

#include "tests/support/DemoSuite.h"
#include "tools/driver/Walker.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstdlib>

// What ./soak hands over, "" when it does not.
inline std::wstring Given(const char* variable) {
    const char* value = std::getenv(variable);
    return value ? FromUtf8(value) : L"";
}

// Of ./soak --short, which does a part of each check, and --seed N.
inline bool IsShort() { return !Given("SOAK_SHORT").empty(); }
inline int Of(int full, int few) { return IsShort() ? few : full; }
inline std::uint32_t Seed() { return std::wcstoul(Given("SOAK_SEED").c_str(), nullptr, 10); }
