#include "ftw/TransmitRoot.h"

#include "app/Blanks.h"

namespace {

constexpr wchar_t kSeparator = L';';
constexpr std::wstring_view kWholeComputer = L"Computer;";
constexpr std::wstring_view kFloppy = L"A:;";
constexpr wchar_t kQuote = L'"';
constexpr std::size_t kMostShown = 2000; // characters; a page's mark-up is found among 32,767

// Only a pair: with a third mark nobody knows which two belong together.
std::wstring WithoutPair(const std::wstring& path) {
    const std::wstring trimmed = TrimBlanks(path);
    const bool isQuoted =
        trimmed.size() > 2 && trimmed.front() == kQuote && trimmed.find(kQuote, 1) == trimmed.size() - 1;
    return isQuoted ? trimmed.substr(1, trimmed.size() - 2) : path;
}

} // namespace

// Each folder for itself, then the list: a pair around the whole of it is none around a folder.
std::wstring WithoutQuotes(const std::wstring& typed) {
    std::wstring folders;
    std::size_t start = 0;
    for (std::size_t end = 0; end != typed.npos; start = end + 1) {
        end = typed.find(kSeparator, start);
        if (start > 0) folders += kSeparator;
        folders += WithoutPair(typed.substr(start, end - start));
    }
    return WithoutPair(folders);
}

std::wstring TransmitRootValue(const CncLocation& location) {
    std::wstring value = TrimBlanks(location.folders);
    // The whole computer has its floppy drive already.
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
    // Only one that storing puts there again.
    if (value.size() > 1 && value.back() == kSeparator && value[value.size() - 2] != kSeparator)
        value.remove_suffix(1);
    location.folders = value;
    return location;
}

std::wstring LocationPath(std::wstring_view folders) {
    std::wstring path = TrimBlanks(folders);
    if (path.ends_with(kSeparator)) path.pop_back();
    return path;
}

std::wstring ShownLocation(const std::wstring& folders) {
    if (folders.size() <= kMostShown) return folders;
    // Half of a pair is no character, and a page would show a box for it.
    constexpr wchar_t kFirstOfPairs = 0xD800;
    constexpr wchar_t kLastOfPairs = 0xDBFF;
    const wchar_t last = folders[kMostShown - 1];
    const bool isHalf = last >= kFirstOfPairs && last <= kLastOfPairs;
    return folders.substr(0, isHalf ? kMostShown - 1 : kMostShown) + L'\x2026';
}

bool IsFolderList(std::wstring_view path) { return path.find(kSeparator) != std::wstring_view::npos; }
