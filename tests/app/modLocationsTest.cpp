#include "app/modLocations.h"

#include "app/Files.h"
#include "tests/support/DemoSuite.h"

#include <windows.h>

#include <gtest/gtest.h>

using namespace std::string_literals;

namespace {

constexpr wchar_t kKey[] = L"SOFTWARE\\Varnel\\Varnel DNC\\Paths";

// The prefix of the tests has no value of its own.
class Locations : public testing::Test {
  protected:
    Locations() { InitLocations(); }
    ~Locations() override {
        RegDeleteKeyValueW(HKEY_CURRENT_USER, kKey, L"SettingsPath");
        InitLocations();
    }
    static void Set(DWORD type, const std::wstring& value) {
        RegSetKeyValueW(HKEY_CURRENT_USER, kKey, L"SettingsPath", type, value.data(),
                        static_cast<DWORD>(value.size() * sizeof(wchar_t)));
    }
};

std::wstring CurrentFolder() {
    wchar_t path[MAX_PATH] = L"";
    GetCurrentDirectoryW(MAX_PATH, path);
    return path;
}

} // namespace

TEST_F(Locations, SettingsPath) {
    const std::wstring usual = locations.CommonAppDataPath + L"Varnel DNC\\Settings\\";
    const std::wstring current = CurrentFolder();
    EXPECT_EQ(locations.SettingsPath, usual);
    const struct {
        std::wstring value, settings;
    } rows[] = {
        {L"", usual},
        {L"D:\\Dnc", L"D:\\Dnc\\"},
        {L"D:\\Dnc\\", L"D:\\Dnc\\"},
        {L"C:\\", L"C:\\"},
        {L"\\\\server\\share\\Dnc", L"\\\\server\\share\\Dnc\\"},
        {L"D:\\D\u00e4n", L"D:\\D\u00e4n\\"},
        {L"Settings\\New", current + L"\\Settings\\New\\"},
        {L"..", current.substr(0, current.rfind(L'\\') + 1)},
        {L"\\Dnc", current.substr(0, 2) + L"\\Dnc\\"},
        {L"D:/Dnc", L"D:/Dnc\\"},
        {L"D:\\Dnc\0rest"s, L"D:\\Dnc\\"},
        {L"D:\\" + std::wstring(1100, L'x'), usual},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(Utf8(row.value.substr(0, 20)));
        Set(REG_SZ, row.value + L'\0');
        InitLocations();
        EXPECT_EQ(locations.SettingsPath, row.settings);
        EXPECT_EQ(locations.IniFile, row.settings + L"VarnelDnc.ini");
        EXPECT_EQ(ConfigurationFile(L"Mill 3"), row.settings + L"Mill 3.DCP");
    }
}

// The wizard makes the program's folder the current one later; the settings folder must not move with it.
TEST_F(Locations, ARelativePathIsResolvedOnce) {
    const std::wstring before = CurrentFolder();
    Set(REG_SZ, L"Dnc\0"s);
    InitLocations();
    SetCurrentDirectoryW(L"C:\\");
    EXPECT_EQ(locations.IniFile, before + L"\\Dnc\\VarnelDnc.ini");
    SetCurrentDirectoryW(before.c_str());
}

TEST_F(Locations, Folders) {
    wchar_t own[MAX_PATH] = L"";
    GetModuleFileNameW(nullptr, own, MAX_PATH);
    EXPECT_EQ(locations.AppPath + locations.ExeName + L".exe", own);
    EXPECT_EQ(&locations.AppPath, &locations.ProgramFolder);
    for (const std::wstring& folder :
         {locations.LocalAppDataPath, locations.CommonAppDataPath, locations.MyDocumentsPath,
          locations.CommonDocumentsPath, locations.ProgramFilesPath}) {
        EXPECT_TRUE(FolderExists(folder)) << Utf8(folder);
        EXPECT_TRUE(folder.ends_with(L'\\') && !folder.ends_with(L"\\\\")) << Utf8(folder);
    }
    EXPECT_EQ(locations.LogPath, locations.CommonAppDataPath + L"Varnel DNC\\Log\\");
    EXPECT_EQ(locations.TempPath, locations.LocalAppDataPath + L"Varnel DNC\\Temp\\");
    EXPECT_EQ(GetSpecialFolder(0x7777), L"");
}
