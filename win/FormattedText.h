#pragma once

// A text with its looks, put together in memory and given to a rich-text control whole: a control that is
// changed step by step wraps, measures and paints its text at each step.
//
// Counts as the control does: positions are characters from 0, a line end is one position (CR alone),
// inserted text looks like what it replaces or stands behind, and a paragraph's look covers the whole
// paragraph. Indents are twips, font sizes points, a colour is 0x00BBGGRR.

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace win {

class FormattedText {
  public:
    struct Character {
        bool bold = false;
        bool italic = false;
        std::uint32_t color = 0;   // black stands for the system's text colour
        std::int16_t fontSize = 0; // 0: the control's own
        bool operator==(const Character&) const = default;
    };
    struct Paragraph {
        bool bullet = false;
        std::int16_t indent = 0;
        std::int16_t rightIndent = 0;
        bool operator==(const Paragraph&) const = default;
    };
    // Neighbouring characters of one look, a paragraph's line end included.
    template <class Look> struct Run {
        std::int32_t start;
        std::int32_t end;
        Look look;
        bool operator==(const Run&) const = default;
    };

    // Replaces everything by plain text. CR LF, CR or LF ends a line.
    explicit FormattedText(std::wstring_view text = {}) { SetText(text); }
    void SetText(std::wstring_view text);
    void Replace(wchar_t one, wchar_t by); // everywhere; the looks stay
    const std::wstring& Text() const { return text_; }

    // A selection beyond the text throws std::out_of_range. With an empty one the looks set are those of the
    // text inserted next, until the selection moves.
    void SelStart(std::int32_t position);
    void SelLength(std::int32_t length);
    void SelText(std::wstring_view text);
    void SelBold(bool on) { SetCharacters(&Character::bold, on); }
    void SelItalic(bool on) { SetCharacters(&Character::italic, on); }
    void SelColor(std::uint32_t rgb) { SetCharacters(&Character::color, rgb); }
    void SelFontSize(std::int16_t points) { SetCharacters(&Character::fontSize, points); }
    std::int16_t SelFontSize() const { return InsertionLook().fontSize; }
    void SelBullet(bool on) { SetParagraphs(&Paragraph::bullet, on); }
    void SelIndent(std::int16_t twips) { SetParagraphs(&Paragraph::indent, twips); }
    void SelRightIndent(std::int16_t twips) { SetParagraphs(&Paragraph::rightIndent, twips); }

    // What is not plain, from front to back.
    std::vector<Run<Character>> CharacterRuns() const;
    std::vector<Run<Paragraph>> ParagraphRuns() const;

  private:
    void Select(std::int32_t start, std::int32_t length);
    Character InsertionLook() const;
    template <class Value> void SetCharacters(Value Character::*member, Value value);
    template <class Value> void SetParagraphs(Value Paragraph::*member, Value value);

    std::wstring text_;
    std::vector<Character> characters_; // one for each position
    std::vector<Paragraph> paragraphs_; // one for each position
    std::size_t start_ = 0;
    std::size_t length_ = 0;
    std::optional<Character> insertion_;
};

} // namespace win
