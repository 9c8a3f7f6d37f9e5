#include "tools/driver/Windows.h"

#include "tools/driver/Words.h"

namespace {

// As long as any other wait: a busy machine may need it, a program that hangs does not end the test run.
constexpr UINT kAnswerTime_ms = 90000;

// Windows that are there and hidden are not what a person could use.
BOOL CALLBACK Collect(HWND window, LPARAM data) {
    if (IsWindowVisible(window)) reinterpret_cast<std::vector<HWND>*>(data)->push_back(window);
    return TRUE;
}

} // namespace

std::vector<HWND> WindowsOf(DWORD processId) {
    std::vector<HWND> windows;
    EnumWindows(Collect, reinterpret_cast<LPARAM>(&windows));
    std::erase_if(windows, [processId](HWND window) {
        DWORD owner = 0;
        GetWindowThreadProcessId(window, &owner);
        return owner != processId;
    });
    return windows;
}

std::vector<HWND> ControlsOf(HWND window, const wchar_t* className) {
    std::vector<HWND> controls;
    EnumChildWindows(window, Collect, reinterpret_cast<LPARAM>(&controls));
    if (className) std::erase_if(controls, [&](HWND control) { return ClassOf(control) != className; });
    return controls;
}

HWND FindControl(HWND window, const wchar_t* className, const std::wstring& text) {
    for (HWND control : ControlsOf(window, className))
        if (text.empty() || TextOf(control) == text) return control;
    return nullptr;
}

std::wstring Contents(HWND window) {
    std::wstring contents;
    for (HWND control : ControlsOf(window))
        contents += L"    " + ClassOf(control) + L" \"" + TextOf(control) + L"\"\n";
    return contents;
}

std::wstring ClassOf(HWND window) {
    wchar_t name[64] = L"";
    GetClassNameW(window, name, static_cast<int>(std::size(name)));
    return name;
}

// By messages: only these give another process the text of a control, not only of a window.
std::wstring TextOf(HWND window) {
    std::wstring text(Ask(window, WM_GETTEXTLENGTH) + 1, L'\0');
    text.resize(Ask(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data())));
    return text;
}

std::vector<std::wstring> ItemsOf(HWND list) {
    const bool isCombo = ClassOf(list) == L"ComboBox";
    std::vector<std::wstring> items(Ask(list, isCombo ? CB_GETCOUNT : LB_GETCOUNT));
    for (std::size_t i = 0; i < items.size(); ++i) {
        items[i].resize(Ask(list, isCombo ? CB_GETLBTEXTLEN : LB_GETTEXTLEN, i) + 1);
        items[i].resize(
            Ask(list, isCombo ? CB_GETLBTEXT : LB_GETTEXT, i, reinterpret_cast<LPARAM>(items[i].data())));
    }
    return items;
}

// One that has gone meanwhile is no failure: programs close their windows when they like.
DWORD_PTR Ask(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    DWORD_PTR result = 0;
    if (!SendMessageTimeoutW(window, message, wParam, lParam, SMTO_NORMAL, kAnswerTime_ms, &result) &&
        IsWindow(window))
        Fail(L"a window of class " + ClassOf(window) + L" does not answer message " +
             std::to_wstring(message));
    return result;
}
