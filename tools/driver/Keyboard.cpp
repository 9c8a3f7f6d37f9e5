#include "tools/driver/Keyboard.h"

#include <cwctype>
#include <map>

namespace {

const std::map<std::wstring, WORD> kKeys = {
    {L"tab", VK_TAB}, {L"enter", VK_RETURN}, {L"esc", VK_ESCAPE},  {L"left", VK_LEFT},   {L"right", VK_RIGHT},
    {L"up", VK_UP},   {L"down", VK_DOWN},    {L"space", VK_SPACE}, {L"shift", VK_SHIFT}, {L"alt", VK_MENU}};

// Through the system's own queue: the keys go to whatever window has the focus, as a person's do, and the
// form's message loop sees them.
void Send(WORD key, WORD scan, DWORD flags) {
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = key;
    input.ki.wScan = scan;
    input.ki.dwFlags = flags;
    SendInput(1, &input, sizeof input);
}

} // namespace

void PressKey(const std::wstring& name) {
    const std::size_t plus = name.find(L'+') + 1;
    const WORD modifier = plus ? kKeys.at(name.substr(0, plus - 1)) : WORD{0};
    const std::wstring last = name.substr(plus);
    const WORD key = last.size() == 1 ? static_cast<WORD>(std::towupper(last[0])) : kKeys.at(last);
    if (modifier) Send(modifier, 0, 0);
    Send(key, 0, 0);
    Send(key, 0, KEYEVENTF_KEYUP);
    if (modifier) Send(modifier, 0, KEYEVENTF_KEYUP);
}

// By characters, whatever keyboard layout there is.
void TypeKeys(const std::wstring& text) {
    for (const wchar_t c : text)
        for (const DWORD up : {DWORD{0}, DWORD{KEYEVENTF_KEYUP}})
            Send(0, c, KEYEVENTF_UNICODE | up);
}

// By messages to the control itself: the pointer stays where the person at the screen left it.
void Click(HWND control, int from, UINT down) {
    RECT area{};
    GetClientRect(control, &area);
    const LPARAM place = MAKELPARAM(from < 0 ? area.right + from : from, 9);
    PostMessageW(control, down, MK_LBUTTON, place);
    PostMessageW(control, WM_LBUTTONUP, 0, place);
}
