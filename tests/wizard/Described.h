#pragma once

#include "win/FormattedText.h"

#include <string>
#include <string_view>

// A text with a note in braces wherever the look changes: "r"ed, "b"old, "i"talic, a font size, "*" for a
// bullet, both indents. A line end is "/".
inline std::wstring Described(const win::FormattedText& text) {
    std::vector<std::wstring> notes(text.Text().size());
    for (const auto& [start, end, look] : text.CharacterRuns())
        for (auto i = start; i < end; ++i)
            notes.at(static_cast<std::size_t>(i)) = std::wstring(look.color == 0xFF ? L"r"
                                                                 : look.color       ? L"?"
                                                                                    : L"") +
                                                    (look.bold ? L"b" : L"") + (look.italic ? L"i" : L"") +
                                                    (look.fontSize ? std::to_wstring(look.fontSize) : L"");
    for (const auto& [start, end, look] : text.ParagraphRuns())
        for (auto i = start; i < end; ++i)
            notes.at(static_cast<std::size_t>(i)) += std::wstring(look.bullet ? L"*" : L"") + L" " +
                                                     std::to_wstring(look.indent) + L" " +
                                                     std::to_wstring(look.rightIndent);
    std::wstring result, note;
    for (std::size_t i = 0; i < notes.size(); ++i) {
        if (notes[i] != note) result += L"{" + notes[i] + L"}";
        note = notes[i];
        result += text.Text()[i] == L'\r' ? L'/' : text.Text()[i];
    }
    return result;
}
