#include "app/modLocations.h"

#include "app/Files.h"
#include "tests/support/Scratch.h"

#include <gtest/gtest.h>

using namespace std::string_literals;

namespace {

constexpr wchar_t kKey[] = L"SOFTWARE\\Varnel\\Varnel DNC\\Paths";

std::wstring CurrentFolder() {
    wchar_t path[MAX_PATH] = L"";
    GetCurrentDirectoryW(MAX_PATH, path);
    return path;
}

} // namespace

// The prefix of the tests has no value of its own.
TEST(Locations, SettingsPath) {
    InitLocations();
    const std::wstring usual = locations.CommonAppDataPath + L"Varnel DNC\\Settings\\";
    const std::wstring current = CurrentFolder();
    EXPECT_EQ(locations.SettingsPath, usual);
    const struct {
        std::wstring value, settings;
    } rows[] = {
        {L"", usual},
        {L"D:\\Dnc", L"D:\\Dnc\\"},
        {L"C:\\", L"C:\\"},
        {L"\\\\server\\share\\Dnc", L"\\\\server\\share\\Dnc\\"},
        {L"D:\\D\u00e4n", L"D:\\D\u00e4n\\"},
        {L"..", current.substr(0, current.rfind(L'\\') + 1)},
        {L"\\Dnc", current.substr(0, 2) + L"\\Dnc\\"},
        {L"D:/Dnc", L"D:/Dnc\\"},
        {L"D:\\Dnc\0rest"s, L"D:\\Dnc\\"},
        {L"D:\\" + std::wstring(1100, L'x'), usual},
        {L"Dnc", current + L"\\Dnc\\"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(Utf8(row.value.substr(0, 20)));
        SetRegText(HKEY_CURRENT_USER, kKey, L"SettingsPath", row.value);
        InitLocations();
        EXPECT_EQ(locations.SettingsPath, row.settings);
        EXPECT_EQ(locations.IniFile, row.settings + L"VarnelDnc.ini");
        EXPECT_EQ(ConfigurationFile(L"Mill 3"), row.settings + L"Mill 3.DCP");
    }
    // The wizard makes the program's folder the current one later; the settings folder must not move with it.
    SetCurrentDirectoryW(L"C:\\");
    EXPECT_EQ(locations.IniFile, current + L"\\Dnc\\VarnelDnc.ini");
    SetCurrentDirectoryW(current.c_str());
    RegDeleteKeyValueW(HKEY_CURRENT_USER, kKey, L"SettingsPath");
    InitLocations();
}

TEST(Locations, Folders) {
    InitLocations();
    EXPECT_EQ(locations.AppPath, TestFolder());
    EXPECT_EQ(locations.ExeName, L"unit_tests");
    for (const std::wstring& folder : {locations.LocalAppDataPath, locations.CommonAppDataPath,
                                       locations.CommonDocumentsPath, locations.ProgramFilesPath}) {
        EXPECT_TRUE(FolderExists(folder)) << Utf8(folder);
        EXPECT_TRUE(folder.ends_with(L'\\') && !folder.ends_with(L"\\\\")) << Utf8(folder);
    }
    EXPECT_EQ(GetSpecialFolder(0x7777), L"");
}
