#include "app/Files.h"

#include "tests/support/DemoSuite.h"
#include "tests/support/Scratch.h"

#include <shellapi.h>

#include <algorithm>

#include <gtest/gtest.h>

using Names = std::vector<std::wstring>;

TEST(Files, WhatExists) {
    const ScratchFolder folder;
    for (const wchar_t* name : {L"a.txt", L".txt", L"no extension", L"hidden.txt"})
        WriteFileBytes(folder.Path() + name, "x");
    SetFileAttributesW((folder.Path() + L"hidden.txt").c_str(),
                       FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_READONLY);
    CreateDirectoryW((folder.Path() + L"sub.dir").c_str(), nullptr);
    const struct {
        std::wstring path;
        bool file, folder;
    } rows[] = {
        {L"", false, false},
        {L"   ", false, false},
        {folder, false, true},
        {folder.Path() + L"a.txt", true, false},
        {folder.Path() + L"A.TXT", true, false},
        {folder.Path() + L"a.txt\\", false, false},
        {folder.Path() + L"hidden.txt", true, false},
        {folder.Path() + L"no extension", true, false},
        {folder.Path() + L".txt", false, false}, // no name before the dot
        {folder.Path() + L"b.txt", false, false},
        {folder.Path() + L"sub.dir", false, true},
        {folder.Path() + L"sub.dir\\", false, true},
        {folder.Path() + L"sub.dir\\..\\a.txt", true, false},
        {L"C:\\", false, true},
        {L"Q:\\", false, false},
        {L"Q:\\a.txt", false, false},
        {L"a<b>|.txt", false, false},
        {L"\\\\nowhere\\share\\a.txt", false, false},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(Utf8(row.path));
        EXPECT_EQ(FileExists(row.path), row.file);
        EXPECT_EQ(FolderExists(row.path), row.folder);
    }
    EXPECT_EQ(FileSize(folder.Path() + L"a.txt"), 1u);
    EXPECT_EQ(FileSize(folder.Path() + L"b.txt"), std::nullopt);
    EXPECT_EQ(FileSize(folder.Path() + L"sub.dir"), std::nullopt);
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

TEST(Files, CopyingAsksBeforeItReplaces) {
    const struct {
        int answer;
        bool copied;
    } rows[] = {{IDYES, true}, {IDNO, false}, {IDCANCEL, false}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.answer);
        const ScratchFolder from, to;
        WriteFileBytes(from.Path() + L"a.dcp", "new");
        WriteFileBytes(from.Path() + L"b.dcp", "new");
        WriteFileBytes(to.Path() + L"b.dcp", "old");
        const std::wstring list = from.Path() + L"a.dcp" + L'\0' + from.Path() + L"b.dcp" + L'\0';
        bool copied = !row.copied;
        EXPECT_EQ(Answering({row.answer}, [&] { copied = CopyFiles(list, to, 0, nullptr); }).size(), 1u);
        EXPECT_EQ(copied, row.copied);
        EXPECT_EQ(FileBytes(to.Path() + L"a.dcp"), "new");
        EXPECT_EQ(FileBytes(to.Path() + L"b.dcp"), row.copied ? "new" : "old");
    }
}

TEST(Files, CopyingWithoutQuestions) {
    const ScratchFolder from, to;
    WriteFileBytes(from.Path() + L"a.dcp", "new");
    WriteFileBytes(to.Path() + L"a.dcp", "old");
    const auto boxes = Answering({}, [&] {
        const std::wstring list = from.Path() + L"a.dcp" + L'\0';
        EXPECT_TRUE(CopyFiles(list, to, FOF_NOCONFIRMATION, nullptr));
        EXPECT_FALSE(CopyFiles(from.Path() + L"missing.dcp" + L'\0', to, 0, nullptr));
    });
    EXPECT_TRUE(boxes.empty());
    EXPECT_EQ(FileBytes(to.Path() + L"a.dcp"), "new");
    EXPECT_EQ(FileBytes(from.Path() + L"a.dcp"), "new");
}

TEST(Files, Deleting) {
    const ScratchFolder folder;
    for (const wchar_t* name : {L"a.dcp", L"b.dcp", L"c.dcp"})
        WriteFileBytes(folder.Path() + name, "x");
    const std::wstring list = folder.Path() + L"a.dcp" + L'\0' + folder.Path() + L"b.dcp" + L'\0';
    EXPECT_TRUE(DeleteAnyFile(list, FOF_NOCONFIRMATION, nullptr));
    EXPECT_EQ(FileNames(folder), Names{L"c.dcp"});
    EXPECT_FALSE(DeleteAnyFile(list, FOF_NOCONFIRMATION | FOF_NOERRORUI, nullptr));
    EXPECT_EQ(FileNames(folder), Names{L"c.dcp"});
}
