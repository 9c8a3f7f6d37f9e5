// What becomes of a location that is typed or kept, from page 9 through page 10 into the settings file.

#include "app/StartUp.h"
#include "ftw/FtwPages.h"
#include "tests/support/FormUnderTest.h"
#include "tests/support/Imports.h"
#include "tests/support/Scratch.h"

#include <gtest/gtest.h>

namespace {

constexpr unsigned kJapanese = 932;

// The system's code page is another one.
struct JapaneseSystem {
    static inline decltype(&WideCharToMultiByte) toBytes;
    static int WINAPI ToBytes(UINT, DWORD flags, LPCWSTR wide, int length, LPSTR bytes, int size, LPCSTR,
                              LPBOOL) {
        return toBytes(kJapanese, flags, wide, length, bytes, size, nullptr, nullptr);
    }
    static inline decltype(&MultiByteToWideChar) toWide;
    static int WINAPI ToWide(UINT, DWORD flags, LPCSTR bytes, int size, LPWSTR wide, int length) {
        return toWide(kJapanese, flags, bytes, size, wide, length);
    }
    const ReplacedImport bytesImport{"WideCharToMultiByte", reinterpret_cast<void*>(&ToBytes)};
    const ReplacedImport wideImport{"MultiByteToWideChar", reinterpret_cast<void*>(&ToWide)};
    JapaneseSystem() {
        toBytes = bytesImport.Original<decltype(toBytes)>();
        toWide = wideImport.Original<decltype(toWide)>();
    }
};

const std::wstring kTooLong = L"The file location is too long";

TEST(LocationPages, WhatIsStored) {
    const std::wstring most = L"D:\\" + std::wstring(247, L'x');
    const struct {
        const char* what;
        std::wstring kept, typed;
        std::wstring shown, refused; // pieces of the page and of the box
        std::string stored;
    } rows[] = {
        {"the longest", L"", most, most, L"", "=D:\\" + std::string(247, 'x') + ";"},
        {"one more, not typed", L"", most + L"x", most, L"", "=D:\\" + std::string(248, 'x') + ";"},
        {"in quotation marks", L"", L"\"D:\\a b\"", L" D:\\a b", L"", "=D:\\a b;"},
        {"kept quotation marks", L"\"D:\\a\"", L"\"D:\\a\"", L" \"D:\\a\"", L"", "=\"D:\\a\";"},
        {"125 double bytes", L"", std::wstring(125, L'\x6A5F'), L"\x6A5F", L"", "=\x8B\x40\x8B\x40"},
        {"126 double bytes", L"", std::wstring(126, L'\x6A5F'), L"\x6A5F", kTooLong, "=old;"},
        {"kept 400 bytes", std::wstring(400, L'y'), std::wstring(400, L'y'), L"yyy", L"",
         std::string(400, 'y')},
        {"endless", L"", std::wstring(32500, L'<'), L"<<<\x2026\r", L"Unable to write", "=old;"},
    };
    const ScratchSuite suite;
    const JapaneseSystem japanese;
    FormUnderTest test(kFirstTimeSetup);
    frmWizard& form = test.form;
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        suite.Ini("[General]\r\nTransmitRoot=old;\r\n");
        ftwSession.location = {row.kept, false};
        test.Show(9);
        form.pool.chkUserInput[0].Checked(true); // as a page before may leave it
        form.pool.txtUserInput[0].Text(row.typed);
        LeaveFtwLocation(form, Move::Next);
        test.Show(10);
        EXPECT_NE(form.txtInfo.Text().find(row.shown), std::wstring::npos);
        EXPECT_LT(form.txtInfo.Text().size(), 2600u);
        const auto boxes = Answering({IDOK}, [&] { form.cmdNext_Click(); });
        EXPECT_EQ(boxes.size(), row.refused.empty() ? 0u : 1u);
        EXPECT_TRUE(boxes.empty() || boxes[0].find(row.refused) != std::wstring::npos);
        EXPECT_NE(suite.Ini().find(row.stored), std::string::npos) << suite.Ini().substr(0, 80);
        EXPECT_FALSE(ftwSession.location.floppy);
    }
}

TEST(LocationPages, NoDefaultFolderWithoutSharedDocuments) {
    const ScratchSuite suite; // puts the locations back
    FormUnderTest test(kFirstTimeSetup);
    for (const bool found : {true, false}) {
        ProgramLocations with = locations;
        with.CommonDocumentsPath = found ? L"C:\\Docs\\" : L"";
        UseLocations(with);
        test.Show(9);
        EXPECT_EQ(test.form.pool.lblHyperlink[1].Visible(), found);
    }
}

} // namespace
