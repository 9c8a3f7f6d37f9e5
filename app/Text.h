#pragma once

// Between wide text in memory and the 8-bit ANSI text of the settings file, the registry and the device
// configuration files. The code page is the system's.

#include <optional>
#include <string>
#include <string_view>

// Best fit: a character that the code page lacks becomes the nearest one or "?".
std::string ToAnsi(std::wstring_view text);
std::wstring FromAnsi(std::string_view text);

// The one byte of a character in the code page, best fit included; "?" for one that needs two bytes.
unsigned char ToAnsiByte(wchar_t character);

// The first character (both halves of a surrogate pair) that the code page cannot hold exactly, best fit
// not counted; none when every character survives the way there and back.
std::optional<std::wstring> FirstNotInAnsi(std::wstring_view text);
