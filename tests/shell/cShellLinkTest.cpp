#include "shell/cShellLink.h"

#include "app/Files.h"
#include "shell/modShellLink.h"
#include "tests/support/Imports.h"
#include "tests/support/Scratch.h"

#include <gtest/gtest.h>

#include <shlobj.h>

namespace {

struct Row {
    const wchar_t *target, *workingFolder, *arguments, *iconFile; // the target in the scratch folder
    std::int32_t iconIndex, showCommand;
};

const wchar_t* written; // what the shell answers for the path of a folder; null: it refuses
BOOL WINAPI ToPath(LPCITEMIDLIST, LPWSTR path) { return written && lstrcpyW(path, written); }

// clang-format off
const Row kRows[] = {
    {L"VFileMgr.EXE",      L"",             L"",            L"",              0,  SW_SHOW         },
    {L"VFileMgr.EXE",      L"C:\\windows",  L"/A \"b c\"",  L"C:\\icons.dll", 3,  SW_SHOWMAXIMIZED},
    {L"M\x00FChle 1.exe",  L"C:\\\x00C4 b", L"\x00FC",      L"C:\\\x00DF.ico", -2, SW_SHOWNORMAL  },
};
// clang-format on

TEST(cShellLink, ReadsBackWhatItWrote) {
    constexpr std::size_t kShowCommandAt = 0x3C; // some versions do not read it back
    const ScratchFolder folder;
    const std::wstring file = folder.Path() + L"Varnel \x0416.lnk"; // the name alone may be foreign
    for (const Row& row : kRows) {
        const std::wstring target = folder.Path() + row.target;
        WriteFileBytes(target, "MZ");
        ASSERT_TRUE(cShellLink().CreateShellLink(file, target, row.workingFolder, row.arguments, row.iconFile,
                                                 row.iconIndex, row.showCommand));
        const auto info = cShellLink().GetShellLinkInfo(file);
        ASSERT_TRUE(info);
        EXPECT_EQ(info->target + L"|" + info->workingFolder + L"|" + info->arguments,
                  target + L"|" + row.workingFolder + L"|" + row.arguments);
        EXPECT_EQ(info->description, L"");
        EXPECT_EQ(info->hotKey, 0);
        EXPECT_EQ(info->iconIndex, row.iconIndex);
        EXPECT_TRUE(!*row.iconFile || info->iconFile == row.iconFile);
        EXPECT_EQ(FileBytes(file).at(kShowCommandAt), row.showCommand);
    }
}

// A place that is no folder, a link that another program holds open: no word, and the other link is tried.
TEST(cShellLink, RefusesWithoutAWord) {
    const ScratchSuite suite;
    const std::wstring file = suite.Path() + L"a.lnk";
    const auto create = [](const std::wstring& link, const std::wstring& to) {
        return cShellLink().CreateShellLink(link, to, L"", L"", L"", 0, SW_SHOW);
    };
    const auto boxes = Answering({}, [&] {
        EXPECT_FALSE(create(file, L""));
        EXPECT_FALSE(create(L"", file));
        EXPECT_FALSE(create(suite.Path() + L"no such folder\\a.lnk", file));
        EXPECT_FALSE(create(suite.Path(), file));
        EXPECT_FALSE(create(file, suite.Path() + L"\x0416.exe")) << "not in the code page";
        EXPECT_FALSE(create(file, suite.Path() + L"\x0100.exe")) << "the code page has only an A";
        EXPECT_FALSE(FileExists(file));
        EXPECT_FALSE(cShellLink().GetShellLinkInfo(L""));
        EXPECT_FALSE(cShellLink().GetShellLinkInfo(file));
        WriteFileBytes(file, "no link at all, but long enough to hold a header of the usual length: xxxxxxx");
        EXPECT_FALSE(cShellLink().GetShellLinkInfo(file));
        UpdateShortcutsIn(nullptr, file + L"\\", true, true);
        UpdateShortcutsIn(nullptr, suite.Path() + L"none\\below\\", true, true);
        UpdateShortcutsIn(nullptr, suite.Path() + L"one\\", true, false);
        UpdateShortcutsIn(nullptr, suite.Path(), true, true);
        const auto lock = Spoil(suite.Path() + L"Varnel DNC File Manager.lnk", Spoilt::Locked);
        UpdateShortcutsIn(nullptr, suite.Path(), false, true);
    });
    EXPECT_TRUE(boxes.empty());
    EXPECT_FALSE(FolderExists(suite.Path() + L"none")) << "made with its parents";
    EXPECT_TRUE(FileExists(suite.Path() + L"one\\Varnel DNC File Manager.lnk"));
    EXPECT_EQ(FileNames(suite, L"V*.lnk"), std::vector<std::wstring>{L"Varnel DNC File Manager.lnk"});
}

TEST(cShellLink, FoldersAsTheShellWritesThem) {
    constexpr std::int32_t kNoSuchFolder = 0x7FFF;
    const struct {
        const wchar_t* written;
        std::int32_t folder;
        bool ok;
        std::wstring path;
    } rows[] = {
        {L"C:\\Users\\Me", kDesktopFolder, true, L"C:\\Users\\Me"},
        {L"  C:\\Docs\\  ", kStartMenuFolder, true, L"C:\\Docs"},
        {L"   ", kApplicationDataFolder, true, L"as it was"},
        {nullptr, kDesktopFolder, false, L"as it was"},
        {L"C:\\x", kNoSuchFolder, false, L"as it was"},
    };
    const ReplacedImport toPath("SHGetPathFromIDListW", reinterpret_cast<void*>(&ToPath));
    for (const auto& row : rows) {
        written = row.written;
        std::wstring path = L"as it was";
        EXPECT_EQ(cShellLink().GetSystemFolderPath(nullptr, row.folder, path), row.ok) << row.path;
        EXPECT_EQ(path, row.path);
    }
}

} // namespace
