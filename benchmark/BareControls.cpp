// The controls that the wizard's first page cannot do without, in its two fonts, and nothing that happens in
// them: what a start and a redraw cost more than these is the wizard's own.

#include "benchmark/BareWindow.h"

namespace {

struct Row {
    const wchar_t* className;
    const wchar_t* text;
    DWORD style;
    int left, top, width, height; // pixels
};

// clang-format off
constexpr Row kControls[] = {
    {L"Static",      L"Welcome",   0,                             100,   0, 390,  39},
    {L"RichEdit20W", L"Some text", ES_MULTILINE | ES_READONLY,    100,  48, 380, 130},
    {L"Static",      L"",          0,                              12,  88,  72,  72},
    {L"Static",      L"",          0,                               8, 244,  80,  24},
    {L"Static",      L"",          0,                               0,   0,  96,  40},
    {L"Button",      L"&Skip",     WS_TABSTOP,                    170, 284,  73,  25},
    {L"Button",      L"< &Back",   WS_TABSTOP | WS_DISABLED,      251, 284,  73,  25},
    {L"Button",      L"&Next >",   WS_TABSTOP | BS_DEFPUSHBUTTON, 332, 284,  73,  25},
    {L"Button",      L"Cancel",    WS_TABSTOP,                    413, 284,  73,  25},
};
// clang-format on

HFONT Verdana(int height, int weight) {
    return CreateFontW(height, 0, 0, 0, weight, 0, 0, 0, DEFAULT_CHARSET, 0, 0, CLEARTYPE_QUALITY, 0,
                       L"Verdana");
}

} // namespace

void AddControls(HWND window) {
    LoadLibraryExW(L"riched20.dll", nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
    static const HFONT heading = Verdana(-16, FW_BOLD), body = Verdana(-11, FW_NORMAL);
    for (const Row& row : kControls) {
        const HWND control =
            CreateWindowExW(0, row.className, row.text, WS_CHILD | WS_VISIBLE | row.style, row.left, row.top,
                            row.width, row.height, window, nullptr, GetModuleHandleW(nullptr), nullptr);
        SendMessageW(control, WM_SETFONT, reinterpret_cast<WPARAM>(&row == kControls ? heading : body),
                     FALSE);
    }
}
