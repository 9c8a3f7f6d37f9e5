#include "app/Settings.h"

#include "tests/support/DemoSuite.h"
#include "tests/support/Scratch.h"

#include <gtest/gtest.h>

TEST(Settings, Reading) {
    const struct {
        std::string bytes;
        std::wstring asIs, trimmed; // of key "Key" in section "General"; "-" is the default
    } rows[] = {
        {"", L"-", L"-"},
        {"[General]\r\nOther=1\r\n", L"-", L"-"},
        {"[Install]\r\nKey=1\r\n", L"-", L"-"},
        {"[General]\r\nKey=\r\n", L"-", L"-"},
        {"[General]\r\nKey=1\r\n", L"1", L"1"},
        {"[gENERAL]\r\nkEY=1\r\nKey=2\r\n[General]\r\nKey=3\r\n", L"1", L"1"},
        {"[General]\r\nKey =  5 \r\n", L"5", L"5"}, // the system's own stripping
        {"[General]\r\nKey=\"  5 \"\r\n", L"  5 ", L"5"},
        {"[General]\r\nKey=\"   \"\r\n", L"   ", L"-"},
        {"[General]\r\nKey=D\xE4n\r\n", L"D\u00e4n", L"D\u00e4n"},
        {"[General]\r\nKey=" + std::string(254, 'x') + "\r\n", std::wstring(254, L'x'),
         std::wstring(254, L'x')},
        {"[General]\r\nKey=" + std::string(300, 'x') + "\r\n", std::wstring(254, L'x'),
         std::wstring(254, L'x')},
    };
    EXPECT_EQ(ReadIniString(L"General", L"Key", L"-"), L"-");
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

TEST(Settings, Writing) {
    const ScratchSuite suite;
    WriteIniString(L"Key", L"D\u00e4n");
    EXPECT_EQ(suite.Ini(), "[General]\r\nKey=D\xE4n\r\n");
    suite.Ini("[Install]\r\nOptions=1\r\n[General]\r\nKey=1\r\nOther=2\r\n");
    WriteIniString(L"kEY", L"3");
    EXPECT_TRUE(TryWriteIniString(L"New", L"4"));
    FlushIni();
    EXPECT_EQ(ReadIniString(L"Install", L"Options", L"-"), L"1");
    for (const auto& [key, value] : {std::pair(L"Key", L"3"), {L"Other", L"2"}, {L"New", L"4"}})
        EXPECT_EQ(ReadIniString(L"General", key, L"-"), value);
}

namespace {

void ExpectRefused() {
    const std::wstring text = L"Unable to write data to configuration file: \r\n" + locations.IniFile +
                              L".\r\n\r\nFile may be READ ONLY or may be locked by another application.";
    EXPECT_FALSE(TryWriteIniString(L"Key", L"1"));
    try {
        WriteIniString(L"Key", L"1");
        FAIL() << "nothing was thrown";
    } catch (const win::AppError& error) {
        EXPECT_EQ(error.Number(), 2001);
        EXPECT_EQ(error.Source(), L"VWizard");
        EXPECT_EQ(error.Description(), text);
    }
}

} // namespace

TEST(Settings, RefusedWrites) {
    const std::string bytes = "[General]\r\nKey=0\r\n";
    for (const Spoilt how : {Spoilt::Folder, Spoilt::Locked}) {
        const ScratchSuite suite;
        suite.Ini(bytes);
        const auto lock = Spoil(locations.IniFile, how);
        ExpectRefused();
    }
    const ScratchSuite suite;
    suite.Ini(bytes);
    if (!ReadOnlyStops()) GTEST_SKIP() << "the read-only attribute does not stop this user";
    Spoil(locations.IniFile, Spoilt::ReadOnly);
    ExpectRefused();
    EXPECT_EQ(suite.Ini(), bytes);
}
