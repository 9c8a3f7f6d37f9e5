#pragma once
#include <windows.h>

#include <string>
#include <vector>

// Reading and driving the windows of another process.

// The visible top-level windows of process `processId`, the topmost first.
std::vector<HWND> WindowsOf(DWORD processId);

// The visible child controls of `window`, in tab order.
std::vector<HWND> ControlsOf(HWND window);

std::wstring ClassOf(HWND window);
std::wstring TextOf(HWND window);

// All texts that `window` shows, as one text: it changes when another page is shown.
std::wstring Contents(HWND window);

// The visible control of that class and caption (an empty caption fits all), or null.
HWND FindControl(HWND window, const wchar_t* className, const wchar_t* caption);

// Clicks a button and returns at once, so that a message box that opens can be answered.
void Press(HWND button);
