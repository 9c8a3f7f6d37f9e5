#pragma once

#include <string>

// Capitals of the letters a to z alone: the same answer under every locale, which is what switches and
// device names need.
constexpr wchar_t AsciiUpper(wchar_t c) {
    return c >= L'a' && c <= L'z' ? static_cast<wchar_t>(c - L'a' + L'A') : c;
}

inline std::wstring AsciiUpper(std::wstring text) {
    for (wchar_t& c : text)
        c = AsciiUpper(c);
    return text;
}
