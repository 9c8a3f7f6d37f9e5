#include "win/Control.h"

#include "win/Fonts.h"
#include "win/Form.h"

#include <gtest/gtest.h>

namespace {

using namespace win::literals;

struct TestForm : win::Form {
    TestForm() {
        Create({L"VarnelTestForm", L"", WS_OVERLAPPEDWINDOW, WS_EX_CONTROLPARENT, nullptr},
               win::FontFor(win::FontUse::Body), 600, 400);
        button.Bind(*this, 100);
    }
    win::PushButton button;
};

// A window is made at its first use; what was set before holds. An exception that left the window procedure
// would end the program.
TEST(Control, ADoubleClickIsOneClickAndExceptionsStopAtTheForm) {
    TestForm form;
    form.button.Place(0_tw, 0_tw, 1500_tw, 300_tw); // a button without a size takes no click
    form.button.ToolTip(L"tip");
    int clicks = 0;
    form.button.onClick = [&] {
        ++clicks;
        win::EndMessageLoop();
        ++clicks;
    };
    EXPECT_EQ(form.button.HandleIfMade(), nullptr);
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
