#pragma once

// A read-only rich-text control with the selection properties that the page mark-up needs. Positions
// count characters from 0 and a line end as one, as the control itself does; Text() gives the text in
// the same units (CR alone ends a line). Indents are twips, font sizes points.

#include "win/Control.h"

#include <richedit.h>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace win {

class RichText : public Control {
  public:
    // Style bits for Bind(); the class needs LoadRichText() first.
    static constexpr DWORD kStyle = ES_MULTILINE | ES_READONLY | ES_AUTOVSCROLL | ES_NOHIDESEL |
                                    ES_NOOLEDRAGDROP | WS_VSCROLL | WS_TABSTOP;
    static constexpr const wchar_t* kClassName = L"RichEdit20W";

    // Replaces the whole text and puts it into the control's font, black, neither bold nor bulleted.
    void SetText(std::wstring_view text);
    std::wstring Text() const;

    void SelStart(std::int32_t position);
    void SelLength(std::int32_t length);
    void SelText(std::wstring_view text);
    void SelBold(bool bold);
    void SelItalic(bool italic);
    void SelColor(std::uint32_t rgb);
    void SelBullet(bool bullet);
    void SelIndent(std::int16_t twips);
    void SelRightIndent(std::int16_t twips);
    void SelFontSize(std::int16_t points);
    std::int16_t SelFontSize() const;

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
    void SetCharFormat(const CHARFORMAT2W& wanted);
    void PlaceCaret() const; // where SelStart has put it
    void Select(CHARRANGE range) const;

    // Set by SelStart. Most often SelLength follows: one selection instead of two, each of which the control
    // would mark for painting.
    mutable std::optional<std::int32_t> start_;
    bool hasScrollBar_ = false; // made visible by ScrollBar
};

// Makes the rich-text class known; from the system's folder only.
void LoadRichText();

} // namespace win
