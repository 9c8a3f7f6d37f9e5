#include "app/SingleInstance.h"
#include "app/StartUp.h"
#include "benchmark/Figures.h"
#include "benchmark/Table.h"
#include "tools/driver/Clock.h"
#include "tools/driver/RunningProgram.h"

#include <windows.h>

#include <stdexcept>
#include <vector>

namespace {

constexpr int kWindows = 2000;
constexpr int kTopLevel = 40; // top-level windows, each with as many children as it takes
constexpr wchar_t kOwnerClass[] = L"ManyWindows";
constexpr wchar_t kReadyTitle[] = L"All windows are there";

// The recursion that a search needs, reading each text and looking at none.
int ReadTexts(HWND start) {
    int count = 0;
    wchar_t text[255];
    for (HWND window = GetWindow(start, GW_CHILD); window; window = GetWindow(window, GW_HWNDNEXT)) {
        count += ReadTexts(window) + 1;
        GetWindowTextW(window, text, 255);
    }
    return count;
}

} // namespace

int OpenManyWindows() {
    WNDCLASSW windowClass{};
    windowClass.lpfnWndProc = DefWindowProcW;
    windowClass.hInstance = GetModuleHandleW(nullptr);
    windowClass.lpszClassName = kOwnerClass;
    RegisterClassW(&windowClass);
    HWND owner = nullptr;
    for (int i = 0; i < kWindows; ++i) {
        const bool top = i % (kWindows / kTopLevel) == 0;
        const std::wstring title = L"Window number " + std::to_wstring(i);
        const HWND made = CreateWindowExW(0, kOwnerClass, title.c_str(), top ? WS_POPUP : WS_CHILD, 0, 0, 10,
                                          10, top ? nullptr : owner, nullptr, windowClass.hInstance, nullptr);
        if (top) owner = made;
    }
    SetWindowTextW(owner, kReadyTitle);
    // A process that did not answer would be another figure.
    MSG message{};
    while (GetMessageW(&message, nullptr, 0, 0) > 0)
        DispatchMessageW(&message);
    return 0;
}

void MeasureSearch(const Bench& bench) {
    // The windows belong to another process: a text of one's own costs no switch between two.
    const RunningProgram others(L"\"" + bench.programs + L"benchmark.exe\" --windows");
    others.Until([] { return FindWindowW(kOwnerClass, kReadyTitle) != nullptr; }, L"many windows");
    std::vector<double> ours, theirs;
    for (int run = 0; run < bench.runs; ++run) {
        theirs.push_back(TimeOf([] {
            if (ReadTexts(GetDesktopWindow()) < kWindows) throw std::runtime_error("windows are missing");
        }));
        ours.push_back(TimeOf([] {
            if (FindRunningWizard(L"Varnel DNC - First-Time Setup Wizard"))
                throw std::runtime_error("a wizard is running");
        }));
    }
    PrintRatio("search for another copy, 2,000 windows", "recursion that reads each text", Median(ours),
               Median(theirs), "ms", 1.2);
}
