#include "tools/tour/Windows.h"

std::wstring Contents(HWND window) {
    std::wstring contents;
    for (const HWND control : ControlsOf(window))
        contents += ClassOf(control) + L'=' + TextOf(control) + L'\n';
    return contents;
}

HWND FindControl(HWND window, const wchar_t* className, const wchar_t* caption) {
    for (const HWND control : ControlsOf(window)) {
        if (lstrcmpiW(ClassOf(control).c_str(), className) != 0) continue;
        if (*caption == L'\0' || TextOf(control) == caption) return control;
    }
    return nullptr;
}

void Press(HWND button) { PostMessageW(button, BM_CLICK, 0, 0); }
