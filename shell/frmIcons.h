#pragma once

// The icon picker: a small modal window that shows the icon folder six icons at a time. Arrows,
// Home, End, Page Up, Page Down and the first letters of a name choose wherever the focus is, the wheel
// scrolls, a double click and Enter accept, Esc gives up.

#include "shell/IconList.h"
#include "shell/IconStrip.h"
#include "win/Control.h"
#include "win/DialogForm.h"

#include <windows.h>

#include <array>
#include <cstdint>
#include <optional>
#include <string>

// A push button that leaves characters and the keys that choose an icon to its form, which gets them as its
// own.
class PickerButton : public win::Button {
  public:
    void Bind(win::Form& form, int id, DWORD style) { Button::Bind(form, id, style | BS_NOTIFY); }

  protected:
    void Made() override { InterceptMessages(); }
    bool OnMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) override;
};

class frmIcons : public win::DialogForm {
  public:
    frmIcons();
    ~frmIcons() override { Destroy(); }

    // Reads the icons of `folder` (ends in a backslash) and runs the window in front of `owner`, which is
    // disabled meanwhile. Without icons the window is not shown.
    void OpenForm(const std::wstring& folder, HWND owner);
    // The icon accepted by OK, with its extension ("MILL.ico"); "" when there was none.
    const std::wstring& Result() const { return result_; }

    // Controls.
    win::Label picIcons;                          // the strip
    std::array<PickerButton, kIconSlots> imgIcon; // its slots; the caption is the icon's name
    win::ScrollBar hScrollIcons;                  // its position is IconStrip::scroll
    win::Label lblnIcons;
    win::Label lblIconName;
    PickerButton cmdOK, cmdCancel;

    void UpdateIcons();
    void imgIcon_Click(std::int16_t slot); // from 1
    void imgIcon_DblClick(std::int16_t slot);
    void hScrollIcons_Change(WORD code);
    void Form_KeyDown(WPARAM key);
    void Form_KeyPress(wchar_t letter);
    void Form_MouseWheel(int turned, UINT iconsPerNotch); // as WheelIcons() takes them
    void Form_SysColorChange();
    void cmdOK_Click();
    void cmdCancel_Click();

  protected:
    LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    void OnDrawItem(win::Control& control, const DRAWITEMSTRUCT& item) override;

  private:
    void BindControls();
    void LayOut();
    void ShowControls();
    void Show(const IconStrip& strip);
    void ShowScrollBar();
    void MoveFocus();

    std::wstring folder_;
    std::optional<IconList> icons_;
    IconStrip strip_;
    TypedLetters typed_;
    int wheelRest_ = 0;
    std::wstring result_;
};

// Lets the user pick an icon of the suite for a new configuration ("MILL.ico"); "" when none was picked or
// there is none.
std::wstring NdwPickIcon(HWND owner);
