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
    formClass.cbWndExtra = DLGWINDOWEXTRA;
    formClass.hInstance = GetModuleHandleW(nullptr);
    formClass.hIcon = look.icon;
    formClass.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    formClass.lpszClassName = look.className;
    return RegisterClassExW(&formClass);
}

} // namespace

Form::~Form() {
    if (hwnd_) DestroyWindow(hwnd_);
}

void Form::Create(const FormLook& look, HFONT defaultFont, int width, int height) {
    defaultFont_ = defaultFont;
    RegisterFormClass(look, &Form::WindowProcedure); // fails harmlessly the second time
    CreateWindowExW(look.extendedStyle, look.className, look.caption, look.style, 0, 0, width, height,
                    nullptr, nullptr, GetModuleHandleW(nullptr), this);
    if (!hwnd_) throw AppError(static_cast<int>(GetLastError()), L"VWizard", L"Unable to open a window.");
}

void Form::ShowModal(HWND owner) {
    owner_ = owner;
    if (owner_) EnableWindow(owner_, FALSE);
    ShowWindow(hwnd_, SW_SHOW);
    MSG message{};
    bool ended = false;
    while (!ended && IsWindowVisible(hwnd_)) {
        ended = GetMessageW(&message, nullptr, 0, 0) <= 0;
        if (!ended) PumpMessage(message);
    }
    Hide();
    if (ended) EndMessageLoop(); // the outer loop has to see it too
}

// The owner comes to life first: otherwise another program's window would become the active one.
void Form::Hide() {
    if (owner_) EnableWindow(owner_, TRUE);
    ShowWindow(hwnd_, SW_HIDE);
    if (owner_) SetActiveWindow(owner_);
    owner_ = nullptr;
    // A click that was sent, not posted, runs inside the modal loop's wait, which goes on until a message.
    PostMessageW(hwnd_, WM_NULL, 0, 0);
}

void Form::DefaultButton(Control& button) {
    button.Handle();
    SendMessageW(hwnd_, DM_SETDEFID, static_cast<WPARAM>(button.Id()), 0);
}

void Form::Note(Control& control) {
    std::erase(noted_, &control);
    noted_.push_back(&control);
}

void Form::BeginArrangement(const RECT& area) {
    UnionRect(&uncovered_, &uncovered_, &area);
    if (arrangements_++ > 0) return;
    // Switching it on again would show a window that is still hidden.
    isUnpainted_ = (GetWindowLongW(hwnd_, GWL_STYLE) & WS_VISIBLE) != 0;
    if (isUnpainted_) DefWindowProcW(hwnd_, WM_SETREDRAW, FALSE, 0);
}

void Form::EndArrangement() {
    if (arrangements_ == 1) // while changes still are gathered for one painting
        for (Control* control : std::exchange(noted_, {}))
            control->Settle();
    if (--arrangements_ > 0) return;
    if (isUnpainted_) {
        DefWindowProcW(hwnd_, WM_SETREDRAW, TRUE, 0);
        // Only what was uncovered and what was due before is to be painted: not the frame.
        RECT due{};
        if (GetUpdateRect(hwnd_, &due, FALSE)) UnionRect(&uncovered_, &uncovered_, &due);
        RedrawWindow(hwnd_, nullptr, nullptr, RDW_VALIDATE | RDW_NOFRAME | RDW_NOCHILDREN);
    }
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
    case WM_SETCURSOR: // the mouse is here: the first time a tip could be wanted
        AddToolTips();
        break;
    case WM_NCDESTROY: {
        const HWND window = std::exchange(hwnd_, nullptr);
        for (Control* control : controls_)
            control->hwnd_ = nullptr;
        return DefDlgProcW(window, message, wParam, lParam);
    }
    default:
        break;
    }
    return DefDlgProcW(hwnd_, message, wParam, lParam);
}

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
    SendMessageW(toolTips_, TTM_DELTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
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
    if (form && IsDialogMessageW(form, &message)) return;
    TranslateMessage(&message);
    DispatchMessageW(&message);
}

void PumpPendingMessages() {
    MSG message{};
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        if (message.message == WM_QUIT) EndMessageLoop();
        PumpMessage(message);
    }
}

} // namespace win
