#include "win/Control.h"

#include "win/Accessible.h"
#include "win/Form.h"
#include "win/Screen.h"

#include <commctrl.h>
#include <oleacc.h>

#include <algorithm>
#include <utility>

namespace win {

void Control::Bind(Form& form, int id, const wchar_t* className, DWORD style, DWORD extendedStyle) {
    form_ = &form;
    id_ = id;
    className_ = className;
    style_ = style;
    extendedStyle_ = extendedStyle;
    form.controls_.push_back(this);
}

Control::~Control() {
    if (!form_) return;
    form_->Forget(*this);
    if (hwnd_) DestroyWindow(hwnd_);
}

RECT Control::Area() const {
    // Both edges are rounded, not the size, so that neighbours meet at every resolution.
    return {Px(left_), Px(top_), Px(left_ + width_), Px(top_ + height_)};
}

HWND Control::Handle() {
    if (hwnd_) return hwnd_;
    area_ = Area();
    isShown_ = visible_ && !form_->IsArranging(); // it would flash up where it does not yet belong
    hwnd_ = CreateWindowExW(
        extendedStyle_, className_, text_.c_str(), WS_CHILD | style_ | (isShown_ ? WS_VISIBLE : 0),
        area_.left, area_.top, area_.right - area_.left, area_.bottom - area_.top, form_->Hwnd(),
        reinterpret_cast<HMENU>(static_cast<INT_PTR>(id_)), GetModuleHandleW(nullptr), nullptr);
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
    Changed();
}

void Control::Visible(bool visible) {
    if (visible == visible_) return;
    visible_ = visible;
    Changed();
}

void Control::Changed() {
    if (form_->IsArranging())
        form_->Note(*this);
    else
        Settle();
}

// One call for place, order and visibility: each by itself would cost as much as all together. What a page
// leaves hidden gets its place and order when it is shown.
void Control::Settle() {
    if (!visible_ && !isShown_ && (!hwnd_ || form_->IsArranging())) return;
    const HWND window = Handle();
    const RECT old = std::exchange(area_, Area());
    const bool wasShown = std::exchange(isShown_, visible_);
    const HWND behind = previous_ ? std::exchange(previous_, nullptr)->Handle() : nullptr;
    UINT flags = SWP_NOACTIVATE | SWP_NOREDRAW;
    if (EqualRect(&old, &area_)) flags |= SWP_NOMOVE | SWP_NOSIZE;
    if (!behind || GetWindow(window, GW_HWNDPREV) == behind) flags |= SWP_NOZORDER;
    if (visible_ != wasShown) flags |= visible_ ? SWP_SHOWWINDOW : SWP_HIDEWINDOW;
    constexpr UINT kNothing = SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOREDRAW;
    if (flags == kNothing) return;
    SetWindowPos(window, behind, area_.left, area_.top, area_.right - area_.left, area_.bottom - area_.top,
                 flags);
    if (wasShown) form_->Uncover(old);
    if (visible_) form_->Uncover(area_);
}

void Control::Enabled(bool enabled) { EnableWindow(Handle(), enabled); }

void Control::Text(std::wstring_view text) {
    if (!hwnd_)
        text_ = text;
    else if (Text() != text) // or a control that shows it already would paint itself again
        SetWindowTextW(hwnd_, std::wstring(text).c_str());
}

std::wstring Control::Text() { return hwnd_ ? WindowText(hwnd_) : text_; }

void Control::ToolTip(std::wstring_view text) {
    if (toolTip_ == text) return;
    toolTip_ = text;
    form_->SetToolTip(*this);
}

void Control::Font(HFONT font) {
    const HFONT before = Font();
    font_ = font;
    if (hwnd_ && Font() != before) SendMessageW(hwnd_, WM_SETFONT, reinterpret_cast<WPARAM>(Font()), TRUE);
}

HFONT Control::Font() const { return font_ ? font_ : form_->DefaultFont(); }

void Control::Focus() { form_->Focus(*this); }

void Control::Repaint() {
    if (hwnd_) InvalidateRect(hwnd_, nullptr, TRUE);
}

void Control::Follows(Control& previous) {
    previous_ = &previous;
    Changed();
}

// The user data of these windows is ours: the system's classes keep theirs in bytes of their own.
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

// An option button's tab stop goes with its mark. An automatic one that is marked may ask every window of
// the form whether it belongs to the group, so it is not automatic for the moment: who sets one sets all.
void Button::Checked(bool checked) {
    const LONG style = GetWindowLongW(Handle(), GWL_STYLE);
    const bool isOption = (style & BS_TYPEMASK) == BS_AUTORADIOBUTTON;
    if (Checked() == checked && (!isOption || ((style & WS_TABSTOP) != 0) == checked)) return;
    if (isOption) SetWindowLongW(Handle(), GWL_STYLE, (style & ~BS_TYPEMASK) | BS_RADIOBUTTON);
    Send(BM_SETCHECK, checked ? BST_CHECKED : BST_UNCHECKED);
    if (isOption) {
        const LONG marked = GetWindowLongW(Handle(), GWL_STYLE);
        SetWindowLongW(Handle(), GWL_STYLE, (marked & ~BS_TYPEMASK) | BS_AUTORADIOBUTTON);
    }
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

void ListBox::Fill(const std::vector<std::wstring>& items) {
    Send(WM_SETREDRAW, FALSE);
    Send(LB_RESETCONTENT);
    for (const std::wstring& item : items)
        Send(LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(item.c_str()));
    Send(WM_SETREDRAW, TRUE);
}

// The length is asked for first: the message itself takes no size and would write beyond any buffer.
std::wstring ListBox::Item(int index) {
    const auto length = Send(LB_GETTEXTLEN, static_cast<WPARAM>(index));
    if (length <= 0) return {};
    std::wstring item(static_cast<std::size_t>(length), L'\0');
    Send(LB_GETTEXT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(item.data()));
    return item;
}

// LB_ERR, below 0, for a list in which only one can be selected.
int ListBox::SelectedCount() { return std::max(0, static_cast<int>(Send(LB_GETSELCOUNT))); }

void ComboBox::Made() {
    constexpr WPARAM kOpenRows = 12; // the system would open 30, more than a small screen has room for
    Send(CB_SETMINVISIBLE, kOpenRows);
    InterceptMessages();
}

bool ComboBox::OnMessage(UINT message, WPARAM, LPARAM, LRESULT& result) {
    if (message != WM_MOUSEWHEEL || GetFocus() == Handle() || Send(CB_GETDROPPEDSTATE)) return false;
    result = 0;
    return true;
}

void ComboBox::Add(std::wstring_view item) {
    Send(CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(std::wstring(item).c_str()));
}

// The length may be more than the text has, never less; the count that comes back is right.
std::wstring WindowText(HWND window) {
    const int length = GetWindowTextLengthW(window);
    std::wstring text(static_cast<std::size_t>(length), L'\0');
    text.resize(static_cast<std::size_t>(GetWindowTextW(window, text.data(), length + 1)));
    return text;
}

} // namespace win
