#include "app/Text.h"

#include <windows.h>

namespace {

// The code page's own form of one character, without best fit; empty when it has none.
std::string ExactAnsi(std::wstring_view character) {
    BOOL replaced = FALSE;
    char bytes[8];
    const int size =
        WideCharToMultiByte(CP_ACP, WC_NO_BEST_FIT_CHARS, character.data(),
                            static_cast<int>(character.size()), bytes, sizeof bytes, nullptr, &replaced);
    if (size <= 0 || replaced) return {};
    return {bytes, static_cast<std::size_t>(size)};
}

} // namespace

std::string ToAnsi(std::wstring_view text) {
    if (text.empty()) return {};
    const int length = static_cast<int>(text.size());
    const int size = WideCharToMultiByte(CP_ACP, 0, text.data(), length, nullptr, 0, nullptr, nullptr);
    std::string bytes(static_cast<std::size_t>(size), '\0');
    WideCharToMultiByte(CP_ACP, 0, text.data(), length, bytes.data(), size, nullptr, nullptr);
    return bytes;
}

std::wstring FromAnsi(std::string_view text) {
    if (text.empty()) return {};
    const int size = static_cast<int>(text.size());
    const int length = MultiByteToWideChar(CP_ACP, 0, text.data(), size, nullptr, 0);
    std::wstring wide(static_cast<std::size_t>(length), L'\0');
    MultiByteToWideChar(CP_ACP, 0, text.data(), size, wide.data(), length);
    return wide;
}

unsigned char ToAnsiByte(wchar_t character) {
    if (character < 0x80) return static_cast<unsigned char>(character); // the same in every code page
    const std::string bytes = ToAnsi({&character, 1});
    return static_cast<unsigned char>(bytes.size() == 1 ? bytes[0] : '?');
}

std::optional<std::wstring> FirstNotInAnsi(std::wstring_view text) {
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool pair = IS_HIGH_SURROGATE(text[i]) && i + 1 < text.size() && IS_LOW_SURROGATE(text[i + 1]);
        const std::wstring_view character = text.substr(i, pair ? 2 : 1);
        const std::string bytes = ExactAnsi(character);
        if (bytes.empty() || FromAnsi(bytes) != character) return std::wstring(character);
        i += character.size() - 1;
    }
    return std::nullopt;
}
