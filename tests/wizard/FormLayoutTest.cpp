// Measures every page of both wizards, at the resolution of the running process (./test repeats it at
// others): nothing overlaps, nothing leaves its place, no text is cut.

#include "wizard/FormLayout.h"
#include "app/StartUp.h"
#include "ndw/NdwPages.h"
#include "tests/support/DcpByHand.h"
#include "tests/support/FormUnderTest.h"
#include "tests/support/Scratch.h"
#include "win/Fonts.h"
#include "win/Screen.h"
#include "wizard/PermissionPage.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

using namespace win::literals;

RECT PlaceOf(HWND control) {
    RECT place{};
    GetWindowRect(control, &place);
    MapWindowPoints(nullptr, GetParent(control), reinterpret_cast<POINT*>(&place), 2);
    return place;
}

std::string Name(HWND control) {
    std::wstring name = ClassOf(control) + L" \"" + win::WindowText(control).substr(0, 40) + L"\" at";
    const RECT place = PlaceOf(control);
    for (const LONG edge : {place.left, place.top, place.right, place.bottom})
        name += L" " + std::to_wstring(edge);
    return Utf8(name);
}

// Of `text` in the control's font, lines broken at `width`; "&" marks access keys where `marks` says so.
// A rich-text control does not tell its font.
SIZE Extent(HWND control, const std::wstring& text, bool marks, int width = 10000) {
    const win::WindowDc dc(control);
    const auto font = reinterpret_cast<HFONT>(SendMessageW(control, WM_GETFONT, 0, 0));
    const win::SelectedObject selected(dc.Get(), font ? font : win::FontFor(win::FontUse::Body));
    RECT area{0, 0, width, 0};
    DrawTextW(dc.Get(), text.c_str(), -1, &area, DT_CALCRECT | DT_WORDBREAK | (marks ? 0u : DT_NOPREFIX));
    return {area.right, area.bottom};
}

LONG WidestItem(HWND control) {
    LONG widest = 0;
    for (const std::wstring& item : ItemsOf(control))
        widest = std::max(widest, Extent(control, item, false).cx);
    return widest;
}

// The room that a control's whole text needs, in pixels.
SIZE ButtonNeeds(HWND control) {
    const LONG type = GetWindowLongW(control, GWL_STYLE) & BS_TYPEMASK;
    const bool link = type == BS_OWNERDRAW;
    const bool push = type == BS_PUSHBUTTON || type == BS_DEFPUSHBUTTON;
    SIZE size = Extent(control, win::WindowText(control), !link);
    size.cx += link ? 0 : push ? win::Px({120}) : GetSystemMetrics(SM_CXMENUCHECK) + win::Px({60});
    size.cy += push ? win::Px({90}) : 0;
    return size;
}

SIZE TextNeeds(HWND control, const RECT& client) {
    const std::wstring kind = ClassOf(control);
    const int edge = 2 * GetSystemMetrics(SM_CXEDGE);
    const int bar = GetSystemMetrics(SM_CXVSCROLL) + edge;
    if (kind == L"Button") return ButtonNeeds(control);
    if (kind == L"ListBox") return {WidestItem(control) + bar, 0};
    if (kind == L"ComboBox") return {WidestItem(control) + bar + edge, 0};
    if (kind == L"Edit") return {0, Extent(control, L"Xg", false).cy};
    if (kind == win::RichText::kClassName) {
        POINTL place{}; // of the end
        SendMessageW(control, EM_POSFROMCHAR, reinterpret_cast<WPARAM>(&place),
                     GetWindowTextLengthW(control));
        return {0, place.y + Extent(control, L"Xg", false).cy};
    }
    if ((GetWindowLongW(control, GWL_STYLE) & SS_TYPEMASK) == SS_OWNERDRAW) return {};
    return Extent(control, win::WindowText(control), true, client.right);
}

void ExpectTextFits(HWND control) {
    RECT client{};
    GetClientRect(control, &client);
    const SIZE needs = TextNeeds(control, client);
    EXPECT_LE(needs.cx, client.right) << Name(control);
    EXPECT_LE(needs.cy, client.bottom) << Name(control);
}

void ExpectHeadingFits(win::Label& header) {
    const HFONT usual = reinterpret_cast<HFONT>(header.Send(WM_GETFONT));
    header.Send(WM_SETFONT, reinterpret_cast<WPARAM>(win::FontFor(win::FontUse::Heading)));
    const SIZE size = Extent(header.Handle(), header.Text(), false);
    header.Send(WM_SETFONT, reinterpret_cast<WPARAM>(usual));
    const RECT place = PlaceOf(header.Handle());
    EXPECT_LE(win::Px(layout::kHeadingLeft) + size.cx, place.right - place.left) << Utf8(header.Text());
    EXPECT_LE(win::Px(layout::kHeadingTop) + size.cy, place.bottom) << Utf8(header.Text());
}

void ExpectPage(FormUnderTest& test, bool scrolls = false) {
    const std::vector<HWND> controls = test.VisibleControls();
    RECT client{};
    GetClientRect(test.form.Hwnd(), &client);
    ExpectHeadingFits(test.form.picHeader);
    for (auto control = controls.begin(); control != controls.end(); ++control) {
        const RECT place = PlaceOf(*control);
        const LONG lowest = place.top >= win::Px(layout::kRowTop) ? client.bottom : win::Px(layout::kRowTop);
        EXPECT_TRUE(place.left >= 0 && place.top >= 0 && place.right <= client.right &&
                    place.bottom <= lowest)
            << Name(*control);
        const bool isText = ClassOf(*control) == win::RichText::kClassName;
        if (!scrolls || !isText) ExpectTextFits(*control);
        const bool hasBar = (GetWindowLongW(*control, GWL_STYLE) & WS_VSCROLL) != 0;
        EXPECT_TRUE(!isText || hasBar == scrolls) << Name(*control);
        for (auto other = controls.begin(); other != control; ++other) {
            const RECT second = PlaceOf(*other);
            RECT common{};
            EXPECT_FALSE(IntersectRect(&common, &place, &second))
                << Name(*control) << "\nand " << Name(*other);
        }
    }
}

class Layout : public testing::TestWithParam<std::int16_t> {};

} // namespace

TEST_P(Layout, EveryPage) {
    const ScratchSuite suite;
    for (const wchar_t name : {L'1', L'2', L'3', L'4'})
        WriteFileBytes(suite.Path() + std::wstring(60, L'W') + name + L".DCP",
                       DcpByHand("178 00 01").Bytes());
    FormUnderTest test(GetParam());
    frmWizard& form = test.form;
    form.picCncIcon.Top(600_tw); // as when the form is loaded
    form.picScreenLogo.Top(form.picMain.Top() + 720_tw);
    form.picLogo.Visible(true);
    form.picVarnel.Visible(true);
    (GetParam() == kNewDevice ? form.picCncIcon : form.picScreenLogo).Visible(true);
    form.ConfigName = L"Machining centre 12 (hall 3)";
    // The longest lines that the answers can make.
    const std::wstring ten(10, L'W');
    ndwSession.answers = {255, 11, kAsciiDataFormat, 3, 2, 0, 15, 31, 15, 1, 4, 2, ten, ten, L"", L""};
    for (const bool launched : {false, true})
        for (const Page& page : test.book.pages) {
            SCOPED_TRACE("mode " + std::to_string(GetParam()) + ", page " + std::to_string(page.number) +
                         " at " + std::to_string(win::Dpi()) + " DPI");
            startUp.ConfigLaunch = launched;
            test.Show(page.number);
            ExpectPage(test);
        }
    if (GetParam() == kNewDevice) {
        SCOPED_TRACE("a very long name");
        form.ConfigName = std::wstring(190, L'M');
        test.Show(kNdwFinalPage);
        ExpectPage(test, true);
    }
    startUp.ConfigLaunch = false;
    SCOPED_TRACE("permission page");
    form.pool.ClearPage(form.txtInfo);
    PageConfigDisabled(form);
    ExpectPage(test);
}

INSTANTIATE_TEST_SUITE_P(Modes, Layout, testing::Values(kFirstTimeSetup, kNewDevice));
