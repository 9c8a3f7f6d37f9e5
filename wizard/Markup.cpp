#include "wizard/Markup.h"

#include <algorithm>
#include <limits>
#include <stdexcept>

using win::RichText;

namespace {

constexpr wchar_t kTypedLessThan = L'\xE000';

constexpr std::int16_t kIndent = 150; // twips, of bullets on both sides and of blocks on the left
constexpr std::int16_t kBlockRightIndent = 250;

void Red(RichText& text) { text.SelColor(kInkRed); }
void Black(RichText& text) { text.SelColor(kInkBlack); }
void Bold(RichText& text) { text.SelBold(true); }
void NotBold(RichText& text) { text.SelBold(false); }
void Italic(RichText& text) { text.SelItalic(true); }
void Nothing(RichText&) {}

void Bullet(RichText& text) {
    text.SelBullet(true);
    text.SelIndent(kIndent);
    text.SelRightIndent(kIndent);
}

void Indented(RichText& text) {
    text.SelIndent(kIndent);
    text.SelRightIndent(kBlockRightIndent);
}

void Replace(RichText& text, std::int16_t position, std::size_t length, std::wstring_view by) {
    text.SelStart(position);
    text.SelLength(static_cast<std::int32_t>(length));
    text.SelText(by);
}

} // namespace

// A message's italic ends with bold, not italic, off, and no bullet is ever ended: texts are written for it.
// clang-format off
const TagPass kRedPass           {L"<r>", L"</r>", Red,      Black};
const TagPass kBoldPass          {L"<b>", L"</b>", Bold,     NotBold};
const TagPass kPageBulletPass    {L"<u>", L"</u>", Bullet,   Black};
const TagPass kItalicPass        {L"<i>", L"</i>", Italic,   NotBold};
const TagPass kIndentPass        {L"<l>", L"</l>", Indented, Nothing};
const TagPass kMessageBulletPass {L"<u>", L"</u>", Bullet,   Nothing};
// clang-format on

void RunPass(RichText& text, const TagPass& pass) {
    std::int16_t start = 0;
    while (const auto opening = FindTag(text.Text(), pass.open, start)) {
        start = *opening;
        Replace(text, start, pass.open.size(), L"");
        const auto closing =
            FindTag(text.Text(), pass.close, start); // read anew: the text has become shorter
        if (!closing) continue;
        text.SelLength(*closing - start);
        pass.look(text);
        Replace(text, *closing, pass.close.size(), L"");
        text.SelLength(0);
        pass.after(text);
    }
}

std::optional<std::int16_t> FindTag(std::wstring_view text, std::wstring_view tag, std::int16_t from) {
    const std::size_t position = text.find(tag, static_cast<std::size_t>(from));
    if (position == std::wstring_view::npos) return std::nullopt;
    if (position >= static_cast<std::size_t>(std::numeric_limits<std::int16_t>::max()))
        throw std::overflow_error("A tag stands behind character 32767.");
    return static_cast<std::int16_t>(position);
}

std::wstring WithoutTags(std::wstring typed) {
    std::replace(typed.begin(), typed.end(), L'<', kTypedLessThan);
    return typed;
}

void ShowTypedTags(RichText& text) {
    std::int16_t start = 0;
    while (const auto typed = FindTag(text.Text(), std::wstring_view(&kTypedLessThan, 1), start)) {
        start = *typed;
        Replace(text, start, 1, L"<");
    }
}
