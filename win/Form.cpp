#include "win/Form.h"

#include "win/AppError.h"

#include <commctrl.h>

#include <utility>

namespace win {

namespace {

constexpr wchar_t kMessageTitle[] = L"Varnel DNC Setup Wizard";

ATOM RegisterFormClass(const FormLook& look, WNDPROC procedure) {
    WNDCLASSEXW formClass{};
    formClass.cbSize = sizeof formClass;
    formClass.lpfnWndProc = procedure;
    formClass.cbWndExtra =
        DLGWINDOWEXTRA; // the dialog procedure keeps the default button and the focus there
    formClass.hInstance = GetModuleHandleW(nullptr);
    formClass.hIcon = look.icon;
    formClass.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    formClass.lpszClassName = look.className;
    return RegisterClassExW(&formClass);
}

} // namespace

// Only where a form's own destructor did not get its turn.
Form::~Form() { Destroy(); }

void Form::Destroy() {
    if (hwnd_) DestroyWindow(hwnd_);
}

void Form::Create(const FormLook& look, HFONT defaultFont, int width, int height) {
    defaultFont_ = defaultFont;
    RegisterFormClass(look, &Form::WindowProcedure); // fails harmlessly the second time
    CreateWindowExW(look.extendedStyle, look.className, look.caption, look.style, 0, 0, width, height,
                    nullptr, nullptr, GetModuleHandleW(nullptr), this);
    if (!hwnd_) throw AppError(static_cast<int>(GetLastError()), L"VWizard", L"Unable to open a window.");
}

void Form::ShowModal(HWND owner, Control& first) {
    activeBefore_ = owner ? owner : GetActiveWindow(); // before the form takes the focus
    DisableOthers();
    ShowWindow(hwnd_, SW_SHOW);
    first.Focus();
    MSG message{};
    bool ended = false;
    while (!ended && IsWindowVisible(hwnd_)) {
        ended = GetMessageW(&message, nullptr, 0, 0) <= 0;
        if (!ended) PumpMessage(message);
    }
    Hide();
    if (ended) EndMessageLoop(); // the outer loop has to see it too
}

// The others come to life first: otherwise another program's window would become the active one.
void Form::Hide() {
    EnableOthers();
    ShowWindow(hwnd_, SW_HIDE);
    if (activeBefore_) SetActiveWindow(std::exchange(activeBefore_, nullptr));
    // A click that was sent, not posted, runs inside the modal loop's wait, which goes on until a message.
    PostMessageW(hwnd_, WM_NULL, 0, 0);
}

BOOL CALLBACK Form::DisableOther(HWND window, LPARAM form) {
    auto& modal = *reinterpret_cast<Form*>(form);
    if (window == modal.hwnd_ || !IsWindowVisible(window) || !IsWindowEnabled(window)) return TRUE;
    EnableWindow(window, FALSE);
    modal.others_.push_back(window);
    return TRUE;
}

void Form::DisableOthers() {
    EnumThreadWindows(GetCurrentThreadId(), &Form::DisableOther, reinterpret_cast<LPARAM>(this));
}

void Form::EnableOthers() {
    for (const HWND window : std::exchange(others_, {}))
        EnableWindow(window, TRUE);
}

void Form::DefaultButton(Control& button) {
    button.Handle();
    SendMessageW(hwnd_, DM_SETDEFID, static_cast<WPARAM>(button.Id()), 0);
}

void Form::Note(Control& control) {
    std::erase(noted_, &control);
    noted_.push_back(&control);
}

void Form::Forget(Control& control) {
    std::erase(controls_, &control);
    std::erase(noted_, &control);
    std::erase(unpainted_, &control);
    if (focus_ == &control) focus_ = nullptr;
}

void Form::BeginArrangement(const RECT& area) {
    UnionRect(&uncovered_, &uncovered_, &area);
    if (arrangements_++ > 0) return;
    for (Control* control : controls_) {
        if (!control->isShown_) continue;
        SendMessageW(control->hwnd_, WM_SETREDRAW, FALSE, 0);
        unpainted_.push_back(control);
    }
}

// What is to be hidden is told to paint again as well: lists and texts would remember that they must not.
void Form::EndArrangement() {
    if (arrangements_ > 1) {
        --arrangements_;
        return;
    }
    for (Control* control : std::exchange(unpainted_, {}))
        SendMessageW(control->hwnd_, WM_SETREDRAW, TRUE, 0);
    for (Control* control : std::exchange(noted_, {})) // while what they uncover is still gathered
        control->Settle();
    --arrangements_;
    Uncover(std::exchange(uncovered_, {}));
    if (Control* control = std::exchange(focus_, nullptr)) Focus(*control);
}

void Form::Uncover(const RECT& area) {
    if (IsArranging())
        UnionRect(&uncovered_, &uncovered_, &area);
    else
        RedrawWindow(hwnd_, &area, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

void Form::Focus(Control& control) {
    if (IsArranging())
        focus_ = &control;
    else
        SendMessageW(hwnd_, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(control.Handle()), TRUE);
}

Control* Form::ControlOf(HWND window) const {
    for (Control* control : controls_)
        if (control->hwnd_ && control->hwnd_ == window) return control;
    return nullptr;
}

LRESULT CALLBACK Form::WindowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_NCCREATE) {
        auto* form = static_cast<Form*>(reinterpret_cast<CREATESTRUCTW*>(lParam)->lpCreateParams);
        SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(form));
        form->hwnd_ = window;
    }
    // A few messages come before there is a form, and some after it is gone.
    auto* form = reinterpret_cast<Form*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (!form || !form->hwnd_) return DefDlgProcW(window, message, wParam, lParam);
    return form->Dispatch(message, wParam, lParam);
}

// The edge that exceptions do not pass: one that left a window procedure would end the program.
LRESULT Form::Dispatch(UINT message, WPARAM wParam, LPARAM lParam) {
    try {
        return OnMessage(message, wParam, lParam);
    } catch (const ProgramEnded&) {
        return 0;
    } catch (const AppError& error) {
        ShowMessageBox(hwnd_, error.Description(), MB_OK | MB_ICONEXCLAMATION);
    } catch (const std::exception& error) {
        const std::string what = error.what();
        ShowMessageBox(hwnd_, std::wstring(what.begin(), what.end()), MB_OK | MB_ICONEXCLAMATION);
    }
    return 0;
}

LRESULT Form::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_COMMAND:
        return OnCommand(wParam, lParam);
    case WM_DRAWITEM: {
        const auto& item = *reinterpret_cast<const DRAWITEMSTRUCT*>(lParam);
        if (Control* control = ControlOf(item.hwndItem)) OnDrawItem(*control, item);
        return TRUE;
    }
    case WM_CTLCOLORSTATIC:
    case WM_CTLCOLORBTN:
        return OnControlColor(reinterpret_cast<HDC>(wParam));
    case WM_ERASEBKGND: {
        RECT client{};
        GetClientRect(hwnd_, &client);
        FillRect(reinterpret_cast<HDC>(wParam), &client, Background());
        return TRUE;
    }
    case WM_SYSCOLORCHANGE: // comes to top-level windows only; controls keep brushes of their own
        for (Control* control : controls_)
            if (control->hwnd_) SendMessageW(control->hwnd_, message, wParam, lParam);
        RedrawWindow(hwnd_, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
        return 0;
    case WM_SETCURSOR: // the mouse is here: the first time a tip could be wanted
        AddToolTips();
        break;
    case WM_NCDESTROY: {
        const HWND window = std::exchange(hwnd_, nullptr);
        toolTips_ = nullptr; // has gone with it
        for (Control* control : controls_)
            control->hwnd_ = nullptr;
        return DefDlgProcW(window, message, wParam, lParam);
    }
    default:
        break;
    }
    return DefDlgProcW(hwnd_, message, wParam, lParam);
}

// Without a control it is a key: Esc, or the close box of a form that leaves WM_CLOSE to the dialog
// procedure.
LRESULT Form::OnCommand(WPARAM wParam, LPARAM lParam) {
    Control* control = lParam ? ControlOf(reinterpret_cast<HWND>(lParam)) : nullptr;
    if (!control) {
        if (LOWORD(wParam) == IDCANCEL) OnEscape();
    } else if (HIWORD(wParam) == BN_CLICKED && control->onClick) {
        control->onClick();
    } else if ((HIWORD(wParam) == CBN_SELCHANGE || HIWORD(wParam) == CBN_CLOSEUP) && control->onChange) {
        control->onChange();
    }
    return 0;
}

LRESULT Form::OnControlColor(HDC dc) {
    SetTextColor(dc, GetSysColor(COLOR_WINDOWTEXT));
    SetBkColor(dc, GetSysColor(background_));
    return reinterpret_cast<LRESULT>(Background());
}

// Most runs never need them: the keyboard shows none.
void Form::AddToolTips() {
    if (toolTips_) return;
    toolTips_ =
        CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_NOPREFIX | TTS_ALWAYSTIP, 0,
                        0, 0, 0, hwnd_, nullptr, GetModuleHandleW(nullptr), nullptr);
    for (Control* control : controls_)
        if (!control->toolTip_.empty()) SetToolTip(*control);
}

void Form::SetToolTip(Control& control) {
    if (!toolTips_) return;
    TTTOOLINFOW tool{};
    tool.cbSize = TTTOOLINFOW_V1_SIZE; // what every version of the common controls takes
    tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
    tool.hwnd = hwnd_;
    tool.uId = reinterpret_cast<UINT_PTR>(control.Handle());
    tool.lpszText = control.toolTip_.data();
    SendMessageW(toolTips_, TTM_DELTOOLW, 0,
                 reinterpret_cast<LPARAM>(&tool)); // one without a text would show empty
    if (!control.toolTip_.empty()) SendMessageW(toolTips_, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
}

void EndMessageLoop() {
    PostQuitMessage(0);
    throw ProgramEnded{};
}

int ShowMessageBox(HWND owner, const std::wstring& text, UINT buttonsAndIcon) {
    return MessageBoxW(owner, text.c_str(), kMessageTitle, buttonsAndIcon);
}

void PumpMessage(MSG& message) {
    const HWND form = message.hwnd ? GetAncestor(message.hwnd, GA_ROOT) : nullptr;
    // A form that waits for another window may still get the focus from outside: its keys are nobody's.
    const bool isKey = message.message >= WM_KEYFIRST && message.message <= WM_KEYLAST;
    if (form && isKey && !IsWindowEnabled(form)) return;
    if (form && IsDialogMessageW(form, &message)) return;
    TranslateMessage(&message);
    DispatchMessageW(&message);
}

void DropPendingKeys() {
    MSG message{};
    while (PeekMessageW(&message, nullptr, WM_KEYFIRST, WM_KEYLAST, PM_REMOVE))
        if (message.message == WM_QUIT) EndMessageLoop(); // comes through every filter
}

void PumpPendingMessages() {
    MSG message{};
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        if (message.message == WM_QUIT) EndMessageLoop();
        PumpMessage(message);
    }
}

} // namespace win
