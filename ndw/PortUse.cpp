#include "ndw/PortUse.h"

#include "app/Paths.h"
#include "app/Suite.h"
#include "app/modLocations.h"
#include "ndw/NdwAnswers.h"
#include "ndw/modDcp.h"
#include "win/Handles.h"

#include <cwchar>
#include <optional>
#include <utility>

namespace {

// The number of "COMn"; none for any other text.
std::optional<int> NumberOf(const wchar_t* port) {
    if (std::wcsncmp(port, L"COM", 3) != 0) return std::nullopt;
    if (port[3] < L'0' || port[3] > L'9') return std::nullopt; // the conversion takes blanks and signs
    wchar_t* end = nullptr;
    const long number = std::wcstol(port + 3, &end, 10);
    if (*end != L'\0' || number < 1 || number > kPortCount) return std::nullopt;
    return static_cast<int>(number);
}

// Shared for everything: VConfig may save or delete the file at this moment.
std::optional<std::int16_t> PortOf(const std::wstring& path) {
    const win::UniqueFile file(CreateFileW(path.c_str(), GENERIC_READ,
                                           FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                           OPEN_EXISTING, FILE_FLAG_SEQUENTIAL_SCAN, nullptr));
    if (!file) return std::nullopt; // locked or just deleted: nothing to be told of
    unsigned char bytes[kDcpFileSize];
    DWORD read = 0;
    if (!ReadFile(file.Get(), bytes, sizeof bytes, &read, nullptr)) return std::nullopt;
    return DcpPortNumber({bytes, read});
}

// The system's pattern also finds longer extensions. The entry tells the size, so that nothing is opened but
// what has the length of a configuration.
bool MayBeConfiguration(const WIN32_FIND_DATAW& found) {
    return lstrcmpiW(SplitPath(found.cFileName, kExtension).c_str(), suite::kConfigurationExtension + 1) ==
               0 &&
           !(found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) && found.nFileSizeHigh == 0 &&
           found.nFileSizeLow == kDcpFileSize;
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
        if (result == ERROR_MORE_DATA) continue; // longer than the name of any port
        if (result != ERROR_SUCCESS) return ports;
        if (const auto number = NumberOf(port)) ports.insert(*number);
    }
}

std::map<int, std::vector<std::wstring>> PortsInUse(const std::wstring& folder, unsigned time_ms) {
    std::map<int, std::vector<std::wstring>> uses;
    const ULONGLONG begin = GetTickCount64();
    WIN32_FIND_DATAW found{};
    const win::UniqueFind search(
        FindFirstFileW((folder + L"*" + suite::kConfigurationExtension).c_str(), &found));
    if (!search) return uses;
    do {
        if (!MayBeConfiguration(found)) continue;
        if (const auto port = PortOf(folder + found.cFileName))
            uses[*port].push_back(SplitPath(found.cFileName, kNameWithoutExtension));
        // Thousands of files in a folder on a server must not hold up the page.
    } while (GetTickCount64() - begin < time_ms && FindNextFileW(search.Get(), &found));
    return uses;
}

std::vector<PortNote> LookUpPorts() {
    std::vector<PortNote> ports(kPortCount);
    for (const int number : PortsOfComputer(HKEY_LOCAL_MACHINE, suite::kSerialMapKey))
        ports[static_cast<std::size_t>(number - 1)].onComputer = true;
    for (auto& [number, names] : PortsInUse(locations.SettingsPath))
        if (number >= 1 && number <= kPortCount) // a file may hold any number
            ports[static_cast<std::size_t>(number - 1)].configurations = std::move(names);
    return ports;
}
