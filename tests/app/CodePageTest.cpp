#include "app/CodePage.h"

#include "tests/support/Imports.h"

#include <windows.h>

#include <gtest/gtest.h>

namespace {

decltype(&WideCharToMultiByte) systemConversion = nullptr;

// As Windows documents it for UTF-8; Wine takes everything.
int WINAPI Strict(UINT page, DWORD flags, LPCWCH text, int length, LPSTR bytes, int size, LPCCH standIn,
                  LPBOOL replaced) {
    if (page == CP_UTF8 && (flags || standIn || replaced)) return 0;
    return systemConversion(page, flags, text, length, bytes, size, standIn, replaced);
}

} // namespace

TEST(CodePage, WhatItHolds) {
    constexpr const wchar_t* kNone = L"";
    // clang-format off
    const struct {
        unsigned page;
        std::wstring_view wide;
        std::string_view ansi;
        std::wstring_view notExact, notOneByte; // the first such character
    } rows[] = {
        {0,     L"",                          "",                         kNone,          kNone         },
        {0,     L"D\u00e4n \u20ac \u0178?",   "D\xE4n \x80 \x9F?",        kNone,          kNone         },
        {0,     L"a\u2215b",                  "a/b",                      L"\u2215",      L"\u2215"     },
        {0,     L"\u65cb\u76e4",              "??",                       L"\u65cb",      L"\u65cb"     },
        {0,     L"x\U0001F600\u0100",         "x??A",                     L"\U0001F600",  L"\U0001F600" },
        {932,   L"a\u6a5f\u68b0",             "a\x8B\x40\x8A\x42",        kNone,          L"\u6a5f"     },
        {932,   L"\uff76\\",                  "\xB6\\",                   kNone,          kNone         },
        {932,   L"Mill \u00a5",               "Mill \\",                  L"\u00a5",      L"\u00a5"     },
        {65001, L"D\u00e4n",                  "D\xC3\xA4n",               kNone,          L"\u00e4"     },
        {65001, L"\U0001F600",                "\xF0\x9F\x98\x80",         kNone,          L"\U0001F600" },
        {65001, L"x\xD83D",                   "x\xEF\xBF\xBD",            L"\xD83D",      L"\xD83D"     },
    };
    // clang-format on
    ASSERT_EQ(GetACP(), 1252u);
    const ReplacedImport strict("WideCharToMultiByte", reinterpret_cast<void*>(&Strict));
    systemConversion = strict.Original<decltype(systemConversion)>();
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::PrintToString(row.wide) + " in " + std::to_string(row.page));
        EXPECT_EQ(ToAnsi(row.wide, row.page), row.ansi);
        EXPECT_EQ(AnsiSize(row.wide, row.page), row.ansi.size());
        EXPECT_EQ(FirstNotInAnsi(row.wide, row.page).value_or(kNone), row.notExact);
        EXPECT_EQ(FirstNotOneByte(row.wide, row.page).value_or(kNone), row.notOneByte);
        if (row.notExact.empty()) {
            EXPECT_EQ(FromAnsi(row.ansi, row.page), row.wide);
        }
    }
    EXPECT_EQ(ToAnsiByte(L'\u20ac'), 0x80);
    EXPECT_EQ(ToAnsiByte(L'\u65cb'), '?');
    EXPECT_EQ(ToAnsiByte(L'\0'), 0);
}
