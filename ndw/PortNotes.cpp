#include "ndw/PortNotes.h"

#include <algorithm>

namespace {

// With these, the widest letters fill the room that the port page has, and no more.
constexpr std::size_t kNamesShown = 3;
constexpr std::size_t kLongestName = 24;

std::wstring PortName(int number) { return L"COM" + std::to_wstring(number); }

std::wstring Shortened(const std::wstring& name) {
    if (name.size() <= kLongestName) return name;
    std::wstring start = name.substr(0, kLongestName - 1);
    if (start.back() >= 0xD800 && start.back() < 0xDC00) start.pop_back(); // half a character
    return start + L"\u2026";
}

} // namespace

// No names here: the closed list has room for one at most, and a name cut in half reads like another machine.
std::wstring PortCaption(int number, const PortNote& note) {
    std::wstring caption = PortName(number);
    if (note.onComputer) caption += L" - on this computer";
    if (!note.configurations.empty()) caption += note.onComputer ? L", in use" : L" - in use";
    return caption;
}

std::wstring PortUseText(int number, const PortNote& note) {
    const auto& names = note.configurations;
    if (names.empty()) return {};
    const std::size_t shown = std::min(names.size(), kNamesShown);
    std::wstring text = PortName(number) + L" is used by " + Shortened(names[0]);
    for (std::size_t i = 1; i < shown; ++i)
        text += (i + 1 == names.size() ? L" and " : L", ") + Shortened(names[i]);
    if (names.size() > shown) text += L" and " + std::to_wstring(names.size() - shown) + L" more";
    return text + L".";
}
