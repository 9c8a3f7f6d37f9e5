#pragma once

// One window a mode: a second start brings the running copy to the front and ends.

#include "win/Handles.h"

#include <windows.h>

#include <cstdint>
#include <string>

// The class of the wizard's window; what a second copy tests is that it begins with these letters.
inline constexpr wchar_t kWizardClassPrefix[] = L"VWizard";

// True when a copy of the mode whose caption is `title` has its window; that window has been restored, and it
// or what it has open (a box, the icon picker, the folder dialog) brought to the front. Errors are ignored,
// and a window that does not answer is not waited for.
bool FindRunningWizard(const std::wstring& title);

// Depth first below `start` (null, which becomes the desktop): the window whose caption matches `pattern`
// and whose class begins with the prefix above; null when there is none.
HWND LocateWizardWindow(const std::wstring& pattern, HWND& start);

std::wstring GetWindowClass(HWND window);

// Held by the copy of a mode that may open its window, until the process ends. Two starts at once see no
// window of each other; this lets the second one wait for that of the first.
class InstanceClaim {
  public:
    // False: a copy that claimed the mode before has its window, which is in front now, and this copy is to
    // end. True: this copy goes on, after two seconds at most, when the other one shows no window.
    bool Take(std::int16_t mode, const std::wstring& title);

  private:
    win::UniqueKernelHandle mutex_;
};
