#include "win/SystemLibrary.h"

#include <string>

namespace win {

HMODULE LoadSystemLibrary(const wchar_t* fileName) {
    wchar_t folder[MAX_PATH] = L"";
    const UINT length = GetSystemDirectoryW(folder, MAX_PATH);
    if (length == 0 || length >= MAX_PATH) return nullptr;
    const std::wstring path = std::wstring(folder, length) + L'\\' + fileName;
    return LoadLibraryExW(path.c_str(), nullptr, LOAD_WITH_ALTERED_SEARCH_PATH);
}

} // namespace win
