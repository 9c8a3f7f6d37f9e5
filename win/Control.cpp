#include "win/Control.h"

#include "win/Accessible.h"
#include "win/Form.h"
#include "win/Screen.h"

#include <oleacc.h>

#include <algorithm>

namespace win {

void Control::Bind(Form& form, int id, const wchar_t* className, DWORD style, DWORD extendedStyle) {
    form_ = &form;
    id_ = id;
    className_ = className;
    style_ = style;
    extendedStyle_ = extendedStyle;
    form.controls_.push_back(this);
}

HWND Control::Handle() {
    if (hwnd_) return hwnd_;
    const int left = Px(left_);
    const int top = Px(top_);
    hwnd_ = CreateWindowExW(extendedStyle_, className_, L"", WS_CHILD | style_ | (visible_ ? WS_VISIBLE : 0),
                            left, top, Px(left_ + width_) - left, Px(top_ + height_) - top, form_->Hwnd(),
                            reinterpret_cast<HMENU>(static_cast<INT_PTR>(id_)), GetModuleHandleW(nullptr),
                            nullptr);
    SendMessageW(hwnd_, WM_SETFONT, reinterpret_cast<WPARAM>(Font()), FALSE);
    Made();
    return hwnd_;
}

void Control::Place(Twips left, Twips top, Twips width, Twips height) {
    if (left == left_ && top == top_ && width == width_ && height == height_) return;
    left_ = left;
    top_ = top;
    width_ = width;
    height_ = height;
    if (!hwnd_) return;
    // Both edges are rounded, not the size, so that neighbours meet at every resolution.
    const int x = Px(left);
    const int y = Px(top);
    SetWindowPos(hwnd_, nullptr, x, y, Px(left + width) - x, Px(top + height) - y,
                 SWP_NOZORDER | SWP_NOACTIVATE);
}

void Control::Visible(bool visible) {
    if (visible == visible_) return;
    visible_ = visible;
    if (visible || hwnd_) ShowWindow(Handle(), visible ? SW_SHOWNA : SW_HIDE);
}

void Control::Enabled(bool enabled) { EnableWindow(Handle(), enabled); }

void Control::Text(std::wstring_view text) {
    if (Text() != text) SetWindowTextW(hwnd_, std::wstring(text).c_str());
}

std::wstring Control::Text() { return WindowText(Handle()); }

void Control::ToolTip(std::wstring_view text) {
    if (toolTip_ == text) return;
    toolTip_ = text;
    form_->SetToolTip(*this);
}

void Control::Font(HFONT font) {
    font_ = font;
    if (hwnd_) SendMessageW(hwnd_, WM_SETFONT, reinterpret_cast<WPARAM>(Font()), TRUE);
}

HFONT Control::Font() const { return font_ ? font_ : form_->DefaultFont(); }

void Control::Focus() {
    const HWND window = Handle();
    SendMessageW(form_->Hwnd(), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(window), TRUE);
}

void Control::Repaint() {
    if (hwnd_) InvalidateRect(hwnd_, nullptr, TRUE);
}

void Control::Follows(Control& previous) {
    SetWindowPos(Handle(), previous.Handle(), 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
}

void Control::InterceptMessages() {
    SetWindowLongPtrW(hwnd_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    systemProcedure_ = reinterpret_cast<WNDPROC>(
        SetWindowLongPtrW(hwnd_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&Control::InterceptedProcedure)));
}

LRESULT CALLBACK Control::InterceptedProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    auto& control = *reinterpret_cast<Control*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    LRESULT result = 0;
    if (control.OnMessage(message, wParam, lParam, result)) return result;
    return control.SystemProcedure(message, wParam, lParam);
}

bool Link::OnMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) {
    const auto* key = reinterpret_cast<const MSG*>(lParam);
    switch (message) {
    case WM_GETDLGCODE: // keeps Enter from the default button
        result = SystemProcedure(message, wParam, lParam);
        if (key && key->message == WM_KEYDOWN && key->wParam == VK_RETURN) result |= DLGC_WANTMESSAGE;
        return true;
    case WM_KEYDOWN:
        if (wParam != VK_RETURN) return false;
        SendMessageW(Handle(), BM_CLICK, 0, 0);
        return true;
    case WM_GETOBJECT:
        result = AnswerGetObject(Handle(), wParam, lParam, ROLE_SYSTEM_LINK, Text());
        return result != 0;
    case WM_SETCURSOR:
        SetCursor(LoadCursorW(nullptr, IDC_HAND));
        result = TRUE;
        return true;
    default:
        return false;
    }
}

void ListBox::Add(std::wstring_view item) {
    Send(LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(std::wstring(item).c_str()));
}

std::wstring ListBox::Item(int index) {
    const auto length = Send(LB_GETTEXTLEN, static_cast<WPARAM>(index));
    if (length <= 0) return {};
    std::wstring item(static_cast<std::size_t>(length), L'\0');
    Send(LB_GETTEXT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(item.data()));
    return item;
}

int ListBox::SelectedCount() { return std::max(0, static_cast<int>(Send(LB_GETSELCOUNT))); }

void ComboBox::Add(std::wstring_view item) {
    Send(CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(std::wstring(item).c_str()));
}

std::wstring WindowText(HWND window) {
    const int length = GetWindowTextLengthW(window);
    std::wstring text(static_cast<std::size_t>(length), L'\0');
    text.resize(static_cast<std::size_t>(GetWindowTextW(window, text.data(), length + 1)));
    return text;
}

} // namespace win
