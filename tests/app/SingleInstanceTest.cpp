#include "app/SingleInstance.h"

#include "tests/support/Imports.h"

#include <gtest/gtest.h>

#include <atomic>
#include <memory>
#include <thread>

namespace {

struct Destroy {
    using pointer = HWND;
    void operator()(HWND window) const { DestroyWindow(window); }
};
using Window = std::unique_ptr<HWND, Destroy>;

// Hidden windows, so that nothing disturbs whoever watches the tests.
Window Make(const wchar_t* className, const wchar_t* caption, HWND parent = nullptr) {
    WNDCLASSW look{};
    look.lpfnWndProc = DefWindowProcW;
    look.lpszClassName = className;
    RegisterClassW(&look);
    return Window(CreateWindowW(className, caption, parent ? WS_CHILD : WS_OVERLAPPEDWINDOW, 0, 0, 200, 100,
                                parent, nullptr, nullptr, nullptr));
}

// Whether another thread, which stands for another copy, takes the mode, and after how many milliseconds.
// Modes that no wizard has, so that a real one beside the tests does not matter.
bool Takes(std::int16_t mode, DWORD& time) {
    bool taken = false;
    std::thread([&] {
        const DWORD begin = GetTickCount();
        InstanceClaim claim;
        taken = claim.Take(mode, L"Varnel test claim");
        time = GetTickCount() - begin;
    }).join();
    return taken;
}

} // namespace

TEST(SingleInstance, TitleAndClassDecide) {
    const struct {
        const wchar_t *className, *caption, *pattern;
        bool found;
    } rows[] = {
        {L"VWizardTest", L"Varnel test title", L"Varnel test title", true},
        {L"VWizardTest", L"Varnel test title", L"Varnel te*", true}, // as a pattern
        {L"VWizardTest", L"Varnel test title", L"Varnel test", false},
        {L"VWizardTest", L"Varnel Test Title", L"Varnel test title", false},
        {L"VWizarForm", L"Varnel test title", L"Varnel test title", false},
        {L"vwizardOther", L"Varnel test title", L"Varnel test title", false},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::PrintToString(std::wstring(row.className) + L"/" + row.caption));
        const Window window = Make(row.className, row.caption);
        EXPECT_EQ(FindRunningWizard(row.pattern), row.found);
    }
}

TEST(SingleInstance, SearchesDepthFirst) {
    const Window outer = Make(L"VWizardTest", L"Varnel test tree");
    const Window foreign = Make(L"Foreign", L"", outer.get());
    const Window inner = Make(L"VWizardTest", L"Varnel test tree", foreign.get());
    HWND start = nullptr;
    EXPECT_EQ(LocateWizardWindow(L"Varnel test tree", start), inner.get());
    EXPECT_EQ(start, GetDesktopWindow());
    EXPECT_EQ(LocateWizardWindow(L"Varnel test tree", start = inner.get()), nullptr);
}

// Recorded instead of done: a person may be at work beside the tests.
HWND brought = nullptr;
BOOL WINAPI Bring(HWND window) { return (brought = window) != nullptr; }

TEST(SingleInstance, WhatTheWizardHasOpenComesToTheFront) {
    const ReplacedImport bring("SetForegroundWindow", reinterpret_cast<void*>(&Bring));
    const Window form = Make(L"VWizardTest", L"Varnel test popup");
    EXPECT_TRUE(FindRunningWizard(L"Varnel test popup"));
    EXPECT_EQ(brought, form.get());
    const Window picker(CreateWindowW(L"VWizardTest", L"", WS_POPUP | WS_VISIBLE, 0, 0, 9, 9, form.get(),
                                      nullptr, nullptr, nullptr));
    SetActiveWindow(picker.get());
    EXPECT_TRUE(FindRunningWizard(L"Varnel test popup"));
    EXPECT_EQ(brought, picker.get());
}

TEST(InstanceClaim, OnlyOneTakesTheMode) {
    DWORD time = 0;
    {
        InstanceClaim first;
        EXPECT_TRUE(first.Take(90, L"Varnel test claim"));
        EXPECT_TRUE(Takes(91, time)) << "another mode";
        EXPECT_TRUE(Takes(90, time)) << "no window of the first one comes";
        EXPECT_TRUE(time >= 1900 && time < 4000) << time;
        const Window window = Make(L"VWizardTest", L"Varnel test claim");
        EXPECT_FALSE(Takes(90, time));
        EXPECT_LT(time, 1000u);
    }
    EXPECT_TRUE(Takes(90, time)) << "the first one has ended";
}
