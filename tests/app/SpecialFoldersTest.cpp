#include "app/SpecialFolders.h"

#include "app/modLocations.h"
#include "shell/cShellLink.h"
#include "tests/support/Imports.h"

#include <gtest/gtest.h>

#include <shlobj.h>

namespace {

HRESULT found;       // what the shell answers
const wchar_t* path; // null: refused
int lists = 0;

HRESULT WINAPI Locate(HWND, int, LPITEMIDLIST* items) {
    if (found == S_OK) *items = (++lists, static_cast<LPITEMIDLIST>(CoTaskMemAlloc(2)));
    return found;
}
BOOL WINAPI ToPath(LPCITEMIDLIST, LPWSTR buffer) { return path && lstrcpyW(buffer, path); }
void WINAPI Free(void*) { --lists; }

} // namespace

TEST(SpecialFolders, NoFolderAndNoTextAreTwoThings) {
    const std::wstring most = L"C:\\" + std::wstring(256, L'x');
    const struct {
        HRESULT found;
        const wchar_t* path;
        std::wstring withBackslash, ofLinks; // "-": as it was
    } rows[] = {{S_FALSE, L"C:\\Docs", L"", L"-"},
                {S_OK, nullptr, L"", L"-"},
                {S_OK, L"", L"", L"-"},
                {S_OK, L"   ", L"   \\", L"-"},
                {S_OK, L" C:\\Docs", L" C:\\Docs\\", L"C:\\Docs"},
                {S_OK, L"C:\\Docs\\", L"C:\\Docs\\", L"C:\\Docs"},
                {S_OK, most.c_str(), most + L"\\", most}};
    const ReplacedImport locate("SHGetSpecialFolderLocation", reinterpret_cast<void*>(&Locate));
    const ReplacedImport toPath("SHGetPathFromIDListW", reinterpret_cast<void*>(&ToPath));
    const ReplacedImport free("CoTaskMemFree", reinterpret_cast<void*>(&Free));
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::PrintToString(row.withBackslash));
        found = row.found;
        path = row.path;
        std::wstring folder = L"-";
        EXPECT_EQ(GetSpecialFolder(CSIDL_APPDATA), row.withBackslash);
        EXPECT_EQ(cShellLink().GetSystemFolderPath(nullptr, kStartMenuFolder, folder), found == S_OK && path);
        EXPECT_EQ(folder, row.ofLinks);
        EXPECT_EQ(lists, 0) << "not freed";
    }
}
