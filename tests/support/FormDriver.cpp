#include "tests/support/FormDriver.h"

#include <atomic>
#include <thread>

namespace {

constexpr DWORD kPatience = 5000; // milliseconds

std::atomic<WPARAM> handledMark;
std::atomic<WPARAM> postedMark;

UINT MarkMessage() {
    static const UINT message = RegisterWindowMessageW(L"VarnelTestMark");
    return message;
}

LRESULT CALLBACK NoteMarks(int code, WPARAM wParam, LPARAM lParam) {
    const auto* message = reinterpret_cast<const MSG*>(lParam);
    if (code == HC_ACTION && wParam == PM_REMOVE && message->message == MarkMessage())
        handledMark = message->wParam;
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

template <class Condition> bool Until(Condition condition) {
    const DWORD start = GetTickCount();
    while (!condition()) {
        if (GetTickCount() - start > kPatience) return false;
        Sleep(1);
    }
    return true;
}

// Visible and of this process: other tests may run beside this one.
HWND OwnWindow(const wchar_t* className) {
    HWND window = nullptr;
    while ((window = FindWindowExW(nullptr, window, className, nullptr)) != nullptr) {
        DWORD process = 0;
        GetWindowThreadProcessId(window, &process);
        if (process == GetCurrentProcessId() && IsWindowVisible(window)) return window;
    }
    return nullptr;
}

} // namespace

bool WhileOpen(const wchar_t* className, const std::function<void()>& show,
               const std::function<void(HWND)>& drive) {
    const HHOOK hook = SetWindowsHookExW(WH_GETMESSAGE, NoteMarks, nullptr, GetCurrentThreadId());
    std::atomic<bool> ended = false;
    bool opened = false;
    std::thread driver([&] {
        HWND form = nullptr;
        Until([&] { return ended || (form = OwnWindow(className)) != nullptr; });
        opened = form != nullptr;
        if (!opened) return;
        Settle(form);
        drive(form);
        if (!Until([&] { return ended.load(); })) PostMessageW(form, WM_CLOSE, 0, 0);
    });
    show();
    ended = true;
    driver.join();
    UnhookWindowsHookEx(hook);
    return opened;
}

void Settle(HWND form) {
    const WPARAM mark = ++postedMark;
    PostMessageW(form, MarkMessage(), mark, 0);
    Until([&] { return handledMark >= mark || !IsWindowVisible(form); });
}

void PostKey(HWND form, WPARAM key) {
    const HWND focus = FocusIn(form);
    PostMessageW(focus, WM_KEYDOWN, key, 1);
    PostMessageW(focus, WM_KEYUP, key, 1);
    Settle(form);
}

void PostClick(HWND control, LPARAM place, UINT down) {
    PostMessageW(control, down, MK_LBUTTON, place);
    PostMessageW(control, WM_LBUTTONUP, 0, place);
    Settle(GetAncestor(control, GA_ROOT));
}

HWND FocusIn(HWND form) {
    GUITHREADINFO info{};
    info.cbSize = sizeof info;
    GetGUIThreadInfo(GetWindowThreadProcessId(form, nullptr), &info);
    return info.hwndFocus;
}

std::wstring CaptionOf(HWND window) {
    wchar_t text[256] = L"";
    GetWindowTextW(window, text, 256);
    return text;
}
