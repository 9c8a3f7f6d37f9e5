#include "app/Files.h"

#include "tests/support/Scratch.h"

#include <algorithm>

#include <gtest/gtest.h>

TEST(Files, WhatExists) {
    const ScratchFolder folder;
    for (const wchar_t* name : {L"a.txt", L".txt"})
        WriteFileBytes(folder.Path() + name, "x");
    enum What { Nothing, File, Folder };
    const std::pair<const wchar_t*, What> rows[] = {{L"", Folder},
                                                    {L"A.TXT", File},
                                                    {L"a.txt\\", Nothing},
                                                    {L".txt", Nothing},
                                                    {L"b.txt", Nothing}}; // no name, no file
    for (const auto& [name, what] : rows) {
        EXPECT_EQ(FileExists(folder.Path() + name), what == File) << Utf8(name);
        EXPECT_EQ(FolderExists(folder.Path() + name), what == Folder) << Utf8(name);
    }
    EXPECT_FALSE(FileExists(L"") || FolderExists(L"") || FileExists(TestFolder() + L"Icons"));
}

TEST(Files, ListsOneExtension) {
    const ScratchFolder folder;
    for (const wchar_t* name : {L"a.dcp", L"B.DCP", L"c.dcpx", L"d.dcp.bak", L"dcp", L"D\u00e4n.Dcp"})
        WriteFileBytes(folder.Path() + name, "x");
    CreateDirectoryW((folder.Path() + L"folder.dcp").c_str(), nullptr);
    auto names = ListFiles(folder, L".dcp");
    std::sort(names.begin(), names.end());
    EXPECT_EQ(names, (std::vector<std::wstring>{L"B.DCP", L"D\u00e4n.Dcp", L"a.dcp"}));
    EXPECT_TRUE(ListFiles(folder.Path() + L"missing\\", L".dcp").empty());
}
