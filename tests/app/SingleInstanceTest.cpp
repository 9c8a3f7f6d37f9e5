#include "app/SingleInstance.h"

#include "tests/support/Imports.h"

#include <gtest/gtest.h>

#include <atomic>
#include <thread>

namespace {

using Window = win::Unique<HWND, DestroyWindow>;

// Hidden windows, so that nothing disturbs whoever watches the tests.
Window Make(const wchar_t* className, const wchar_t* caption, HWND parent = nullptr) {
    WNDCLASSW look{};
    look.lpfnWndProc = DefWindowProcW;
    look.lpszClassName = className;
    RegisterClassW(&look);
    return Window(CreateWindowW(className, caption, parent ? WS_CHILD : WS_OVERLAPPEDWINDOW, 0, 0, 200, 100,
                                parent, nullptr, nullptr, nullptr));
}

// Whether another thread, which stands for another copy, takes the mode. Modes that no wizard has, so that a
// real one beside the tests does not matter.
bool Takes(std::int16_t mode) {
    bool taken = false;
    std::thread([&] { taken = InstanceClaim().Take(mode, L"Varnel test claim"); }).join();
    return taken;
}

// Recorded instead of done: a person may be at work beside the tests.
HWND restored, brought;
BOOL WINAPI Restore(HWND window, int how) { return restored = how == SW_SHOWNORMAL ? window : nullptr, TRUE; }
BOOL WINAPI Bring(HWND window) { return brought = window, TRUE; }

} // namespace

TEST(SingleInstance, TitleAndClassDecide) {
    const std::pair<const wchar_t*, const wchar_t*> others[] = {{L"VWizardTest", L"Varnel test"},
                                                                {L"VWizardTest", L"Varnel Test Title"},
                                                                {L"VWizarForm", L"Varnel test title"},
                                                                {L"vwizardOther", L"Varnel test title"}};
    for (const auto& [className, caption] : others) {
        const Window other = Make(className, caption);
        EXPECT_FALSE(FindRunningWizard(L"Varnel test title")) << testing::PrintToString(caption);
    }
    const Window outer = Make(L"VWizardTest", L"Varnel test title");
    const Window foreign = Make(L"Foreign", L"", outer.Get());
    const Window inner = Make(L"VWizardTest", L"Varnel test title", foreign.Get());
    HWND start = nullptr;
    EXPECT_EQ(LocateWizardWindow(L"Varnel te*", start), inner.Get()) << "a pattern, depth first";
    EXPECT_EQ(start, GetDesktopWindow());
    EXPECT_EQ(LocateWizardWindow(L"Varnel test title", start = inner.Get()), nullptr);
}

TEST(SingleInstance, WhatTheWizardHasOpenComesToTheFront) {
    const ReplacedImport restore("ShowWindowAsync", reinterpret_cast<void*>(&Restore));
    const ReplacedImport bring("SetForegroundWindow", reinterpret_cast<void*>(&Bring));
    const Window form = Make(L"VWizardTest", L"Varnel test popup");
    EXPECT_TRUE(FindRunningWizard(L"Varnel test popup"));
    EXPECT_EQ(brought, form.Get());
    const Window picker(CreateWindowW(L"VWizardTest", L"", WS_POPUP | WS_VISIBLE, 0, 0, 9, 9, form.Get(),
                                      nullptr, nullptr, nullptr));
    SetActiveWindow(picker.Get());
    EXPECT_TRUE(FindRunningWizard(L"Varnel test popup"));
    EXPECT_EQ(brought, picker.Get());
    EXPECT_EQ(restored, form.Get());
}

TEST(InstanceClaim, OnlyOneTakesTheMode) {
    {
        InstanceClaim first;
        EXPECT_TRUE(first.Take(90, L"Varnel test claim"));
        const DWORD begin = GetTickCount();
        EXPECT_TRUE(Takes(90)) << "no window of the first one comes";
        EXPECT_GE(GetTickCount() - begin, 1900u);
        const Window window = Make(L"VWizardTest", L"Varnel test claim");
        EXPECT_TRUE(!Takes(90) && Takes(91)) << "another mode waits for nobody";
    }
    EXPECT_TRUE(Takes(90)) << "the first one has ended";
}
