#include "app/Numbers.h"

#include <gtest/gtest.h>

#include <limits>

TEST(Numbers, NumericValue) {
    using Limits = std::numeric_limits<std::int32_t>;
    // clang-format off
    const std::pair<std::wstring_view, std::int32_t> rows[] = {
        {L"", 0},    {L"abc", 0},  {L"16", 16}, {L"  16 x", 16},    {L"-3", -3}, {L"+7.9", 7}, {L"- 3", 0},
        {L"--3", 0}, {L"\t5", 0},  {L"007", 7}, {L"32768", 32768},  {L"-", 0},   {L"   ", 0},  {L"1e3", 1},
        {L"2147483648", Limits::max()}, {L"-2147483648", Limits::min()}, {L"-99999999999999999999999", Limits::min()},
    };
    // clang-format on
    for (const auto& [text, value] : rows)
        EXPECT_EQ(NumericValue(text), value) << testing::PrintToString(text);
}
