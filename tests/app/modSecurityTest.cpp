#include "app/modSecurity.h"

#include "app/Settings.h"
#include "tests/support/DemoSuite.h"
#include "tests/support/Scratch.h"
#include "win/Handles.h"

#include <gtest/gtest.h>

namespace {

using Lock = win::UniqueKernelHandle;

std::wstring Probe() { return locations.SettingsPath + L"VAccessTest.txt"; }

Lock Locked(const std::wstring& path) {
    return Lock(CreateFileW(path.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr));
}

} // namespace

TEST(Security, Codes) {
    struct Row {
        const char* what;
        Lock (*prepare)();
        int code, error;
    };
    const Row rows[] = {
        {"all well", [] { return Lock(); }, 0, 0},
        {"old probe file",
         [] {
             WriteFileBytes(Probe(), "something much longer than the probe itself");
             return Lock();
         },
         0, 0},
        {"no folder",
         [] {
             locations.SettingsPath += L"missing\\";
             return Lock();
         },
         1, ERROR_FILE_NOT_FOUND},
        {"folder below a file",
         [] {
             locations.SettingsPath = locations.IniFile + L"\\";
             return Lock();
         },
         1, ERROR_PATH_NOT_FOUND},
        {"folder in place of the probe",
         [] {
             CreateDirectoryW(Probe().c_str(), nullptr);
             return Lock();
         },
         3, ERROR_ACCESS_DENIED},
        {"probe locked",
         [] {
             WriteFileBytes(Probe(), "x");
             return Locked(Probe());
         },
         3, ERROR_SHARING_VIOLATION},
        {"no settings file",
         [] {
             DeleteFileW(locations.IniFile.c_str());
             return Lock();
         },
         10, ERROR_FILE_NOT_FOUND},
        {"folder in place of the settings file",
         [] {
             DeleteFileW(locations.IniFile.c_str());
             CreateDirectoryW(locations.IniFile.c_str(), nullptr);
             return Lock();
         },
         10, 0},
        {"settings file read-only",
         [] {
             SetFileAttributesW(locations.IniFile.c_str(), FILE_ATTRIBUTE_READONLY);
             return Lock();
         },
         11, 0},
        {"settings file locked", [] { return Locked(locations.IniFile); }, 12, ERROR_SHARING_VIOLATION},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        const ScratchSuite suite;
        suite.Ini("[General]\r\nSecurity=1\r\n");
        const Lock lock = row.prepare();
        EXPECT_EQ(TestConfigAccess(), row.code);
        EXPECT_EQ(configAccess.ConfigWritable, row.code == 0);
        EXPECT_EQ(configAccess.AccessError, row.error);
        EXPECT_TRUE(configAccess.IsAdmin); // as every user of Wine
    }
}

TEST(Security, ASuccessLeavesItsKeyAndNoProbe) {
    const ScratchSuite suite;
    suite.Ini("[General]\r\nSecurity=0\r\n");
    std::wstring last;
    for (int i = 0; i < 2; ++i) {
        EXPECT_EQ(TestConfigAccess(), 0);
        const std::wstring text = ReadIniString(L"General", L"AccessTest", L"");
        EXPECT_NE(text, last);
        last = text;
        Sleep(20);
    }
    EXPECT_EQ(FileNames(suite), std::vector<std::wstring>{kIniName});
}

TEST(Security, Switches) {
    const struct {
        const char* value;
        bool restrict, enabled;
    } rows[] = {{"0", false, false},  {"1", false, true},  {"2", true, false},    {"3", true, true},
                {"7", true, true},    {"4", false, false}, {"abc", false, false}, {"", false, false},
                {"2 x", true, false}, {"-1", true, true},  {"65538", true, false}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.value);
        const ScratchSuite suite;
        suite.Ini("[General]\r\nSecurity=" + std::string(row.value) + "\r\n");
        TestConfigAccess();
        EXPECT_EQ(configAccess.SecurityRestrict, row.restrict);
        EXPECT_EQ(configAccess.SecurityEnabled, row.enabled);
        EXPECT_TRUE(configAccess.ConfigWritable);
    }
}
