#pragma once

// A wizard of twenty pages on the common controls' property sheet, nine controls a page.

#include <windows.h>

#include <functional>

inline constexpr int kSheetPages = 20;

// Opens the wizard, runs `tour` with its window once the first page is up, and closes it.
void RunSheetWizard(const std::function<void(HWND sheet)>& tour);
