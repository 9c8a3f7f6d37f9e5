#include "shell/cShellLink.h"

#include "app/Files.h"
#include "shell/modShellLink.h"
#include "tests/support/Imports.h"
#include "tests/support/Scratch.h"

#include <gtest/gtest.h>

#include <shellapi.h>

namespace {

bool Create(const std::wstring& link, const std::wstring& to) {
    return cShellLink().CreateShellLink(link, to, L"", L"", L"", 0, SW_SHOW);
}

WORD deleteFlags = 0;
int WINAPI Operate(LPSHFILEOPSTRUCTW what) { return deleteFlags = what->fFlags, 1; }

TEST(cShellLink, ReadsBackWhatItWrote) {
    constexpr std::size_t kShowCommandAt = 0x3C; // some versions do not read it back
    const ShellLinkInfo rows[] = {
        // the target in the scratch folder
        {L"VFileMgr.EXE", L"", L"", L"", 0, L"", 0, SW_SHOW},
        {L"M\x00FChle 1.exe", L"C:\\\x00C4 b", L"/A \"\x00FC c\"", L"", 0, L"C:\\\x00DF.ico", -2,
         SW_SHOWMAXIMIZED},
    };
    const ScratchFolder folder;
    const std::wstring file = folder.Path() + L"Varnel \x0416.lnk"; // the name alone may be foreign
    for (const ShellLinkInfo& row : rows) {
        const std::wstring target = folder.Path() + row.target;
        WriteFileBytes(target, "MZ");
        ASSERT_TRUE(cShellLink().CreateShellLink(file, target, row.workingFolder, row.arguments, row.iconFile,
                                                 row.iconIndex, row.showCommand));
        const ShellLinkInfo info = cShellLink().GetShellLinkInfo(file).value();
        EXPECT_EQ(info.target + L"|" + info.workingFolder + L"|" + info.arguments + L"|" + info.description,
                  target + L"|" + row.workingFolder + L"|" + row.arguments + L"|");
        EXPECT_TRUE(info.iconIndex == row.iconIndex && info.hotKey == 0);
        EXPECT_TRUE(row.iconFile.empty() || info.iconFile == row.iconFile);
        EXPECT_EQ(FileBytes(file).at(kShowCommandAt), row.showCommand);
    }
}

// A place that is no folder, a link that another program holds open: no word, and the other link is tried.
TEST(cShellLink, RefusesWithoutAWord) {
    const ScratchSuite suite;
    const std::wstring file = suite.Path() + L"a.lnk", managers = L"Varnel DNC File Manager.lnk";
    const auto boxes = Answering({}, [&] {
        EXPECT_FALSE(Create(file, L"") || Create(L"", file));
        EXPECT_FALSE(Create(suite.Path() + L"no such folder\\a.lnk", file));
        EXPECT_FALSE(Create(file, suite.Path() + L"\x0100.exe")) << "the code page has only an A";
        EXPECT_FALSE(FileExists(file));
        EXPECT_FALSE(cShellLink().GetShellLinkInfo(L"") || cShellLink().GetShellLinkInfo(file));
        WriteFileBytes(file, "no link");
        UpdateShortcutsIn(nullptr, file + L"\\", true, true);
        UpdateShortcutsIn(nullptr, suite.Path() + L"none\\below\\", true, true);
        UpdateShortcutsIn(nullptr, suite.Path() + L"one\\", true, false);
        UpdateShortcutsIn(nullptr, suite.Path(), true, true);
        const ShellLinkInfo made = cShellLink().GetShellLinkInfo(suite.Path() + managers).value();
        EXPECT_EQ(made.target + made.workingFolder, suite.Path() + L"VFileMgr.EXE" + suite.Path());
        const auto lock = Spoil(suite.Path() + managers, Spoilt::Locked);
        UpdateShortcutsIn(nullptr, suite.Path(), false, true);
    });
    EXPECT_TRUE(boxes.empty());
    EXPECT_FALSE(FolderExists(suite.Path() + L"none")) << "made with its parents";
    EXPECT_EQ(FileNames(suite.Path() + L"one\\"), std::vector{managers});
    EXPECT_EQ(FileNames(suite, L"V*.lnk"), std::vector{managers});
    const ReplacedImport operate("SHFileOperationW", reinterpret_cast<void*>(&Operate));
    UpdateShortcutsIn(nullptr, suite.Path(), false, true);
    EXPECT_EQ(deleteFlags, FOF_SILENT | FOF_NOCONFIRMATION | FOF_NOERRORUI | FOF_ALLOWUNDO);
}

} // namespace
