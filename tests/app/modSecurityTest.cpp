#include "app/modSecurity.h"

#include "app/Settings.h"
#include "tests/support/Scratch.h"

#include <gtest/gtest.h>

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
        const ScratchSuite suite;
        suite.Ini("[General]\r\nSecurity=1\r\n");
        const auto lock = Spoil(suite.Path().substr(0, suite.Path().size() - 1) + row.place, row.how);
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
    const std::pair<std::string, int> rows[] = {{"0", 0},   {"1", 1},  {"2", 2},    {"3", 3},
                                                {"7", 3},   {"4", 0},  {"", 0},     {"abc", 0},
                                                {"2 x", 2}, {"-1", 3}, {"65538", 2}};
    for (const auto& [value, switches] : rows) {
        const ScratchSuite suite;
        suite.Ini("[General]\r\nSecurity=" + value + "\r\n");
        TestConfigAccess();
        EXPECT_EQ(configAccess.SecurityEnabled + 2 * configAccess.SecurityRestrict, switches) << value;
        EXPECT_TRUE(configAccess.ConfigWritable);
    }
}
