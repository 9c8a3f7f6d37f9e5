// Walks one wizard from its first page to its last by its own buttons and pictures every page.
//   tour FOLDER PROGRAM [ARGUMENTS]              leaves FOLDER\ndw-01.bmp ... or FOLDER\ftw-01.bmp ...
//   tour --one NAME FOLDER PROGRAM [ARGUMENTS]   leaves FOLDER\NAME.bmp of the program's one window
#include "tools/tour/Capture.h"
#include "tools/tour/Windows.h"

#include <array>
#include <cstdio>

namespace {

constexpr DWORD kPatience = 20000; // milliseconds for one step

// The First-Time Setup Wizard has no pages 4 to 6.
constexpr std::array<int, 14> kFtwPages{1, 2, 3, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17};

class Tour {
  public:
    Tour(std::wstring program, std::wstring folder, std::wstring arguments)
        : program_(std::move(program)), folder_(std::move(folder)), arguments_(std::move(arguments)) {
        std::wstring upper = arguments_;
        CharUpperBuffW(upper.data(), static_cast<DWORD>(upper.size()));
        newDevice_ = upper.find(L"/NDW") != std::wstring::npos;
    }

    bool Run() {
        if (!Start() || !Wait([this] { return FindMain() && NextButton() != nullptr; }))
            return Fail(L"the wizard did not open its window");
        for (step_ = 1; step_ <= 30; ++step_) {
            Settle(main_);
            FillIn();
            PicturePage(main_, L"");
            if (!GoOn()) return Fail(L"the page did not change");
            if (Ended()) return true;
        }
        return Fail(L"the wizard did not end");
    }

    bool RunOne(const std::wstring& name) {
        if (!Start() || !Wait([this] { return (main_ = Asking()) != nullptr; }))
            return Fail(L"the program did not open a window");
        // It was active in its own process before it was in front, and then nothing tells its caption.
        SetForegroundWindow(main_);
        SendMessageW(main_, WM_NCACTIVATE, TRUE, 0);
        Settle(main_);
        Picture(main_, (L"\\" + name + L".bmp").c_str());
        Answer(main_);
        return Wait([this] { return Ended(); }) || Fail(L"the program did not end");
    }

  private:
    bool Start() {
        STARTUPINFOW startup{};
        startup.cb = sizeof startup;
        std::wstring line = L'"' + program_ + L'"' + arguments_;
        return CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                              &process_) != FALSE;
    }

    bool FindMain() {
        for (const HWND window : WindowsOf(process_.dwProcessId))
            if (ClassOf(window).rfind(L"VWizard", 0) == 0) main_ = window;
        return main_ != nullptr;
    }

    template <class Condition> bool Wait(Condition condition) const {
        const DWORD start = GetTickCount();
        while (!condition()) {
            if (GetTickCount() - start > kPatience) return false;
            WaitForSingleObject(process_.hProcess, 20);
        }
        return true;
    }

    [[nodiscard]] bool Ended() const { return WaitForSingleObject(process_.hProcess, 0) == WAIT_OBJECT_0; }

    [[nodiscard]] HWND NextButton() const {
        for (const wchar_t* caption : {L"&Next >", L"&Create", L"&Finish"})
            if (const HWND button = FindControl(main_, L"Button", caption)) return button;
        return nullptr;
    }

    [[nodiscard]] int PageNumber() const {
        const auto index = static_cast<size_t>(step_ - 1);
        return newDevice_ || index >= kFtwPages.size() ? step_ : kFtwPages[index];
    }

    // Waits until the window has worked off its messages and stays as it is.
    void Settle(HWND window) const {
        std::wstring last;
        Wait([&] {
            UpdateWindow(window);
            std::wstring now = Contents(window);
            const bool same = now == last;
            last = std::move(now);
            return same;
        });
    }

    // Gives the answers that lead to every page and let the walk go on.
    void FillIn() const {
        const int page = PageNumber();
        if (newDevice_ && page == 5) SendMessageW(FindControl(main_, L"Button", L"ASCII"), BM_CLICK, 0, 0);
        if (FindControl(main_, L"Button", L"&Create") != nullptr) Type(L"Tour Mill");
        if (!newDevice_ && page == 9) Type(L"C:\\CNC Programs");
        if (!newDevice_ && page == 12) SendMessageW(FindControl(main_, L"ListBox", L""), LB_SETSEL, TRUE, 0);
        Settle(main_);
    }

    void Type(const wchar_t* text) const {
        SendMessageW(FindControl(main_, L"Edit", L""), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text));
    }

    // Presses Next and whatever asks on the way, until the page has changed or the program has ended.
    bool GoOn() {
        const std::wstring before = Contents(main_);
        int boxes = 0;
        Press(NextButton());
        return Wait([&] {
            if (Ended()) return true;
            if (const HWND box = Asking()) {
                Settle(box);
                PicturePage(box, boxes++ == 0 ? L"-box" : L"-box2");
                Answer(box);
                return false;
            }
            return IsWindowEnabled(main_) && NextButton() != nullptr && Contents(main_) != before;
        });
    }

    // The window in front that waits for an answer, or null.
    [[nodiscard]] HWND Asking() const {
        for (const HWND window : WindowsOf(process_.dwProcessId))
            if (window != main_ && FindControl(window, L"Button", L"") != nullptr) return window;
        return nullptr;
    }

    void Answer(HWND box) const {
        for (const wchar_t* caption : {L"OK", L"&OK", L"&Yes", L"Yes", L"&Close", L"Cancel", L"&Cancel"})
            if (const HWND button = FindControl(box, L"Button", caption)) {
                Press(button);
                Wait([box] { return !IsWindow(box) || !IsWindowVisible(box); });
                return;
            }
    }

    void PicturePage(HWND window, const wchar_t* suffix) const {
        std::array<wchar_t, 32> name{};
        wsprintfW(name.data(), L"\\%s-%02d%s.bmp", newDevice_ ? L"ndw" : L"ftw", PageNumber(), suffix);
        Picture(window, name.data());
    }

    void Picture(HWND window, const wchar_t* name) const {
        RECT area{};
        GetWindowRect(window, &area);
        RedrawWindow(window, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
        GdiFlush();
        // The screen is drawn by another process, which needs a moment after the last call.
        WaitForSingleObject(process_.hProcess, 150);
        if (CaptureScreen(area, folder_ + name)) std::printf("%ls\n", name + 1);
    }

    bool Fail(const wchar_t* reason) const {
        std::printf("step %d: %ls\n", step_, reason);
        for (const HWND window : WindowsOf(process_.dwProcessId))
            std::printf("%ls \"%ls\"\n%ls", ClassOf(window).c_str(), TextOf(window).c_str(),
                        Contents(window).c_str());
        if (process_.hProcess != nullptr) TerminateProcess(process_.hProcess, 1);
        return false;
    }

    std::wstring program_, folder_, arguments_;
    bool newDevice_ = false;
    PROCESS_INFORMATION process_{};
    HWND main_ = nullptr;
    int step_ = 0;
};

} // namespace

int wmain(int count, wchar_t** words) {
    std::wstring name;
    if (count > 2 && std::wstring(words[1]) == L"--one") {
        name = words[2];
        words += 2;
        count -= 2;
    }
    if (count < 3) return 2;
    std::wstring arguments;
    for (int i = 3; i < count; ++i) {
        const std::wstring word = words[i];
        const bool plain = !word.empty() && word.find(L' ') == std::wstring::npos;
        arguments += L' ' + (plain ? word : L'"' + word + L'"');
    }
    SetCursorPos(0, 0); // a control under the mouse may look different
    Tour tour(words[2], words[1], arguments);
    return (name.empty() ? tour.Run() : tour.RunOne(name)) ? 0 : 1;
}
