#pragma once

#include "win/FormattedText.h"

#include <cstdint>
#include <string>

// Page and message texts carry tags. The text is set whole, tags and all; a renderer then looks for each pair
// of tags, changes the look of what they enclose and deletes them, one kind of tag after the other. Tags are
// lower case; pairs of different kinds may lie within each other; an opening tag without its closing tag is
// deleted; any other tag stays in the text as it is.
//
//   <r> … </r>  red                               pages
//   <b> … </b>  bold                              pages, messages
//   <u> … </u>  bulleted, indented on both sides  pages, messages
//   <i> … </i>  italic                            messages
//   <l> … </l>  indented on both sides            messages
//   <br>        a line end in tiny type           messages

// A tag behind the 32767th character throws std::overflow_error: positions counted from 1 have 16 bits.

inline constexpr std::uint32_t kInkBlack = 0x000000;
inline constexpr std::uint32_t kInkRed = 0x0000FF;
inline constexpr std::int16_t kBreakFontSize = 3;

// What a person typed holds no tags: its "<" goes through the passes as a character that no keyboard has.
// FormatInfo() turns it back.
std::wstring WithoutTags(std::wstring typed);

// ---- pages ----
void FormatInfo(win::FormattedText& info); // the passes below, in this order
void FormatInfoRed(win::FormattedText& info);
void FormatInfoBold(win::FormattedText& info);
void FormatInfoBullet(win::FormattedText& info);

// ---- messages ----
void FormatText(win::FormattedText& message); // the passes below, in this order
void FormatBold(win::FormattedText& message);
void FormatBreaks(win::FormattedText& message);
void FormatItalic(win::FormattedText& message);
void FormatIndent(win::FormattedText& message);
void FormatBullet(win::FormattedText& message);
