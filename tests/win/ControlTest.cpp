#include "win/Control.h"

#include "tests/support/Imports.h"
#include "tools/driver/Words.h"
#include "win/Arrangement.h"
#include "win/Fonts.h"
#include "win/SystemLibrary.h"

#include <gtest/gtest.h>

#include <optional>

namespace {

using namespace win::literals;

// A control that counts how often the system's colors were said to have changed.
struct Ear : win::PushButton {
    void Made() override { InterceptMessages(); }
    bool OnMessage(UINT message, WPARAM, LPARAM, LRESULT&) override {
        heard += message == WM_SYSCOLORCHANGE ? 1 : 0;
        return false;
    }
    int heard = 0;
};

struct TestForm : win::Form {
    TestForm() {
        Create({L"VarnelTestForm", L"", WS_OVERLAPPEDWINDOW, WS_EX_CONTROLPARENT, nullptr},
               win::FontFor(win::FontUse::Body), 600, 400);
        Rebind();
    }
    ~TestForm() override { Destroy(); }
    void Rebind() {
        button.emplace().Bind(*this, 100);
        button->Place(0_tw, 0_tw, 1500_tw, 300_tw); // a button without a size takes no click
    }
    std::optional<Ear> button;
};

// A window is made at its first use; what was set before holds. An exception that left the window procedure
// would end the program.
TEST(Control, ADoubleClickIsOneClickAndExceptionsStopAtTheForm) {
    TestForm form;
    form.button->ToolTip(L"tip");
    int clicks = 0;
    form.button->onClick = [&] {
        ++clicks;
        win::EndMessageLoop();
        ++clicks;
    };
    EXPECT_EQ(form.button->HandleIfMade(), nullptr);
    form.button->Send(BM_CLICK);
    EXPECT_EQ(clicks, 1);
    SendMessageW(form.Hwnd(), WM_COMMAND, MAKEWPARAM(100, BN_DOUBLECLICKED),
                 reinterpret_cast<LPARAM>(form.button->Handle()));
    EXPECT_EQ(clicks, 1);
    MSG message{};
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) && message.message != WM_QUIT) {
    }
    EXPECT_EQ(message.message, static_cast<UINT>(WM_QUIT));
}

TEST(Control, TakesItselfOffItsFormWhenItGoes) {
    TestForm form;
    const HWND window = form.button->Handle();
    form.button.reset();
    EXPECT_FALSE(IsWindow(window));
    form.Rebind();
    form.button->Handle();
    SendMessageW(form.Hwnd(), WM_SYSCOLORCHANGE, 0, 0);
    EXPECT_EQ(form.button->heard, 1);
}

RECT ToBePainted(const win::Form& form) {
    RECT area{};
    GetUpdateRect(form.Hwnd(), &area, FALSE);
    ValidateRect(form.Hwnd(), nullptr);
    return area;
}

TEST(Control, LeavesItsOldPlaceToBePainted) {
    TestForm form;
    ShowWindow(form.Hwnd(), SW_SHOW);
    form.button->Visible(true);
    UpdateWindow(form.Hwnd());
    ToBePainted(form);
    form.button->Place(3008_tw, 0_tw, 1508_tw, 300_tw);
    const RECT moved = ToBePainted(form);
    EXPECT_EQ(moved.left, 0);
    EXPECT_EQ(moved.right, win::ToPixels(4516_tw, 96)); // edges are rounded, not sizes
    { const win::Arrangement arrangement(form, {50, 60, 70, 80}); }
    EXPECT_EQ(ToBePainted(form).bottom, 80);
    form.button->Visible(false);
    EXPECT_EQ(ToBePainted(form).left, win::ToPixels(3008_tw, 96));
}

TEST(Control, StandsOnTheGroundOfItsForm) {
    TestForm form;
    const win::WindowDc dc(form.Hwnd());
    for (const UINT message : {WM_CTLCOLORBTN, WM_CTLCOLORSTATIC})
        EXPECT_EQ(SendMessageW(form.Hwnd(), message, reinterpret_cast<WPARAM>(dc.Get()),
                               reinterpret_cast<LPARAM>(form.button->Handle())),
                  reinterpret_cast<LRESULT>(GetSysColorBrush(COLOR_WINDOW)));
}

std::wstring loadedPath;
HMODULE(WINAPI* originalLoad)(LPCWSTR, HANDLE, DWORD);

HMODULE WINAPI LoadAsOldSystems(LPCWSTR file, HANDLE reserved, DWORD flags) {
    loadedPath = file;
    CharLowerW(loadedPath.data());
    if ((flags & ~0xFFu) == 0) return originalLoad(file, reserved, flags);
    SetLastError(ERROR_INVALID_PARAMETER);
    return nullptr;
}

// As on a system without its updates of 2011, which knows no flags for where libraries are looked for.
TEST(SystemLibrary, IsLoadedByItsFullPath) {
    const ReplacedImport old("LoadLibraryExW", reinterpret_cast<void*>(&LoadAsOldSystems));
    originalLoad = old.Original<decltype(originalLoad)>();
    EXPECT_NE(win::LoadSystemLibrary(L"oleacc.dll"), nullptr);
    EXPECT_EQ(loadedPath.find(L"c:\\windows\\system32\\"), 0u) << Utf8(loadedPath);
    EXPECT_EQ(win::LoadSystemLibrary(L"no such.dll"), nullptr);
}

} // namespace
