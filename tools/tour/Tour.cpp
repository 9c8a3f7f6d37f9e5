// Walks one wizard from its first page to its last by its own buttons and pictures every page.
//   tour FOLDER PROGRAM [ARGUMENTS]              leaves FOLDER\ndw-01.bmp ... or FOLDER\ftw-01.bmp ...
//   tour --one NAME FOLDER PROGRAM [ARGUMENTS]   leaves FOLDER\NAME.bmp of the program's one window
#include "ftw/FtwPages.h"
#include "ndw/NdwPages.h"
#include "tools/driver/Windows.h"
#include "tools/driver/WizardDriver.h"
#include "tools/driver/Words.h"
#include "tools/tour/Capture.h"

#include <array>
#include <cstdio>
#include <exception>
#include <span>
#include <utility>

namespace {

class Tour {
  public:
    Tour(const std::wstring& program, std::wstring folder, const std::wstring& arguments)
        : folder_(std::move(folder)), wizard_(L'"' + program + L'"' + arguments, WizardDriver::Wait::No) {
        std::wstring upper = arguments;
        CharUpperBuffW(upper.data(), static_cast<DWORD>(upper.size()));
        newDevice_ = upper.find(L"/NDW") != std::wstring::npos;
    }

    void Run() {
        wizard_.WaitForOpening();
        main_ = wizard_.Window();
        for (step_ = 0; wizard_.IsRunning(); ++step_) {
            if (step_ == Pages().size()) Fail(L"the wizard does not end\n" + wizard_.Describe());
            FillIn();
            PicturePage(main_, L"");
            GoOn();
        }
    }

    void RunOne(const std::wstring& name) {
        wizard_.Until([this] { return Asking() != nullptr; }, L"a window with a button");
        const HWND window = Asking();
        // It was active in its own process before it was in front, and then nothing tells its caption.
        SetForegroundWindow(window);
        SendMessageW(window, WM_NCACTIVATE, TRUE, 0);
        Picture(window, L"\\" + name + L".bmp");
        Answer(window);
        wizard_.WaitForExit();
    }

  private:
    HWND NextButton() const {
        for (const wchar_t* caption : {L"&Next >", L"&Create", L"&Finish"})
            if (const HWND button = FindControl(main_, L"Button", caption)) return button;
        return nullptr;
    }

    // The walk goes by every page, in the order of the wizard's own table.
    std::span<const Page> Pages() const { return (newDevice_ ? NdwBook() : FtwBook()).pages; }
    int PageNumber() const { return Pages()[step_].number; }

    // Waits until the window has worked off its messages and stays as it is.
    void Settle(HWND window) const {
        std::wstring last;
        const auto isStill = [&] {
            Sleep(20);
            UpdateWindow(window);
            const std::wstring before = std::exchange(last, Contents(window));
            return before == last;
        };
        wizard_.Until(isStill, L"a window that stays as it is");
    }

    // Gives the answers that lead to every page and let the walk go on.
    void FillIn() const {
        Settle(main_);
        const std::wstring page = wizard_.Heading();
        const HWND box = FindControl(main_, L"Edit", L"");
        if (page == L"Data Format") Ask(FindControl(main_, L"Button", L"ASCII"), BM_CLICK);
        if (page == L"Configuration Name") TypeOver(box, L"Tour Mill");
        if (page == L"Specify CNC file location") TypeOver(box, L"C:\\CNC Programs");
        if (page.starts_with(L"Import Sample")) Ask(FindControl(main_, L"ListBox", L""), LB_SETSEL, TRUE, 0);
    }

    // Presses Next and whatever asks on the way, until the page has changed or the program has ended.
    void GoOn() {
        const std::wstring before = Contents(main_);
        int boxes = 0;
        PostMessageW(NextButton(), BM_CLICK, 0, 0);
        const auto isOn = [&] {
            if (!wizard_.IsRunning()) return true;
            if (const HWND box = Asking()) {
                PicturePage(box, boxes++ == 0 ? L"-box" : L"-box2");
                Answer(box);
                return false;
            }
            return IsWindowEnabled(main_) && NextButton() && Contents(main_) != before;
        };
        wizard_.Until(isOn, L"another page");
    }

    // The window in front that waits for an answer, or null.
    HWND Asking() const {
        for (const HWND window : WindowsOf(wizard_.ProcessId()))
            if (window != main_ && FindControl(window, L"Button", L"")) return window;
        return nullptr;
    }

    void Answer(HWND box) const {
        for (const wchar_t* caption : {L"OK", L"&OK", L"&Yes", L"Yes", L"&Close", L"Cancel", L"&Cancel"})
            if (const HWND button = FindControl(box, L"Button", caption)) {
                PostMessageW(button, BM_CLICK, 0, 0);
                wizard_.Until([box] { return !IsWindow(box) || !IsWindowVisible(box); },
                              L"an end of the box");
                return;
            }
    }

    void PicturePage(HWND window, const wchar_t* suffix) const {
        std::array<wchar_t, 32> name{};
        wsprintfW(name.data(), L"\\%s-%02d%s.bmp", newDevice_ ? L"ndw" : L"ftw", PageNumber(), suffix);
        Picture(window, name.data());
    }

    void Picture(HWND window, const std::wstring& name) const {
        Settle(window);
        RECT area{};
        GetWindowRect(window, &area);
        RedrawWindow(window, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
        GdiFlush();
        Sleep(150); // the screen is drawn by another process, which tells nobody when it has done
        if (!CaptureScreen(area, folder_ + name)) Fail(L"cannot write " + folder_ + name);
        std::printf("%ls\n", name.c_str() + 1);
    }

    const std::wstring folder_;
    bool newDevice_ = false;
    WizardDriver wizard_;
    HWND main_ = nullptr;
    std::size_t step_ = 0;
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
    try {
        Tour tour(words[2], words[1], arguments);
        name.empty() ? tour.Run() : tour.RunOne(name);
        return 0;
    } catch (const std::exception& error) {
        std::printf("%s\n", error.what());
        return 1;
    }
}
