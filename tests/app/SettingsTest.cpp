#include "app/Settings.h"

#include "app/Suite.h"
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

// What a write tells, "" when it is done.
std::wstring Refusal(const std::wstring& file, const std::wstring& value) {
    try {
        WriteIniString(L"Key", value, file);
        return {};
    } catch (const win::AppError& error) {
        return error.Source() + L" " + std::to_wstring(error.Number()) + L" " + error.Description();
    }
}

} // namespace

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
        const ScratchFolder folder;
        const std::wstring file = folder.Path() + suite::kIniFile;
        EXPECT_EQ(ReadIniString(L"General", L"Key", L"-", file), L"-"); // no file yet
        WriteFileBytes(file, row.bytes);
        EXPECT_EQ(ReadIniString(L"General", L"Key", L"-", file), row.asIs);
        EXPECT_EQ(ReadProfileString(file, L"General", L"Key", L"-"), row.trimmed);
        EXPECT_EQ(FileBytes(file), row.bytes);
    }
}

// Far more than the suite's programs read back.
TEST(Settings, ReadingAWholeValue) {
    const ScratchFolder folder;
    const std::wstring file = folder.Path() + suite::kIniFile;
    for (const std::size_t length : {0U, 253U, 254U, 255U, 1022U, 1023U, 1024U, 2047U, 2048U, 20000U}) {
        WriteFileBytes(file, "[General]\r\nKey=" + std::string(length, 'x') + "\r\n");
        EXPECT_EQ(ReadWholeIniString(L"General", L"Key", file).size(), length);
    }
}

TEST(Settings, Writing) {
    const ScratchSuite suite;
    WriteIniString(L"Key", L"D\u00e4n");
    EXPECT_EQ(suite.Ini(), "[General]\r\nKey=D\xE4n\r\n");
    suite.Ini("[Install]\r\nKey=1\r\n[General]\r\nKey=1\r\nOther=2\r\n");
    WriteIniString(L"kEY", L"3");
    WriteIniString(L"New", L"4");
    FlushIni();
    EXPECT_EQ(suite.Ini(), "[Install]\r\nKey=1\r\n[General]\r\nKey=3\r\nOther=2\r\nNew=4\r\n");
}

TEST(Settings, RefusedWrites) {
    constexpr ULONGLONG kLarge = 1 << 20;
    const std::string before = "[General]\r\nKey=0\r\nOther=" + std::string(5000, 'o') + "\r\n";
    const ULONGLONG needed = before.size() + 8192;
    // clang-format off
    const struct {
        const char* what;
        Spoilt how;
        std::optional<ULONGLONG> freeBytes;
        std::size_t length;
        bool isRefused;
    } rows[] = {
        {"nothing in the way",     Spoilt::Not,      kLarge,     1,     false},
        {"a folder in its place",  Spoilt::Folder,   kLarge,     1,     true },
        {"locked",                 Spoilt::Locked,   kLarge,     1,     true },
        {"read-only",              Spoilt::ReadOnly, kLarge,     1,     true },
        {"just enough room",       Spoilt::Not,      needed,     1,     false},
        {"too little room",        Spoilt::Not,      needed - 1, 1,     true },
        {"more than 4 GB free",    Spoilt::Not,      1ULL << 32, 1,     false},
        {"room unknown",           Spoilt::Not,      {},         1,     false},
        {"the longest value",      Spoilt::Not,      kLarge,     32000, false},
        {"a longer value",         Spoilt::Not,      kLarge,     32001, true },
    };
    // clang-format on
    const ReplacedImport freeSpace("GetDiskFreeSpaceExW", reinterpret_cast<void*>(&FreeSpace));
    for (const auto& row : rows) {
        if (row.how == Spoilt::ReadOnly && !ReadOnlyStops()) continue;
        SCOPED_TRACE(row.what);
        const ScratchFolder folder;
        const std::wstring file = folder.Path() + suite::kIniFile;
        WriteFileBytes(file, before);
        freeBytes = row.freeBytes;
        const std::wstring told = L"VWizard 2001 Unable to write data to configuration file: \r\n" + file +
                                  L".\r\n\r\nFile may be READ ONLY or may be locked by another application.";
        {
            const auto lock = Spoil(file, row.how);
            EXPECT_EQ(Refusal(file, std::wstring(row.length, L'1')), row.isRefused ? told : L"");
        }
        if (row.how != Spoilt::Not) continue;
        EXPECT_EQ(FileBytes(file) == before, row.isRefused);
    }
}

// As the suite's other programs do while they write a key of theirs.
TEST(Settings, WritingBesideAnotherProgram) {
    const ScratchFolder folder;
    const std::wstring file = folder.Path() + suite::kIniFile;
    WriteFileBytes(file, "[General]\r\n");
    const win::UniqueFile other(CreateFileW(file.c_str(), GENERIC_READ | GENERIC_WRITE,
                                            FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING, 0,
                                            nullptr));
    ASSERT_TRUE(other);
    EXPECT_EQ(Refusal(file, L"1"), L"");
    EXPECT_EQ(ReadIniString(L"General", L"Key", L"", file), L"1");
}
