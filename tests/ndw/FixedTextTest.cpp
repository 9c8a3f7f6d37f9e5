#include "ndw/FixedText.h"

#include <gtest/gtest.h>

TEST(FixedText, AlwaysOneLength) {
    FixedText<4> text;
    EXPECT_EQ(text.View(), std::wstring_view(L"\0\0\0\0", 4));
    const std::pair<std::wstring_view, std::wstring_view> rows[] = {
        {L"ab", L"ab  "}, {L"", L"    "}, {L"abcd", L"abcd"}, {L"abcdef", L"abcd"}, {L" x ", L" x  "},
    };
    for (const auto& [assigned, held] : rows) {
        text = assigned;
        EXPECT_EQ(text.View(), held);
    }
}

TEST(FixedText, BlanksAtTheEndCount) {
    FixedText<3> text;
    text = L"";
    EXPECT_FALSE(text == L"");
    EXPECT_TRUE(text == L"   ");
    FixedText<3> other;
    EXPECT_FALSE(text == other);
    other = L" ";
    EXPECT_TRUE(text == other);
}
