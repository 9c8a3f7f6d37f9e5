#include "ndw/FixedText.h"

#include <gtest/gtest.h>

TEST(FixedText, AlwaysOneLengthAndBlanksAtTheEndCount) {
    FixedText<4> text, other;
    EXPECT_EQ(text.View(), std::wstring_view(L"\0\0\0\0", 4));
    const std::pair<std::wstring_view, std::wstring_view> rows[] = {
        {L"ab", L"ab  "}, {L"", L"    "}, {L"abcd", L"abcd"}, {L"abcxef", L"abcx"}, {L" x ", L" x  "},
    };
    for (const auto& [assigned, held] : rows) {
        text = assigned;
        EXPECT_EQ(text.View(), held);
        EXPECT_TRUE(text == held);
        EXPECT_EQ(text == assigned, assigned.size() == 4);
        EXPECT_FALSE(text == other);
        other = held;
        EXPECT_TRUE(text == other);
    }
}
