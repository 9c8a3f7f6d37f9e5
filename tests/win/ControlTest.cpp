#include "win/Control.h"

#include "win/Fonts.h"
#include "win/Form.h"
#include "win/Screen.h"

#include <gtest/gtest.h>

namespace {

using namespace win::literals;

class TestForm : public win::Form {
  public:
    TestForm() {
        Create({L"VarnelTestForm", L"", WS_OVERLAPPEDWINDOW, WS_EX_CONTROLPARENT, nullptr},
               win::FontFor(win::FontUse::Body), win::Px(6000_tw), win::Px(4000_tw));
        button.Bind(*this, 100, L"Button", BS_PUSHBUTTON | BS_NOTIFY | WS_TABSTOP);
    }
    win::Button button;
};

// A window is made at its first use; what was set before holds. The edges are rounded, not the width.
TEST(Control, TakesWhatWasSetBeforeItWasMade) {
    TestForm form;
    form.button.Place(1000_tw, 500_tw, 1006_tw, 400_tw);
    form.button.Left(1567_tw);
    form.button.Visible(false);
    form.button.ToolTip(L"tip");
    EXPECT_EQ(form.button.Bottom(), 900_tw);
    EXPECT_EQ(form.button.HandleIfMade(), nullptr);
    form.button.Visible(true);
    RECT place{};
    GetWindowRect(form.button.Handle(), &place);
    MapWindowPoints(nullptr, form.Hwnd(), reinterpret_cast<POINT*>(&place), 2);
    const RECT expected{win::Px(1567_tw), win::Px(500_tw), win::Px(2573_tw), win::Px(900_tw)};
    EXPECT_TRUE(EqualRect(&place, &expected));
    EXPECT_TRUE(GetWindowLongW(form.button.Handle(), GWL_STYLE) & WS_VISIBLE);
    EXPECT_EQ(reinterpret_cast<HFONT>(form.button.Send(WM_GETFONT)), form.DefaultFont());
}

// An exception that left the window procedure would end the program.
TEST(Control, ADoubleClickIsOneClickAndExceptionsStopAtTheForm) {
    TestForm form;
    form.button.Place(0_tw, 0_tw, 1500_tw, 300_tw); // a button without a size takes no click
    int clicks = 0;
    form.button.onClick = [&] {
        ++clicks;
        win::EndMessageLoop();
        ++clicks;
    };
    form.button.Send(BM_CLICK);
    EXPECT_EQ(clicks, 1);
    SendMessageW(form.Hwnd(), WM_COMMAND, MAKEWPARAM(100, BN_DOUBLECLICKED),
                 reinterpret_cast<LPARAM>(form.button.Handle()));
    EXPECT_EQ(clicks, 1);
    MSG message{};
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) && message.message != WM_QUIT) {
    }
    EXPECT_EQ(message.message, static_cast<UINT>(WM_QUIT));
}

} // namespace
