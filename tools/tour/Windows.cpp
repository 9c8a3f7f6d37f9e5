#include "tools/tour/Windows.h"

namespace {

struct Search {
    DWORD processId;
    std::vector<HWND> found;
};

BOOL CALLBACK TakeWindow(HWND window, LPARAM data) {
    auto& search = *reinterpret_cast<Search*>(data);
    DWORD owner = 0;
    GetWindowThreadProcessId(window, &owner);
    if (owner == search.processId && IsWindowVisible(window)) search.found.push_back(window);
    return TRUE;
}

BOOL CALLBACK TakeControl(HWND control, LPARAM data) {
    if (IsWindowVisible(control)) reinterpret_cast<std::vector<HWND>*>(data)->push_back(control);
    return TRUE;
}

} // namespace

std::vector<HWND> WindowsOf(DWORD processId) {
    Search search{processId, {}};
    EnumWindows(TakeWindow, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

std::vector<HWND> ControlsOf(HWND window) {
    std::vector<HWND> found;
    EnumChildWindows(window, TakeControl, reinterpret_cast<LPARAM>(&found));
    return found;
}

std::wstring ClassOf(HWND window) {
    std::wstring name(256, L'\0');
    name.resize(static_cast<size_t>(GetClassNameW(window, name.data(), 256)));
    return name;
}

std::wstring TextOf(HWND window) {
    // The window text call would not read the controls of another process.
    DWORD_PTR length = 0;
    if (!SendMessageTimeoutW(window, WM_GETTEXTLENGTH, 0, 0, SMTO_ABORTIFHUNG, 5000, &length)) return {};
    std::wstring text(length + 1, L'\0');
    DWORD_PTR copied = 0;
    SendMessageTimeoutW(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()),
                        SMTO_ABORTIFHUNG, 5000, &copied);
    text.resize(copied);
    return text;
}

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
