#pragma once

#include <algorithm>
#include <cstdint>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

// A rich text without a window, for the mark-up passes. Like the control, it counts a line end as one
// position, lets inserted text look like what it replaces or stands behind, and spreads a paragraph's
// look over the whole paragraph. A selection beyond the text throws std::out_of_range.
class MemoryRichText {
  public:
    std::wstring Text() const { return text_; }
    void SetText(std::wstring_view text) {
        Look first = looks_.empty() ? Look{} : looks_.front();
        first.bullet = false;
        first.indent = first.rightIndent = 0;
        text_ = WithOneCharLineEnds(text);
        looks_.assign(text_.size(), first);
        Select(0, 0);
    }

    void SelStart(std::int32_t start) { Select(start, 0); }
    void SelLength(std::int32_t length) { Select(static_cast<std::int32_t>(start_), length); }
    void SelText(std::wstring_view text) {
        const std::wstring inserted = WithOneCharLineEnds(text);
        const Look look = InsertionLook();
        const auto at = static_cast<std::ptrdiff_t>(start_);
        text_.replace(start_, length_, inserted);
        looks_.erase(looks_.begin() + at, looks_.begin() + at + static_cast<std::ptrdiff_t>(length_));
        looks_.insert(looks_.begin() + at, inserted.size(), look);
        Select(static_cast<std::int32_t>(start_ + inserted.size()), 0);
    }

    void SelBold(bool on) { SetCharacters(&Look::bold, on); }
    void SelItalic(bool on) { SetCharacters(&Look::italic, on); }
    void SelColor(std::uint32_t color) { SetCharacters(&Look::color, color); }
    void SelFontSize(std::int16_t points) { SetCharacters(&Look::fontSize, points); }
    std::int16_t SelFontSize() const { return InsertionLook().fontSize; }
    void SelBullet(bool on) { SetParagraphs(&Look::bullet, on); }
    void SelIndent(std::int16_t twips) { SetParagraphs(&Look::indent, twips); }
    void SelRightIndent(std::int16_t twips) { SetParagraphs(&Look::rightIndent, twips); }

    // The text with a note in braces wherever the look changes: "r"ed, "b"old, "i"talic, a font size
    // other than 8, "*" for a bullet, both indents. A line end is "/".
    std::wstring Described() const {
        std::wstring result, note;
        for (std::size_t i = 0; i < text_.size(); ++i) {
            const std::wstring next = Note(looks_[i]);
            if (next != note) result += L"{" + next + L"}";
            note = next;
            result += text_[i] == L'\r' ? L'/' : text_[i];
        }
        return result;
    }

  private:
    struct Look {
        bool bold = false, italic = false, bullet = false;
        std::uint32_t color = 0;
        std::int16_t fontSize = 8, indent = 0, rightIndent = 0;
    };

    static std::wstring WithOneCharLineEnds(std::wstring_view text) {
        std::wstring result;
        for (std::size_t i = 0; i < text.size(); ++i)
            if (text[i] != L'\n' || i == 0 || text[i - 1] != L'\r')
                result += text[i] == L'\n' ? L'\r' : text[i];
        return result;
    }
    static std::wstring Note(const Look& look) {
        std::wstring note;
        if (look.color != 0) note += look.color == 255 ? L"r" : L"?";
        if (look.bold) note += L"b";
        if (look.italic) note += L"i";
        if (look.fontSize != 8) note += std::to_wstring(look.fontSize);
        if (look.bullet) note += L"*";
        for (const std::int16_t indent : {look.indent, look.rightIndent})
            if (indent != 0) note += L" " + std::to_wstring(indent);
        return note;
    }

    void Select(std::int32_t start, std::int32_t length) {
        const auto size = static_cast<std::int64_t>(text_.size());
        if (start < 0 || length < 0 || std::int64_t{start} + length > size)
            throw std::out_of_range("The selection lies beyond the text.");
        if (length != 0 || static_cast<std::size_t>(start) != start_) insertion_.reset();
        start_ = static_cast<std::size_t>(start);
        length_ = static_cast<std::size_t>(length);
    }
    Look InsertionLook() const {
        if (insertion_) return *insertion_;
        if (looks_.empty()) return {};
        return length_ != 0 || start_ == 0 ? looks_[start_] : looks_[start_ - 1];
    }
    template <class Value> void SetCharacters(Value Look::*member, Value value) {
        if (length_ == 0) {
            insertion_ = InsertionLook();
            (*insertion_).*member = value;
        }
        for (std::size_t i = start_; i < start_ + length_; ++i)
            looks_[i].*member = value;
    }
    template <class Value> void SetParagraphs(Value Look::*member, Value value) {
        const std::size_t before = start_ == 0 ? text_.npos : text_.rfind(L'\r', start_ - 1);
        const std::size_t last = length_ == 0 ? start_ : start_ + length_ - 1;
        const std::size_t end = std::min(text_.find(L'\r', last), text_.size() - 1);
        for (std::size_t i = before == text_.npos ? 0 : before + 1; i <= end && i < text_.size(); ++i)
            looks_[i].*member = value;
    }

    std::wstring text_;
    std::vector<Look> looks_; // one for each character
    std::size_t start_ = 0, length_ = 0;
    std::optional<Look> insertion_; // set with an empty selection, until the caret moves
};
