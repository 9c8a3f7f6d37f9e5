#include "shell/modShellLink.h"

#include "app/StartUp.h"
#include "tests/support/DemoSuite.h"
#include "tests/support/FormUnderTest.h"
#include "tests/support/LinkFile.h"
#include "tests/support/Scratch.h"

#include <gtest/gtest.h>

namespace {

constexpr wchar_t kFileManager[] = L"Varnel DNC File Manager.lnk";
constexpr wchar_t kRemoteServer[] = L"Varnel DNC Remote Server.lnk";

using Names = std::vector<std::wstring>;

TEST(modShellLink, MakesAndDeletesTheShortcutsOfAPlace) {
    const ScratchSuite suite;
    const std::wstring place = suite.Path() + L"Parent\\Quick Launch\\";
    struct Row {
        bool create, remoteServer;
        Names files;
    };
    // clang-format off
    const Row rows[] = { // one after the other
        {false, true,  {}},
        {true,  false, {kFileManager}},
        {true,  true,  {kFileManager, kRemoteServer}},
        {false, false, {kRemoteServer}}, // not installed: left alone
        {true,  true,  {kFileManager, kRemoteServer}},
        {false, true,  {}},
    };
    // clang-format on
    const auto boxes = Answering({}, [&] {
        for (const Row& row : rows) {
            UpdateShortcutsIn(nullptr, place, row.create, row.remoteServer);
            EXPECT_EQ(FileNames(place), row.files);
        }
    });
    EXPECT_TRUE(boxes.empty());
}

TEST(modShellLink, PointsAtTheProgramsFolder) {
    const ScratchSuite suite;
    UpdateShortcutsIn(nullptr, suite.Path(), true, true);
    for (const auto& [file, program] :
         {std::pair(kFileManager, L"VFileMgr.EXE"), {kRemoteServer, L"VRemote.EXE"}}) {
        const LinkFile link = ParseLinkFile(FileBytes(suite.Path() + file));
        EXPECT_EQ(link.target, suite.Path() + program);
        EXPECT_EQ(link.workingFolder, suite.Path());
        EXPECT_EQ(link.arguments, L"");
        EXPECT_EQ(link.iconIndex, 0);
        EXPECT_EQ(link.showCommand, 5u);
    }
}

// A place that is no folder, a link that another program holds open: no word, and the other link is tried.
TEST(modShellLink, PassesOverWhatCannotBeDone) {
    const ScratchSuite suite;
    WriteFileBytes(suite.Path() + L"file", "");
    const auto boxes = Answering({}, [&] {
        UpdateShortcutsIn(nullptr, suite.Path() + L"file\\", true, true);
        UpdateShortcutsIn(nullptr, suite.Path(), true, true);
        const win::UniqueKernelHandle held(CreateFileW((suite.Path() + kFileManager).c_str(), GENERIC_READ, 0,
                                                       nullptr, OPEN_EXISTING, 0, nullptr));
        ASSERT_TRUE(held);
        UpdateShortcutsIn(nullptr, suite.Path(), false, true);
    });
    EXPECT_TRUE(boxes.empty());
    EXPECT_EQ(FileNames(suite.Path(), L"*.lnk"), Names{kFileManager});
}

TEST(modShellLink, KnowsWhetherTheRemoteServerIsInstalled) {
    const ScratchSuite suite;
    struct Row {
        std::string_view ini;
        bool installed;
    };
    // clang-format off
    const Row rows[] = {
        {"",                                             false},
        {"[Install]\r\nOptions=1\r\n",                   true },
        {"[Install]\r\nOptions=2\r\n[Options]\r\nInstall=1\r\n", false}, // the first decides
        {"[Install]\r\nOptions=\r\n[Options]\r\nInstall=3\r\n",  true },
        {"[Options]\r\nInstall=7\r\n",                   true },
        {"[Options]\r\nInstall=6\r\n",                   false},
        {"[Install]\r\nOptions=x1\r\n",                  false},
    };
    // clang-format on
    for (const Row& row : rows) {
        suite.Ini(row.ini);
        EXPECT_EQ(RemoteServerInstalled(), row.installed) << row.ini;
    }
}

TEST(modShellLink, ShowsApplicationIcons) {
    FormUnderTest wizard(kFirstTimeSetup);
    const auto shown = [&] {
        std::string icons;
        for (const auto& icon : wizard.form.picAppIcon)
            icons += icon.Visible() ? '1' : '0';
        return icons;
    };
    struct Row {
        std::int16_t mode;
        std::string_view icons;
    };
    for (const Row& row : {Row{2, "10000"}, {1, "11111"}, {2, "11111"}, {0, "00000"}, {0, "00000"}}) {
        ShowAppIcons(wizard.form, row.mode);
        EXPECT_EQ(shown(), row.icons) << row.mode;
    }
}

} // namespace
