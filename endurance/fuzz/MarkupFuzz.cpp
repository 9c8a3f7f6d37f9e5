#include "endurance/fuzz/Fuzz.h"
#include "tests/wizard/MemoryRichText.h"
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
    left = Passed(Passed(Passed(left, L"<i>", L"</i>"), L"<l>", L"</l>"), L"<u>", L"</u>");
    REQUIRE(message.Text() == left);
}

struct Piece {
    std::wstring word;
    bool red;
    bool bold;
    bool redOutside;
};

std::wstring InTags(wchar_t name, const std::wstring& text) {
    std::wstring tagged = L"<?>";
    tagged[1] = name;
    tagged += text;
    tagged += L"</?>";
    tagged[tagged.size() - 2] = name;
    return tagged;
}

std::wstring Tagged(const Piece& piece) {
    std::wstring text = piece.word;
    if (piece.red && !piece.redOutside) text = InTags(L'r', text);
    if (piece.bold) text = InTags(L'b', text);
    if (piece.red && piece.redOutside) text = InTags(L'r', text);
    return text;
}

// Proper pairs: the look is right, too, as a control shows it that was set up without any tag.
void ExaminePairs(Generator& from) {
    std::wstring tagged;
    std::wstring plain;
    std::vector<Piece> pieces;
    for (std::size_t count = from.Below(12); count > 0; --count) {
        Piece piece{L"w", from.Below(2) != 0, from.Below(2) != 0, from.Below(2) != 0};
        for (std::size_t length = from.Below(5); length > 0; --length)
            piece.word += from.OneOf(std::wstring_view(L"xyz, /"));
        tagged += Tagged(piece);
        plain += piece.word;
        pieces.push_back(piece);
    }
    MemoryRichText expected;
    expected.SetText(plain);
    std::size_t start = 0;
    for (const Piece& piece : pieces) {
        expected.SelStart(static_cast<std::int32_t>(start));
        expected.SelLength(static_cast<std::int32_t>(piece.word.size()));
        if (piece.red) expected.SelColor(255);
        if (piece.bold) expected.SelBold(true);
        start += piece.word.size();
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
