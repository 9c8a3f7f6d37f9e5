#include "tools/driver/Words.h"

#include <windows.h>

#include <stdexcept>

std::string Utf8(std::wstring_view text) {
    const int size = static_cast<int>(text.size());
    std::string bytes(text.size() * 3, '\0');
    bytes.resize(static_cast<std::size_t>(
        WideCharToMultiByte(CP_UTF8, 0, text.data(), size, bytes.data(), size * 3, nullptr, nullptr)));
    return bytes;
}

std::wstring FromUtf8(std::string_view bytes) {
    const int size = static_cast<int>(bytes.size());
    std::wstring text(bytes.size(), L'\0');
    text.resize(
        static_cast<std::size_t>(MultiByteToWideChar(CP_UTF8, 0, bytes.data(), size, text.data(), size)));
    return text;
}

void Fail(const std::wstring& what) { throw std::runtime_error(Utf8(what)); }
