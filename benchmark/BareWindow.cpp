// The least that a window in C++ costs: one class, one window, a handler, an edge for exceptions and a
// message loop. What the wizard takes beyond this is its own.

#include "benchmark/BareWindow.h"

#include <windows.h>

#include <functional>
#include <map>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

using Handler = std::function<LRESULT(HWND)>;

std::map<UINT, Handler> handlers;

LRESULT Paint(HWND window) {
    PAINTSTRUCT paint{};
    const HDC dc = BeginPaint(window, &paint);
    const std::vector<std::wstring> lines = {L"A window", L"and nothing else"};
    int top = 0;
    for (const std::wstring& line : lines)
        TextOutW(dc, 0, top += 20, line.c_str(), static_cast<int>(line.size()));
    EndPaint(window, &paint);
    return 0;
}

LRESULT CALLBACK WindowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    try {
        const auto handler = handlers.find(message);
        if (handler != handlers.end()) return handler->second(window);
    } catch (const std::exception&) {
        return 0;
    }
    return DefWindowProcW(window, message, wParam, lParam);
}

HWND MakeWindow(HINSTANCE instance) {
    WNDCLASSW windowClass{};
    windowClass.lpfnWndProc = WindowProcedure;
    windowClass.hInstance = instance;
    windowClass.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    windowClass.hbrBackground = GetSysColorBrush(COLOR_WINDOW);
    windowClass.lpszClassName = L"BareWindow";
    if (!RegisterClassW(&windowClass)) throw std::runtime_error("no window class");
    const HWND window =
        CreateWindowExW(0, windowClass.lpszClassName, L"Bare window", WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN,
                        100, 100, 500, 350, nullptr, nullptr, instance, nullptr);
    if (!window) throw std::runtime_error("no window");
    return window;
}

} // namespace

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, PWSTR, int) {
    handlers[WM_PAINT] = Paint;
    handlers[WM_DESTROY] = [](HWND) -> LRESULT {
        PostQuitMessage(0);
        return 0;
    };
    try {
        const HWND window = MakeWindow(instance);
        AddControls(window);
        ShowWindow(window, SW_SHOWNORMAL);
    } catch (const std::exception& error) {
        MessageBoxA(nullptr, error.what(), "Bare window", MB_OK);
        return 1;
    }
    MSG message{};
    while (GetMessageW(&message, nullptr, 0, 0) > 0)
        DispatchMessageW(&message);
    return 0;
}
