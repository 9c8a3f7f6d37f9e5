#include "app/Pattern.h"

#include <optional>

namespace {

constexpr std::size_t kNone = std::wstring_view::npos;

// The element that a pattern begins with: one character, or a bracketed list with both brackets.
std::wstring_view FirstElement(std::wstring_view pattern) {
    if (pattern.front() != L'[') return pattern.substr(0, 1);
    return pattern.substr(0, pattern.find(L']') + 1); // empty when the list is not closed
}

// `list` stands between the brackets and behind the "!". Nothing when a range in it descends.
std::optional<bool> ListHolds(std::wstring_view list, wchar_t c) {
    bool found = false;
    for (std::size_t i = 0; i < list.size(); ++i) {
        const wchar_t first = list[i];
        const bool range = i + 2 < list.size() && list[i + 1] == L'-';
        const wchar_t last = range ? list[i + 2] : first;
        if (last < first) return std::nullopt;
        found = found || (first <= c && c <= last);
        if (range) i += 2;
    }
    return found;
}

bool FitsList(std::wstring_view element, wchar_t c) {
    std::wstring_view list = element.substr(1, element.size() - 2);
    const bool inverted = list.size() > 1 && list.front() == L'!';
    if (inverted) list.remove_prefix(1);
    const std::optional<bool> holds = ListHolds(list, c);
    return holds && *holds != inverted;
}

// Never asked for "*" and "[]", which stand for no single character.
bool FitsElement(std::wstring_view element, wchar_t c) {
    if (element.empty()) return false;
    switch (element.front()) {
    case L'?':
        return true;
    case L'#':
        return c >= L'0' && c <= L'9';
    case L'[':
        return FitsList(element, c);
    default:
        return element.front() == c;
    }
}

} // namespace

bool MatchesPattern(std::wstring_view text, std::wstring_view pattern) {
    std::size_t t = 0;
    std::size_t p = 0;
    // Where to go on after a mismatch: behind the last "*", which then takes one character more.
    // An earlier "*" never has to be tried again, which is what keeps the time down.
    std::size_t starPattern = kNone;
    std::size_t starText = 0;
    while (t < text.size() || p < pattern.size()) {
        const std::wstring_view element =
            p < pattern.size() ? FirstElement(pattern.substr(p)) : std::wstring_view();
        if (element == L"*") {
            starPattern = ++p;
            starText = t;
        } else if (element == L"[]") { // stands for nothing: the text waits
            p += element.size();
        } else if (t < text.size() && FitsElement(element, text[t])) {
            p += element.size();
            ++t;
        } else if (starPattern != kNone && starText < text.size()) {
            p = starPattern;
            t = ++starText;
        } else {
            return false;
        }
    }
    return true;
}

std::wstring TrimAtNul(std::wstring_view text) {
    const std::size_t nul = text.find(L'\0');
    return nul == kNone ? std::wstring() : std::wstring(text.substr(0, nul));
}
