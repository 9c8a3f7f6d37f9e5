#include "app/Settings.h"

#include "tests/support/Scratch.h"

#include <gtest/gtest.h>

TEST(Settings, Reading) {
    const std::wstring longest(254, L'x');
    const struct {
        std::string bytes;
        std::wstring asIs, trimmed; // of key "Key" in section "General"; "-" is the default
    } rows[] = {
        {"", L"-", L"-"},
        {"[Install]\r\nKey=1\r\n[General]\r\nOther=1\r\n", L"-", L"-"},
        {"[General]\r\nKey=\r\n", L"-", L"-"},
        {"[gENERAL]\r\nkEY=1\r\nKey=2\r\n[General]\r\nKey=3\r\n", L"1", L"1"},
        {"[General]\r\nKey =  5 \r\n", L"5", L"5"}, // the system's own stripping
        {"[General]\r\nKey=\"  5 \"\r\n", L"  5 ", L"5"},
        {"[General]\r\nKey=\"   \"\r\n", L"   ", L"-"},
        {"[General]\r\nKey=D\xE4n\r\n", L"D\u00e4n", L"D\u00e4n"},
        {"[General]\r\nKey=" + std::string(254, 'x') + "\r\n", longest, longest},
        {"[General]\r\nKey=" + std::string(300, 'x') + "\r\n", longest, longest},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.bytes.substr(0, 40));
        const ScratchSuite suite;
        EXPECT_EQ(ReadIniString(L"General", L"Key", L"-"), L"-"); // no file yet
        suite.Ini(row.bytes);
        EXPECT_EQ(ReadIniString(L"General", L"Key", L"-"), row.asIs);
        EXPECT_EQ(ReadProfileString(locations.IniFile, L"General", L"Key", L"-"), row.trimmed);
        EXPECT_EQ(suite.Ini(), row.bytes);
    }
}

// Far more than the suite's programs read back.
TEST(Settings, ReadingAWholeValue) {
    const ScratchSuite suite;
    for (const std::size_t length : {0U, 253U, 254U, 255U, 1022U, 1023U, 1024U, 2047U, 2048U, 20000U}) {
        suite.Ini("[General]\r\nKey=" + std::string(length, 'x') + "\r\n");
        EXPECT_EQ(ReadWholeIniString(L"General", L"Key").size(), length);
    }
}

TEST(Settings, Writing) {
    const ScratchSuite suite;
    WriteIniString(L"Key", L"D\u00e4n");
    EXPECT_EQ(suite.Ini(), "[General]\r\nKey=D\xE4n\r\n");
    suite.Ini("[Install]\r\nKey=1\r\n[General]\r\nKey=1\r\nOther=2\r\n");
    WriteIniString(L"kEY", L"3");
    EXPECT_TRUE(TryWriteIniString(L"New", L"4"));
    FlushIni();
    EXPECT_EQ(suite.Ini(), "[Install]\r\nKey=1\r\n[General]\r\nKey=3\r\nOther=2\r\nNew=4\r\n");
}

TEST(Settings, RefusedWrites) {
    for (const Spoilt how : {Spoilt::Folder, Spoilt::Locked, Spoilt::ReadOnly}) {
        if (how == Spoilt::ReadOnly && !ReadOnlyStops()) GTEST_SKIP() << "read-only does not stop this user";
        const ScratchSuite suite;
        suite.Ini("[General]\r\nKey=0\r\n");
        const auto lock = Spoil(locations.IniFile, how);
        EXPECT_FALSE(TryWriteIniString(L"Key", L"1"));
        try {
            WriteIniString(L"Key", L"1");
            FAIL() << "nothing was thrown";
        } catch (const win::AppError& error) {
            EXPECT_EQ(error.Number(), 2001);
            EXPECT_EQ(error.Source(), L"VWizard");
            EXPECT_EQ(error.Description(),
                      L"Unable to write data to configuration file: \r\n" + locations.IniFile +
                          L".\r\n\r\nFile may be READ ONLY or may be locked by another application.");
        }
    }
}
