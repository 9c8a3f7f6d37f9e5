#pragma once

// One child control of a form: a thin handle on a control of the system's own class. The window is made
// when it is first needed (shown or sent a message), so that a form pays only for what its page uses;
// until then place, visibility, text and tool tip are kept here. So are place and visibility while the form
// is being arranged (win/Arrangement.h). Positions and sizes are twips in the form's client area. A control
// that goes takes its window along and itself off its form.

#include "win/Handles.h"
#include "win/Twips.h"

#include <windows.h>

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace win {

class Form;

class Control {
  public:
    Control() = default;
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;
    virtual ~Control();

    HWND Handle();                              // makes the window when there is none yet
    HWND HandleIfMade() const { return hwnd_; } // null while nothing needed the window
    int Id() const { return id_; }

    void Place(Twips left, Twips top, Twips width, Twips height);
    void Left(Twips left) { Place(left, top_, width_, height_); }
    void Top(Twips top) { Place(left_, top, width_, height_); }
    void Width(Twips width) { Place(left_, top_, width, height_); }
    void Height(Twips height) { Place(left_, top_, width_, height); }
    Twips Left() const { return left_; }
    Twips Top() const { return top_; }
    Twips Width() const { return width_; }
    Twips Height() const { return height_; }
    Twips Bottom() const { return top_ + height_; }

    void Visible(bool visible);
    bool Visible() const { return visible_; }
    void Enabled(bool enabled);
    bool Enabled() { return IsWindowEnabled(Handle()) != FALSE; }
    void Text(std::wstring_view text);
    std::wstring Text();
    void ToolTip(std::wstring_view text); // empty: none
    const std::wstring& ToolTip() const { return toolTip_; }
    void Font(HFONT font); // not owned; null goes back to the form's own
    HFONT Font() const;    // the one in force
    void Focus();          // as the dialog manager gives it: the default button follows
    void Repaint();
    // Puts the control behind `previous` in tab order, which is also the order a screen reader walks.
    void Follows(Control& previous);

    LRESULT Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
        return SendMessageW(Handle(), message, wParam, lParam);
    }

    std::function<void()> onClick;  // BN_CLICKED; the second half of a double click is no click
    std::function<void()> onChange; // of a ComboBox: another item is selected, or its list was closed

  protected:
    // Ties the control to its form and gives it the class, style and control id that it is made with.
    // Called once, before anything else. `className` must be a literal.
    void Bind(Form& form, int id, const wchar_t* className, DWORD style, DWORD extendedStyle = 0);

    virtual void Made() {} // the window has just been made
    // Looks at a message before the system's own control does; true: handled, `result` is the answer.
    // Only called for classes that ask for it in Made() by InterceptMessages().
    virtual bool OnMessage(UINT, WPARAM, LPARAM, LRESULT& /*result*/) { return false; }
    void InterceptMessages();
    LRESULT SystemProcedure(UINT message, WPARAM wParam, LPARAM lParam) {
        return CallWindowProcW(systemProcedure_, hwnd_, message, wParam, lParam);
    }

  private:
    friend class Form;
    static LRESULT CALLBACK InterceptedProcedure(HWND, UINT, WPARAM, LPARAM);
    void Settle();     // gives the window what is noted
    void Changed();    // place, order or visibility: settled at once or noted by the form
    RECT Area() const; // where it is to be, in pixels

    Form* form_ = nullptr;
    const wchar_t* className_ = nullptr;
    DWORD style_ = 0;
    DWORD extendedStyle_ = 0;
    int id_ = 0;
    HWND hwnd_ = nullptr;
    WNDPROC systemProcedure_ = nullptr;
    HFONT font_ = nullptr;
    Twips left_{}, top_{}, width_{}, height_{};
    bool visible_ = false;
    std::wstring text_; // until the window is made
    std::wstring toolTip_;
    Control* previous_ = nullptr; // to be put behind it
    bool isShown_ = false;        // isShown_ and area_: what the window has
    RECT area_{};
};

// ---- the kinds of controls: Bind() takes the style bits besides those of the kind ----

class Label : public Control {
  public:
    void Bind(Form& form, int id, DWORD style = SS_LEFT, DWORD extendedStyle = 0) {
        Control::Bind(form, id, L"Static", style, extendedStyle);
    }
};

class Button : public Control {
  public:
    bool Checked() { return Send(BM_GETCHECK) == BST_CHECKED; }
    void Checked(bool checked);

  protected:
    void Bind(Form& form, int id, DWORD style) { Control::Bind(form, id, L"Button", style); }
};

// Like a link it has BS_NOTIFY: the system then tells a double click from two clicks.
class PushButton : public Button {
  public:
    void Bind(Form& form, int id, DWORD style = WS_GROUP) {
        Button::Bind(form, id, BS_PUSHBUTTON | BS_NOTIFY | WS_TABSTOP | style);
    }
};

// One of a group, whose first one has WS_GROUP and WS_TABSTOP.
class OptionButton : public Button {
  public:
    void Bind(Form& form, int id, DWORD style = 0) { Button::Bind(form, id, BS_AUTORADIOBUTTON | style); }
};

class CheckBox : public Button {
  public:
    void Bind(Form& form, int id, DWORD style = WS_GROUP) {
        Button::Bind(form, id, BS_AUTOCHECKBOX | WS_TABSTOP | style);
    }
};

// Clickable text: a button drawn by its form. A hand over it; Space and Enter follow it.
class Link : public Button {
  public:
    void Bind(Form& form, int id, DWORD style = WS_GROUP) {
        Button::Bind(form, id, BS_OWNERDRAW | BS_NOTIFY | WS_TABSTOP | style);
    }

  protected:
    void Made() override { InterceptMessages(); }
    bool OnMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) override;
};

// One line.
class TextBox : public Control {
  public:
    void Bind(Form& form, int id, DWORD style = WS_GROUP) {
        Control::Bind(form, id, L"Edit", ES_AUTOHSCROLL | WS_TABSTOP | style, WS_EX_CLIENTEDGE);
    }
    void Limit(int characters) { Send(EM_SETLIMITTEXT, static_cast<WPARAM>(characters)); }
    void SelectAll() { Send(EM_SETSEL, 0, -1); }
};

class ListBox : public Control {
  public:
    void Bind(Form& form, int id, DWORD style = WS_GROUP) {
        Control::Bind(form, id, L"ListBox",
                      LBS_NOINTEGRALHEIGHT | LBS_NOTIFY | WS_VSCROLL | WS_TABSTOP | style, WS_EX_CLIENTEDGE);
    }
    // Takes the place of what was there; painted once.
    void Fill(const std::vector<std::wstring>& items);
    int Count() { return static_cast<int>(Send(LB_GETCOUNT)); }
    std::wstring Item(int index);
    int Index() { return static_cast<int>(Send(LB_GETCURSEL)); } // -1: none; single selection only
    void Index(int index) { Send(LB_SETCURSEL, static_cast<WPARAM>(index)); }
    bool Selected(int index) { return Send(LB_GETSEL, static_cast<WPARAM>(index)) > 0; }
    int SelectedCount(); // multiple selection only
};

// A drop-down list. The wheel turns it only while it has the focus or is open, not in passing.
class ComboBox : public Control {
  public:
    void Bind(Form& form, int id, DWORD style = WS_GROUP) {
        Control::Bind(form, id, L"ComboBox", CBS_DROPDOWNLIST | WS_VSCROLL | WS_TABSTOP | style);
    }
    void Clear() { Send(CB_RESETCONTENT); }
    void Add(std::wstring_view item);
    int Index() { return static_cast<int>(Send(CB_GETCURSEL)); } // -1: none
    void Index(int index) { Send(CB_SETCURSEL, static_cast<WPARAM>(index)); }

  protected:
    void Made() override;
    bool OnMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) override;
};

class ScrollBar : public Control {
  public:
    void Bind(Form& form, int id, DWORD style) { Control::Bind(form, id, L"ScrollBar", style); }
};

std::wstring WindowText(HWND window);

} // namespace win
