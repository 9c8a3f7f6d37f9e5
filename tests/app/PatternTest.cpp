#include "app/Pattern.h"

#include <gtest/gtest.h>

TEST(Pattern, Matches) {
    struct Row {
        std::wstring_view text;
        std::wstring_view pattern;
        bool matches;
    };
    // clang-format off
    const Row rows[] = {
        {L"",            L"",               true },
        {L"",            L"***",            true },
        {L"a",           L"",               false},
        {L"",            L"?",              false},
        {L"Varnel DNC",  L"Varnel DNC",     true },
        {L"varnel DNC",  L"Varnel DNC",     false},
        {L"Varnel DNC ", L"Varnel DNC",     false},
        {L"abcbc",       L"a*bc",           true },
        {L"abcbd",       L"a*bc",           false},
        {L"aXbYbZc",     L"a*b*b?c",        true },
        {L"anything",    L"*",              true },
        {L"a7",          L"a#",             true },
        {L"a\u0663",     L"a#",             false},
        {L"#",           L"#",              false},
        {L"*",           L"[*]",            true },
        {L"x",           L"[*?#]",          false},
        {L"m",           L"[a-kx-z]",       false},
        {L"y",           L"[a-kx-z]",       true },
        {L"m",           L"[!a-k]",         true },
        {L"c",           L"[!a-k]",         false},
        {L"",            L"[!a]",           false},
        {L"-",           L"[a-z]",          false},
        {L"-",           L"[-a]",           true },
        {L"-",           L"[a-]",           true },
        {L"-",           L"[!-]",           false},
        {L"!",           L"[a!]",           true },
        {L"!",           L"[!]",            true },
        {L"b",           L"[!]",            false},
        {L"ab",          L"a[]b[]",         true },
        {L"a]!",         L"a]!",            true },
        {L"[",           L"[[]",            true },
        {L"[a",          L"[a",             false},
        {L"aaa",         L"*[",             false},
        {L"m",           L"[z-a]",          false},
        {L"m",           L"[!z-a]",         false},
        {L"z",           L"[zz-a]",         false},
    };
    // clang-format on
    for (const Row& row : rows) {
        EXPECT_EQ(MatchesPattern(row.text, row.pattern), row.matches)
            << testing::PrintToString(row.text) << " against " << testing::PrintToString(row.pattern);
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
    EXPECT_EQ(TrimAtNul(L""), L"");
}
