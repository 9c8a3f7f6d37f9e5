#pragma once

// A modal message whose text carries mark-up (wizard/Markup.h, the message's tags), for what the system's
// own message box cannot show.

#include "win/Control.h"
#include "win/DialogForm.h"
#include "win/RichText.h"
#include "wizard/MessageLayout.h"

#include <windows.h>

#include <array>
#include <cstdint>
#include <string>

class frmMessage : public win::DialogForm {
  public:
    frmMessage();
    ~frmMessage() override { Destroy(); }

    // See ShowMessage below.
    std::int16_t Show(const std::wstring& message, std::int16_t buttons, std::int16_t size,
                      const std::wstring& title, HWND owner);

    // Controls.
    win::Label picMessage; // the panel around the text
    win::RichText txtMessage;
    std::array<win::PushButton, kMessageButtons> cmdButton;

    // Throws std::out_of_range for an index beyond 3.
    void cmdButton_Click(std::size_t index);
    void Form_QueryUnload();

    // The mark-up of a message (wizard/Markup.h).
    void FormatText(win::RichText& message); // the passes below, in this order
    void FormatBold(win::RichText& message);
    void FormatBreaks(win::RichText& message);
    void FormatItalic(win::RichText& message);
    void FormatIndent(win::RichText& message);
    void FormatBullet(win::RichText& message);

  protected:
    LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    void OnDrawItem(win::Control& control, const DRAWITEMSTRUCT& item) override;
    void OnEscape() override { Form_QueryUnload(); }

  private:
    void PlaceControls(const MessageLayout& layout);
    void SetButtons(std::int16_t buttons);

    std::array<std::int16_t, 4> results_{}; // of the buttons
    std::int16_t result_ = 0;
    win::Twips panelHeight_{};
};

// Shows the message and waits for a button. `buttons` is 0 to 5, the system's button sets (MB_OK …
// MB_RETRYCANCEL); `size` is 0 to 3, small to large; `title` "" for the program's own; `owner`, which may be
// null, is what the window is centred on. The program's other windows wait meanwhile. The result is the
// system's (IDOK … IDNO), or 0 when the window was closed without a button. Enter presses the button with the
// focus or else the first, Esc closes.
std::int16_t ShowMessage(const std::wstring& message, std::int16_t buttons, std::int16_t size,
                         const std::wstring& title, HWND owner);
