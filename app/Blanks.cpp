#include "app/Blanks.h"

std::wstring TrimBlanks(std::wstring_view text) {
    const std::size_t first = text.find_first_not_of(L' ');
    if (first == std::wstring_view::npos) return {};
    return std::wstring(text.substr(first, text.find_last_not_of(L' ') - first + 1));
}
