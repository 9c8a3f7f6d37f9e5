#include "app/SpecialFolders.h"

#include "app/modLocations.h"
#include "tests/support/Imports.h"

#include <gtest/gtest.h>

#include <shlobj.h>

namespace {

// What the shell answers, and what it was asked.
struct Answers {
    HRESULT found;
    BOOL hasPath;
    const wchar_t* path;
    HWND owner;
    int folder, lists;
} shell;

HRESULT WINAPI Locate(HWND owner, int folder, LPITEMIDLIST* items) {
    shell.owner = owner;
    shell.folder = folder;
    if (shell.found != S_OK) return shell.found;
    ++shell.lists;
    *items = static_cast<LPITEMIDLIST>(CoTaskMemAlloc(2));
    return S_OK;
}
BOOL WINAPI ToPath(LPCITEMIDLIST, LPWSTR path) { return shell.hasPath && lstrcpyW(path, shell.path); }
void WINAPI Free(void*) { --shell.lists; }

} // namespace

TEST(SpecialFolders, NoFolderAndNoTextAreTwoThings) {
    const std::wstring most = L"C:\\" + std::wstring(256, L'x');
    const struct {
        HRESULT found;
        BOOL hasPath;
        const wchar_t* path;
        std::optional<std::wstring> result;
        std::wstring withBackslash;
    } rows[] = {
        {S_FALSE, TRUE, L"C:\\Docs", {}, L""},
        {S_OK, FALSE, L"", {}, L""},
        {S_OK, TRUE, L"", L"", L""},
        {S_OK, TRUE, L"C:\\Docs", L"C:\\Docs", L"C:\\Docs\\"},
        {S_OK, TRUE, L"C:\\Docs\\", L"C:\\Docs\\", L"C:\\Docs\\"},
        {S_OK, TRUE, most.c_str(), most, most + L"\\"},
    };
    const ReplacedImport locate("SHGetSpecialFolderLocation", reinterpret_cast<void*>(&Locate));
    const ReplacedImport toPath("SHGetPathFromIDListW", reinterpret_cast<void*>(&ToPath));
    const ReplacedImport free("CoTaskMemFree", reinterpret_cast<void*>(&Free));
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::PrintToString(row.path));
        shell = {row.found, row.hasPath, row.path, nullptr, 0, 0};
        EXPECT_EQ(SpecialFolderPath(GetDesktopWindow(), CSIDL_PERSONAL), row.result);
        EXPECT_EQ(shell.owner, GetDesktopWindow());
        EXPECT_EQ(shell.folder, CSIDL_PERSONAL);
        EXPECT_EQ(GetSpecialFolder(CSIDL_APPDATA), row.withBackslash);
        EXPECT_EQ(shell.owner, nullptr);
        EXPECT_EQ(shell.lists, 0) << "not freed";
    }
}
