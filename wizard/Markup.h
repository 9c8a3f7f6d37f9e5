#pragma once

// Page and message texts carry tags. The text is given whole to a rich-text control, tags and all; then one
// pass for each kind of tag finds each pair on the control itself, selects what the pair encloses, changes
// its look and deletes the tags. Tags are lower case; pairs of different kinds may lie within each other; an
// opening tag without its closing tag is deleted; any other tag stays in the text.
//
//   <r> … </r>  red                               pages
//   <b> … </b>  bold                              pages, messages
//   <u> … </u>  bulleted, indented on both sides  pages, messages
//   <i> … </i>  italic                            messages
//   <l> … </l>  indented on both sides            messages
//   <br>        a line end in tiny type           messages (frmMessage::FormatBreaks)
//
// The passes of a page are operations of frmWizard, those of a message of frmMessage.

#include "win/RichText.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

inline constexpr std::uint32_t kInkBlack = 0x000000;
inline constexpr std::uint32_t kInkRed = 0x0000FF;

struct TagPass {
    std::wstring_view open;
    std::wstring_view close;
    void (*look)(win::RichText&);  // of the enclosed text, which is selected
    void (*after)(win::RichText&); // behind it, with nothing selected: the look of what is put in there next
};

extern const TagPass kRedPass;
extern const TagPass kBoldPass;
extern const TagPass kPageBulletPass;
extern const TagPass kItalicPass;
extern const TagPass kIndentPass;
extern const TagPass kMessageBulletPass;

// Throws std::overflow_error for a tag behind the 32767th character, as FindTag does.
void RunPass(win::RichText& text, const TagPass& pass);

// Where `tag` begins in `text`, at `from` or behind it, counted from 0. The renderers count positions from 1
// in 16 bits: one beyond that throws std::overflow_error.
std::optional<std::int16_t> FindTag(std::wstring_view text, std::wstring_view tag, std::int16_t from);

// What a person typed holds no tags: its "<" goes through the passes as a character that no keyboard has,
// and is turned back behind them.
std::wstring WithoutTags(std::wstring typed);
void ShowTypedTags(win::RichText& text);
