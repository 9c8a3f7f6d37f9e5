#pragma once
#include <windows.h>

#include <string>
#include <vector>

// Reading the windows of any process. Those that have gone answer with nothing; one that hangs throws
// std::runtime_error.

// The visible top-level windows of a process, the topmost first; other programs may run in the same prefix.
std::vector<HWND> WindowsOf(DWORD processId);
// Visible controls in tab order, all or of one class.
std::vector<HWND> ControlsOf(HWND window, const wchar_t* className = nullptr);

// The visible control of that class and text ("" fits all), the first in tab order; null: none.
HWND FindControl(HWND window, const wchar_t* className, const std::wstring& text);
// All that a window shows, one control a line: another text when another page is shown.
std::wstring Contents(HWND window);

std::wstring ClassOf(HWND window);
std::wstring TextOf(HWND window);
std::vector<std::wstring> ItemsOf(HWND list);                                   // of a list or combo box
DWORD_PTR Ask(HWND window, UINT message, WPARAM wParam = 0, LPARAM lParam = 0); // as SendMessage
