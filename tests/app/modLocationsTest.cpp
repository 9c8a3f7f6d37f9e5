#include "app/modLocations.h"

#include "app/Files.h"
#include "tests/support/Scratch.h"

#include <gtest/gtest.h>

using namespace std::string_literals;

namespace {

std::wstring CurrentFolder() {
    wchar_t path[MAX_PATH] = L"";
    GetCurrentDirectoryW(MAX_PATH, path);
    return path;
}

} // namespace

TEST(Locations, SettingsPath) {
    const ScratchKey key;
    const ProgramLocations unmoved = FindLocations(key.Path());
    const std::wstring usual = unmoved.CommonAppDataPath + L"Varnel DNC\\Settings\\";
    const std::wstring current = CurrentFolder();
    EXPECT_EQ(unmoved.SettingsPath, usual);
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
        {L"Dnc", current + L"\\Dnc\\"}, // whatever folder is current later
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(Utf8(row.value.substr(0, 20)));
        SetRegText(HKEY_CURRENT_USER, key.Path() + L"\\Paths", L"SettingsPath", row.value);
        const ProgramLocations moved = FindLocations(key.Path());
        EXPECT_EQ(moved.SettingsPath, row.settings);
        EXPECT_EQ(moved.IniFile, row.settings + L"VarnelDnc.ini");
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
    EXPECT_EQ(ConfigurationFile(L"Mill 3"), locations.SettingsPath + L"Mill 3.DCP");
    for (const std::wstring& folder :
         {locations.LocalAppDataPath, locations.CommonAppDataPath, locations.MyDocumentsPath,
          locations.CommonDocumentsPath, locations.ProgramFilesPath}) {
        EXPECT_TRUE(FolderExists(folder)) << Utf8(folder);
        EXPECT_TRUE(folder.ends_with(L'\\') && !folder.ends_with(L"\\\\")) << Utf8(folder);
    }
}

TEST(Locations, TheIconFolderIsLookedForWhenItIsAskedFor) {
    const ScratchSuite suite;
    EXPECT_EQ(IconFolder(), suite.Path());
    CreateDirectoryW((suite.Path() + L"Icons").c_str(), nullptr);
    EXPECT_EQ(IconFolder(), suite.Path() + L"Icons\\");
}
