#include "app/SingleInstance.h"

#include "app/Pattern.h"

#include <algorithm>
#include <iterator>
#include <string_view>

namespace {

constexpr int kTextBuffer = 255;
constexpr DWORD kWaitForOther_ms = 2000;
constexpr DWORD kWaitStep_ms = 20;

// What the system keeps of the caption; asks no window, so a hung one costs nothing.
std::wstring CaptionOf(HWND window) {
    wchar_t buffer[kTextBuffer] = L"";
    InternalGetWindowText(window, buffer, kTextBuffer);
    return TrimAtNul({buffer, kTextBuffer});
}

// Both calls leave the work to the window's own thread, which may hang. While a box or the picker is open
// its form is disabled: the one to work with is the window asked last.
void BringToFront(HWND window) {
    ShowWindowAsync(window, SW_SHOWNORMAL);
    SetForegroundWindow(GetLastActivePopup(window));
}

} // namespace

bool FindRunningWizard(const std::wstring& title) {
    HWND start = nullptr;
    const HWND window = LocateWizardWindow(title, start);
    if (!window) return false;
    BringToFront(window);
    return true;
}

HWND LocateWizardWindow(const std::wstring& pattern, HWND& start) {
    if (!start) start = GetDesktopWindow();
    for (HWND window = GetWindow(start, GW_CHILD); window; window = GetWindow(window, GW_HWNDNEXT)) {
        HWND subtree = window;
        if (const HWND found = LocateWizardWindow(pattern, subtree)) return found;
        // The class is asked only of those few whose caption fits.
        if (!MatchesPattern(CaptionOf(window), pattern)) continue;
        if (GetWindowClass(window).starts_with(kWizardClassPrefix)) return window;
    }
    return nullptr;
}

std::wstring GetWindowClass(HWND window) {
    // The call may fill 256 of them, and no class has a longer name.
    wchar_t buffer[257];
    std::fill(std::begin(buffer), std::end(buffer), L' ');
    const int length = GetClassNameW(window, buffer, 256);
    return {buffer, static_cast<std::size_t>(std::max(0, length))};
}

// The mutex tells of a copy, not of its window: that may still be to come, and is looked for again and again.
bool InstanceClaim::Take(std::int16_t mode, const std::wstring& title) {
    const std::wstring name = L"Local\\VWizard.Mode" + std::to_wstring(mode);
    mutex_ = win::UniqueKernelHandle(CreateMutexW(nullptr, TRUE, name.c_str()));
    if (!mutex_ || GetLastError() != ERROR_ALREADY_EXISTS) return true;
    const DWORD begin = GetTickCount();
    while (GetTickCount() - begin < kWaitForOther_ms) {
        if (FindRunningWizard(title)) return false;
        const DWORD result = WaitForSingleObject(mutex_.Get(), kWaitStep_ms);
        if (result == WAIT_OBJECT_0 || result == WAIT_ABANDONED) return true; // the other copy has ended
    }
    return true; // it hangs or has failed before its window: nobody would ever get one
}
