#include "app/CodePage.h"

#include <windows.h>

namespace {

// A character beyond 16 bits is looked at whole: its halves survive under no code page.
bool IsPair(std::wstring_view text) {
    return text.size() >= 2 && IS_HIGH_SURROGATE(text[0]) && IS_LOW_SURROGATE(text[1]);
}

// The way back tells exactness under every code page; the system's own flags for it are refused by UTF-8.
bool Survives(std::wstring_view character, std::size_t mostBytes, unsigned codePage) {
    const std::string bytes = ToAnsi(character, codePage);
    return bytes.size() <= mostBytes && FromAnsi({bytes.data(), bytes.size()}, codePage) == character;
}

std::optional<std::wstring> FirstUnfit(std::wstring_view text, std::size_t mostBytes, unsigned codePage) {
    for (std::size_t i = 0, length = 0; i < text.size(); i += length) {
        length = IsPair(text.substr(i)) ? 2 : 1;
        const std::wstring_view character = text.substr(i, length);
        if (!Survives(character, mostBytes, codePage)) return std::wstring(character);
    }
    return std::nullopt;
}

} // namespace

// No flags and no default character: where the code page is UTF-8, a call with any of them fails.
std::string ToAnsi(std::wstring_view text, unsigned codePage) {
    if (text.empty()) return {};
    const int length = static_cast<int>(text.size());
    const int size = WideCharToMultiByte(codePage, 0, text.data(), length, nullptr, 0, nullptr, nullptr);
    std::string bytes(static_cast<std::size_t>(size), '\0');
    WideCharToMultiByte(codePage, 0, text.data(), length, bytes.data(), size, nullptr, nullptr);
    return bytes;
}

std::wstring FromAnsi(std::string_view text, unsigned codePage) {
    if (text.empty()) return {};
    const int size = static_cast<int>(text.size());
    const int length = MultiByteToWideChar(codePage, 0, text.data(), size, nullptr, 0);
    std::wstring wide(static_cast<std::size_t>(length), L'\0');
    MultiByteToWideChar(codePage, 0, text.data(), size, wide.data(), length);
    return wide;
}

unsigned char ToAnsiByte(wchar_t character) {
    if (character < 0x80) return static_cast<unsigned char>(character); // the same in every code page
    const std::string bytes = ToAnsi({&character, 1});
    // A second byte would move all that stands behind it in a record of fixed widths.
    return static_cast<unsigned char>(bytes.size() == 1 ? bytes[0] : '?');
}

std::size_t AnsiSize(std::wstring_view text, unsigned codePage) { return ToAnsi(text, codePage).size(); }

std::optional<std::wstring> FirstNotInAnsi(std::wstring_view text, unsigned codePage) {
    return FirstUnfit(text, std::string::npos, codePage);
}

std::optional<std::wstring> FirstNotOneByte(std::wstring_view text, unsigned codePage) {
    return FirstUnfit(text, 1, codePage);
}
