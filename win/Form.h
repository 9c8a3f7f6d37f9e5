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

    // Runs the message loop until the form is hidden or closed. The owner, if any, is disabled meanwhile
    // and gets the focus back. Throws ProgramEnded when the program was told to quit meanwhile.
    void ShowModal(HWND owner);
    void Hide();

    // While one lives, places, order and visibility of the form's controls and the focus are only noted, and
    // nothing is painted. At the end of the outermost one the windows get them all, and `area` (pixels) is
    // painted anew.
    class Arrangement {
      public:
        Arrangement(Form& form, const RECT& area) : form_(form) { form_.BeginArrangement(area); }
        Arrangement(const Arrangement&) = delete;
        Arrangement& operator=(const Arrangement&) = delete;
        ~Arrangement() { form_.EndArrangement(); }

      private:
        Form& form_;
    };

    // Makes `button` the one that Enter presses; only this button is drawn as the default one.
    void DefaultButton(Control& button);

  protected:
    // Makes the (hidden) window. Outer size in pixels; `defaultFont` is not owned and must outlive the form.
    void Create(const FormLook& look, HFONT defaultFont, int width, int height);

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
    void Uncover(const RECT& area); // to be painted, children too
    void Focus(Control& control);

    HWND hwnd_ = nullptr;
    HWND toolTips_ = nullptr;
    HWND owner_ = nullptr; // while shown modally
    HFONT defaultFont_ = nullptr;
    int background_ = COLOR_WINDOW;
    std::vector<Control*> controls_;
    int arrangements_ = 0;
    bool isUnpainted_ = false;    // painting is switched off
    std::vector<Control*> noted_; // in the order of their last change
    Control* focus_ = nullptr;    // noted
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

} // namespace win
