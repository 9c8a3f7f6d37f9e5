#include "app/Registry.h"

#include "app/CodePage.h"
#include "win/Handles.h"

#include <optional>
#include <string_view>

namespace {

// Every right to the values, for a mere read as well: what this user could not delete is not found at all.
constexpr REGSAM kKeyAccess = 0x2003F;

win::UniqueKey OpenKey(HKEY root, const std::wstring& subKey) {
    win::UniqueKey key;
    if (RegOpenKeyExA(root, ToAnsi(subKey).c_str(), 0, kKeyAccess, key.Out()) != ERROR_SUCCESS) return {};
    return key;
}

// A value's bytes in a buffer of 1024 NULs, and how many of them the registry reported.
struct RawValue {
    char bytes[1024] = {};
    DWORD size = sizeof bytes;
};

std::optional<RawValue> ReadRaw(HKEY root, const std::wstring& subKey, const std::wstring& valueName) {
    const win::UniqueKey key = OpenKey(root, subKey);
    if (!key) return std::nullopt;
    RawValue value;
    if (RegQueryValueExA(key.Get(), ToAnsi(valueName).c_str(), nullptr, nullptr,
                         reinterpret_cast<BYTE*>(value.bytes), &value.size) != ERROR_SUCCESS)
        return std::nullopt;
    return value;
}

} // namespace

std::wstring ReadUserPathValue(const std::wstring& key, const std::wstring& subKey,
                               const std::wstring& valueName, const std::wstring& defaultText) {
    const auto value = ReadRaw(HKEY_CURRENT_USER, key + L"\\" + subKey, valueName);
    if (!value) return defaultText;
    DWORD length = value->size;
    // An empty value may have no byte at all, not even its NUL.
    if (length > 0 && value->bytes[length - 1] == '\0') --length;
    return FromAnsi({value->bytes, length});
}

std::wstring ReadRegString(HKEY root, const std::wstring& subKey, const std::wstring& valueName,
                           const std::wstring& defaultText) {
    const auto value = ReadRaw(root, subKey, valueName);
    if (!value) return defaultText;
    // What the registry reports does not count here: the buffer was NULs before.
    const std::string_view all(value->bytes, sizeof value->bytes);
    return FromAnsi(all.substr(0, all.find('\0')));
}

std::wstring DeleteRegValue(HKEY root, const std::wstring& subKey, const std::wstring& valueName) {
    const win::UniqueKey key = OpenKey(root, subKey);
    if (!key) return {};
    return std::to_wstring(RegDeleteValueA(key.Get(), ToAnsi(valueName).c_str()));
}
