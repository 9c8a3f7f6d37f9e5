#include "app/modBrowseFolder.h"

#include "win/Com.h"

#include <shlobj.h>

namespace {

// The shell itself would begin with the desktop, from where the disks are two clicks away.
constexpr wchar_t kUsualStart[] = L"C:\\";

} // namespace

int CALLBACK BrowseCallback(HWND window, UINT message, LPARAM, LPARAM data) {
    constexpr auto kIsPath = static_cast<WPARAM>(-1); // and no item list
    if (message == BFFM_INITIALIZED) SendMessageW(window, BFFM_SETSELECTIONW, kIsPath, data);
    return 0;
}

std::wstring BrowseForFolder(const std::wstring& startFolder, HWND ownerWindow, const std::wstring& title,
                             unsigned flags) {
    StartOle(); // the resizable kind of dialog needs it
    const std::wstring start = startFolder.empty() ? kUsualStart : startFolder;
    wchar_t displayName[MAX_PATH] = L"";
    BROWSEINFOW browse{};
    browse.hwndOwner = ownerWindow;
    browse.pszDisplayName = displayName; // not read, but the shell wants to write it
    browse.lpszTitle = title.c_str();
    browse.ulFlags = flags;
    browse.lpfn = BrowseCallback;
    browse.lParam = reinterpret_cast<LPARAM>(start.c_str());
    const UniqueItemList chosen(SHBrowseForFolderW(&browse));
    wchar_t path[MAX_PATH] = L"";
    if (!chosen || !SHGetPathFromIDListW(chosen.Get(), path)) return {};
    return path;
}
