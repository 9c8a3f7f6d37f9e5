#include "app/modSecurity.h"

#include "app/Files.h"
#include "app/Names.h"
#include "app/Settings.h"
#include "app/modLocations.h"
#include "win/Handles.h"

#include <windows.h>

#include <shlobj.h>

#include <cstdio>
#include <cstring>

ConfigAccess configAccess;

namespace {

constexpr wchar_t kProbeName[] = L"VAccessTest.txt";
constexpr char kProbeLine[] = "Test\r\n";
constexpr DWORD kProbeSize = sizeof kProbeLine - 1;

win::UniqueFile Open(const std::wstring& path, DWORD access, DWORD disposition) {
    return win::UniqueFile(
        CreateFileW(path.c_str(), access, 0, nullptr, disposition, FILE_ATTRIBUTE_NORMAL, nullptr));
}

std::int16_t WriteProbe(const std::wstring& path) {
    const auto file = Open(path, GENERIC_WRITE, CREATE_ALWAYS);
    if (!file) return 3;
    DWORD written = 0;
    return WriteFile(file.Get(), kProbeLine, kProbeSize, &written, nullptr) && written == kProbeSize ? 0 : 4;
}

std::int16_t ReadProbe(const std::wstring& path) {
    const auto file = Open(path, GENERIC_READ, OPEN_EXISTING);
    if (!file) return 5;
    char line[kProbeSize] = {};
    DWORD read = 0;
    if (!ReadFile(file.Get(), line, kProbeSize, &read, nullptr)) return 6;
    return read == kProbeSize && std::memcmp(line, kProbeLine, kProbeSize) == 0 ? 0 : 7;
}

// Plain ASCII without blanks at its ends, other from run to run: the profile calls give it back unchanged.
std::wstring DateAndTime() {
    SYSTEMTIME now{};
    GetLocalTime(&now);
    wchar_t text[40];
    std::swprintf(text, std::size(text), L"%04u-%02u-%02u %02u:%02u:%02u.%03u", now.wYear, now.wMonth,
                  now.wDay, now.wHour, now.wMinute, now.wSecond, now.wMilliseconds);
    return text;
}

std::int16_t TestIniFile() {
    if (!FileExists(locations.IniFile)) return kIniMissing;
    if (GetFileAttributesW(locations.IniFile.c_str()) & FILE_ATTRIBUTE_READONLY) return kIniReadOnly;
    const std::wstring probe = DateAndTime();
    if (!TryWriteIniString(L"AccessTest", probe)) return kIniWriteFailed;
    SetLastError(ERROR_SUCCESS); // the profile calls leave a misleading one behind after a success
    return ReadIniString(L"General", L"AccessTest", L"") == probe ? 0 : kIniReadBackDiffers;
}

} // namespace

std::int16_t TestConfigAccess() {
    configAccess = {};
    configAccess.IsAdmin = IsUserAnAdmin() != FALSE;
    const auto security =
        static_cast<std::int16_t>(NumericValue(ReadIniString(L"General", L"Security", L"")));
    configAccess.SecurityRestrict = (security & 2) != 0;
    configAccess.SecurityEnabled = (security & 1) != 0;
    std::int16_t code = TestFolderWrite(locations.SettingsPath);
    if (code == 0) code = TestIniFile();
    configAccess.ConfigWritable = code == kConfigAccessGranted;
    if (code != kConfigAccessGranted) configAccess.AccessError = static_cast<std::int32_t>(GetLastError());
    return code;
}

std::int16_t TestFolderWrite(const std::wstring& folder) {
    if (!FolderExists(folder)) return 1;
    const std::wstring probe = folder + kProbeName; // step 2: one left over is written over
    if (const std::int16_t failed = WriteProbe(probe)) return failed;
    if (const std::int16_t failed = ReadProbe(probe)) return failed;
    return DeleteFileW(probe.c_str()) ? 0 : 8;
}
