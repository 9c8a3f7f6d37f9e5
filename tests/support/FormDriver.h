#pragma once

// Drives a modal form of this process as a person would, from a second thread: by posted keys and clicks,
// handled in their order. Nothing sleeps blindly.

#include <windows.h>

#include <functional>
#include <string>

// Runs `show`, which opens a modal form of that window class, and `drive` once the form is there. `drive`
// has to end it; one still open afterwards is closed. False: `show` returned without the form.
bool WhileOpen(const wchar_t* className, const std::function<void()>& show,
               const std::function<void(HWND)>& drive);

// For `drive`. Returns when all that was posted before has been handled or the form is gone.
void Settle(HWND form);

void PostKey(HWND form, WPARAM key); // to the control with the focus
void PostClick(HWND control, LPARAM place, UINT down = WM_LBUTTONDOWN);

HWND FocusIn(HWND form);
std::wstring CaptionOf(HWND window);
