#include "app/Files.h"

#include "tests/support/Scratch.h"

#include <algorithm>

#include <gtest/gtest.h>

#include <shellapi.h>

using Names = std::vector<std::wstring>;

TEST(Files, WhatExists) {
    const ScratchFolder folder;
    for (const wchar_t* name : {L"a.txt", L".txt", L"hidden.txt"})
        WriteFileBytes(folder.Path() + name, "x");
    SetFileAttributesW((folder.Path() + L"hidden.txt").c_str(),
                       FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_READONLY);
    CreateDirectoryW((folder.Path() + L"sub.dir").c_str(), nullptr);
    const struct {
        std::wstring path;
        bool file, folder;
    } rows[] = {
        {L"", false, false},
        {folder, false, true},
        {folder.Path() + L"A.TXT", true, false},
        {folder.Path() + L"a.txt\\", false, false},
        {folder.Path() + L"hidden.txt", true, false},
        {folder.Path() + L".txt", false, false}, // no name before the dot
        {folder.Path() + L"b.txt", false, false},
        {folder.Path() + L"sub.dir", false, true},
        {L"Q:\\a.txt", false, false},
        {L"a<b>|.txt", false, false},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(Utf8(row.path));
        EXPECT_EQ(FileExists(row.path), row.file);
        EXPECT_EQ(FolderExists(row.path), row.folder);
    }
}

TEST(Files, ListsOneExtension) {
    const ScratchFolder folder;
    for (const wchar_t* name : {L"a.dcp", L"B.DCP", L"c.dcpx", L"d.dcp.bak", L"dcp", L"D\u00e4n.Dcp"})
        WriteFileBytes(folder.Path() + name, "x");
    CreateDirectoryW((folder.Path() + L"folder.dcp").c_str(), nullptr);
    Names names = ListFiles(folder, L".dcp");
    std::sort(names.begin(), names.end());
    EXPECT_EQ(names, (Names{L"B.DCP", L"D\u00e4n.Dcp", L"a.dcp"}));
    EXPECT_EQ(ListFiles(folder.Path() + L"missing\\", L".dcp"), Names{});
}

// Where a path does not fit, the shell has been seen to take the current folder instead.
TEST(Files, TheShellGetsNoPathThatItCannotTake) {
    const ScratchFolder current;
    const std::wstring kept = current.Path() + L"kept.txt";
    WriteFileBytes(kept, "x");
    SetCurrentDirectoryW(current.Path().c_str());
    for (const std::wstring& path : {std::wstring(), L"C:\\" + std::wstring(300, L'x'),
                                     kept + L'\0' + L"C:\\" + std::wstring(257, L'x')}) {
        EXPECT_FALSE(DeleteAnyFile(path, FOF_SILENT | FOF_NOCONFIRMATION, nullptr));
        EXPECT_TRUE(FileExists(kept));
    }
    SetCurrentDirectoryW(TestFolder().c_str());
}
