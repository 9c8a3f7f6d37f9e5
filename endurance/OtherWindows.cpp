// Windows of other programs, and of a second copy: a start is never held up by a window that does not
// answer, and there are never two wizards of one mode.
#include "endurance/Soak.h"
#include "tools/driver/Walker.h"

#include "tests/support/DemoSuite.h"

#include <algorithm>
#include <atomic>
#include <thread>

namespace {

constexpr wchar_t kTitle[] = L"Varnel DNC - First-Time Setup Wizard";
constexpr wchar_t kClass[] = L"ForeignWindow";

enum class Mood { Answers, Hangs };

// Windows on a thread of their own, gone with this object.
class Foreign {
  public:
    Foreign(const wchar_t* title, int count, Mood mood) : mood_(mood) {
        thread_ = std::thread([this, title, count] { Live(title, count); });
        while (!ready_)
            Sleep(1);
    }
    ~Foreign() {
        over_ = true;
        thread_.join();
    }
    Foreign(const Foreign&) = delete;
    Foreign& operator=(const Foreign&) = delete;

  private:
    void Live(const wchar_t* title, int count) {
        std::vector<HWND> windows;
        for (int i = 0; i < count; ++i)
            windows.push_back(CreateWindowExW(0, kClass, title, WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 100,
                                              100, nullptr, nullptr, nullptr, nullptr));
        ready_ = true;
        for (MSG message{}; !over_; Sleep(1))
            while (mood_ != Mood::Hangs && !over_ && PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE))
                DispatchMessageW(&message);
        for (HWND window : windows)
            DestroyWindow(window);
    }

    const Mood mood_;
    std::atomic<bool> ready_ = false, over_ = false;
    std::thread thread_;
};

// The best of three: from the start of the program to its first page.
ULONGLONG StartTime(Tally& tally, const DemoSuite& suite, const wchar_t* what) {
    ULONGLONG best = ~0ULL;
    for (int i = 0; i < 3; ++i) {
        const ULONGLONG begin = GetTickCount64();
        const WizardDriver wizard(suite.CommandLine(L""), WizardDriver::Wait::No);
        Walker walker(wizard);
        walker.WaitUntilReady();
        best = std::min(best, GetTickCount64() - begin);
        tally.Expect(walker.Main() && walker.Heading() == L"Welcome",
                     std::wstring(what) + L": no first page");
    }
    return best;
}

} // namespace

void CheckWindows(Tally& tally) {
    WNDCLASSW foreign{};
    foreign.lpfnWndProc = DefWindowProcW;
    foreign.lpszClassName = kClass;
    RegisterClassW(&foreign);
    const DemoSuite suite;
    const ULONGLONG alone = StartTime(tally, suite, L"alone");
    struct Row {
        const wchar_t* what;
        const wchar_t* title;
        int count;
        Mood mood;
    };
    // clang-format off
    const Row rows[] = {
        {L"hung",                      L"x",    1,                    Mood::Hangs},
        {L"many",                      L"x",    tally.Of(2000, 200),  Mood::Answers},
        {L"the wizard's title",        kTitle,  1,                    Mood::Answers},
        {L"the wizard's title, hung",  kTitle,  1,                    Mood::Hangs},
    };
    // clang-format on
    for (const Row& row : rows) {
        const Foreign windows(row.title, row.count, row.mood);
        const ULONGLONG time = StartTime(tally, suite, row.what);
        tally.Expect(time <= alone + 1000, std::wstring(row.what) + L": " + std::to_wstring(time) + L" ms");
    }
    tally.Note("4 kinds of foreign windows, alone a start takes " + std::to_string(alone) + " ms");
}

void CheckTwoCopies(Tally& tally) {
    const DemoSuite suite;
    const int count = tally.Of(100, 15);
    for (int i = 0; i < count; ++i) {
        const WizardDriver first(suite.CommandLine(), WizardDriver::Wait::No);
        const WizardDriver second(suite.CommandLine(), WizardDriver::Wait::No);
        // Each is settled when it has a page or has ended.
        const int pages = Walker(first).WaitUntilReady() + Walker(second).WaitUntilReady();
        tally.Expect(pages == 1 && first.IsRunning() != second.IsRunning(),
                     std::to_wstring(pages) + L" wizards");
    }
    tally.Note(std::to_string(count) + " pairs of starts");
}
