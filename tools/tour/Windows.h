#pragma once
#include "tests/support/Windows.h"

// Driving the windows of another process.

// All texts that `window` shows, as one text: it changes when another page is shown.
std::wstring Contents(HWND window);

// The visible control of that class and caption (an empty caption fits all), or null.
HWND FindControl(HWND window, const wchar_t* className, const wchar_t* caption);

// Clicks a button and returns at once, so that a message box that opens can be answered.
void Press(HWND button);
