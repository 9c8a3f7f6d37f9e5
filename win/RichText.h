#pragma once

// A read-only rich-text control. Text() gives the text as the control counts it: CR alone ends a line.

#include "win/Control.h"
#include "win/FormattedText.h"

#include <richedit.h>

#include <cstdint>
#include <string>

namespace win {

class RichText : public Control {
  public:
    // Style bits for Bind(); the class needs LoadRichText() first.
    static constexpr DWORD kStyle = ES_MULTILINE | ES_READONLY | ES_AUTOVSCROLL | ES_NOHIDESEL |
                                    ES_NOOLEDRAGDROP | WS_VSCROLL | WS_TABSTOP;
    static constexpr const wchar_t* kClassName = L"RichEdit20W";

    // Replaces the whole text. What `text` leaves plain gets the control's font in the system's text colour.
    void SetText(const FormattedText& text);
    std::wstring Text() const;

    // For a control bound without WS_VSCROLL, whose text then keeps its width whatever its height is.
    void ScrollBar(bool visible);
    // Deselects and shows the first line.
    void ScrollToTop();
    // Height of the whole text, with the control's present width. Only while scrolled to the top.
    Twips TextHeight() const;

  protected:
    void Made() override;
    bool OnMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) override;

  private:
    LRESULT Ask(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
        return SendMessageW(HandleIfMade(), message, wParam, lParam);
    }
    int LineHeight() const; // pixels
    bool IsPlain() const;   // the format at the caret
    void MakePlain();       // the whole text
    void Select(std::int32_t start, std::int32_t end);

    bool hasScrollBar_ = false; // made visible by ScrollBar
};

// Makes the rich-text class known; from the system's folder only.
void LoadRichText();

} // namespace win
