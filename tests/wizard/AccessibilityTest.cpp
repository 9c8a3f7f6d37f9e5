// What keyboard and screen reader users get, on every page of both wizards.

#include "app/StartUp.h"
#include "tests/support/FormUnderTest.h"

#include <gtest/gtest.h>

#include <oleacc.h>

#include <algorithm>
#include <map>

namespace {

struct Spoken {
    std::wstring name;
    LONG role = 0;
};

Spoken SpokenOf(HWND control) {
    Spoken spoken;
    IAccessible* object = nullptr;
    if (FAILED(AccessibleObjectFromWindow(control, static_cast<DWORD>(OBJID_CLIENT), IID_IAccessible,
                                          reinterpret_cast<void**>(&object))))
        return spoken;
    VARIANT self{};
    self.vt = VT_I4;
    self.lVal = CHILDID_SELF;
    BSTR name = nullptr;
    if (object->get_accName(self, &name) == S_OK && name) spoken.name = name;
    SysFreeString(name);
    VARIANT role{};
    if (object->get_accRole(self, &role) == S_OK) spoken.role = role.lVal;
    object->Release();
    return spoken;
}

// The object that Wine makes for a list does not look for the label in front of it, as Windows' does.
bool IsLabelledList(HWND control) {
    const HWND label = GetWindow(control, GW_HWNDPREV);
    return ClassOf(control) == L"ListBox" && ClassOf(label) == L"Static" && !win::WindowText(label).empty();
}

// Counts the announcements of one window while it lives.
class Announcements {
  public:
    explicit Announcements(HWND window) {
        window_ = window;
        count_ = 0;
        hook_ = SetWinEventHook(EVENT_SYSTEM_ALERT, EVENT_SYSTEM_ALERT, nullptr, OnEvent,
                                GetCurrentProcessId(), 0, WINEVENT_OUTOFCONTEXT);
    }
    Announcements(const Announcements&) = delete;
    Announcements& operator=(const Announcements&) = delete;
    ~Announcements() { UnhookWinEvent(hook_); }

    int Count() const {
        win::PumpPendingMessages();
        return count_;
    }

  private:
    static void CALLBACK OnEvent(HWINEVENTHOOK, DWORD, HWND window, LONG, LONG, DWORD, DWORD) {
        if (window == window_) ++count_;
    }

    HWINEVENTHOOK hook_;
    inline static HWND window_ = nullptr;
    inline static int count_ = 0;
};

class EveryPage : public testing::TestWithParam<std::int16_t> {
  protected:
    template <class Check> void ForEachPage(Check check) {
        CoInitialize(nullptr);
        FormUnderTest test(GetParam());
        for (const std::int16_t page : test.Pages()) {
            SCOPED_TRACE("mode " + std::to_string(GetParam()) + " page " + std::to_string(page));
            test.Show(page);
            check(test);
        }
        CoUninitialize();
    }
};

wchar_t AccessKey(HWND control) {
    const std::wstring caption = win::WindowText(control);
    const std::size_t mark = caption.find(L'&');
    const bool none = mark == std::wstring::npos || mark + 1 >= caption.size() || caption[mark + 1] == L'&';
    return none ? L'\0' : static_cast<wchar_t>(towlower(caption[mark + 1]));
}

} // namespace

TEST_P(EveryPage, WhatTakesTheFocusHasAName) {
    ForEachPage([](FormUnderTest& test) {
        for (const HWND control : test.VisibleControls())
            if (IsTabStop(control) && !IsLabelledList(control)) {
                EXPECT_NE(SpokenOf(control).name, L"") << GetDlgCtrlID(control) << " has no name";
            }
    });
}

TEST_P(EveryPage, LinksAndPicturesStateTheirRoles) {
    ForEachPage([](FormUnderTest& test) {
        for (const HWND control : test.VisibleControls()) {
            const LONG style = GetWindowLongW(control, GWL_STYLE);
            if (ClassOf(control) == L"Button" && (style & BS_TYPEMASK) == BS_OWNERDRAW) {
                EXPECT_EQ(SpokenOf(control).role, ROLE_SYSTEM_LINK);
                EXPECT_EQ(SpokenOf(control).name, win::WindowText(control));
            }
        }
        for (win::Control* picture : {static_cast<win::Control*>(&test.form.picLogo),
                                      static_cast<win::Control*>(&test.form.picAppIcon[0])}) {
            const Spoken spoken = SpokenOf(picture->Handle());
            EXPECT_EQ(spoken.role, ROLE_SYSTEM_GRAPHIC);
            EXPECT_NE(spoken.name, L"");
        }
    });
}

TEST_P(EveryPage, AccessKeysAreUnique) {
    ForEachPage([](FormUnderTest& test) {
        std::map<wchar_t, int> uses;
        for (const HWND control : test.VisibleControls())
            if (ClassOf(control) != win::RichText::kClassName && AccessKey(control))
                ++uses[AccessKey(control)];
        for (const auto& [key, count] : uses)
            EXPECT_EQ(count, 1) << "access key " << static_cast<char>(key);
    });
}

// Skip, Back, Next and Cancel end the tab order; before them everything stands from top to bottom, and
// from left to right on one line.
TEST_P(EveryPage, TabOrderIsReadingOrder) {
    ForEachPage([](FormUnderTest& test) {
        std::vector<HWND> stops = test.VisibleControls();
        std::erase_if(stops, [](HWND control) { return !IsTabStop(control); });
        const auto place = [](HWND control) {
            RECT area{};
            GetWindowRect(control, &area);
            return std::pair(area.top, area.left);
        };
        EXPECT_TRUE(
            std::is_sorted(stops.begin(), stops.end(), [&](HWND a, HWND b) { return place(a) < place(b); }));
    });
}

TEST_P(EveryPage, FocusStartsWhereTheUserTypesOrOnNext) {
    ForEachPage([](FormUnderTest& test) {
        const HWND focus = GetFocus();
        EXPECT_TRUE(focus == test.form.cmdNext.Handle() || ClassOf(focus) == L"Edit") << GetDlgCtrlID(focus);
        const LRESULT defaultId = SendMessageW(test.form.Hwnd(), DM_GETDEFID, 0, 0);
        EXPECT_EQ(LOWORD(defaultId), test.form.cmdNext.Id());
    });
}

TEST(Accessibility, EachPageChangeIsAnnouncedOnce) {
    FormUnderTest test(kNewDevice);
    const Announcements announcements(test.form.picHeader.Handle());
    test.Show(3);
    EXPECT_EQ(announcements.Count(), 1);
    test.form.cmdNext_Click();
    EXPECT_EQ(announcements.Count(), 2);
}

INSTANTIATE_TEST_SUITE_P(Modes, EveryPage, testing::Values(kFirstTimeSetup, kNewDevice));
