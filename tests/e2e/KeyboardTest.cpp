// The real wizard by keys alone: no mouse, no message to a control.

#include "tests/support/DemoSuite.h"
#include "tests/support/WizardDriver.h"

#include <gtest/gtest.h>

#include <set>

namespace {

class Keyboard {
  public:
    explicit Keyboard(const WizardDriver& wizard) : wizard_(wizard) {
        wizard_.Until([&] { return Focus() != nullptr; }, L"a control with the focus");
    }

    HWND Focus() const {
        GUITHREADINFO info{};
        info.cbSize = sizeof info;
        GetGUIThreadInfo(GetWindowThreadProcessId(wizard_.Window(), nullptr), &info);
        return info.hwndFocus;
    }

    void Press(WORD key, WORD modifier = 0) const {
        if (modifier) Send(modifier, 0, 0);
        Send(key, 0, 0);
        Send(key, 0, KEYEVENTF_KEYUP);
        if (modifier) Send(modifier, 0, KEYEVENTF_KEYUP);
    }
    void Type(const wchar_t* text) const {
        for (; *text; ++text) {
            Send(0, *text, KEYEVENTF_UNICODE);
            Send(0, *text, KEYEVENTF_UNICODE | KEYEVENTF_KEYUP);
        }
    }
    // Tab, and the control that it leads to.
    HWND Tab(bool back = false) const {
        const HWND before = Focus();
        Press(VK_TAB, back ? VK_SHIFT : WORD{0});
        wizard_.Until([&] { return Focus() != before; }, L"the focus to move on");
        return Focus();
    }
    std::wstring FocusText() const {
        wchar_t text[256] = L"";
        GetWindowTextW(Focus(), text, 256); // a foreign process: captions only, which is what is wanted
        return text;
    }
    // Tab until a control with this caption has the focus.
    void TabTo(const wchar_t* caption) const {
        for (int i = 0; FocusText() != caption; ++i) {
            if (i == 20) throw std::runtime_error("no Tab leads to " + Utf8(caption));
            Tab();
        }
    }

  private:
    static void Send(WORD key, WORD scan, DWORD flags) {
        INPUT input{};
        input.type = INPUT_KEYBOARD;
        input.ki.wVk = key;
        input.ki.wScan = scan;
        input.ki.dwFlags = flags;
        SendInput(1, &input, sizeof input);
    }

    const WizardDriver& wizard_;
};

} // namespace

TEST(Keyboard, EnterWalksTheNewDeviceWizardToItsEnd) {
    const DemoSuite suite;
    const WizardDriver wizard(suite, L"/NDW");
    const Keyboard keys(wizard);
    constexpr const wchar_t* kHeadings[] = {
        L"New CNC Configuration", L"Before You Begin", L"COM Port",          L"Baud Rate",
        L"Data Format",           L"Flow Control",     L"End of Block",      L"Transmit Prefix",
        L"Transmit Suffix",       L"Line Removal",     L"Filter Options",    L"Transmit Trigger",
        L"Receive File Name",     L"End of Reception", L"Configuration Name"};
    for (const wchar_t* heading : kHeadings) {
        wizard.WaitForPage(heading);
        if (heading != std::wstring_view(L"Configuration Name")) keys.Press(VK_RETURN);
    }
    keys.Type(L"KEYS");
    keys.Press(VK_RETURN);
    wizard.WaitForPage(L"Finished");
    EXPECT_EQ(FileNames(suite.Settings(), L"*.DCP"), std::vector<std::wstring>{L"KEYS.DCP"});
    keys.Press(VK_RETURN);
    EXPECT_EQ(wizard.WaitForExit(), 0);
}

// One round of Tab meets each stop once, the page text included, and an option group as one; Shift+Tab goes
// the other way.
TEST(Keyboard, TabGoesRoundAndLeavesThePageText) {
    const DemoSuite suite;
    const WizardDriver wizard(suite, L"/NDW");
    const Keyboard keys(wizard);
    for (const wchar_t* heading : {L"Before You Begin", L"COM Port", L"Baud Rate", L"Data Format"})
        wizard.Next(heading);
    const HWND first = keys.Focus();
    std::set<HWND> stops{first};
    while (keys.Tab() != first)
        ASSERT_TRUE(stops.insert(keys.Focus()).second) << "Tab turns in a smaller circle";
    EXPECT_EQ(stops.size(), 5u); // Next, Cancel, text, the group of options, Back
    keys.Tab();
    EXPECT_EQ(keys.Tab(true), first);
}

TEST(Keyboard, ArrowsChooseAndAccessKeysReach) {
    const DemoSuite suite;
    const WizardDriver wizard(suite, L"/NDW");
    const Keyboard keys(wizard);
    wizard.Next(L"Before You Begin");
    wizard.Next(L"COM Port");
    keys.Press(L'C', VK_MENU);
    wizard.Until([&] { return keys.Focus() == wizard.Input(L"ComboBox", L"&COM port"); },
                 L"Alt+C in the list");
    keys.Press(VK_DOWN);
    wizard.Until([&] { return wizard.Selected(L"&COM port") == 1; }, L"the arrow to choose COM2");
    keys.Press(L'N', VK_MENU);
    wizard.WaitForPage(L"Baud Rate");
    wizard.Next(L"Data Format");
    keys.TabTo(L"ISO");
    keys.Press(VK_DOWN);
    keys.Press(VK_DOWN);
    wizard.Until([&] { return wizard.IsChecked(L"ASCII"); }, L"the arrows to choose ASCII");
}

TEST(Keyboard, LinksAreFollowedBySpaceAndEnter) {
    const DemoSuite suite;
    const WizardDriver wizard(suite, L"/NDW");
    const Keyboard keys(wizard);
    wizard.Next(L"Before You Begin");
    keys.TabTo(L"Varnel DNC Terminal (VTerminal)");
    keys.Press(VK_SPACE);
    suite.WaitForStarts(L"VTerminal.exe", 1);
    keys.Press(VK_RETURN);
    suite.WaitForStarts(L"VTerminal.exe", 2);
    EXPECT_TRUE(wizard.ShowsText(L"Before You Begin"));
}

TEST(Keyboard, EscapeAsksAndNoStays) {
    const DemoSuite suite;
    const WizardDriver wizard(suite);
    const Keyboard keys(wizard);
    keys.Press(VK_ESCAPE);
    EXPECT_EQ(wizard.AnswerBox(IDNO).title, L"Varnel DNC Setup Wizard");
    EXPECT_TRUE(wizard.ShowsText(L"Welcome"));
    keys.Press(VK_ESCAPE);
    wizard.AnswerBox(IDYES);
    EXPECT_EQ(wizard.WaitForExit(), 0);
}
