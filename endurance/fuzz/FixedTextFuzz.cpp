#include "endurance/fuzz/Fuzz.h"
#include "ndw/FixedText.h"

namespace {

template <std::size_t N> void ExamineLength(const std::wstring& first, const std::wstring& second) {
    FixedText<N> text;
    REQUIRE(text.View() == std::wstring(N, L'\0'));
    text = first;
    text = second;
    const std::wstring padded = second + std::wstring(N, L' ');
    REQUIRE(text.View() == std::wstring_view(padded).substr(0, N));
    REQUIRE((text == second) == (second.size() == N));
    FixedText<N> other;
    other = text.View();
    REQUIRE(other == text);
    other = first;
    REQUIRE((other == text) == (other.View() == text.View()));
}

} // namespace

void Examine(Generator& from) {
    const std::wstring first = from.Text(80, L" ab");
    const std::wstring second = from.Text(80, L" ab");
    ExamineLength<1>(first, second);
    ExamineLength<3>(first, second);
    ExamineLength<10>(first, second);
    ExamineLength<64>(first, second);
}
