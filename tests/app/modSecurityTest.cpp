#include "app/modSecurity.h"

#include "app/Settings.h"
#include "tests/support/DemoSuite.h"
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
