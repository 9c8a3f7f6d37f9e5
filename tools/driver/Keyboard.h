#pragma once
#include <windows.h>

#include <string>

// Input as from keyboard and mouse.

// A key by its name ("tab", "enter", "left", a letter), with "shift+" or "alt+" in front; the window in front
// takes it. A name that no key has throws std::out_of_range.
void PressKey(const std::wstring& name);
void TypeKeys(const std::wstring& text); // one character after the other

// By the mouse, `from` pixels from the right end or, above 0, from the left.
void Click(HWND control, int from = 9, UINT down = WM_LBUTTONDOWN);
