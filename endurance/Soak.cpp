// Runs the checks named on the command line and prints one row of the table for each.
//   soak.exe [--short] [--seed N] CHECK...
#include "endurance/Soak.h"

#include "tests/support/DemoSuite.h"

#include <windows.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <exception>

namespace {

struct Check {
    const char* name;
    void (*run)(Tally&);
};

// clang-format off
constexpr Check kChecks[] = {
    {"names",    CheckNames},
    {"faults",   CheckFaults},
    {"ini",      CheckSettingsFile},
    {"windows",  CheckWindows},
    {"copies", CheckTwoCopies},
    {"monkey",   CheckMonkey},
};
// clang-format on

bool Run(const Check& check, bool quick, std::uint32_t seed) {
    Tally tally(quick, seed);
    const ULONGLONG begin = GetTickCount64();
    try {
        check.run(tally);
    } catch (const std::exception& error) {
        std::printf("    %s: %s\n", check.name, error.what());
        tally.Expect(false, L"ended early");
    }
    std::printf("%-12s %7d tried %4d failed %6.0f s  %s\n", check.name, tally.Count(), tally.Failures(),
                static_cast<double>(GetTickCount64() - begin) / 1000, tally.Notes().c_str());
    std::fflush(stdout);
    return tally.Count() > 0 && tally.Failures() == 0;
}

} // namespace

bool Tally::Expect(bool holds, const std::wstring& what) {
    ++count_;
    if (holds) return true;
    ++failures_;
    std::printf("    FAILED %s\n", Utf8(what).c_str());
    std::fflush(stdout);
    return false;
}

void Tally::Skip(const std::wstring& what) { std::printf("    skipped: %s\n", Utf8(what).c_str()); }

int main(int count, char** arguments) {
    bool quick = false;
    bool passed = true;
    std::uint32_t seed = 1;
    for (int i = 1; i < count; ++i) {
        if (std::strcmp(arguments[i], "--short") == 0)
            quick = true;
        else if (std::strcmp(arguments[i], "--seed") == 0 && i + 1 < count)
            seed = static_cast<std::uint32_t>(std::strtoul(arguments[++i], nullptr, 10));
        else
            for (const Check& check : kChecks)
                if (std::strcmp(arguments[i], check.name) == 0) passed = Run(check, quick, seed) && passed;
    }
    return passed ? 0 : 1;
}
