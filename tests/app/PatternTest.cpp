#include "app/Pattern.h"

#include <gtest/gtest.h>

TEST(Pattern, Matches) {
    struct Row {
        const wchar_t *pattern, *matching, *other; // texts, null for none
    };
    // clang-format off
    const Row rows[] = {
        {L"",           L"",           L"a"          },
        {L"***",        L"",           nullptr         },
        {L"?",          L"a",          L""           },
        {L"Varnel DNC", L"Varnel DNC", L"varnel DNC" },
        {L"Varnel DNC", L"Varnel DNC", L"Varnel DNC "},
        {L"a*bc",       L"abcbc",      L"abcbd"      },
        {L"a*b*b?c",    L"aXbYbZc",    L"aXbYbc"     },
        {L"a#",         L"a7",         L"a\u0663"    },
        {L"#",          L"0",          L"#"          },
        {L"[*?#]",      L"*",          L"x"          },
        {L"[a-kx-z]",   L"y",          L"m"          },
        {L"[!a-k]",     L"m",          L"c"          },
        {L"[!a]",       L"b",          L""           },
        {L"[a-z]",      L"m",          L"-"          },
        {L"[-a]",       L"-",          L"b"          },
        {L"[a-]",       L"-",          L"b"          },
        {L"[!-]",       L"a",          L"-"          },
        {L"[a!]",       L"!",          L"b"          },
        {L"[!]",        L"!",          L"b"          },
        {L"a[]b[]",     L"ab",         L"a"          },
        {L"a]!",        L"a]!",        L"a!"         },
        {L"[[]",        L"[",          L"]"          },
        {L"[a",         nullptr,         L"[a"         },
        {L"*[",         nullptr,         L"aaa"        },
        {L"[z-a]",      nullptr,         L"m"          },
        {L"[!z-a]",     nullptr,         L"m"          },
        {L"[zz-a]",     nullptr,         L"z"          },
    };
    // clang-format on
    for (const Row& row : rows) {
        SCOPED_TRACE(testing::PrintToString(std::wstring(row.pattern)));
        EXPECT_TRUE(!row.matching || MatchesPattern(row.matching, row.pattern));
        EXPECT_FALSE(row.other && MatchesPattern(row.other, row.pattern));
    }
}

TEST(Pattern, ManyStarsEndInTime) {
    std::wstring pattern;
    for (int i = 0; i < 500; ++i)
        pattern += L"*a[a-z]";
    EXPECT_TRUE(MatchesPattern(std::wstring(5000, L'a'), pattern));
    EXPECT_FALSE(MatchesPattern(std::wstring(5000, L'a'), pattern + L"b"));
}

TEST(Pattern, TrimAtNul) {
    EXPECT_EQ(TrimAtNul(std::wstring_view(L"Title\0rest", 10)), L"Title");
    EXPECT_EQ(TrimAtNul(std::wstring_view(L"\0rest", 5)), L"");
    EXPECT_EQ(TrimAtNul(L"no end"), L"");
}
