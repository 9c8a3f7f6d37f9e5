// The icon picker as the New Device Wizard opens it, and the name that it leaves in the file.

#include "tests/support/DemoSuite.h"
#include "tests/support/WizardDriver.h"

#include <gtest/gtest.h>

#include <array>
#include <functional>

namespace {

constexpr const wchar_t* kIntroduction[] = {L"Before You Begin", L"COM Port"};

// From the port page on, with every answer as it stands.
constexpr const wchar_t* kPages[] = {L"Baud Rate",         L"Data Format",      L"Flow Control",
                                     L"End of Block",      L"Transmit Prefix",  L"Transmit Suffix",
                                     L"Line Removal",      L"Filter Options",   L"Transmit Trigger",
                                     L"Receive File Name", L"End of Reception", L"Configuration Name"};

void GoToNamePage(const WizardDriver& wizard) {
    for (const wchar_t* heading : kPages)
        wizard.Next(heading);
}

// The icon name in the file: 64 characters at offset 114, without what fills them up.
std::string IconIn(const DemoSuite& suite, const std::wstring& name) {
    const std::string field = FileBytes(suite.Settings() + name + L".DCP").substr(114, 64);
    return field.substr(0, field.find_last_not_of(std::string_view(" \0", 2)) + 1);
}

void PressKey(HWND window, WPARAM key) { PostMessageW(window, WM_KEYDOWN, key, 1); }

HWND Slot(HWND picker, const wchar_t* name) { return FindWindowExW(picker, nullptr, L"Button", name); }

void Click(HWND slot, UINT down = WM_LBUTTONDOWN) {
    PostMessageW(slot, down, MK_LBUTTON, MAKELPARAM(9, 9));
    PostMessageW(slot, WM_LBUTTONUP, 0, MAKELPARAM(9, 9));
}

struct Row {
    const wchar_t* name;
    std::function<void(HWND)> act;
    const char* icon;
};

TEST(IconPicker, PutsTheNamePickedIntoTheFile) {
    const DemoSuite suite;
    suite.AddIcons();
    const auto icons = FileNames(suite.Folder() + L"Icons\\", L"*.ico");
    ASSERT_GE(icons.size(), 12u);
    const Row rows[] = {
        {L"Default", [](HWND picker) { WizardDriver::ClickIn(picker, L"OK"); }, "VDNC32.ico"},
        {L"Left",
         [](HWND picker) {
             PressKey(Slot(picker, L"VDNC32"), VK_LEFT);
             PressKey(Slot(picker, L"VDNC32"), VK_RETURN);
         },
         "TAPE.ico"},
        {L"Double click",
         [](HWND picker) {
             Click(Slot(picker, L"SAW"));
             Click(Slot(picker, L"SAW"), WM_LBUTTONDBLCLK);
         },
         "SAW.ico"},
        {L"Cancel", [](HWND picker) { WizardDriver::ClickIn(picker, L"Cancel"); }, "Varnel"},
    };
    const WizardDriver wizard(suite, L"/NDW");
    for (const wchar_t* heading : kIntroduction)
        wizard.Next(heading);
    for (const Row& row : rows) {
        SCOPED_TRACE(Utf8(row.name));
        GoToNamePage(wizard);
        wizard.Type(L"Configuration &name", row.name);
        wizard.Click(L"&Create");
        const HWND picker = wizard.WaitForWindow(L"Select Icon");
        EXPECT_FALSE(IsWindowEnabled(wizard.Window()));
        EXPECT_EQ(FileNames(suite.Settings(), (std::wstring(row.name) + L".DCP").c_str()).size(), 0u);
        row.act(picker);
        wizard.WaitForPage(L"Finished");
        EXPECT_EQ(IconIn(suite, row.name), row.icon);
        wizard.Click(L"&New");
        wizard.WaitForPage(L"COM Port");
    }
}

// Without the folder the program's own is searched, which holds no icons.
TEST(IconPicker, IsLeftOutWithoutIcons) {
    const DemoSuite suite;
    const WizardDriver wizard(suite, L"/NDW");
    for (const wchar_t* heading : kIntroduction)
        wizard.Next(heading);
    GoToNamePage(wizard);
    wizard.Type(L"Configuration &name", L"Plain");
    wizard.Next(L"Finished");
    EXPECT_EQ(IconIn(suite, L"Plain"), "Varnel");
}

} // namespace
