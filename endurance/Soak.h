#pragma once

// What the checks of ./soak share. Each is a test of its own; ./soak names them without "Soak.".

#include "tests/support/DemoSuite.h"
#include "tools/driver/Walker.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstdlib>
#include <initializer_list>
#include <string>

// Of ./soak --short, which does a part of each check.
inline bool IsShort() { return std::getenv("SOAK_SHORT") != nullptr; }
inline int Of(int full, int few) { return IsShort() ? few : full; }

// Of ./soak --seed N.
inline std::uint32_t Seed() {
    const char* seed = std::getenv("SOAK_SEED");
    return seed ? static_cast<std::uint32_t>(std::strtoul(seed, nullptr, 10)) : 1;
}

// A path that ./soak hands over, "" for none.
inline std::wstring PathFrom(const char* variable) {
    const char* path = std::getenv(variable);
    return path ? FromUtf8(path) : L"";
}

// Sample configurations of these names.
inline void AddSamples(const DemoSuite& suite, std::initializer_list<const wchar_t*> names) {
    CreateDirectoryW((suite.Folder() + L"Samples").c_str(), nullptr);
    for (const wchar_t* name : names)
        WriteFileBytes(suite.Folder() + L"Samples\\" + name + L".dcp", "sample");
}
