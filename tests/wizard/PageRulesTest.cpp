// What holds for every page of both wizards, whatever it shows: looks, keyboard, screen reader, and that
// nothing of the page before shines through. ./test repeats these rules and Layout at other resolutions.

#include "app/StartUp.h"
#include "ftw/FtwPages.h"
#include "tests/support/Canvas.h"
#include "tests/support/FormUnderTest.h"
#include "tests/support/Scratch.h"
#include "win/Fonts.h"

#include <gtest/gtest.h>

#include <oleacc.h>

#include <algorithm>
#include <map>
#include <set>

namespace {

using namespace win::literals;

class PageRules : public testing::TestWithParam<std::int16_t> {
  protected:
    // On each page, and on the last one as it is for VConfig.
    void OnEachPage(const std::function<void()>& expect) {
        test.form.ConfigName = L"Mill 3";
        for (const Page& page : test.book.pages) {
            SCOPED_TRACE("mode " + std::to_string(GetParam()) + " page " + std::to_string(page.number));
            test.form.pool.SetInputFont(false); // as the page with another one leaves it
            test.Show(page.number);
            expect();
        }
    }
    const ScratchSuite suite; // without samples and settings
    FormUnderTest test{GetParam()};
};

INSTANTIATE_TEST_SUITE_P(Modes, PageRules, testing::Values(kFirstTimeSetup, kNewDevice));

bool IsButton(HWND control, LONG type) {
    return ClassOf(control) == L"Button" && (GetWindowLongW(control, GWL_STYLE) & BS_TYPEMASK) == type;
}

LOGFONTW FontOf(HFONT font) {
    LOGFONTW face{};
    GetObjectW(font, sizeof face, &face);
    return face;
}

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

TEST_P(PageRules, WhatTakesTheFocusHasANameAndAccessKeysAreUnique) {
    CoInitialize(nullptr);
    OnEachPage([this] {
        std::map<wchar_t, int> uses;
        for (const HWND control : test.VisibleControls()) {
            SCOPED_TRACE(GetDlgCtrlID(control));
            if (IsTabStop(control) && !IsLabelledList(control)) {
                EXPECT_NE(SpokenOf(control).name, L"");
            }
            if (IsButton(control, BS_OWNERDRAW)) {
                ExpectRole(control, ROLE_SYSTEM_LINK);
                EXPECT_TRUE(
                    FontOf(reinterpret_cast<HFONT>(SendMessageW(control, WM_GETFONT, 0, 0))).lfUnderline);
                EXPECT_EQ(SpokenOf(control).name, win::WindowText(control));
            }
            const bool isPush = IsButton(control, BS_PUSHBUTTON) || IsButton(control, BS_DEFPUSHBUTTON);
            if (isPush || IsButton(control, BS_OWNERDRAW)) { // else a double click would be two clicks
                EXPECT_TRUE(GetWindowLongW(control, GWL_STYLE) & BS_NOTIFY);
            }
            EXPECT_FALSE(IsButton(control, BS_RADIOBUTTON)); // a click would not mark it
            if (ClassOf(control) == L"Edit") {
                EXPECT_LE(SendMessageW(control, EM_GETLIMITTEXT, 0, 0), 250);
            }
            if (ClassOf(control) != win::RichText::kClassName && AccessKey(control)) {
                EXPECT_EQ(++uses[AccessKey(control)], 1) << "one access key twice";
            }
        }
        ExpectRole(test.form.picLogo.Handle(), ROLE_SYSTEM_GRAPHIC);
        ExpectRole(test.form.picAppIcon[0].Handle(), ROLE_SYSTEM_GRAPHIC);
    });
    CoUninitialize();
}

// Skip, Back, Next and Cancel end the tab order; before them everything stands from top to bottom, and
// from left to right on one line. The focus starts where the user types, or on Next.
TEST_P(PageRules, TabGoesDownThePageAndEnterIsNext) {
    OnEachPage([this] {
        std::vector<HWND> stops = test.VisibleControls();
        std::erase_if(stops, [](HWND control) { return !IsTabStop(control); });
        const auto place = [](HWND control) {
            RECT area{};
            GetWindowRect(control, &area);
            return std::pair(area.top, area.left);
        };
        EXPECT_TRUE(
            std::is_sorted(stops.begin(), stops.end(), [&](HWND a, HWND b) { return place(a) < place(b); }));
        const auto first = std::find_if(stops.begin(), stops.end(), [this](HWND control) {
            return control != test.form.txtInfo.Handle();
        });
        ASSERT_NE(first, stops.end());
        EXPECT_EQ(GetFocus(), ClassOf(*first) == L"Edit" ? *first : test.form.cmdNext.Handle());
        EXPECT_EQ(LOWORD(SendMessageW(test.form.Hwnd(), DM_GETDEFID, 0, 0)), test.form.cmdNext.Id());
        for (const HWND stop : stops)
            EXPECT_FALSE(IsButton(stop, BS_DEFPUSHBUTTON) && stop != test.form.cmdNext.Handle());
    });
}

int Height(int points) {
    return -MulDiv(points, GetDeviceCaps(win::WindowDc(nullptr).Get(), LOGPIXELSY), 72);
}

// Whether it paints more than its ground.
bool LeavesInk(HWND control) {
    const Canvas canvas(RGB(1, 2, 3));
    SendMessageW(control, WM_PRINT, reinterpret_cast<WPARAM>(canvas.Dc()), PRF_CLIENT | PRF_ERASEBKGND);
    std::vector<COLORREF> pixels(320 * 320); // 32 bits each
    const auto bitmap = static_cast<HBITMAP>(GetCurrentObject(canvas.Dc(), OBJ_BITMAP));
    GetBitmapBits(bitmap, static_cast<LONG>(pixels.size() * sizeof pixels[0]), pixels.data());
    return std::set<COLORREF>(pixels.begin(), pixels.end()).size() > 2;
}

bool HasText(HWND control) {
    return !win::WindowText(control).empty() || SendMessageW(control, LB_GETCOUNT, 0, 0) > 0;
}

TEST_P(PageRules, EveryTextIsPaintedInAFontAsHighAsTheResolutionWants) {
    const LOGFONTW heading = FontOf(win::FontFor(win::FontUse::Heading));
    EXPECT_EQ(heading.lfHeight, Height(12));
    EXPECT_EQ(heading.lfWeight, FW_BOLD);
    OnEachPage([this] {
        for (const HWND control : test.VisibleControls()) {
            SCOPED_TRACE(Utf8(ClassOf(control) + L" " + win::WindowText(control)));
            const auto font = reinterpret_cast<HFONT>(SendMessageW(control, WM_GETFONT, 0, 0));
            if (font) { // a rich-text control does not tell
                EXPECT_EQ(FontOf(font).lfHeight, Height(8));
            }
            // Neither the heading nor a drop-down list can be had this way.
            if (control != test.form.picHeader.Handle() && ClassOf(control) != L"ComboBox" &&
                HasText(control)) {
                EXPECT_TRUE(LeavesInk(control));
            }
        }
        EXPECT_TRUE(GetWindowLongW(test.form.txtInfo.Handle(), GWL_STYLE) & WS_VISIBLE);
    });
}

TEST_P(PageRules, MarkUpIsALookAndNoText) {
    OnEachPage([this] {
        const std::wstring text = test.form.txtInfo.Text();
        for (const wchar_t* tag :
             {L"<b>", L"</b>", L"<r>", L"</r>", L"<u>", L"</u>", L"<i>", L"<l>", L"<br>"})
            EXPECT_EQ(text.find(tag), std::wstring::npos) << Utf8(text);
        EXPECT_FALSE(test.form.picHeader.Text().empty());
    });
}

// One text with mark-up of each kind: bullets, bold, red, what a user typed.
TEST(PageLooks, OfEachKindOfMarkUp) {
    const struct {
        std::int16_t page;
        const wchar_t *folders, *look;
    } rows[] = {
        // clang-format off
        {3, L"", L"This Wizard introduces you to Varnel DNC features and guides you through the initial setup process, including:/"
                 L"{* 150 150}specifying the location of your CNC program files/configuring CNC communication settings/"
                 L"advising you about organizing and protecting data/launching the Varnel DNC Navigator/{}/"
                 L"{b}Note: Carefully completing this wizard saves time and helps you use Varnel DNC more effectively.{}//"},
        {10, L"<b>D</b><r>", L"{rb}The folder you specified does not exist:{}/     {b}<b>D</b><r>{}//"
                 L"Click {b}Next{} to create a new folder with this name.//Click {b}Back{} to choose a different file location.//"
                 L"You can change the file location or add more folders later by clicking {b}Root folders{} in the Varnel DNC File Manager's {b}Configure{} menu."},
        // clang-format on
    };
    const ScratchSuite suite;
    FormUnderTest test(kFirstTimeSetup);
    for (const auto& row : rows) {
        ftwSession.location.folders = row.folders;
        test.Show(row.page);
        EXPECT_EQ(Utf8(Described(test.form.txtInfo)), Utf8(row.look));
    }
}

TEST(PageChoose, KeepingIsOfferedToWhoHasSomethingToKeep) {
    const ScratchSuite suite;
    FormUnderTest test(kFirstTimeSetup);
    for (const auto& [progress, offered] :
         {std::pair("5", false), {"abc", false}, {"6", true}, {"\" 17 x\"", true}}) {
        suite.Ini(std::string("[General]\r\nFTSW_MaxProgress=") + progress + "\r\n");
        test.book.load(test.form);
        test.Show(2);
        EXPECT_EQ(test.form.pool.optUserInput[1].Enabled(), offered) << progress;
    }
}

std::wstring StateOf(HWND control) {
    const std::wstring kind = ClassOf(control);
    RECT place{};
    GetWindowRect(control, &place);
    std::wstring state = kind + L" \"" + win::WindowText(control) + L"\"";
    for (const LONG number :
         {place.left, place.top, place.right, place.bottom, GetWindowLongW(control, GWL_STYLE)})
        state += L" " + std::to_wstring(number);
    if (kind == L"Button") state += L" " + std::to_wstring(SendMessageW(control, BM_GETCHECK, 0, 0));
    if (kind == L"Edit") state += L" " + std::to_wstring(SendMessageW(control, EM_GETLIMITTEXT, 0, 0));
    if (kind == L"ListBox") state += L" " + std::to_wstring(SendMessageW(control, LB_GETCURSEL, 0, 0));
    for (const std::wstring& item : ItemsOf(control))
        state += L"|" + item;
    return state + L"\n";
}

// Everything that the page shows; each box is pressed twice, so that what another page left in it would run.
std::string StateOf(FormUnderTest& test) {
    std::wstring state = Described(test.form.txtInfo, L"\n") + L"\n";
    for (const HWND control : test.VisibleControls()) {
        state += StateOf(control);
        for (int i = IsButton(control, BS_AUTOCHECKBOX) ? 2 : 0; i > 0; --i)
            SendMessageW(control, BM_CLICK, 0, 0);
    }
    ForEachInput(test.form.pool, [&](win::Control& input) {
        if (input.Visible()) state += input.ToolTip();
    });
    return Utf8(state + L"focus " + std::to_wstring(GetDlgCtrlID(GetFocus())));
}

// As the most untidy page could leave it.
void Litter(FormUnderTest& test, int& clicks) {
    ForEachInput(test.form.pool, [](win::Control& input) {
        input.Place(300_tw, 900_tw, 700_tw, 800_tw);
        input.Text(L"litter");
        input.ToolTip(L"litter");
        input.Visible(true);
    });
    InputPool& pool = test.form.pool;
    for (auto& box : pool.chkUserInput) {
        box.Checked(true);
        box.onClick = [&clicks] { ++clicks; };
    }
    for (auto& option : pool.optUserInput)
        option.Checked(true);
    for (auto& box : pool.txtUserInput)
        box.Limit(1);
    for (auto& list : pool.lstUserInput)
        list.Fill({L"litter"});
    pool.cmbUserInput.Add(L"litter");
    pool.cmbUserInput.Visible(true);
    pool.cmbUserInput.Left(300_tw);
    pool.fraContainer.Visible(true);
    test.form.WriteInfo(L"<b><r>litter</r></b>\r\n<u>litter</u>");
    test.form.txtInfo.Height(1000_tw);
    test.form.cmdNext.Text(L"litter");
    test.form.cmdSkip.Visible(true);
    test.form.cmdCancel.Focus();
    for (auto& icon : test.form.picAppIcon)
        icon.Visible(GetParent(icon.Handle()) != nullptr && startUp.WizardMode == kFirstTimeSetup);
}

TEST_P(PageRules, NothingOfThePageBeforeIsLeft) {
    OnEachPage([this] {
        const std::string tidy = StateOf(test);
        int clicks = 0;
        Litter(test, clicks);
        test.Show(test.form.PageNo);
        EXPECT_EQ(StateOf(test), tidy);
        EXPECT_EQ(clicks, 0) << "a box of this page still belongs to another";
    });
}

} // namespace
