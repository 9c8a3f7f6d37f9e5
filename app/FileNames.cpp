#include "app/FileNames.h"

#include "app/AsciiCase.h"
#include "app/Blanks.h"

#include <algorithm>
#include <array>

namespace {

// Known by name: finding out by opening such a file would open the device.
constexpr std::array<std::wstring_view, 6> kDevices = {L"CON", L"PRN", L"AUX", L"NUL", L"CONIN$", L"CONOUT$"};
constexpr std::array<std::wstring_view, 2> kNumberedDevices = {L"COM", L"LPT"};
// Windows takes superscript digits for digits.
constexpr std::wstring_view kDeviceNumbers = L"0123456789\u00b9\u00b2\u00b3";

template <class Table> bool Holds(const Table& table, std::wstring_view text) {
    return std::find(table.begin(), table.end(), text) != table.end();
}

} // namespace

bool IsInvalidChar(wchar_t c) { return kInvalidNameChars.find(c) != std::wstring_view::npos; }

bool IsValidName(std::wstring_view name) { return std::none_of(name.begin(), name.end(), IsInvalidChar); }

bool IsReservedName(std::wstring_view name) {
    const std::wstring stem = AsciiUpper(TrimBlanks(name.substr(0, name.find(L'.'))));
    if (Holds(kDevices, stem)) return true;
    return stem.size() == 4 && Holds(kNumberedDevices, std::wstring_view(stem).substr(0, 3)) &&
           kDeviceNumbers.find(stem.back()) != std::wstring_view::npos;
}

// Also 128 to 159: whatever letters a code page has there, in wide text they are controls.
bool HasControlChar(std::wstring_view text) {
    return std::any_of(text.begin(), text.end(), [](wchar_t c) { return c < 32 || (c >= 127 && c < 160); });
}

bool EndsInDot(std::wstring_view name) { return !name.empty() && name.back() == L'.'; }

std::optional<std::wstring> CheckedExtension(std::wstring_view typed) {
    std::wstring extension = TrimBlanks(typed);
    if (extension.starts_with(L'.')) extension.erase(0, 1);
    // By code: the library's own test follows a locale and lets in letters that no other computer need have.
    const auto isAllowed = [](wchar_t c) {
        return (c >= L'A' && c <= L'Z') || (c >= L'a' && c <= L'z') || (c >= L'0' && c <= L'9');
    };
    const bool valid =
        extension.size() <= kExtensionLength && std::all_of(extension.begin(), extension.end(), isAllowed);
    return valid ? std::optional(extension) : std::nullopt;
}
