#include "ndw/PortNotes.h"

#include "app/Paths.h"
#include "app/modLocations.h"
#include "ndw/NdwAnswers.h"
#include "ndw/PortUse.h"
#include "ndw/modDcp.h"
#include "win/Handles.h"

#include <cwchar>
#include <optional>

namespace {

constexpr wchar_t kSerialMap[] = L"HARDWARE\\DEVICEMAP\\SERIALCOMM";
constexpr std::size_t kNamesShown = 3;

// The number of "COMn"; none for any other text.
std::optional<int> NumberOf(const wchar_t* port) {
    if (std::wcsncmp(port, L"COM", 3) != 0) return std::nullopt;
    if (port[3] < L'0' || port[3] > L'9') return std::nullopt; // the conversion takes blanks and signs
    wchar_t* end = nullptr;
    const long number = std::wcstol(port + 3, &end, 10);
    if (*end != L'\0' || number < 1 || number > kPortCount) return std::nullopt;
    return static_cast<int>(number);
}

std::optional<std::int16_t> PortOf(const std::wstring& path) {
    const HANDLE handle =
        CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                    nullptr, OPEN_EXISTING, FILE_FLAG_SEQUENTIAL_SCAN, nullptr);
    if (handle == INVALID_HANDLE_VALUE) return std::nullopt;
    const win::UniqueKernelHandle file(handle);
    unsigned char bytes[kDcpFileSize];
    DWORD read = 0;
    if (!ReadFile(handle, bytes, sizeof bytes, &read, nullptr)) return std::nullopt;
    return DcpPortNumber({bytes, read});
}

// The system's pattern also finds longer extensions.
bool MayBeConfiguration(const WIN32_FIND_DATAW& found) {
    return lstrcmpiW(SplitPath(found.cFileName, kExtension).c_str(), suite::kConfigurationExtension + 1) ==
               0 &&
           !(found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) && found.nFileSizeHigh == 0 &&
           found.nFileSizeLow == kDcpFileSize;
}

std::wstring Joined(const std::vector<std::wstring>& names) {
    std::wstring text;
    for (std::size_t i = 0; i < names.size() && i < kNamesShown; ++i)
        text += (i ? L", " : L"") + names[i];
    if (names.size() > kNamesShown) text += L" and " + std::to_wstring(names.size() - kNamesShown) + L" more";
    return text;
}

} // namespace

std::set<int> PortsOfComputer(HKEY root, const wchar_t* subKey) {
    std::set<int> ports;
    win::UniqueKey key;
    if (RegOpenKeyExW(root, subKey, 0, KEY_QUERY_VALUE, key.Out()) != ERROR_SUCCESS) return ports;
    for (DWORD index = 0;; ++index) {
        wchar_t name[256];
        wchar_t port[16] = {}; // one NUL more than is read: a value need not end in one
        DWORD nameLength = static_cast<DWORD>(std::size(name));
        DWORD size = sizeof port - sizeof port[0];
        const LSTATUS result = RegEnumValueW(key.Get(), index, name, &nameLength, nullptr, nullptr,
                                             reinterpret_cast<BYTE*>(port), &size);
        if (result == ERROR_MORE_DATA) continue;
        if (result != ERROR_SUCCESS) return ports;
        if (const auto number = NumberOf(port)) ports.insert(*number);
    }
}

std::map<int, std::vector<std::wstring>> PortsInUse(const std::wstring& folder, unsigned time) {
    std::map<int, std::vector<std::wstring>> uses;
    const ULONGLONG begin = GetTickCount64();
    WIN32_FIND_DATAW found{};
    const HANDLE handle = FindFirstFileW((folder + L"*" + suite::kConfigurationExtension).c_str(), &found);
    if (handle == INVALID_HANDLE_VALUE) return uses;
    const win::UniqueFind search(handle);
    do {
        if (!MayBeConfiguration(found)) continue;
        if (const auto port = PortOf(folder + found.cFileName))
            uses[*port].push_back(SplitPath(found.cFileName, kNameWithoutExtension));
    } while (GetTickCount64() - begin < time && FindNextFileW(handle, &found));
    return uses;
}

std::vector<std::wstring> PortCaptions() {
    const std::set<int> present = PortsOfComputer(HKEY_LOCAL_MACHINE, kSerialMap);
    const auto uses = PortsInUse(locations.SettingsPath);
    std::vector<std::wstring> captions;
    for (int number = 1; number <= kPortCount; ++number) {
        const auto use = uses.find(number);
        captions.push_back(PortCaption(number, present.contains(number),
                                       use == uses.end() ? std::wstring() : Joined(use->second)));
    }
    return captions;
}
