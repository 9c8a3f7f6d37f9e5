#include "app/SpecialFolders.h"

#include "win/Com.h"

#include <shlobj.h>

std::optional<std::wstring> SpecialFolderPath(HWND ownerWindow, int csidl) {
    UniqueItemList items;
    if (SHGetSpecialFolderLocation(ownerWindow, csidl, items.Out()) != S_OK) return std::nullopt;
    wchar_t path[MAX_PATH] = L""; // the shell is told no size: it takes this one for granted
    if (!SHGetPathFromIDListW(items.Get(), path)) return std::nullopt;
    return path;
}
