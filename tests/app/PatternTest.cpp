#include "app/Pattern.h"

#include <gtest/gtest.h>

TEST(Pattern, Matches) {
    // clang-format off
    const struct {
        const wchar_t *pattern, *matching, *other; // texts, null for none
    } rows[] = {
        {L"***",        L"",           nullptr       },  {L"?",          L"a",          L""           },
        {L"Varnel DNC", L"Varnel DNC", L"varnel DNC" },  {L"Varnel DNC", L"Varnel DNC", L"Varnel DNC "},
        {L"a*bc",       L"abcbc",      L"abcbd"      },  {L"a*b*b?c",    L"aXbYbZc",    L"aXbYbc"     },
        {L"a#",         L"a7",         L"a\u0663"    },  {L"[*?#]",      L"*",          L"x"          },
        {L"[a-kx-z]",   L"y",          L"m"          },  {L"[a-k]",      L"k",          L"l"          },
        {L"[!a-k]",     L"m",          L"k"          },  {L"[!a]",       L"b",          L""           },
        {L"[-a]",       L"-",          L"b"          },  {L"[a-]",       L"-",          L"b"          },
        {L"[!]",        L"!",          L"b"          },  {L"a[]b[]",     L"ab",         L"a"          },
        {L"a]!",        L"a]!",        L"a!"         },  {L"[a",         nullptr,       L"[a"         },
        {L"*[",         nullptr,       L"aaa"        },  {L"[!z-a]",     nullptr,       L"m"          },
        {L"[zz-a]",     nullptr,       L"z"          },
    };
    // clang-format on
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::PrintToString(std::wstring(row.pattern)));
        EXPECT_TRUE(!row.matching || MatchesPattern(row.matching, row.pattern));
        EXPECT_FALSE(row.other && MatchesPattern(row.other, row.pattern));
    }
    std::wstring stars; // ends in time
    for (int i = 0; i < 500; ++i)
        stars += L"*a[a-z]";
    EXPECT_FALSE(MatchesPattern(std::wstring(5000, L'a'), stars + L"b"));
}

TEST(Pattern, TrimAtNul) {
    EXPECT_EQ(TrimAtNul(std::wstring_view(L"Title\0rest", 10)), L"Title");
    EXPECT_EQ(TrimAtNul(L"no end"), L"");
}
