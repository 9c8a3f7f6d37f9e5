#include "app/Names.h"

#include <gtest/gtest.h>

#include <limits>

TEST(Names, Checks) {
    struct Row {
        std::wstring_view name;
        bool valid, reserved, control, dot;
    };
    // clang-format off
    const Row rows[] = {
        //                    valid  reserved control dot
        {L"",                 true,  false,   false,  false},
        {L"CNC 1",            true,  false,   false,  false},
        {L"Mill:2",           false, false,   false,  false},
        {L"..\\x",            false, false,   false,  false},
        {L"..",               true,  false,   false,  true },
        {L"Mill.",            true,  false,   false,  true },
        {L"Mill\t",           true,  false,   true,   false},
        {L"\u007f",           true,  false,   true,   false},
        {L"\u0085",           true,  false,   true,   false},
        {L"M\u00fchle\u00a0", true,  false,   false,  false},
        {L"COM1",             true,  true,    false,  false},
        {L"com0",             true,  true,    false,  false},
        {L" COM1 .x",         true,  true,    false,  false},
        {L"lpt9.a.b",         true,  true,    false,  false},
        {L"COM\u00b9",        true,  true,    false,  false},
        {L"LPT\u00b2",        true,  true,    false,  false},
        {L"lPt\u00b3.",       true,  true,    false,  true },
        {L"COM10",            true,  false,   false,  false},
        {L"COM",              true,  false,   false,  false},
        {L"COMA",             true,  false,   false,  false},
        {L"Com1 mill",        true,  false,   false,  false},
        {L"x.COM1",           true,  false,   false,  false},
        {L"Nul",              true,  true,    false,  false},
        {L"con.txt",          true,  true,    false,  false},
        {L"PRN",              true,  true,    false,  false},
        {L"aux ",             true,  true,    false,  false},
        {L"CONIN$",           true,  true,    false,  false},
        {L"conout$.x",        true,  true,    false,  false},
        {L"CONIN",            true,  false,   false,  false},
    };
    // clang-format on
    for (const Row& row : rows) {
        SCOPED_TRACE(testing::PrintToString(row.name));
        EXPECT_EQ(IsValidName(row.name), row.valid);
        EXPECT_EQ(IsReservedName(row.name), row.reserved);
        EXPECT_EQ(HasControlChar(row.name), row.control);
        EXPECT_EQ(EndsInDot(row.name), row.dot);
    }
}

TEST(Names, InvalidCharsAreTheseNine) {
    std::wstring found;
    for (wchar_t c = 0; c < 0xffff; ++c) {
        if (IsInvalidChar(c)) found += c;
    }
    EXPECT_EQ(found, L"\"*/:<>?\\|");
}

TEST(Names, TrimBlanks) {
    EXPECT_EQ(TrimBlanks(L"  a b "), L"a b");
    EXPECT_EQ(TrimBlanks(L"\ta\u00a0 "), L"\ta\u00a0");
    EXPECT_EQ(TrimBlanks(L"   "), L"");
    EXPECT_EQ(TrimBlanks(L""), L"");
}

TEST(Names, NumericValue) {
    using Limits = std::numeric_limits<std::int32_t>;
    // clang-format off
    const std::pair<std::wstring_view, std::int32_t> rows[] = {
        {L"", 0},          {L"abc", 0},
        {L"16", 16},       {L"  16 x", 16},
        {L"-3", -3},       {L"+7.9", 7},
        {L"- 3", 0},       {L"--3", 0},
        {L"\t5", 0},       {L"007", 7},
        {L"32768", 32768}, {L"2147483647", Limits::max()},
        {L"-", 0},         {L"2147483648", Limits::max()},
        {L"   ", 0},       {L"-2147483648", Limits::min()},
        {L"1e3", 1},       {L"-99999999999999999999999", Limits::min()},
    };
    // clang-format on
    for (const auto& [text, value] : rows)
        EXPECT_EQ(NumericValue(text), value) << testing::PrintToString(text);
}

TEST(Names, CheckedExtension) {
    // clang-format off
    const std::pair<std::wstring_view, std::optional<std::wstring>> rows[] = {
        {L"", L""},           {L"  ", L""},         {L".", L""},           {L"nc", L"nc"},
        {L" .NC ", L"NC"},    {L"MIN", L"MIN"},     {L"MINI", {}},         {L".MIN", L"MIN"},
        {L"..x", {}},         {L"a.b", {}},         {L"a*", {}},           {L"a\t", {}},
    };
    // clang-format on
    for (const auto& [typed, result] : rows)
        EXPECT_EQ(CheckedExtension(typed), result) << testing::PrintToString(typed);
}
