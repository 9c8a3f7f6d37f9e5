#include "app/modSecurity.h"

#include "app/Settings.h"
#include "app/Suite.h"
#include "tests/support/Imports.h"
#include "tests/support/Scratch.h"

#include <gtest/gtest.h>

#include <thread>

TEST(Security, Codes) {
    constexpr const wchar_t *kFolder = L"", *kProbe = L"\\VAccessTest.txt", *kIni = L"\\VarnelDnc.ini";
    // clang-format off
    const struct {
        const wchar_t* place;
        Spoilt how;
        int code, error;
    } rows[] = {
        {kFolder, Spoilt::Not,      0,  0                      },
        {kProbe,  Spoilt::File,     0,  0                      }, // left by an earlier run
        {kFolder, Spoilt::Missing,  1,  ERROR_FILE_NOT_FOUND   },
        {kFolder, Spoilt::File,     1,  ERROR_PATH_NOT_FOUND   },
        {kProbe,  Spoilt::Folder,   3,  ERROR_ACCESS_DENIED    },
        {kProbe,  Spoilt::Locked,   3,  ERROR_SHARING_VIOLATION},
        {kIni,    Spoilt::Missing,  10, ERROR_FILE_NOT_FOUND   },
        {kIni,    Spoilt::Folder,   10, 0                      },
        {kIni,    Spoilt::ReadOnly, 11, 0                      },
        {kIni,    Spoilt::Locked,   12, ERROR_SHARING_VIOLATION},
    };
    // clang-format on
    for (const auto& row : rows) {
        SCOPED_TRACE(Utf8(row.place) + " as " + std::to_string(static_cast<int>(row.how)));
        const ScratchFolder folder;
        WriteFileBytes(folder.Path() + suite::kIniFile, "[General]\r\nSecurity=1\r\n");
        const auto lock = Spoil(folder.Path().substr(0, folder.Path().size() - 1) + row.place, row.how);
        const ConfigAccess access = FindConfigAccess(folder);
        EXPECT_EQ(access.Code, row.code);
        EXPECT_EQ(access.ConfigWritable, row.code == 0);
        EXPECT_EQ(access.AccessError, row.error);
        EXPECT_TRUE(access.IsAdmin); // as every user of Wine
    }
}

TEST(Security, OthersMayHaveTheProbeOpen) {
    constexpr DWORD kReadWrite = FILE_SHARE_READ | FILE_SHARE_WRITE;
    const struct {
        DWORD share, held_ms;
        int code;
    } rows[] = {
        {kReadWrite | FILE_SHARE_DELETE, 700, 0},
        {FILE_SHARE_READ, 150, 0},
        {kReadWrite, 150, 0}, // only the delete has to wait
        {0, 2000, 3},
    };
    const ScratchFolder folder;
    for (const auto& row : rows) {
        win::UniqueFile other(CreateFileW((folder.Path() + suite::kProbeFile).c_str(), GENERIC_READ,
                                          row.share, nullptr, OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr));
        const std::jthread holder([&] {
            Sleep(row.held_ms);
            other = {};
        });
        EXPECT_EQ(TestFolderWrite(folder), row.code) << "shared as " << row.share;
    }
}

namespace {

int undone = 0; // so many writes that another program undoes
decltype(&WritePrivateProfileStringA) systemWrite = nullptr;

BOOL WINAPI WriteUnlessUndone(LPCSTR section, LPCSTR key, LPCSTR value, LPCSTR file) {
    return undone-- > 0 || systemWrite(section, key, value, file);
}

} // namespace

TEST(Security, AnotherProgramMayWriteTheSettingsMeanwhile) {
    const ReplacedImport import("WritePrivateProfileStringA", reinterpret_cast<void*>(&WriteUnlessUndone));
    systemWrite = import.Original<decltype(systemWrite)>();
    for (const auto& [times, code] : {std::pair(1, 0), std::pair(1'000'000, 13)}) {
        const ScratchFolder folder;
        WriteFileBytes(folder.Path() + suite::kIniFile, "[General]\r\n");
        undone = times;
        EXPECT_EQ(FindConfigAccess(folder).Code, code);
    }
    undone = 0;
}

TEST(Security, ASuccessLeavesItsKeyAndNoProbe) {
    const ScratchSuite suite;
    suite.Ini("[General]\r\nSecurity=0\r\n");
    std::wstring last;
    for (int i = 0; i < 2; ++i) {
        EXPECT_EQ(TestConfigAccess(), 0);
        EXPECT_TRUE(configAccess.ConfigWritable);
        const std::wstring text = ReadIniString(L"General", L"AccessTest", L"");
        EXPECT_NE(text, last);
        last = text;
        Sleep(20);
    }
    EXPECT_EQ(FileNames(suite), std::vector<std::wstring>{suite::kIniFile});
}

TEST(Security, Switches) {
    const std::pair<std::string, int> rows[] = {{"0", 0},   {"1", 1},  {"2", 2},    {"3", 3},
                                                {"7", 3},   {"4", 0},  {"", 0},     {"abc", 0},
                                                {"2 x", 2}, {"-1", 3}, {"65538", 2}};
    for (const auto& [value, switches] : rows) {
        const ScratchFolder folder;
        WriteFileBytes(folder.Path() + suite::kIniFile, "[General]\r\nSecurity=" + value + "\r\n");
        const ConfigAccess access = FindConfigAccess(folder);
        EXPECT_EQ(access.SecurityEnabled + 2 * access.SecurityRestrict, switches) << value;
        EXPECT_TRUE(access.ConfigWritable);
    }
}
