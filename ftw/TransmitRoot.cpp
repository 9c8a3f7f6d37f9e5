#include "ftw/TransmitRoot.h"

#include "app/Blanks.h"

namespace {

constexpr wchar_t kSeparator = L';';
constexpr std::wstring_view kWholeComputer = L"Computer;";
constexpr std::wstring_view kFloppy = L"A:;";

} // namespace

std::wstring TransmitRootValue(const CncLocation& location) {
    std::wstring value = TrimBlanks(location.folders);
    if (value.empty()) return std::wstring(kWholeComputer);
    if (value.back() != kSeparator) value += kSeparator;
    if (location.floppy) value += kFloppy;
    return value;
}

CncLocation ReadTransmitRoot(std::wstring_view value) {
    CncLocation location;
    if (value == kWholeComputer) return location;
    // Only as a folder of its own, behind another one.
    if (value.ends_with(std::wstring(1, kSeparator) + std::wstring(kFloppy))) {
        location.floppy = true;
        value.remove_suffix(kFloppy.size());
    }
    if (value.ends_with(kSeparator)) value.remove_suffix(1);
    location.folders = value;
    return location;
}

std::wstring LocationPath(std::wstring_view folders) {
    std::wstring path = TrimBlanks(folders);
    if (path.ends_with(kSeparator)) path.pop_back();
    return path;
}

bool IsFolderList(std::wstring_view path) { return path.find(kSeparator) != std::wstring_view::npos; }
