#pragma once

#include <concepts>
#include <cstdint>
#include <limits>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>

// Page and message texts carry tags. The text is put into a rich-text control, tags and all; a renderer
// then looks for each pair of tags, changes the look of what they enclose and deletes them, one kind of
// tag after the other. Tags are lower case; pairs of different kinds may lie within each other; an
// opening tag without its closing tag is deleted; any other tag stays in the text as it is.
//
//   <r> … </r>  red                               pages
//   <b> … </b>  bold                              pages, messages
//   <u> … </u>  bulleted, indented on both sides  pages, messages
//   <i> … </i>  italic                            messages
//   <l> … </l>  indented on both sides            messages
//   <br>        a line end in tiny type           messages

// What the renderers need of a control. Text() counts characters as SelStart and SelLength do. With an
// empty selection the look set is that of text inserted next. Indents are in twips, sizes in points, a
// colour is 0x00BBGGRR.
template <class Control>
concept RichTextSelection = requires(Control& control, const Control& constant, std::wstring_view text) {
    { constant.Text() } -> std::convertible_to<std::wstring>;
    { constant.SelFontSize() } -> std::same_as<std::int16_t>;
    control.SetText(text);
    control.SelStart(std::int32_t{});
    control.SelLength(std::int32_t{});
    control.SelText(text);
    control.SelBold(true);
    control.SelItalic(true);
    control.SelColor(std::uint32_t{});
    control.SelBullet(true);
    control.SelIndent(std::int16_t{});
    control.SelRightIndent(std::int16_t{});
    control.SelFontSize(std::int16_t{});
};

inline constexpr std::uint32_t kInkBlack = 0x000000;
inline constexpr std::uint32_t kInkRed = 0x0000FF;
inline constexpr std::int16_t kBreakFontSize = 3;

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
inline constexpr TagPass kRedPass           {L"<r>", L"</r>", TagLook::kRed,      0,   0, AfterTag::kBlack};
inline constexpr TagPass kPageBulletPass    {L"<u>", L"</u>", TagLook::kBullet, 150, 150, AfterTag::kBlack};
inline constexpr TagPass kBoldPass          {L"<b>", L"</b>", TagLook::kBold,     0,   0, AfterTag::kNotBold};
inline constexpr TagPass kItalicPass        {L"<i>", L"</i>", TagLook::kItalic,   0,   0, AfterTag::kNotBold};
inline constexpr TagPass kBlockPass         {L"<l>", L"</l>", TagLook::kBlock,  150, 250, AfterTag::kNothing};
inline constexpr TagPass kMessageBulletPass {L"<u>", L"</u>", TagLook::kBullet, 150, 150, AfterTag::kNothing};
// clang-format on

// Where `tag` begins in the control's text, at `from` or behind it; counted from 0. Positions counted
// from 1 must fit 16 bits: a tag behind the 32767th character throws std::overflow_error.
template <RichTextSelection Control>
std::optional<std::int16_t> FindTag(const Control& control, std::wstring_view tag, std::int16_t from) {
    const std::wstring text = control.Text();
    const std::size_t position = text.find(tag, static_cast<std::size_t>(from));
    if (position == std::wstring::npos) return std::nullopt;
    if (position >= static_cast<std::size_t>(std::numeric_limits<std::int16_t>::max())) {
        throw std::overflow_error("A tag stands behind character 32767.");
    }
    return static_cast<std::int16_t>(position);
}

template <RichTextSelection Control>
void ReplaceTag(Control& control, std::int16_t position, std::wstring_view tag, std::wstring_view text) {
    control.SelStart(position);
    control.SelLength(static_cast<std::int32_t>(tag.size()));
    control.SelText(text);
}

template <RichTextSelection Control> void ApplyLook(Control& control, const TagPass& pass) {
    switch (pass.look) {
    case TagLook::kRed:
        control.SelColor(kInkRed);
        return;
    case TagLook::kBold:
        control.SelBold(true);
        return;
    case TagLook::kItalic:
        control.SelItalic(true);
        return;
    case TagLook::kBullet:
        control.SelBullet(true);
        break;
    case TagLook::kBlock:
        break;
    }
    control.SelIndent(pass.indent);
    control.SelRightIndent(pass.rightIndent);
}

template <RichTextSelection Control> void ApplyAfter(Control& control, AfterTag after) {
    control.SelLength(0);
    if (after == AfterTag::kBlack) control.SelColor(kInkBlack);
    if (after == AfterTag::kNotBold) control.SelBold(false);
}

template <RichTextSelection Control> void RunPass(Control& control, const TagPass& pass) {
    std::int16_t start = 0;
    while (const auto opening = FindTag(control, pass.open, start)) {
        start = *opening;
        ReplaceTag(control, start, pass.open, L"");
        if (const auto closing = FindTag(control, pass.close, start)) {
            control.SelLength(*closing - start);
            ApplyLook(control, pass);
            ReplaceTag(control, *closing, pass.close, L"");
            ApplyAfter(control, pass.after);
        }
    }
}

// ---- pages ----
template <RichTextSelection Control> void FormatInfoRed(Control& info) { RunPass(info, kRedPass); }
template <RichTextSelection Control> void FormatInfoBold(Control& info) { RunPass(info, kBoldPass); }
template <RichTextSelection Control> void FormatInfoBullet(Control& info) { RunPass(info, kPageBulletPass); }

template <RichTextSelection Control> void FormatInfo(Control& info) {
    FormatInfoRed(info);
    FormatInfoBold(info);
    FormatInfoBullet(info);
}

// Empties the control but for two blanks, which carry the plain look over to the text set next.
template <RichTextSelection Control> void ResetInfo(Control& info) {
    info.SetText(L"  ");
    info.SelStart(0);
    info.SelLength(static_cast<std::int32_t>(info.Text().size()));
    info.SelColor(kInkBlack);
    info.SelBold(false);
}

// ---- messages ----
template <RichTextSelection Control> void FormatBold(Control& message) { RunPass(message, kBoldPass); }

template <RichTextSelection Control> void FormatBreaks(Control& message) {
    static_cast<void>(message.SelFontSize());
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

template <RichTextSelection Control> void FormatItalic(Control& message) { RunPass(message, kItalicPass); }

template <RichTextSelection Control> void FormatIndent(Control& message) {
    static_cast<void>(message.SelFontSize());
    RunPass(message, kBlockPass);
}

template <RichTextSelection Control> void FormatBullet(Control& message) {
    static_cast<void>(message.SelFontSize());
    RunPass(message, kMessageBulletPass);
}

template <RichTextSelection Control> void FormatText(Control& message) {
    FormatBold(message);
    FormatBreaks(message);
    FormatItalic(message);
    FormatIndent(message);
    FormatBullet(message);
}
