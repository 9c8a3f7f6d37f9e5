#include "app/Registry.h"

#include "tests/support/Scratch.h"

#include <gtest/gtest.h>

using namespace std::string_literals;

TEST(Registry, TheReadersCutDifferently) {
    const struct {
        DWORD type;
        std::string bytes;
        std::wstring byLength, atNul;
    } rows[] = {
        {REG_SZ, "D:\\Dnc\0"s, L"D:\\Dnc", L"D:\\Dnc"},
        {REG_SZ, "ab\0cd\0"s, L"ab\0cd"s, L"ab"},
        {REG_SZ, ""s, L"", L""},
        {REG_SZ, " D\xE4n "s, L" D\u00e4n ", L" D\u00e4n "},
        {REG_DWORD, "AB\0\0"s, L"AB\0"s, L"AB"},
        {REG_SZ, std::string(1023, 'x') + '\0', std::wstring(1023, L'x'), std::wstring(1023, L'x')},
        {REG_SZ, std::string(1024, 'x') + '\0', L"default", L"default"},
    };
    const ScratchKey key;
    for (const auto& row : rows) {
        SCOPED_TRACE(row.bytes.substr(0, 20) + " as type " + std::to_string(row.type));
        key.Set("Value"s, row.type, row.bytes);
        EXPECT_EQ(ReadUserPathValue(L"Software", key.Path().substr(9), L"vALUE", L"default"), row.byLength);
        EXPECT_EQ(ReadRegString(HKEY_CURRENT_USER, key.Path(), L"Value", L"default"), row.atNul);
    }
    EXPECT_EQ(ReadUserPathValue(L"Software", key.Path().substr(9), L"Other", L"default"), L"default");
    EXPECT_EQ(ReadRegString(HKEY_LOCAL_MACHINE, key.Path(), L"Value", L"default"), L"default");
}

TEST(Registry, DeletingTellsTheResult) {
    const ScratchKey key;
    key.Set("Value"s, REG_SZ, "x");
    for (const wchar_t* result : {L"0", L"2"}) { // done, file not found
        EXPECT_EQ(DeleteRegValue(HKEY_CURRENT_USER, key.Path(), L"Value"), result);
        EXPECT_EQ(ReadRegString(HKEY_CURRENT_USER, key.Path(), L"Value", L"gone"), L"gone");
    }
    EXPECT_EQ(DeleteRegValue(HKEY_CURRENT_USER, key.Path() + L"\\No key", L"Other"), L"");
}
