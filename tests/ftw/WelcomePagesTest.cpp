#include "ftw/FtwPages.h"
#include "tests/support/Scratch.h"
#include "wizard/frmWizard.h"

#include <gtest/gtest.h>

TEST(WelcomePages, KeepIsOfferedAfterPageFive) {
    struct Row {
        const char* progress; // null: no such key
        bool offered;
    };
    constexpr Row kRows[] = {
        {nullptr, false}, {"", false}, {"0", false},   {"5", false}, {"-6", false},
        {"abc", false},   {"6", true}, {" 17 ", true}, {"6x", true}, {"65541", true},
    };
    for (const Row& row : kRows) {
        SCOPED_TRACE(row.progress ? row.progress : "no key");
        const ScratchSuite suite;
        suite.Ini(row.progress ? "[General]\r\nFTSW_MaxProgress=" + std::string(row.progress) + "\r\n" : "");
        frmWizard form(FtwBook(), true);
        FtwBook().load(form);
        form.PageNo = 2;
        form.ShowPage();
        EXPECT_EQ(form.pool.optUserInput[1].Enabled(), row.offered);
        EXPECT_TRUE(form.pool.optUserInput[0].Checked());
        for (int i = 0; i < 3; ++i)
            EXPECT_EQ(form.pool.optUserInput[static_cast<std::size_t>(i)].Top().value,
                      form.picMain.Top().value + 2400 + (i - 2) * 240);
    }
}

// Far more than the suite's programs read back: a user who keeps his configuration loses nothing.
TEST(WelcomePages, KeepReadsTheWholeLocation) {
    for (const std::size_t length : {0U, 253U, 254U, 255U, 1022U, 1023U, 1024U, 2047U, 2048U, 20000U}) {
        SCOPED_TRACE(length);
        const std::string folders(length, 'x');
        const ScratchSuite suite;
        suite.Ini("[General]\r\nFTSW_MaxProgress=6\r\nTransmitRoot=" + folders + ";A:;\r\n");
        frmWizard form(FtwBook(), true);
        FtwBook().load(form);
        form.PageNo = 2;
        form.ShowPage();
        form.pool.optUserInput[0].Checked(false);
        form.pool.optUserInput[1].Checked(true);
        ChooseInstallType(form);
        EXPECT_EQ(form.PageNo, 3);
        EXPECT_TRUE(ftwSession.keepConfiguration);
        EXPECT_EQ(ftwSession.location.folders, std::wstring(length, L'x'));
        EXPECT_TRUE(ftwSession.location.floppy);

        form.PageNo = 9;
        form.ShowPage();
        EXPECT_EQ(form.pool.txtUserInput[0].Text().size(), length);
        const auto limit = form.pool.txtUserInput[0].Send(EM_GETLIMITTEXT);
        EXPECT_EQ(static_cast<std::size_t>(limit), std::max<std::size_t>(250, length));
    }
}
