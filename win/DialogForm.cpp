#include "win/DialogForm.h"

#include "win/Fonts.h"
#include "win/Screen.h"

#include <algorithm>

namespace win {

namespace {

constexpr DWORD kStyle = WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_CLIPCHILDREN;
constexpr DWORD kExtendedStyle = WS_EX_DLGMODALFRAME | WS_EX_CONTROLPARENT;

// One direction. What is larger than the area shows its beginning.
LONG Middle(LONG from, LONG to, LONG length, LONG areaStart, LONG areaEnd) {
    return std::max(std::min((from + to - length) / 2, areaEnd - length), areaStart);
}

} // namespace

void DialogForm::MakeWindow(const wchar_t* className, const wchar_t* caption) {
    Create({className, caption, kStyle, kExtendedStyle, nullptr}, FontFor(FontUse::Body), 0, 0);
    Background(COLOR_BTNFACE);
}

void DialogForm::ClientSize(Twips width, Twips height) {
    RECT window{0, 0, Px(width), Px(height)};
    AdjustWindowRectEx(&window, kStyle, FALSE, kExtendedStyle);
    SetWindowPos(Hwnd(), nullptr, 0, 0, window.right - window.left, window.bottom - window.top,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void DialogForm::Center(HWND owner) {
    const RECT area = WorkArea();
    RECT under = area;
    if (owner) GetWindowRect(owner, &under);
    RECT window{};
    GetWindowRect(Hwnd(), &window);
    const LONG left = Middle(under.left, under.right, window.right - window.left, area.left, area.right);
    const LONG top = Middle(under.top, under.bottom, window.bottom - window.top, area.top, area.bottom);
    SetWindowPos(Hwnd(), nullptr, left, top, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

} // namespace win
