#include "app/modSecurity.h"

#include "app/Settings.h"
#include "app/Suite.h"
#include "tests/support/Imports.h"
#include "tests/support/Scratch.h"

#include <gtest/gtest.h>

namespace {

int undone = 0; // so many writes that another program undoes
decltype(&WritePrivateProfileStringA) systemWrite = nullptr;

BOOL WINAPI WriteUnlessUndone(LPCSTR section, LPCSTR key, LPCSTR value, LPCSTR file) {
    return undone-- > 0 || systemWrite(section, key, value, file);
}

win::UniqueFile probe; // as another program has it open
int pauses;
void WINAPI Pause(DWORD) {
    if (++pauses == 3) probe = {};
}

} // namespace

TEST(Security, Codes) {
    constexpr const wchar_t *kFolder = L"", *kProbe = L"\\VAccessTest.txt", *kIni = L"\\VarnelDnc.ini";
    constexpr int kAlways = 1'000'000;
    // clang-format off
    const struct {
        const wchar_t* place;
        Spoilt how;
        int undone, code, error;
    } rows[] = {
        {kProbe,  Spoilt::File,     0,       0,  0                      }, // left by an earlier run
        {kFolder, Spoilt::Missing,  0,       1,  ERROR_FILE_NOT_FOUND   },
        {kProbe,  Spoilt::Folder,   0,       3,  ERROR_ACCESS_DENIED    },
        {kProbe,  Spoilt::Locked,   0,       3,  ERROR_SHARING_VIOLATION},
        {kIni,    Spoilt::Missing,  0,       10, ERROR_FILE_NOT_FOUND   },
        {kIni,    Spoilt::ReadOnly, 0,       11, 0                      },
        {kIni,    Spoilt::Locked,   0,       12, ERROR_SHARING_VIOLATION},
        {kIni,    Spoilt::Not,      1,       0,  0                      },
        {kIni,    Spoilt::Not,      kAlways, 13, 0                      },
    };
    // clang-format on
    const ReplacedImport write("WritePrivateProfileStringA", reinterpret_cast<void*>(&WriteUnlessUndone));
    systemWrite = write.Original<decltype(systemWrite)>();
    for (const auto& row : rows) {
        SCOPED_TRACE(Utf8(row.place) + " as " + std::to_string(static_cast<int>(row.how)));
        const ScratchSuite suite;
        suite.Ini("[General]\r\nAccessTest=old\r\n");
        const auto lock = Spoil(suite.Path().substr(0, suite.Path().size() - 1) + row.place, row.how);
        undone = row.undone;
        EXPECT_EQ(TestConfigAccess(), row.code);
        undone = 0;
        EXPECT_EQ(configAccess.ConfigWritable, row.code == 0);
        EXPECT_EQ(configAccess.AccessError, row.error);
        if (row.code) continue;
        EXPECT_NE(ReadIniString(L"General", L"AccessTest", L"old"), L"old");
        EXPECT_EQ(FileNames(suite), std::vector<std::wstring>{suite::kIniFile}) << "no probe is left";
    }
}

TEST(Security, OthersMayHaveTheProbeOpen) {
    constexpr DWORD kReadWrite = FILE_SHARE_READ | FILE_SHARE_WRITE;
    const struct {
        DWORD access, share;
        int pauses;
    } rows[] = {
        {GENERIC_READ | DELETE, kReadWrite | FILE_SHARE_DELETE, 0},
        {GENERIC_READ, FILE_SHARE_READ, 3},
        {GENERIC_READ, kReadWrite, 3}, // only the delete has to wait
    };
    const ScratchFolder folder;
    const ReplacedImport pause("Sleep", reinterpret_cast<void*>(&Pause));
    for (const auto& row : rows) {
        pauses = 0;
        probe = win::UniqueFile(CreateFileW((folder.Path() + suite::kProbeFile).c_str(), row.access,
                                            row.share, nullptr, OPEN_ALWAYS, 0, nullptr));
        EXPECT_EQ(TestFolderWrite(folder), 0) << "shared as " << row.share;
        EXPECT_EQ(pauses, row.pauses);
        probe = {};
    }
}

TEST(Security, Switches) {
    const ScratchSuite suite;
    for (const auto& [value, bits] : {std::pair("0", 0), {"1", 1}, {"2", 2}, {"7 x", 3}, {"65538", 2}}) {
        suite.Ini(std::string("[General]\r\nSecurity=") + value + "\r\n");
        const ConfigAccess access = FindConfigAccess(suite);
        EXPECT_EQ(access.SecurityEnabled + 2 * access.SecurityRestrict, bits) << value;
    }
}
