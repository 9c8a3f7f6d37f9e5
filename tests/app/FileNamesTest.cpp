#include "app/FileNames.h"

#include <gtest/gtest.h>

TEST(FileNames, Checks) {
    // "i"nvalid, "r"eserved, "c"ontrol character, ends in a "d"ot
    // clang-format off
    const std::pair<std::wstring_view, std::string_view> rows[] = {
        {L"", ""},           {L"CNC 1", ""},      {L"..\\x", "i"},     {L"..", "d"},         {L"Mill.", "d"},
        {L"Mill\t", "c"},    {L"\x1f", "c"},      {L"\u007f", "c"},    {L"\u009f", "c"},     {L"M\u00fchle\u00a0", ""},
        {L"COM1", "r"},      {L"com0", "r"},      {L" COM1 .x", "r"},  {L"lpt9.a.b", "r"},   {L"Com1 mill", ""},
        {L"COM\u00b9", "r"}, {L"LPT\u00b2", "r"}, {L"lPt\u00b3.", "rd"},
        {L"COM10", ""},      {L"COM", ""},        {L"COMA", ""},       {L"x.COM1", ""},
        {L"Nul", "r"},       {L"con.txt", "r"},   {L"PRN", "r"},       {L"aux ", "r"},
        {L"CONIN$", "r"},    {L"conout$.x", "r"}, {L"CONIN", ""},
    };
    // clang-format on
    for (const auto& [name, expected] : rows) {
        std::string faults = IsValidName(name) ? "" : "i";
        if (IsReservedName(name)) faults += 'r';
        if (HasControlChar(name)) faults += 'c';
        if (EndsInDot(name)) faults += 'd';
        EXPECT_EQ(faults, expected) << testing::PrintToString(name);
    }
}

TEST(FileNames, CheckedExtension) {
    // clang-format off
    const std::pair<std::wstring_view, std::optional<std::wstring>> rows[] = {
        {L"", L""},      {L"  ", L""},  {L".", L""},      {L"nc", L"nc"}, {L" .NC ", L"NC"}, {L".MIN", L"MIN"},
        {L"Az9", L"Az9"}, {L"MINI", {}}, {L"..x", {}}, {L"a b", {}}, {L"a*", {}}, {L"\u00e4", {}}, {L"nc\t", {}},
    };
    // clang-format on
    for (const auto& [typed, result] : rows)
        EXPECT_EQ(CheckedExtension(typed), result) << testing::PrintToString(typed);
}
