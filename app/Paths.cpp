#include "app/Paths.h"

namespace {

bool IsLetter(wchar_t c) { return (c >= L'A' && c <= L'Z') || (c >= L'a' && c <= L'z'); }

// In "C:Mill.nc" the name begins behind the colon: that is a file of the drive's current folder.
std::wstring_view Part(std::wstring_view path, std::int16_t part) {
    const std::size_t drive = path.size() >= 2 && IsLetter(path[0]) && path[1] == L':' ? 2 : 0;
    const std::size_t backslash = path.rfind(L'\\');
    const std::size_t name = backslash == path.npos ? drive : backslash + 1;
    const std::size_t lastDot = path.rfind(L'.');
    // A dot in the name of a folder begins no extension.
    const std::size_t dot = lastDot == path.npos || lastDot < name ? path.size() : lastDot;
    // clang-format off
    switch (part) {
    case kDrive:                 return path.substr(0, drive);
    case kFolder:                return path.substr(drive, name - drive);
    case kNameWithoutExtension:  return path.substr(name, dot - name);
    case kExtension:             return dot == path.size() ? std::wstring_view() : path.substr(dot + 1);
    case kNameWithExtension:     return path.substr(name);
    case kDriveAndFolder:        return path.substr(0, name);
    default:                     return {};
    }
    // clang-format on
}

} // namespace

std::wstring SplitPath(std::wstring_view path, std::int16_t part) { return std::wstring(Part(path, part)); }

std::wstring WithBackslash(std::wstring path) {
    if (!path.empty() && path.back() != L'\\') path += L'\\';
    return path;
}
