// Windows of other programs, and of a second copy: a start is never held up by a window that does not
// answer, and there are never two wizards of one mode.
#include "endurance/Soak.h"

#include <algorithm>
#include <latch>
#include <thread>

namespace {

constexpr wchar_t kTitle[] = L"Varnel DNC - First-Time Setup Wizard";
constexpr wchar_t kClass[] = L"ForeignWindow";

// Windows on a thread of their own, gone with the result.
std::jthread Foreign(const wchar_t* title, int count, bool hangs) {
    std::latch ready(1);
    std::jthread thread([&ready, title, count, hangs](const std::stop_token& over) {
        std::vector<HWND> windows;
        for (int i = 0; i < count; ++i)
            windows.push_back(CreateWindowExW(0, kClass, title, WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 100,
                                              100, nullptr, nullptr, nullptr, nullptr));
        ready.count_down();
        for (MSG message{}; !over.stop_requested(); Sleep(1))
            while (!hangs && PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE))
                DispatchMessageW(&message);
        for (HWND window : windows)
            DestroyWindow(window);
    });
    ready.wait();
    return thread;
}

// A question to a window that hangs would never be answered.
TEST(Soak, windows) {
    WNDCLASSW foreign{};
    foreign.lpfnWndProc = DefWindowProcW;
    foreign.lpszClassName = kClass;
    RegisterClassW(&foreign);
    const DemoSuite suite;
    struct Row {
        const wchar_t* title;
        int count;
        bool hangs;
    };
    // clang-format off
    const Row rows[] = {
        {L"x",    1,              true},
        {L"x",    Of(2000, 200),  false},
        {kTitle,  1,              false},
        {kTitle,  1,              true},
    };
    // clang-format on
    for (const Row& row : rows) {
        const auto windows = Foreign(row.title, row.count, row.hangs);
        const WizardDriver wizard(suite.CommandLine(), WizardDriver::Wait::No);
        Walker walker(wizard);
        EXPECT_TRUE(walker.WaitUntilReady() && walker.Heading() == L"Welcome") << Utf8(row.title);
    }
}

TEST(Soak, copies) {
    const DemoSuite suite;
    for (int i = 0; i < Of(100, 15); ++i) {
        const WizardDriver first(suite.CommandLine(), WizardDriver::Wait::No);
        const WizardDriver second(suite.CommandLine(), WizardDriver::Wait::No);
        // Each is settled when it has a page or has ended.
        const int pages = Walker(first).WaitUntilReady() + Walker(second).WaitUntilReady();
        EXPECT_TRUE(pages == 1 && first.IsRunning() != second.IsRunning()) << pages << " wizards";
    }
}

} // namespace
