#pragma once

// A small window over another one: a caption, a close box, the ground of buttons, the body font.

#include "win/Form.h"

namespace win {

class DialogForm : public Form {
  protected:
    // The size of the buttons that answer it.
    static constexpr Twips kButtonWidth{1095};
    static constexpr Twips kButtonHeight{375};

    // Makes the (hidden) window, without a size so far.
    void MakeWindow(const wchar_t* className, const wchar_t* caption);
    void ClientSize(Twips width, Twips height);
    // In the middle of `owner`, or of the work area when that is null, but whole on the work area.
    void Center(HWND owner);

    // Esc and the close box, unless there is a button with the id IDCANCEL: that one is pressed.
    void OnEscape() override { Hide(); }
};

} // namespace win
