#include "tests/support/DemoSuite.h"
#include "tests/support/WizardDriver.h"

#include <gtest/gtest.h>

namespace {

BOOL CALLBACK CountWizards(HWND window, LPARAM count) {
    wchar_t name[32] = L"";
    GetClassNameW(window, name, 32);
    if (std::wstring(name).starts_with(L"VWizard")) ++*reinterpret_cast<int*>(count);
    return TRUE;
}

int Wizards() {
    int count = 0;
    EnumWindows(CountWizards, reinterpret_cast<LPARAM>(&count));
    return count;
}

} // namespace

// An impatient double click on the wizard's icon.
TEST(DoubleStart, LeavesOneWindow) {
    const DemoSuite suite;
    for (int i = 0; i < 20; ++i) {
        SCOPED_TRACE(i);
        const wchar_t* mode = i % 2 ? L"/NDW" : L"";
        WizardDriver first(suite, mode, WizardDriver::Wait::No);
        WizardDriver second(suite, mode, WizardDriver::Wait::No);
        first.Until([&] { return !first.IsRunning() || !second.IsRunning(); }, L"one of two to give way");
        WizardDriver& winner = first.IsRunning() ? first : second;
        winner.WaitForOpening();
        EXPECT_EQ(Wizards(), 1);
        EXPECT_EQ((first.IsRunning() ? second : first).WaitForExit(), 0);
        EXPECT_TRUE(winner.IsRunning());
    }
}
