// The frame: what loading the form leaves, where things stand and how they are drawn, what the input pool's
// own operations do.

#include "wizard/frmWizard.h"
#include "app/Registry.h"
#include "app/Settings.h"
#include "app/StartUp.h"
#include "app/Suite.h"
#include "ftw/FtwPages.h"
#include "ndw/NdwPages.h"
#include "tests/support/Canvas.h"
#include "tests/support/FormUnderTest.h"
#include "tests/support/Scratch.h"
#include "win/Screen.h"

#include <gtest/gtest.h>

#include <commctrl.h>

namespace {

using namespace win::literals;

// The pixels of a drawn control on a ground of no color of the system.
std::vector<COLORREF> Drawn(const frmWizard& form, win::Control& control, UINT state = 0) {
    const Canvas canvas(RGB(1, 2, 3));
    DRAWITEMSTRUCT item{};
    item.hwndItem = control.Handle();
    item.hDC = canvas.Dc();
    item.itemState = state;
    GetClientRect(item.hwndItem, &item.rcItem);
    SendMessageW(form.Hwnd(), WM_DRAWITEM, 0, reinterpret_cast<LPARAM>(&item));
    std::vector<COLORREF> pixels;
    for (LONG y = 0; y < item.rcItem.bottom; ++y)
        for (LONG x = 0; x < item.rcItem.right; ++x)
            pixels.push_back(canvas.At(x, y));
    return pixels;
}

class Loaded : public testing::TestWithParam<std::int16_t> {
  protected:
    Loaded() {
        startUp.WizardMode = GetParam();
        suite.Ini("[General]\r\nRxNameMode=7\r\nOther=2\r\nFTSW_MaxProgress= 12 \r\n");
    }

    const ScratchSuite suite;
    frmWizard form{GetParam() == kNewDevice ? NdwBook() : FtwBook(),
                   {.title = L"Varnel test load", .configAllowed = true}};
};

INSTANTIATE_TEST_SUITE_P(Modes, Loaded, testing::Values(kFirstTimeSetup, kNewDevice));

TEST_P(Loaded, LeavesTheSuiteAsEveryStartDoes) {
    constexpr wchar_t kRunOnce[] = L"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\RunOnce";
    SetRegText(HKEY_LOCAL_MACHINE, kRunOnce, L"Varnel_DNC_FTSW", L"x");
    form.Form_Load();
    EXPECT_EQ(win::WindowText(form.Hwnd()), L"Varnel test load");
    for (const wchar_t* key : {L"RxNameMode", L"RxChangeNameMode", L"NavAutoStart"})
        EXPECT_EQ(ReadIniString(L"General", key, L""), L"1") << Utf8(key);
    EXPECT_EQ(ReadIniString(L"General", L"Other", L""), L"2");
    EXPECT_EQ(suite.Ini().find("\r\n\r\n"), std::string::npos) << suite.Ini();
    EXPECT_EQ(ReadRegString(HKEY_LOCAL_MACHINE, kRunOnce, L"Varnel_DNC_FTSW", L"gone"), L"gone");
    wchar_t folder[MAX_PATH] = L"";
    GetCurrentDirectoryW(MAX_PATH, folder);
    EXPECT_EQ(folder + std::wstring(L"\\"), suite.Path());
    EXPECT_EQ(form.PageNo, 1);
    EXPECT_TRUE(form.ConfirmExit);
    EXPECT_TRUE(IsWindowVisible(form.Hwnd()));
}

TEST_P(Loaded, StandsInTheMiddleEachPartAtItsPlace) {
    form.Form_Load();
    RECT place{};
    GetWindowRect(form.Hwnd(), &place);
    EXPECT_NEAR(place.left + place.right, GetSystemMetrics(SM_CXSCREEN), 1);
    EXPECT_NEAR(place.top + place.bottom, GetSystemMetrics(SM_CYSCREEN), 1);
    EXPECT_EQ(place.bottom - place.top, win::Px(4860_tw) + GetSystemMetrics(SM_CYCAPTION));
    const bool newDevice = GetParam() == kNewDevice;
    EXPECT_EQ(form.picCncIcon.Visible(), newDevice);
    EXPECT_EQ(form.picScreenLogo.Visible(), !newDevice);
    EXPECT_EQ(form.picCncIcon.Top().value, 600);
    EXPECT_EQ((form.picScreenLogo.Top() - form.picMain.Top()).value, 720);
    EXPECT_EQ((form.pool.fraContainer.Top() - form.picMain.Top()).value, 1320);
    for (int i = 0; i < 5; ++i)
        EXPECT_EQ(form.picAppIcon[static_cast<std::size_t>(i)].Left().value, 1560 + 960 * i);
    EXPECT_TRUE(form.cmdNext.Visible() && form.cmdCancel.Visible());
    EXPECT_TRUE(form.picLogo.Visible() && form.picVarnel.Visible());
    EXPECT_EQ(Drawn(form, form.picAppIcon[0])[0], GetSysColor(COLOR_WINDOW));
    const Canvas canvas(RGB(1, 2, 3));
    SendMessageW(form.Hwnd(), WM_ERASEBKGND, reinterpret_cast<WPARAM>(canvas.Dc()), 0);
    const LONG row = win::Px(layout::kRowTop), column = win::Px(layout::kColumnWidth);
    EXPECT_EQ(canvas.At(column - 1, row - 1), RGB(0x27, 0x45, 0x5F));
    EXPECT_EQ(canvas.At(column, row - 1), GetSysColor(COLOR_WINDOW));
    EXPECT_EQ(canvas.At(0, row), GetSysColor(COLOR_BTNSHADOW));
    EXPECT_EQ(canvas.At(0, row + 2), GetSysColor(COLOR_BTNFACE));
}

std::vector<COLORREF> Colors(const HICON icon) {
    ICONINFO info{};
    GetIconInfo(icon, &info);
    const win::UniqueBitmap color(info.hbmColor), mask(info.hbmMask);
    const win::UniqueMemoryDc dc(CreateCompatibleDC(nullptr));
    const win::SelectedObject selected(dc.Get(), color.Get());
    std::vector<COLORREF> colors;
    for (int i = 0; i < 256; ++i)
        colors.push_back(GetPixel(dc.Get(), i % 16, i / 16));
    return colors;
}

TEST_P(Loaded, HasTheIconsOfItsMode) {
    form.Form_Load();
    for (const auto& [size, metric] : {std::pair(ICON_BIG, SM_CXICON), std::pair(ICON_SMALL, SM_CXSMICON)}) {
        const auto icon =
            reinterpret_cast<HICON>(SendMessageW(form.Hwnd(), WM_GETICON, static_cast<WPARAM>(size), 0));
        const win::IconPicture wanted(IDI_DEVICE + GetParam(), GetSystemMetrics(metric));
        ASSERT_NE(icon, nullptr);
        EXPECT_EQ(Colors(icon), Colors(wanted.Get())) << size;
    }
}

std::wstring TipOf(const frmWizard& form, win::Control& control) {
    SendMessageW(form.Hwnd(), WM_SETCURSOR, reinterpret_cast<WPARAM>(form.Hwnd()), HTCLIENT);
    HWND tips = nullptr;
    while ((tips = FindWindowExW(nullptr, tips, TOOLTIPS_CLASSW, nullptr)) != nullptr)
        if (GetWindow(tips, GW_OWNER) == form.Hwnd()) break;
    wchar_t text[256] = L"";
    TTTOOLINFOW tool{};
    tool.cbSize = TTTOOLINFOW_V1_SIZE;
    tool.hwnd = form.Hwnd();
    tool.uId = reinterpret_cast<UINT_PTR>(control.Handle());
    tool.lpszText = text;
    SendMessageW(tips, TTM_GETTEXTW, 0, reinterpret_cast<LPARAM>(&tool));
    return text;
}

TEST_P(Loaded, ToolTips) {
    form.Form_Load();
    const bool newDevice = GetParam() == kNewDevice;
    EXPECT_EQ(TipOf(form, form.picHeader), newDevice ? L"" : L"Progress: 12");
    if (newDevice) return;
    EXPECT_EQ(TipOf(form, form.cmdSkip), L"Go on without this step");
    const wchar_t* const kNames[] = {L"File Manager", L"Link Manager", L"Configuration", L"Terminal",
                                     L"Navigator"};
    for (std::size_t i = 0; i < std::size(kNames); ++i)
        EXPECT_EQ(TipOf(form, form.picAppIcon[i]), kNames[i]);
    // The number that is stored, not the page: this one is left for the first time.
    form.cmdNext_Click();
    EXPECT_EQ(TipOf(form, form.picHeader), L"Progress: 12");
    WriteIniString(L"FTSW_MaxProgress", L"16");
    form.ShowPage();
    EXPECT_EQ(TipOf(form, form.picHeader), L"Progress: 16");
}

// Also where the scheme gives links the color of the ground.
TEST(Link, CanBeReadAndShowsTheFocus) {
    FormUnderTest test(kFirstTimeSetup);
    test.Show(7);
    win::Control& link = test.form.pool.lblHyperlink[0];
    const INT element = COLOR_HOTLIGHT;
    const COLORREF before = GetSysColor(element), ground = GetSysColor(COLOR_WINDOW);
    for (const COLORREF color : {before, ground}) {
        SetSysColors(1, &element, &color);
        const auto pixels = Drawn(test.form, link);
        EXPECT_NE(pixels, std::vector<COLORREF>(pixels.size(), ground));
        EXPECT_NE(pixels, Drawn(test.form, link, ODS_FOCUS));
    }
    SetSysColors(1, &element, &before);
    SetCursor(nullptr);
    link.Send(WM_SETCURSOR, reinterpret_cast<WPARAM>(link.Handle()), HTCLIENT);
    EXPECT_EQ(GetCursor(), LoadCursorW(nullptr, IDC_HAND));
}

TEST(InputPool, NeutralState) {
    FormUnderTest test(kFirstTimeSetup);
    InputPool& pool = test.form.pool;
    const auto spoil = [](win::Control& input) {
        input.Place(1_tw, 2_tw, 3_tw, 4_tw);
        input.ToolTip(L"tip");
        input.Visible(true);
    };
    ForEachInput(pool, spoil);
    spoil(pool.cmbUserInput);
    pool.fraContainer.Visible(true);
    test.form.txtInfo.Height(1_tw);
    pool.ClearPage(test.form.txtInfo);
    int count = 0;
    ForEachInput(pool, [&count](win::Control& input) {
        count += !input.Visible() && input.ToolTip().empty() && input.Width().value == 4000 &&
                 input.Left().value == 1560;
    });
    EXPECT_EQ(count, 23);
    EXPECT_FALSE(pool.cmbUserInput.Visible() || pool.fraContainer.Visible());
    EXPECT_EQ(pool.cmbUserInput.Left().value, 1560);
    EXPECT_EQ(test.form.txtInfo.Height().value, 2175);
    EXPECT_LE(InputColumn(test.form).List(1, 1000_tw).Height().value, 1000);
}

std::wstring FaceOf(win::Control& input) {
    LOGFONTW face{};
    GetObjectW(reinterpret_cast<HFONT>(input.Send(WM_GETFONT)), sizeof face, &face);
    return face.lfFaceName;
}

// Five prompts, two text boxes, one list; the others keep their font.
TEST(InputPool, InputFont) {
    FormUnderTest test(kNewDevice);
    InputPool& pool = test.form.pool;
    const auto count = [&](const wchar_t* wanted) {
        int inputs = 0;
        ForEachInput(pool, [&](win::Control& input) { inputs += FaceOf(input) == wanted ? 1 : 0; });
        return inputs;
    };
    pool.SetInputFont(true);
    EXPECT_EQ(count(L"MS Sans Serif"), 8);
    EXPECT_EQ(FaceOf(pool.lstUserInput[0]), L"Verdana");
    EXPECT_EQ(FaceOf(pool.lstUserInput[1]), L"MS Sans Serif");
    pool.SetInputFont(false);
    EXPECT_EQ(count(L"Verdana"), 23);
    test.Show(14); // the one page that wants the other font
    EXPECT_EQ(count(L"MS Sans Serif"), 8);
}

} // namespace
