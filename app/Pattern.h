#pragma once

#include <string>
#include <string_view>

// True when the whole of `text` fits `pattern`. Case counts, and characters compare by their code.
//   *          any number of characters, none included
//   ?          any one character
//   #          one digit, 0 to 9
//   [list]     one character of the list
//   [!list]    one character that is not in the list
//   otherwise  the character itself, "]" and "!" included
// A list holds single characters and ascending ranges (a-z); a hyphen at either end of the list stands
// for itself, and so does every wildcard within it. "[]" stands for no character at all, "[!]" for "!".
// A list that is not closed, or whose range descends, fits nothing.
// The time is at most proportional to the product of both lengths.
bool MatchesPattern(std::wstring_view text, std::wstring_view pattern);

// The text before the first NUL, as the system leaves it in a buffer that was read in full.
// Without a NUL the result is empty: such a buffer was never filled.
std::wstring TrimAtNul(std::wstring_view text);
