#pragma once

// A read-only rich-text control, changed through its selection. Text() gives the text as the control counts
// it: positions are characters from 0 and CR alone ends a line.

#include "win/Control.h"

#include <richedit.h>

#include <cstdint>
#include <string>
#include <string_view>

namespace win {

class RichText : public Control {
  public:
    static constexpr const wchar_t* kClassName = L"RichEdit20W";

    // Needs LoadRichText() first.
    void Bind(Form& form, int id, DWORD style) {
        constexpr DWORD kStyle =
            ES_MULTILINE | ES_READONLY | ES_AUTOVSCROLL | ES_NOHIDESEL | ES_NOOLEDRAGDROP;
        Control::Bind(form, id, kClassName, kStyle | WS_GROUP | WS_TABSTOP | style);
    }

    // Replaces the whole text, all of it in the control's font and the system's text color. CR LF, CR or LF
    // ends a line. Nothing is selected afterwards.
    void Text(std::wstring_view text);
    std::wstring Text() const;

    // What follows acts on the selection. A look given to an empty one is that of text put in there next.
    void SelStart(std::int32_t position); // the selection is empty then
    void SelLength(std::int32_t length);
    void SelText(std::wstring_view text); // looks like what it replaces; the selection is empty behind it
    void SelBold(bool on);
    void SelItalic(bool on);
    void SelColor(std::uint32_t rgb); // 0x00BBGGRR; black is the system's text color
    void SelFontSize(std::int16_t points);
    std::int16_t SelFontSize() const;
    void SelBullet(bool on); // like the indents, of whole paragraphs
    void SelIndent(std::int16_t twips);
    void SelRightIndent(std::int16_t twips);

    // Lets each word that is too long for a line go on in the next one.
    void WrapLongWords();

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
    LONG Length() const;                 // of the text, as it is counted
    POINTL PlaceOf(LONG position) const; // pixels
    CHARRANGE Selection() const;
    void Select(LONG start, LONG end);
    void SetCharacters(CHARFORMAT2W format);
    void SetParagraphs(PARAFORMAT2 format);

    bool hasScrollBar_ = false; // made visible by ScrollBar
};

// Makes the rich-text class known; from the system's folder only.
void LoadRichText();

} // namespace win
