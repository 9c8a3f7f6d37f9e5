#pragma once

// A top-level window made of controls: it owns the window, hands each control's click to the handler
// that was wired to it, and is the one edge where an exception of a handler becomes a message.

#include "win/Control.h"
#include "win/Handles.h"

#include <windows.h>

#include <string>
#include <string_view>
#include <vector>

namespace win {

struct FormLook {
    const wchar_t* className; // registered on first use
    const wchar_t* caption;
    DWORD style;
    DWORD extendedStyle;
    HICON icon;
};

class Form {
  public:
    Form() = default;
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;
    virtual ~Form();

    HWND Hwnd() const { return hwnd_; }
    HFONT DefaultFont() const { return defaultFont_; }

    // Shows the form, with the focus on `first`, and runs the message loop until it is hidden or closed. The
    // program's other windows take no input meanwhile; the form is shown over `owner` (may be null), and what
    // was active before is so again afterwards. Throws ProgramEnded when the program was told to quit
    // meanwhile.
    void ShowModal(HWND owner, Control& first);
    void Hide();

    // Makes `button` the one that Enter presses; only this button is drawn as the default one.
    void DefaultButton(Control& button);

  protected:
    // Makes the (hidden) window. Outer size in pixels; `defaultFont` is not owned and must outlive the form.
    void Create(const FormLook& look, HFONT defaultFont, int width, int height);
    // To be called by the destructor of each form: the window goes before the controls and icons it uses.
    void Destroy();

    // What the form itself does with a message; the rest goes to the system's dialog procedure.
    virtual LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam);
    // Paints a control with an owner-drawn style.
    virtual void OnDrawItem(Control&, const DRAWITEMSTRUCT&) {}
    // Esc was pressed (or the close box of a dialog was, unless WM_CLOSE is handled).
    virtual void OnEscape() {}

    Control* ControlOf(HWND window) const;
    HBRUSH Background() const { return GetSysColorBrush(background_); }
    void Background(int systemColor) { background_ = systemColor; } // COLOR_…, behind labels and boxes too

  private:
    friend class Control;
    friend class Arrangement;
    static LRESULT CALLBACK WindowProcedure(HWND, UINT, WPARAM, LPARAM);
    LRESULT Dispatch(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT OnCommand(WPARAM wParam, LPARAM lParam);
    LRESULT OnControlColor(HDC dc);
    void AddToolTips();
    void SetToolTip(Control& control);

    bool IsArranging() const { return arrangements_ > 0; }
    void BeginArrangement(const RECT& area);
    void EndArrangement();
    void Note(Control& control);    // has changed during an arrangement
    void Forget(Control& control);  // is gone
    void Uncover(const RECT& area); // to be painted, children too
    void Focus(Control& control);
    static BOOL CALLBACK DisableOther(HWND, LPARAM form);
    void DisableOthers();
    void EnableOthers();

    HWND hwnd_ = nullptr;
    HWND toolTips_ = nullptr;
    HFONT defaultFont_ = nullptr;
    int background_ = COLOR_WINDOW;
    std::vector<Control*> controls_;
    // while shown modally
    std::vector<HWND> others_; // that were enabled before
    HWND activeBefore_ = nullptr;
    // during an arrangement
    int arrangements_ = 0;
    std::vector<Control*> unpainted_; // told not to paint
    std::vector<Control*> noted_;     // in the order of their last change
    Control* focus_ = nullptr;
    RECT uncovered_{};
};

// Thrown by EndMessageLoop() so that nothing after it runs in the handler; the form's edge drops it.
struct ProgramEnded {};
[[noreturn]] void EndMessageLoop();

// The one message that tells of an error: title "Varnel DNC Setup Wizard".
int ShowMessageBox(HWND owner, const std::wstring& text, UINT buttonsAndIcon);

// Takes one message through keyboard navigation and on to its window.
void PumpMessage(MSG& message);
// Handles what is waiting in the queue and returns; throws ProgramEnded when that ended the program.
void PumpPendingMessages();
// Forgets the keys that are waiting in the queue.
void DropPendingKeys();

} // namespace win
