#include "app/modLocations.h"

#include "app/Files.h"
#include "tests/support/Scratch.h"

#include <gtest/gtest.h>

#include <set>

using namespace std::string_literals;

TEST(Locations, SettingsPath) {
    const ScratchKey key;
    const std::wstring usual = FindLocations(key.Path()).CommonAppDataPath + L"Varnel DNC\\Settings\\";
    wchar_t current[MAX_PATH] = L"";
    GetCurrentDirectoryW(MAX_PATH, current);
    const std::pair<std::wstring, std::wstring> rows[] = {
        {L"", usual},
        {L"D:\\D\u00e4n", L"D:\\D\u00e4n\\"},
        {L"C:\\", L"C:\\"},
        {L"\\\\server\\share\\Dnc", L"\\\\server\\share\\Dnc\\"},
        {L"\\Dnc", std::wstring(current, 2) + L"\\Dnc\\"},
        {L"D:/Dnc", L"D:/Dnc\\"},
        {L"D:\\Dnc\0rest"s, L"D:\\Dnc\\"},
        {L"D:\\" + std::wstring(1100, L'x'), usual},
        {L"Dnc", current + L"\\Dnc\\"s}, // whatever folder is current later
    };
    for (const auto& [value, settings] : rows) {
        SCOPED_TRACE(Utf8(value.substr(0, 20)));
        SetRegText(HKEY_CURRENT_USER, key.Path() + L"\\Paths", L"SettingsPath", value);
        const ProgramLocations moved = FindLocations(key.Path());
        EXPECT_EQ(moved.SettingsPath, settings);
        EXPECT_EQ(moved.IniFile, settings + L"VarnelDnc.ini");
    }
}

TEST(Locations, Folders) {
    InitLocations();
    EXPECT_EQ(locations.AppPath, TestFolder());
    EXPECT_EQ(locations.ProgramFolder, TestFolder());
    EXPECT_EQ(locations.SamplesPath, TestFolder() + L"Samples\\");
    EXPECT_EQ(locations.ExeName, L"unit_tests");
    EXPECT_EQ(locations.LogPath, locations.CommonAppDataPath + L"Varnel DNC\\Log\\");
    EXPECT_EQ(locations.TempPath, locations.LocalAppDataPath + L"Varnel DNC\\Temp\\");
    std::set<std::wstring> folders;
    for (const std::wstring& folder :
         {locations.LocalAppDataPath, locations.CommonAppDataPath, locations.MyDocumentsPath,
          locations.CommonDocumentsPath, locations.ProgramFilesPath})
        EXPECT_TRUE(FolderExists(folder) && folders.insert(folder).second) << Utf8(folder);
}

TEST(Locations, TheIconFolderIsLookedForWhenItIsAskedFor) {
    const ScratchSuite suite;
    EXPECT_EQ(IconFolder(), suite.Path());
    CreateDirectoryW((suite.Path() + L"Icons").c_str(), nullptr);
    EXPECT_EQ(IconFolder(), suite.Path() + L"Icons\\");
}
