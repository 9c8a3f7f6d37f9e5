#include "app/IniRoom.h"

#include "win/Handles.h"

#include <windows.h>

#include <algorithm>
#include <vector>

namespace {

constexpr DWORD kBlock = 64 * 1024; // bytes

// Nobody else may write meanwhile: what he added would be cut off with the blank lines.
win::UniqueKernelHandle Open(const std::wstring& file, DWORD disposition) {
    const HANDLE handle = CreateFileW(file.c_str(), GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ, nullptr,
                                      disposition, FILE_ATTRIBUTE_NORMAL, nullptr);
    return win::UniqueKernelHandle(handle == INVALID_HANDLE_VALUE ? nullptr : handle);
}

// Rewriting ends each line with CR LF and puts an empty line before each section.
std::size_t GrowthOfLines(HANDLE file) {
    std::vector<char> block(kBlock);
    std::size_t growth = 0;
    DWORD read = 0;
    while (ReadFile(file, block.data(), kBlock, &read, nullptr) && read > 0)
        growth += static_cast<std::size_t>(std::count(block.begin(), block.begin() + read, '\n')) +
                  2 * static_cast<std::size_t>(std::count(block.begin(), block.begin() + read, '['));
    return growth;
}

// Line ends at the end of the file, taken away again: should the program die in between, they change no key.
bool CanGrow(HANDLE file, std::size_t bytes) {
    const DWORD size = SetFilePointer(file, 0, nullptr, FILE_END);
    const std::vector<char> blank(std::min<std::size_t>(bytes, kBlock), '\n');
    bool grown = true;
    while (grown && bytes > 0) {
        const DWORD part = static_cast<DWORD>(std::min(bytes, blank.size()));
        DWORD written = 0;
        grown = WriteFile(file, blank.data(), part, &written, nullptr) && written == part;
        bytes -= part;
    }
    SetFilePointer(file, static_cast<LONG>(size), nullptr, FILE_BEGIN);
    return SetEndOfFile(file) && grown;
}

} // namespace

bool IsTooLargeToRewrite(const std::wstring& file) {
    constexpr DWORD kMost = 32 * 1024 * 1024; // bytes
    WIN32_FILE_ATTRIBUTE_DATA data{};
    return GetFileAttributesExW(file.c_str(), GetFileExInfoStandard, &data) &&
           (data.nFileSizeHigh != 0 || data.nFileSizeLow > kMost);
}

bool HasRoomToRewrite(const std::wstring& file, std::size_t added) {
    constexpr std::size_t kUtf16 = 2; // a file of 16-bit characters keeps them
    if (IsTooLargeToRewrite(file)) {
        SetLastError(ERROR_FILE_TOO_LARGE);
        return false;
    }
    if (const auto existing = Open(file, OPEN_EXISTING))
        return CanGrow(existing.Get(), kUtf16 * (added + GrowthOfLines(existing.Get())));
    if (GetLastError() != ERROR_FILE_NOT_FOUND) return false; // that error is the one to tell of
    bool fits = false;
    if (const auto made = Open(file, CREATE_NEW))
        fits = CanGrow(made.Get(), kUtf16 * added);
    else
        return false;
    DeleteFileW(file.c_str());
    return fits;
}
