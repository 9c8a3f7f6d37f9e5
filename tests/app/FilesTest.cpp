#include "app/Files.h"

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
        std::optional<unsigned long long> size;
    } rows[] = {
        {L"", false, false, {}},
        {folder, false, true, {}},
        {folder.Path() + L"A.TXT", true, false, 1},
        {folder.Path() + L"a.txt\\", false, false, {}},
        {folder.Path() + L"hidden.txt", true, false, 1},
        {folder.Path() + L"no extension", true, false, 1},
        {folder.Path() + L".txt", false, false, 1}, // no name before the dot
        {folder.Path() + L"b.txt", false, false, {}},
        {folder.Path() + L"sub.dir", false, true, {}},
        {folder.Path() + L"sub.dir\\..\\a.txt", true, false, 1},
        {L"C:\\", false, true, {}},
        {L"Q:\\a.txt", false, false, {}},
        {L"a<b>|.txt", false, false, {}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(Utf8(row.path));
        EXPECT_EQ(FileExists(row.path), row.file);
        EXPECT_EQ(FolderExists(row.path), row.folder);
        EXPECT_EQ(FileSize(row.path), row.size);
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

TEST(Files, CopyingAsksBeforeItReplacesUnlessToldNotTo) {
    const struct {
        int answer; // 0: no question expected
        bool copied;
    } rows[] = {{IDYES, true}, {IDNO, false}, {IDCANCEL, false}, {0, true}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.answer);
        const ScratchFolder from, to;
        WriteFileBytes(from.Path() + L"a.dcp", "new");
        WriteFileBytes(from.Path() + L"b.dcp", "new");
        WriteFileBytes(to.Path() + L"b.dcp", "old");
        const std::wstring list = from.Path() + L"a.dcp" + L'\0' + from.Path() + L"b.dcp" + L'\0';
        const auto flags = static_cast<std::int16_t>(row.answer ? 0 : FOF_NOCONFIRMATION);
        const auto boxes = Answering({row.answer}, [&] {
            EXPECT_EQ(CopyFiles(list, to, flags, nullptr), row.copied);
            EXPECT_FALSE(CopyFiles(from.Path() + L"missing.dcp" + L'\0', to, flags, nullptr));
        });
        EXPECT_EQ(boxes.size(), row.answer ? 1u : 0u);
        EXPECT_EQ(FileBytes(to.Path() + L"a.dcp"), "new");
        EXPECT_EQ(FileBytes(to.Path() + L"b.dcp"), row.copied ? "new" : "old");
    }
}

TEST(Files, Deleting) {
    const ScratchFolder folder;
    for (const wchar_t* name : {L"a.dcp", L"b.dcp", L"c.dcp"})
        WriteFileBytes(folder.Path() + name, "x");
    const std::wstring list = folder.Path() + L"a.dcp" + L'\0' + folder.Path() + L"b.dcp" + L'\0';
    for (const bool there : {true, false}) {
        EXPECT_EQ(DeleteAnyFile(list, FOF_NOCONFIRMATION | FOF_NOERRORUI, nullptr), there);
        EXPECT_EQ(FileNames(folder), Names{L"c.dcp"});
    }
}
