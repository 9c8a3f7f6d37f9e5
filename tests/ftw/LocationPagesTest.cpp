#include "app/Files.h"
#include "app/Settings.h"
#include "ftw/FtwPages.h"
#include "tests/support/DemoSuite.h"
#include "tests/support/Scratch.h"
#include "wizard/frmWizard.h"

#include <gtest/gtest.h>

namespace {

// Takes the two location pages by Next, as far as their leave actions go, and returns the boxes seen.
std::vector<Box> Commit(frmWizard& form, const std::wstring& typed, bool floppy) {
    ftwSession.location.floppy = floppy;
    form.PageNo = 9;
    form.ShowPage();
    form.pool.txtUserInput[0].Text(typed);
    return Answering({IDOK}, [&] {
        form.cmdNext_Click();
        form.cmdNext_Click();
    });
}

} // namespace

TEST(LocationPages, WhatIsWrittenAndCreated) {
    struct Row {
        const wchar_t* typed; // "?" stands for the scratch folder
        bool floppy;
        const wchar_t* stored;
        const wchar_t* created; // "" for nothing
    };
    // clang-format off
    constexpr Row kRows[] = {
        {L"",              true,  L"Computer;",       L""},
        {L"   ",           false, L"Computer;",       L""},
        {L" ?Cnc ",        false, L"?Cnc;",           L"?Cnc"},
        {L"?Cnc;",         true,  L"?Cnc;A:;",        L"?Cnc"},
        {L"?Cnc;Prog",     false, L"?Cnc;Prog;",      L""},
        {L"?None\\Cnc",    false, L"?None\\Cnc;",     L""}, // its parent is missing
        {L"?File",         false, L"?File;",          L""}, // a file of that name is there
        {L"?Drücken",      false, L"?Drücken;",       L"?Drücken"},
    };
    // clang-format on
    for (const Row& row : kRows) {
        SCOPED_TRACE(Utf8(row.typed));
        const ScratchSuite suite;
        const auto inSuite = [&](std::wstring text) {
            if (const auto mark = text.find(L'?'); mark != std::wstring::npos)
                text.replace(mark, 1, suite.Path());
            return text;
        };
        suite.Ini("");
        WriteFileBytes(suite.Path() + L"File", "x");
        const std::size_t files = FileNames(suite).size();
        frmWizard form(FtwBook(), true);
        FtwBook().load(form);
        EXPECT_TRUE(Commit(form, inSuite(row.typed), row.floppy).empty());
        EXPECT_EQ(form.PageNo, 11);
        EXPECT_EQ(ReadWholeIniString(L"General", L"TransmitRoot"), inSuite(row.stored));
        EXPECT_EQ(ftwSession.location.folders, inSuite(row.typed)); // shown again as typed
        EXPECT_EQ(ftwSession.location.floppy, row.floppy);
        EXPECT_EQ(FolderExists(inSuite(row.created)), *row.created != L'\0');
        EXPECT_EQ(FileNames(suite).size(), files + (*row.created ? 1 : 0));
    }
}

TEST(LocationPages, RefusedWriteIsToldAndTheFolderMadeAllTheSame) {
    const ScratchSuite suite;
    frmWizard form(FtwBook(), true);
    const std::wstring beginning = L"Unable to write data to configuration file: \r\n";

    suite.Ini("[General]\r\nTransmitRoot=Computer;\r\n");
    FtwBook().load(form);
    const std::wstring foreign = suite.Path() + L"\u6f22"; // in no Western code page
    auto boxes = Commit(form, foreign, false);
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_EQ(boxes[0].title, L"Varnel DNC Setup Wizard");
    EXPECT_TRUE(boxes[0].text.starts_with(beginning)) << Utf8(boxes[0].text);
    EXPECT_NE(boxes[0].text.find(L'\u6f22'), std::wstring::npos) << "names the character";
    EXPECT_EQ(form.PageNo, 11);
    EXPECT_EQ(ReadWholeIniString(L"General", L"TransmitRoot"), L"Computer;");
    EXPECT_TRUE(FolderExists(foreign));

    locations.IniFile = suite.Path() + L"None\\VarnelDnc.ini";
    boxes = Commit(form, suite.Path() + L"Cnc", false);
    ASSERT_FALSE(boxes.empty());
    EXPECT_EQ(boxes.back().text,
              beginning + locations.IniFile +
                  L".\r\n\r\nFile may be READ ONLY or may be locked by another application.");
    EXPECT_EQ(form.PageNo, 11);
    EXPECT_TRUE(FolderExists(suite.Path() + L"Cnc"));
}

// Whatever box 0 meant on the page before, what is remembered on leaving is the floppy flag itself.
TEST(LocationPages, FloppyIsNoOtherPagesCheckBox) {
    const ScratchSuite suite;
    frmWizard form(FtwBook(), true);
    FtwBook().load(form);
    form.pool.chkUserInput[0].Checked(true);
    Commit(form, suite.Path() + L"Cnc", false);
    EXPECT_EQ(ReadWholeIniString(L"General", L"TransmitRoot"), suite.Path() + L"Cnc;");
    EXPECT_FALSE(ftwSession.location.floppy);
}

TEST(LocationPages, SkipTakesNothing) {
    const ScratchSuite suite;
    frmWizard form(FtwBook(), true);
    FtwBook().load(form);
    form.SkipReminderShown = true;
    form.PageNo = 9;
    form.ShowPage();
    form.pool.txtUserInput[0].Text(L"D:\\Typed");
    form.cmdSkip_Click();
    EXPECT_EQ(form.PageNo, 11);
    EXPECT_EQ(ftwSession.location.folders, L"");
    EXPECT_EQ(ReadWholeIniString(L"General", L"TransmitRoot"), L"");
    form.cmdBack_Click();
    EXPECT_EQ(form.pool.txtUserInput[0].Text(), L"");
}
