#include "shell/cShellLink.h"

#include "app/Files.h"
#include "tests/support/DemoSuite.h"
#include "tests/support/LinkFile.h"
#include "tests/support/Scratch.h"

#include <gtest/gtest.h>

namespace {

struct Row {
    const wchar_t* target; // in the scratch folder
    const wchar_t* workingFolder;
    const wchar_t* arguments;
    const wchar_t* iconFile;
    std::int32_t iconIndex;
    std::int32_t showCommand;
};

// clang-format off
const Row kRows[] = {
    // target              folder          arguments        icon file         index show
    {L"VFileMgr.EXE",     L"",            L"",             L"",               0,   SW_SHOW         },
    {L"missing.EXE",      L"",            L"",             L"",               0,   SW_SHOW         },
    {L"VFileMgr.EXE",     L"C:\\windows", L"/A \"b c\"",   L"C:\\icons.dll",  3,   SW_SHOWMAXIMIZED},
    {L"M\x00FChle 1.exe", L"C:\\\x00C4 b", L"\x00FC",      L"C:\\\x00DF.ico", -2,  SW_SHOWNORMAL   },
};
// clang-format on

TEST(cShellLink, WritesLinksThatAnyReaderReads) {
    const ScratchFolder folder;
    WriteFileBytes(folder.Path() + L"VFileMgr.EXE", "MZ");
    WriteFileBytes(folder.Path() + L"M\x00FChle 1.exe", "MZ");
    const std::wstring file = folder.Path() + L"Varnel \x0416.lnk"; // the name alone may be foreign
    for (const Row& row : kRows) {
        SCOPED_TRACE(testing::PrintToString(std::wstring(row.target) + row.arguments));
        const std::wstring target = folder.Path() + row.target;
        ASSERT_TRUE(cShellLink().CreateShellLink(file, target, row.workingFolder, row.arguments, row.iconFile,
                                                 row.iconIndex, row.showCommand));
        const LinkFile bytes = ParseLinkFile(FileBytes(file));
        EXPECT_EQ(bytes.target, target);
        EXPECT_EQ(bytes.workingFolder, row.workingFolder);
        EXPECT_EQ(bytes.arguments, row.arguments);
        EXPECT_EQ(bytes.description, L"");
        EXPECT_EQ(bytes.showCommand, static_cast<std::uint32_t>(row.showCommand));
        EXPECT_EQ(bytes.hotKey, 0);

        const auto info = cShellLink().GetShellLinkInfo(file);
        ASSERT_TRUE(info);
        EXPECT_EQ(info->target, target);
        EXPECT_EQ(info->workingFolder, row.workingFolder);
        EXPECT_EQ(info->arguments, row.arguments);
        EXPECT_EQ(info->description, L"");
        EXPECT_EQ(info->hotKey, 0);
        EXPECT_EQ(info->iconIndex, row.iconIndex);
        if (*row.iconFile) {
            EXPECT_EQ(info->iconFile, row.iconFile);
            EXPECT_EQ(bytes.iconFile, row.iconFile);
        }
    }
}

TEST(cShellLink, RefusesWithoutAWord) {
    const ScratchFolder folder;
    const std::wstring file = folder.Path() + L"a.lnk";
    const std::wstring target = folder.Path() + L"VFileMgr.EXE";
    const auto create = [](const std::wstring& link, const std::wstring& to) {
        return cShellLink().CreateShellLink(link, to, L"", L"", L"", 0, SW_SHOW);
    };
    const auto boxes = Answering({}, [&] {
        EXPECT_FALSE(create(file, L""));
        EXPECT_FALSE(create(L"", target));
        EXPECT_FALSE(create(folder.Path() + L"no such folder\\a.lnk", target));
        EXPECT_FALSE(create(folder.Path(), target));
        EXPECT_FALSE(FileExists(file));
        EXPECT_FALSE(cShellLink().GetShellLinkInfo(L""));
        EXPECT_FALSE(cShellLink().GetShellLinkInfo(file));
        WriteFileBytes(file, "no link at all, but long enough to hold a header of the usual length: xxxxxxx");
        EXPECT_FALSE(cShellLink().GetShellLinkInfo(file));
    });
    EXPECT_TRUE(boxes.empty());
}

constexpr std::int32_t kDocumentsFolder = 5; // some versions return it with a backslash at its end

TEST(cShellLink, FindsTheShellsFolders) {
    for (const std::int32_t id : {std::int32_t{kDesktopFolder}, std::int32_t{kStartMenuFolder},
                                  std::int32_t{kApplicationDataFolder}, kDocumentsFolder}) {
        const auto path = cShellLink().GetSystemFolderPath(nullptr, id);
        ASSERT_TRUE(path) << id;
        EXPECT_TRUE(FolderExists(*path)) << id;
        EXPECT_NE(path->back(), L'\\') << id;
    }
    EXPECT_FALSE(cShellLink().GetSystemFolderPath(nullptr, 0x7FFF));
    EXPECT_FALSE(cShellLink().GetSystemFolderPath(nullptr, 3)); // the control panel has no path
}

} // namespace
