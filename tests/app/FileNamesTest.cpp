#include "app/FileNames.h"

#include <gtest/gtest.h>

TEST(FileNames, Checks) {
    struct Row {
        std::wstring_view name;
        std::string_view faults; // "i"nvalid, "r"eserved, "c"ontrol character, ends in a "d"ot
    };
    // clang-format off
    const Row rows[] = {
        {L"", ""},          {L"CNC 1", ""},     {L"Mill:2", "i"},   {L"..\\x", "i"},   {L"..", "d"},
        {L"Mill.", "d"},    {L"Mill\t", "c"},   {L"\u007f", "c"},   {L"\u0085", "c"},  {L"M\u00fchle\u00a0", ""},
        {L"COM1", "r"},     {L"com0", "r"},     {L" COM1 .x", "r"}, {L"lpt9.a.b", "r"},
        {L"COM\u00b9", "r"}, {L"LPT\u00b2", "r"}, {L"lPt\u00b3.", "rd"},
        {L"COM10", ""},     {L"COM", ""},       {L"COMA", ""},      {L"Com1 mill", ""}, {L"x.COM1", ""},
        {L"Nul", "r"},      {L"con.txt", "r"},  {L"PRN", "r"},      {L"aux ", "r"},
        {L"CONIN$", "r"},   {L"conout$.x", "r"}, {L"CONIN", ""},
    };
    // clang-format on
    for (const Row& row : rows) {
        std::string faults = IsValidName(row.name) ? "" : "i";
        if (IsReservedName(row.name)) faults += 'r';
        if (HasControlChar(row.name)) faults += 'c';
        if (EndsInDot(row.name)) faults += 'd';
        EXPECT_EQ(faults, row.faults) << testing::PrintToString(row.name);
    }
}

TEST(FileNames, InvalidCharsAreTheseNine) {
    std::wstring found;
    for (wchar_t c = 0; c < 0xffff; ++c)
        if (IsInvalidChar(c)) found += c;
    EXPECT_EQ(found, L"\"*/:<>?\\|");
}

TEST(FileNames, CheckedExtension) {
    // clang-format off
    const std::pair<std::wstring_view, std::optional<std::wstring>> rows[] = {
        {L"", L""},      {L"  ", L""},  {L".", L""},      {L"nc", L"nc"}, {L" .NC ", L"NC"}, {L".MIN", L"MIN"},
        {L".tap", L"tap"}, {L"Az9", L"Az9"}, {L"MINI", {}}, {L"..x", {}}, {L"a b", {}}, {L"a*", {}}, {L"\u00e4", {}},
    };
    // clang-format on
    for (const auto& [typed, result] : rows)
        EXPECT_EQ(CheckedExtension(typed), result) << testing::PrintToString(typed);
}
