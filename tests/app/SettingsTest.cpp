#include "app/Settings.h"

#include "tests/support/Imports.h"
#include "tests/support/Scratch.h"

#include <gtest/gtest.h>

#include <optional>

namespace {

std::optional<ULONGLONG> freeBytes; // nothing: the system does not know

BOOL WINAPI FreeSpace(LPCWSTR, PULARGE_INTEGER free, PULARGE_INTEGER, PULARGE_INTEGER) {
    if (freeBytes) free->QuadPart = *freeBytes;
    return freeBytes.has_value();
}

// As the suite's other programs have it open while they write a key of theirs.
win::UniqueFile OpenedByOthers() {
    return win::UniqueFile(CreateFileW(locations.IniFile.c_str(), GENERIC_WRITE,
                                       FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING, 0,
                                       nullptr));
}

} // namespace

TEST(Settings, Reading) {
    const struct {
        std::string bytes;          // of section "General"
        std::wstring asIs, trimmed; // of key "Key"; "-" is the default
    } rows[] = {{"Other=1\r\n[Install]\r\nKey=1", L"-", L"-"},
                {"Key=", L"-", L"-"},
                {"kEY=1\r\nKey=2\r\n[General]\r\nKey=3", L"1", L"1"},
                {"Key =  5 ", L"5", L"5"}, // the system's own stripping
                {"Key=\"  5 \"", L"  5 ", L"5"},
                {"Key=\"   \"", L"   ", L"-"},
                {"Key=" + std::string(300, 'x'), std::wstring(254, L'x'), std::wstring(254, L'x')}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.bytes.substr(0, 40));
        const ScratchSuite suite;
        EXPECT_EQ(ReadIniString(L"General", L"Key", L"-"), L"-"); // no file yet
        suite.Ini("[gENERAL]\r\n" + row.bytes + "\r\n");
        EXPECT_EQ(ReadIniString(L"General", L"Key", L"-"), row.asIs);
        EXPECT_EQ(ReadProfileString(locations.IniFile, L"General", L"Key", L"-"), row.trimmed);
    }
    const ScratchSuite suite; // a whole value, of which the suite's programs read far less
    for (const std::size_t length : {0U, 255U, 1022U, 1023U, 1024U, 2047U, 2048U, 20000U}) {
        suite.Ini("[General]\r\nKey=" + std::string(length, 'x') + "\r\n");
        EXPECT_EQ(ReadWholeIniString(L"General", L"Key").size(), length);
    }
}

TEST(Settings, Writing) {
    const ScratchSuite suite;
    suite.Ini("[Install]\r\nKey=1\r\n[General]\r\nKey=1\r\nOther=2\r\n");
    WriteIniString(L"kEY", L"D\u00e4n");
    WriteIniString(L"New", L"4");
    EXPECT_EQ(suite.Ini(), "[Install]\r\nKey=1\r\n[General]\r\nKey=D\xE4n\r\nOther=2\r\nNew=4\r\n");
}

TEST(Settings, RefusedWrites) {
    const std::string before = "[General]\r\nKey=0\r\nOther=" + std::string(5000, 'o') + "\r\n";
    const ULONGLONG needed = before.size() + 8192, large = 1ULL << 32;
    // clang-format off
    const struct {
        const char* what;
        Spoilt how;
        std::optional<ULONGLONG> freeBytes;
        std::size_t length;
        bool isRefused;
    } rows[] = {
        {"a folder in its place",  Spoilt::Folder,   large,      1,     true },
        {"locked",                 Spoilt::Locked,   large,      1,     true },
        {"just enough room",       Spoilt::Not,      needed,     1,     false},
        {"too little room",        Spoilt::Not,      needed - 1, 1,     true },
        {"room unknown",           Spoilt::Not,      {},         1,     false},
        {"the longest value",      Spoilt::Not,      large,      32000, false},
        {"a longer value",         Spoilt::Not,      large,      32001, true },
    };
    // clang-format on
    const ReplacedImport freeSpace("GetDiskFreeSpaceExW", reinterpret_cast<void*>(&FreeSpace));
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        const ScratchSuite suite;
        suite.Ini(before);
        freeBytes = row.freeBytes;
        const auto lock = Spoil(locations.IniFile, row.how);
        const auto shared = row.how == Spoilt::Not ? OpenedByOthers() : win::UniqueFile();
        std::wstring told;
        try {
            WriteIniString(L"Key", std::wstring(row.length, L'1'));
        } catch (const win::AppError& error) {
            told = error.Source() + std::to_wstring(error.Number()) + error.Description();
        }
        EXPECT_EQ(told, row.isRefused ? L"VWizard2001" + IniWriteError().Description() : L"");
        EXPECT_TRUE(!shared || (suite.Ini() == before) == row.isRefused);
    }
}
