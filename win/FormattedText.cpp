#include "win/FormattedText.h"

#include <algorithm>
#include <stdexcept>

namespace win {

namespace {

std::wstring WithOneCharLineEnds(std::wstring_view text) {
    std::wstring result;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != L'\n' || i == 0 || text[i - 1] != L'\r') result += text[i] == L'\n' ? L'\r' : text[i];
    }
    return result;
}

template <class Look> std::vector<FormattedText::Run<Look>> RunsOf(const std::vector<Look>& looks) {
    std::vector<FormattedText::Run<Look>> runs;
    for (std::size_t start = 0, end = 0; start < looks.size(); start = end) {
        while (end < looks.size() && looks[end] == looks[start])
            ++end;
        if (looks[start] == Look{}) continue;
        runs.push_back({static_cast<std::int32_t>(start), static_cast<std::int32_t>(end), looks[start]});
    }
    return runs;
}

} // namespace

void FormattedText::SetText(std::wstring_view text) {
    text_ = WithOneCharLineEnds(text);
    characters_.assign(text_.size(), {});
    paragraphs_.assign(text_.size(), {});
    insertion_.reset();
    Select(0, 0);
}

void FormattedText::Replace(wchar_t one, wchar_t by) { std::replace(text_.begin(), text_.end(), one, by); }

void FormattedText::SelStart(std::int32_t position) { Select(position, 0); }

void FormattedText::SelLength(std::int32_t length) { Select(static_cast<std::int32_t>(start_), length); }

void FormattedText::SelText(std::wstring_view text) {
    const std::wstring inserted = WithOneCharLineEnds(text);
    const Character look = InsertionLook();
    Paragraph paragraph;
    if (!paragraphs_.empty()) paragraph = paragraphs_[std::min(start_, paragraphs_.size() - 1)];
    const auto replace = [&](auto& looks, const auto& by) {
        const auto at = looks.begin() + static_cast<std::ptrdiff_t>(start_);
        looks.insert(looks.erase(at, at + static_cast<std::ptrdiff_t>(length_)), inserted.size(), by);
    };
    replace(characters_, look);
    replace(paragraphs_, paragraph);
    text_.replace(start_, length_, inserted);
    Select(static_cast<std::int32_t>(start_ + inserted.size()), 0);
}

std::vector<FormattedText::Run<FormattedText::Character>> FormattedText::CharacterRuns() const {
    return RunsOf(characters_);
}

std::vector<FormattedText::Run<FormattedText::Paragraph>> FormattedText::ParagraphRuns() const {
    return RunsOf(paragraphs_);
}

void FormattedText::Select(std::int32_t start, std::int32_t length) {
    if (start < 0 || length < 0 || std::int64_t{start} + length > static_cast<std::int64_t>(text_.size()))
        throw std::out_of_range("The selection lies beyond the text.");
    if (length != 0 || static_cast<std::size_t>(start) != start_) insertion_.reset();
    start_ = static_cast<std::size_t>(start);
    length_ = static_cast<std::size_t>(length);
}

FormattedText::Character FormattedText::InsertionLook() const {
    if (insertion_) return *insertion_;
    if (characters_.empty()) return {};
    return length_ != 0 || start_ == 0 ? characters_[start_] : characters_[start_ - 1];
}

template <class Value> void FormattedText::SetCharacters(Value Character::*member, Value value) {
    if (length_ == 0) {
        insertion_ = InsertionLook();
        (*insertion_).*member = value;
    }
    for (std::size_t i = start_; i < start_ + length_; ++i)
        characters_[i].*member = value;
}

template <class Value> void FormattedText::SetParagraphs(Value Paragraph::*member, Value value) {
    const std::size_t before = start_ == 0 ? text_.npos : text_.rfind(L'\r', start_ - 1);
    const std::size_t last = length_ == 0 ? start_ : start_ + length_ - 1;
    const std::size_t end = std::min(text_.find(L'\r', last), text_.size() - 1);
    for (std::size_t i = before == text_.npos ? 0 : before + 1; i <= end && i < text_.size(); ++i)
        paragraphs_[i].*member = value;
}

template void FormattedText::SetCharacters(bool Character::*, bool);
template void FormattedText::SetCharacters(std::uint32_t Character::*, std::uint32_t);
template void FormattedText::SetCharacters(std::int16_t Character::*, std::int16_t);
template void FormattedText::SetParagraphs(bool Paragraph::*, bool);
template void FormattedText::SetParagraphs(std::int16_t Paragraph::*, std::int16_t);

} // namespace win
