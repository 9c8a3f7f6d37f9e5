#include "soak/fuzz/Fuzz.h"
#include "tests/wizard/MemoryRichText.h"
#include "wizard/Markup.h"

namespace {

constexpr std::wstring_view kPieces[] = {L"<r>", L"</r>", L"<b>",  L"</b>", L"<u>",  L"</u>", L"<i>", L"</i>",
                                         L"<l>", L"</l>", L"<br>", L"\r\n", L"word", L"<",    L">",   L"<b"};

std::wstring Removed(std::wstring text, std::size_t at, std::size_t count) { return text.erase(at, count); }

// What a pass leaves of a text, without any look.
std::wstring Passed(std::wstring text, std::wstring_view open, std::wstring_view close) {
    for (std::size_t at = text.find(open); at != text.npos; at = text.find(open, at)) {
        text = Removed(text, at, open.size());
        const std::size_t end = text.find(close, at);
        if (end != text.npos) text = Removed(text, end, close.size());
    }
    return text;
}

std::wstring WithBreaks(std::wstring text) {
    for (std::size_t at = text.find(L"<br>"); at != text.npos; at = text.find(L"<br>", at)) {
        text.replace(at, 4, L"\r");
    }
    return text;
}

// Any tags in any order: what is left of the text is right, and every selection lies within it.
void ExamineAnyText(Generator& from) {
    std::wstring text;
    for (std::size_t count = from.Below(40); count > 0; --count)
        text += from.OneOf(kPieces);
    MemoryRichText control;
    control.SetText(text);
    const std::wstring plain = control.Text();
    FormatInfo(control);
    REQUIRE(control.Text() ==
            Passed(Passed(Passed(plain, L"<r>", L"</r>"), L"<b>", L"</b>"), L"<u>", L"</u>"));

    MemoryRichText message;
    message.SetText(text);
    FormatText(message);
    std::wstring left = WithBreaks(Passed(plain, L"<b>", L"</b>"));
    for (const auto* tag : {L"i", L"l", L"u"}) {
        const std::wstring name = tag;
        left = Passed(left, L"<" + name + L">", L"</" + name + L">");
    }
    REQUIRE(message.Text() == left);
}

// Proper pairs: the look is right, too, as a control shows it that was set up without any tag.
void ExaminePairs(Generator& from) {
    std::wstring tagged;
    MemoryRichText expected;
    expected.SetText(L"");
    std::wstring plain;
    struct Piece {
        std::size_t start, length;
        bool red, bold;
    };
    std::vector<Piece> pieces;
    for (std::size_t count = from.Below(12); count > 0; --count) {
        const std::wstring word = L"w" + from.Text(4, L"xyz, ");
        if (word.find_first_of(L"<\r\n") != word.npos) continue;
        const bool red = from.Below(2) != 0;
        const bool bold = from.Below(2) != 0;
        const bool redOutside = from.Below(2) != 0;
        std::wstring inside = word;
        if (red && !redOutside) inside = L"<r>" + inside + L"</r>";
        if (bold) inside = L"<b>" + inside + L"</b>";
        if (red && redOutside) inside = L"<r>" + inside + L"</r>";
        tagged += inside;
        pieces.push_back({plain.size(), word.size(), red, bold});
        plain += word;
    }
    expected.SetText(plain);
    for (const Piece& piece : pieces) {
        expected.SelStart(static_cast<std::int32_t>(piece.start));
        expected.SelLength(static_cast<std::int32_t>(piece.length));
        if (piece.red) expected.SelColor(255);
        if (piece.bold) expected.SelBold(true);
    }
    MemoryRichText control;
    control.SetText(tagged);
    FormatInfo(control);
    REQUIRE(control.Described() == expected.Described());
}

} // namespace

void Examine(Generator& from) {
    ExamineAnyText(from);
    ExaminePairs(from);
}
