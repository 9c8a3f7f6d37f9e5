#pragma once

// Between wide text in memory and the 8-bit text of the settings file, the registry, shell links and the
// device configuration files. Their code page is the system's, which may be UTF-8; another one can be given.

#include <optional>
#include <string>
#include <string_view>

inline constexpr unsigned kSystemCodePage = 0; // CP_ACP

// Best fit: a character that the code page lacks becomes the nearest one or "?".
std::string ToAnsi(std::wstring_view text, unsigned codePage = kSystemCodePage);
std::wstring FromAnsi(std::string_view text, unsigned codePage = kSystemCodePage);

// The one byte of a character in the system's code page, best fit included; "?" for one that takes more.
unsigned char ToAnsiByte(wchar_t character);

// The number of bytes that `text` takes.
std::size_t AnsiSize(std::wstring_view text, unsigned codePage = kSystemCodePage);

// The first character (both halves of a surrogate pair) that the code page cannot hold exactly, best fit
// not counted; none when every character survives the way there and back.
std::optional<std::wstring> FirstNotInAnsi(std::wstring_view text, unsigned codePage = kSystemCodePage);

// The same for a place that has one byte for each character, as every text of a configuration file: also
// a character that the code page holds in several bytes.
std::optional<std::wstring> FirstNotOneByte(std::wstring_view text, unsigned codePage = kSystemCodePage);
