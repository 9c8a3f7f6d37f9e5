#pragma once

// What a screen reader is told of a control that the program draws itself: the system's own description of
// its window, with role and name replaced.

#include <windows.h>

#include <string>

namespace win {

// Answers WM_GETOBJECT. `role` is a ROLE_SYSTEM_… value. 0 when the request is not for the window as a
// client, or where the accessibility library is missing: pass the message on then.
LRESULT AnswerGetObject(HWND window, WPARAM wParam, LPARAM lParam, LONG role, const std::wstring& name);

} // namespace win
