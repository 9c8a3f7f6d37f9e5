#pragma once

// One window a mode: a second start brings the running copy to the front and ends.

#include <windows.h>

#include <cstdint>
#include <string>

// The class of the wizard's window; what a second copy tests is that it begins with these letters.
inline constexpr wchar_t kWizardClassPrefix[] = L"VWizard";

// True when a copy of the mode whose caption is `title` has its window; that window has been restored and
// brought to the front. Never waits for a window that does not answer.
bool FindRunningWizard(const std::wstring& title);

// Depth first below `start` (null, which becomes the desktop): the window whose caption matches `pattern`
// and whose class begins with the prefix above; null when there is none.
HWND LocateWizardWindow(const std::wstring& pattern, HWND& start);

std::wstring GetWindowClass(HWND window);

// Held by the copy of a mode that may open its window, until the process ends. Two starts at once see no
// window of each other; this decides between them.
class InstanceClaim {
  public:
    // Waits up to two seconds for the window of a copy that claimed the mode before. False: this copy is
    // to end (the other is in front by then); true: the mode is this copy's.
    bool Take(std::int16_t mode, const std::wstring& title);

    InstanceClaim() = default;
    InstanceClaim(const InstanceClaim&) = delete;
    InstanceClaim& operator=(const InstanceClaim&) = delete;
    ~InstanceClaim();

  private:
    HANDLE mutex_ = nullptr;
};
