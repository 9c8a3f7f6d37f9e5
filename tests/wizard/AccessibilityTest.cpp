// What keyboard and screen reader users get, on every page of both wizards.

#include "app/StartUp.h"
#include "shell/frmIcons.h"
#include "tests/support/FormUnderTest.h"

#include <gtest/gtest.h>

#include <oleacc.h>

#include <algorithm>
#include <map>

namespace {

// The object that Wine makes for a list does not look for the label in front of it, as Windows' does.
bool IsLabelledList(HWND control) {
    const HWND label = GetWindow(control, GW_HWNDPREV);
    return ClassOf(control) == L"ListBox" && ClassOf(label) == L"Static" && !win::WindowText(label).empty();
}

wchar_t AccessKey(HWND control) {
    const std::wstring caption = win::WindowText(control);
    const std::size_t mark = caption.find(L'&');
    const bool none = mark == std::wstring::npos || mark + 1 >= caption.size() || caption[mark + 1] == L'&';
    return none ? L'\0' : static_cast<wchar_t>(towlower(caption[mark + 1]));
}

void ExpectRole(HWND control, LONG role) {
    EXPECT_EQ(SpokenOf(control).role, role);
    EXPECT_NE(SpokenOf(control).name, L"");
}

// What takes the focus has a name, links and pictures state their roles, access keys are unique.
void ExpectNames(FormUnderTest& test) {
    std::map<wchar_t, int> uses;
    for (const HWND control : test.VisibleControls()) {
        SCOPED_TRACE(GetDlgCtrlID(control));
        if (IsTabStop(control) && !IsLabelledList(control)) {
            EXPECT_NE(SpokenOf(control).name, L"");
        }
        if (ClassOf(control) == L"Button" &&
            (GetWindowLongW(control, GWL_STYLE) & BS_TYPEMASK) == BS_OWNERDRAW) {
            ExpectRole(control, ROLE_SYSTEM_LINK);
            EXPECT_EQ(SpokenOf(control).name, win::WindowText(control));
        }
        if (ClassOf(control) != win::RichText::kClassName && AccessKey(control)) {
            EXPECT_EQ(++uses[AccessKey(control)], 1) << "one access key twice";
        }
    }
    ExpectRole(test.form.picLogo.Handle(), ROLE_SYSTEM_GRAPHIC);
    ExpectRole(test.form.picAppIcon[0].Handle(), ROLE_SYSTEM_GRAPHIC);
}

// Skip, Back, Next and Cancel end the tab order; before them everything stands from top to bottom, and
// from left to right on one line. The focus starts where the user types, or on Next.
void ExpectOrder(FormUnderTest& test) {
    std::vector<HWND> stops = test.VisibleControls();
    std::erase_if(stops, [](HWND control) { return !IsTabStop(control); });
    const auto place = [](HWND control) {
        RECT area{};
        GetWindowRect(control, &area);
        return std::pair(area.top, area.left);
    };
    EXPECT_TRUE(
        std::is_sorted(stops.begin(), stops.end(), [&](HWND a, HWND b) { return place(a) < place(b); }));
    const HWND focus = GetFocus();
    EXPECT_TRUE(focus == test.form.cmdNext.Handle() || ClassOf(focus) == L"Edit") << GetDlgCtrlID(focus);
    EXPECT_EQ(LOWORD(SendMessageW(test.form.Hwnd(), DM_GETDEFID, 0, 0)), test.form.cmdNext.Id());
}

HWND announcing;
int announcements;

void CALLBACK OnEvent(HWINEVENTHOOK, DWORD, HWND window, LONG, LONG, DWORD, DWORD) {
    if (window == announcing) ++announcements;
}

} // namespace

TEST(Accessibility, EveryPage) {
    CoInitialize(nullptr);
    for (const std::int16_t mode : {kFirstTimeSetup, kNewDevice}) {
        FormUnderTest test(mode);
        for (const Page& page : test.book.pages) {
            SCOPED_TRACE("mode " + std::to_string(mode) + " page " + std::to_string(page.number));
            test.Show(page.number);
            ExpectNames(test);
            ExpectOrder(test);
        }
    }
    CoUninitialize();
}

TEST(Accessibility, IconsSayTheirNames) {
    frmIcons form;
    form.imgIcon[0].Text(L"R&&D 1.x");
    EXPECT_EQ(SpokenOf(form.imgIcon[0].Handle()).name, L"R&D 1.x");
}

TEST(Accessibility, EachPageChangeIsAnnouncedOnce) {
    FormUnderTest test(kNewDevice);
    announcing = test.form.picHeader.Handle();
    const HWINEVENTHOOK hook = SetWinEventHook(EVENT_SYSTEM_ALERT, EVENT_SYSTEM_ALERT, nullptr, OnEvent,
                                               GetCurrentProcessId(), 0, WINEVENT_OUTOFCONTEXT);
    for (const int count : {1, 2}) {
        test.form.cmdNext_Click();
        win::PumpPendingMessages();
        EXPECT_EQ(announcements, count);
    }
    UnhookWinEvent(hook);
}
