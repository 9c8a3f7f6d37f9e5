#include "endurance/fuzz/Fuzz.h"
#include "wizard/Markup.h"

namespace {

constexpr std::wstring_view kPieces[] = {L"<r>", L"</r>", L"<b>",  L"</b>", L"<u>",  L"</u>", L"<i>", L"</i>",
                                         L"<l>", L"</l>", L"<br>", L"\r\n", L"word", L"<",    L">",   L"<b"};

// What a pass leaves of a text, without any look.
std::wstring Passed(std::wstring text, std::wstring_view open, std::wstring_view close) {
    for (std::size_t at = text.find(open); at != text.npos; at = text.find(open, at)) {
        text.erase(at, open.size());
        const std::size_t end = text.find(close, at);
        if (end != text.npos) text.erase(end, close.size());
    }
    return text;
}

std::wstring WithBreaks(std::wstring text) {
    for (std::size_t at = text.find(L"<br>"); at != text.npos; at = text.find(L"<br>", at)) {
        text.replace(at, 4, L"\r");
    }
    return text;
}

} // namespace

// Any tags in any order: what is left of the text is right, and every selection lies within it.
void Examine(Generator& from) {
    std::wstring text;
    for (std::size_t count = from.Below(40); count > 0; --count)
        text += from.OneOf(kPieces);
    win::FormattedText control(text);
    const std::wstring plain = control.Text();
    FormatInfo(control);
    REQUIRE(control.Text() ==
            Passed(Passed(Passed(plain, L"<r>", L"</r>"), L"<b>", L"</b>"), L"<u>", L"</u>"));

    win::FormattedText message(text);
    FormatText(message);
    std::wstring left = WithBreaks(Passed(plain, L"<b>", L"</b>"));
    left = Passed(Passed(Passed(left, L"<i>", L"</i>"), L"<l>", L"</l>"), L"<u>", L"</u>");
    REQUIRE(message.Text() == left);
}
