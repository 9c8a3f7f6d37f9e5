#include "app/Pattern.h"
#include "endurance/fuzz/Fuzz.h"

namespace {

constexpr std::wstring_view kLetters = L"abc-!?*#[]09";

std::wstring Exactly(wchar_t c) {
    const std::wstring text(1, c);
    return std::wstring_view(L"[?*#").find(c) == std::wstring_view::npos ? text : L"[" + text + L"]";
}

// A pattern element that fits `c`.
std::wstring Fitting(Generator& from, wchar_t c) {
    const bool digit = c >= L'0' && c <= L'9';
    const bool first = c != L']' && c != L'!' && c != L'-'; // may begin a list and a range
    switch (from.Below(5)) {
    case 0:
        return L"?";
    case 1:
        return digit ? L"#" : L"[]?";
    case 2:
        return c == L'b' ? L"[!cz]" : L"[!bb]";
    case 3:
        return first ? L"[" + std::wstring(1, c) + L"-\uffff]" : L"?[]";
    default:
        return Exactly(c);
    }
}

bool EndsInList(const std::wstring& pattern) {
    const std::size_t opening = pattern.rfind(L'[');
    return opening != pattern.npos && pattern.find(L']', opening) == pattern.npos;
}

} // namespace

void Examine(Generator& from) {
    const std::wstring text = from.Text(40, kLetters);
    const std::wstring any = from.Text(40, kLetters);
    const bool matches = MatchesPattern(text, any);
    REQUIRE(!MatchesPattern(text, any + L"["));
    REQUIRE(EndsInList(any) || !MatchesPattern(text + L"x", any + L"[!x]"));
    REQUIRE(EndsInList(any) || MatchesPattern(text + L"y", any + L"?") == matches);

    std::wstring fitting;
    std::wstring exact;
    for (const wchar_t c : text) {
        fitting += Fitting(from, c);
        if (from.Below(5) == 0) fitting += L"*";
        exact += Exactly(c);
    }
    REQUIRE(MatchesPattern(text, fitting));
    REQUIRE(MatchesPattern(text + any, fitting + L"*"));
    REQUIRE(MatchesPattern(any + text, L"*" + exact));
    REQUIRE(MatchesPattern(any, exact) == (any == text));
    const std::wstring cut = text + TrimAtNul(any);
    REQUIRE(TrimAtNul(cut + L'\0' + any) == cut.substr(0, cut.find(L'\0')));
}
