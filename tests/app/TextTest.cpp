#include "app/Text.h"

#include <windows.h>

#include <gtest/gtest.h>

// The system's code page in tests is 1252.
TEST(Text, Ansi) {
    const struct {
        std::wstring_view wide;
        std::string_view ansi;      // what ToAnsi makes of it
        std::wstring_view notExact; // what FirstNotInAnsi says, empty: nothing
    } rows[] = {
        {L"", "", L""},
        {L"D\u00e4n \u20ac \u0178", "D\xE4n \x80 \x9F", L""},
        {L"a\u2215b", "a/b", L"\u2215"}, // division slash becomes a slash
        {L"a\uff0fb", "a/b", L"\uff0f"}, // so does the full-width one
        {L"\u0100\u0101", "Aa", L"\u0100"},
        {L"\u65cb\u76e4", "??", L"\u65cb"},
        {L"x\U0001F600\u0100", "x??A", L"\U0001F600"}, // both halves
        {L"x\xD83D", "x?", L"\xD83D"},                 // half a pair
        {L"?", "?", L""},
    };
    ASSERT_EQ(GetACP(), 1252u);
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::PrintToString(row.wide));
        EXPECT_EQ(ToAnsi(row.wide), row.ansi);
        EXPECT_EQ(FirstNotInAnsi(row.wide).value_or(L""), row.notExact);
        if (row.notExact.empty()) {
            EXPECT_EQ(FromAnsi(row.ansi), row.wide);
        }
    }
}

TEST(Text, OneByte) {
    EXPECT_EQ(ToAnsiByte(L'\u20ac'), 0x80);
    EXPECT_EQ(ToAnsiByte(L'\u2215'), '/');
    EXPECT_EQ(ToAnsiByte(L'\0'), 0);
}
