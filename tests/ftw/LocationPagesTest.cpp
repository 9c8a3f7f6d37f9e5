// What becomes of a location that is typed or kept, from page 9 through page 10 into the settings file.

#include "app/StartUp.h"
#include "ftw/FtwPages.h"
#include "tests/support/FormUnderTest.h"
#include "tests/support/JapaneseSystem.h"
#include "tests/support/Scratch.h"

#include <gtest/gtest.h>

#include <shlobj.h>

namespace {

std::size_t flushes = 0;
decltype(&WritePrivateProfileStringA) systemWrite = nullptr;

BOOL WINAPI CountFlushes(LPCSTR section, LPCSTR key, LPCSTR value, LPCSTR file) {
    flushes += section == nullptr;
    return systemWrite(section, key, value, file);
}

UINT browseFlags = 0;
LPITEMIDLIST WINAPI ChooseDrive(LPBROWSEINFOW what) {
    LPITEMIDLIST drive = nullptr;
    browseFlags = what->ulFlags;
    SHParseDisplayName(L"C:\\", nullptr, &drive, 0, nullptr);
    return drive;
}

TEST(LocationPages, WhatIsStored) {
    const std::wstring most = L"D:\\" + std::wstring(247, L'x'), tooLong = L"The file location is too long";
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
        {"251 bytes", L"", std::wstring(125, L'\x6A5F') + L"x", L"\x6A5F", tooLong, "=old;"},
        {"kept 400 bytes", std::wstring(400, L'y'), L"", L"yyy", L"", std::string(400, 'y')},
        {"endless", std::wstring(32001, L'z'), L"", L"zzz\x2026\r", L"Unable to write", "=old;"},
    };
    const ScratchSuite suite;
    const JapaneseSystem japanese;
    const ReplacedImport write("WritePrivateProfileStringA", reinterpret_cast<void*>(&CountFlushes));
    systemWrite = write.Original<decltype(systemWrite)>();
    FormUnderTest test(kFirstTimeSetup);
    frmWizard& form = test.form;
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        suite.Ini("[General]\r\nTransmitRoot=old;\r\n");
        const bool floppy = &row == rows;
        ftwSession.location = {row.kept, floppy};
        if (!row.typed.empty()) {
            test.Show(9);
            form.pool.txtUserInput[0].Text(row.typed);
            LeaveFtwLocation(form, Move::Next);
        }
        form.pool.chkUserInput[0].Checked(!floppy); // as a page before may leave it
        test.Show(10);
        EXPECT_NE(form.txtInfo.Text().find(row.shown), std::wstring::npos);
        const auto boxes = Answering({IDOK}, [&] { form.cmdNext_Click(); });
        EXPECT_EQ(boxes.size(), row.refused.empty() ? 0u : 1u);
        EXPECT_TRUE(boxes.empty() || boxes[0].find(row.refused) != std::wstring::npos);
        EXPECT_NE(suite.Ini().find(row.stored), std::string::npos) << suite.Ini().substr(0, 80);
        EXPECT_EQ(ftwSession.location.floppy, floppy);
    }
    for (const wchar_t* documents : {L"C:\\Docs\\", L""}) { // of all users
        ProgramLocations with = locations;
        with.CommonDocumentsPath = documents;
        UseLocations(with);
        test.Show(9);
        EXPECT_EQ(form.pool.lblHyperlink[1].Visible(), *documents != 0) << "the default folder lies in them";
    }
    EXPECT_EQ(flushes, std::size(rows));
    const ReplacedImport browse("SHBrowseForFolderW", reinterpret_cast<void*>(&ChooseDrive));
    FtwHyperlink(form, 0);
    EXPECT_EQ(browseFlags, BIF_RETURNONLYFSDIRS | BIF_NEWDIALOGSTYLE | BIF_BROWSEINCLUDEFILES);
    EXPECT_EQ(form.pool.txtUserInput[0].Text(), L"C:\\");
}

} // namespace
