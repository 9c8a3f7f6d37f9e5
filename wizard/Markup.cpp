#include "wizard/Markup.h"

#include <algorithm>
#include <limits>
#include <optional>
#include <stdexcept>
#include <string_view>

using win::FormattedText;

namespace {

constexpr wchar_t kTypedLessThan = L'\xE000';

enum class TagLook { kRed, kBold, kItalic, kBullet, kBlock };
enum class AfterTag { kNothing, kBlack, kNotBold };

// One pass over a text. A message's italic ends with bold, not italic, off; bullets are never ended.
struct TagPass {
    std::wstring_view open;
    std::wstring_view close;
    TagLook look;
    std::int16_t indent; // indents are set for kBullet and kBlock
    std::int16_t rightIndent;
    AfterTag after;
};

// clang-format off
constexpr TagPass kRedPass           {L"<r>", L"</r>", TagLook::kRed,      0,   0, AfterTag::kBlack};
constexpr TagPass kPageBulletPass    {L"<u>", L"</u>", TagLook::kBullet, 150, 150, AfterTag::kBlack};
constexpr TagPass kBoldPass          {L"<b>", L"</b>", TagLook::kBold,     0,   0, AfterTag::kNotBold};
constexpr TagPass kItalicPass        {L"<i>", L"</i>", TagLook::kItalic,   0,   0, AfterTag::kNotBold};
constexpr TagPass kBlockPass         {L"<l>", L"</l>", TagLook::kBlock,  150, 250, AfterTag::kNothing};
constexpr TagPass kMessageBulletPass {L"<u>", L"</u>", TagLook::kBullet, 150, 150, AfterTag::kNothing};
// clang-format on

// Where `tag` begins in the text, at `from` or behind it; counted from 0. Positions counted
// from 1 must fit 16 bits: a tag behind the 32767th character throws std::overflow_error.
std::optional<std::int16_t> FindTag(const FormattedText& text, std::wstring_view tag, std::int16_t from) {
    const std::size_t position = text.Text().find(tag, static_cast<std::size_t>(from));
    if (position == std::wstring::npos) return std::nullopt;
    if (position >= static_cast<std::size_t>(std::numeric_limits<std::int16_t>::max())) {
        throw std::overflow_error("A tag stands behind character 32767.");
    }
    return static_cast<std::int16_t>(position);
}

void ReplaceTag(FormattedText& text, std::int16_t position, std::wstring_view tag, std::wstring_view by) {
    text.SelStart(position);
    text.SelLength(static_cast<std::int32_t>(tag.size()));
    text.SelText(by);
}

void ApplyLook(FormattedText& text, const TagPass& pass) {
    switch (pass.look) {
    case TagLook::kRed:
        text.SelColor(kInkRed);
        return;
    case TagLook::kBold:
        text.SelBold(true);
        return;
    case TagLook::kItalic:
        text.SelItalic(true);
        return;
    case TagLook::kBullet:
        text.SelBullet(true);
        break;
    case TagLook::kBlock:
        break;
    }
    text.SelIndent(pass.indent);
    text.SelRightIndent(pass.rightIndent);
}

void ApplyAfter(FormattedText& text, AfterTag after) {
    text.SelLength(0);
    if (after == AfterTag::kBlack) text.SelColor(kInkBlack);
    if (after == AfterTag::kNotBold) text.SelBold(false);
}

void RunPass(FormattedText& text, const TagPass& pass) {
    std::int16_t start = 0;
    while (const auto opening = FindTag(text, pass.open, start)) {
        start = *opening;
        ReplaceTag(text, start, pass.open, L"");
        if (const auto closing = FindTag(text, pass.close, start)) {
            text.SelLength(*closing - start);
            ApplyLook(text, pass);
            ReplaceTag(text, *closing, pass.close, L"");
            ApplyAfter(text, pass.after);
        }
    }
}

} // namespace

std::wstring WithoutTags(std::wstring typed) {
    std::replace(typed.begin(), typed.end(), L'<', kTypedLessThan);
    return typed;
}

// ---- pages ----
void FormatInfoRed(FormattedText& info) { RunPass(info, kRedPass); }
void FormatInfoBold(FormattedText& info) { RunPass(info, kBoldPass); }
void FormatInfoBullet(FormattedText& info) { RunPass(info, kPageBulletPass); }

void FormatInfo(FormattedText& info) {
    FormatInfoRed(info);
    FormatInfoBold(info);
    FormatInfoBullet(info);
    info.Replace(kTypedLessThan, L'<');
}

// ---- messages ----
void FormatBold(FormattedText& message) { RunPass(message, kBoldPass); }

void FormatBreaks(FormattedText& message) {
    constexpr std::wstring_view kBreak = L"<br>";
    std::int16_t start = 0;
    while (const auto position = FindTag(message, kBreak, start)) {
        start = *position;
        message.SelStart(start);
        message.SelLength(static_cast<std::int32_t>(kBreak.size()));
        message.SelFontSize(kBreakFontSize);
        message.SelText(L"\r\n");
        message.SelLength(0);
    }
}

void FormatItalic(FormattedText& message) { RunPass(message, kItalicPass); }

void FormatIndent(FormattedText& message) { RunPass(message, kBlockPass); }

void FormatBullet(FormattedText& message) { RunPass(message, kMessageBulletPass); }

void FormatText(FormattedText& message) {
    FormatBold(message);
    FormatBreaks(message);
    FormatItalic(message);
    FormatIndent(message);
    FormatBullet(message);
}
