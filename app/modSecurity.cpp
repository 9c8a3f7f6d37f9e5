#include "app/modSecurity.h"

#include "app/CodePage.h"
#include "app/Files.h"
#include "app/Numbers.h"
#include "app/Settings.h"
#include "app/Suite.h"
#include "win/Handles.h"

#include <windows.h>

#include <shlobj.h>

#include <cstdio>
#include <cstring>
#include <iterator>

ConfigAccess configAccess;

namespace {

constexpr char kProbeLine[] = "Test\r\n";
constexpr DWORD kProbeSize = sizeof kProbeLine - 1;

// A virus scanner or an indexer may have the new file open for a moment, and not share it.
bool IsInUse() { return GetLastError() == ERROR_SHARING_VIOLATION; }

// The first result that is a success or a failure that does not pass; after half a second any.
template <class Attempt, class Condition = bool (*)()>
auto Patiently(const Attempt& attempt, const Condition& passes = IsInUse) {
    constexpr ULONGLONG kPatience_ms = 500;
    constexpr DWORD kPause_ms = 20;
    const ULONGLONG end = GetTickCount64() + kPatience_ms;
    for (;;) {
        auto result = attempt();
        if (result || !passes() || GetTickCount64() >= end) return result;
        Sleep(kPause_ms);
    }
}

win::UniqueFile Open(const std::wstring& path, DWORD access, DWORD disposition) {
    constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    return Patiently([&] {
        return win::UniqueFile(CreateFileW(path.c_str(), access, kShareAll, nullptr, disposition,
                                           FILE_ATTRIBUTE_NORMAL, nullptr));
    });
}

std::int16_t WriteProbe(const std::wstring& path) {
    const auto file = Open(path, GENERIC_WRITE, CREATE_ALWAYS);
    if (!file) return kProbeNotMade;
    DWORD written = 0;
    return WriteFile(file.Get(), kProbeLine, kProbeSize, &written, nullptr) && written == kProbeSize
               ? kConfigAccessGranted
               : kProbeNotWritten;
}

// Read back by a handle of its own: what was written is to be found by others.
std::int16_t ReadProbe(const std::wstring& path) {
    const auto file = Open(path, GENERIC_READ, OPEN_EXISTING);
    if (!file) return kProbeNotOpened;
    char line[kProbeSize] = {};
    DWORD read = 0;
    if (!ReadFile(file.Get(), line, kProbeSize, &read, nullptr)) return kProbeNotRead;
    return read == kProbeSize && std::memcmp(line, kProbeLine, kProbeSize) == 0 ? kConfigAccessGranted
                                                                                : kProbeDiffers;
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

std::int16_t WriteAndReadBack(const std::wstring& file) {
    const std::wstring now = DateAndTime();
    // Not by WriteIniString, whose refusal would be told; that the disk has room the probe file has shown.
    if (!WritePrivateProfileStringA(ToAnsi(suite::kGeneral).c_str(), ToAnsi(suite::kAccessTest).c_str(),
                                    ToAnsi(now).c_str(), ToAnsi(file).c_str()))
        return kIniWriteFailed;
    SetLastError(ERROR_SUCCESS); // the profile calls leave a misleading one behind after a success
    return ReadIniString(suite::kGeneral, suite::kAccessTest, L"", file) == now ? kConfigAccessGranted
                                                                                : kIniReadBackDiffers;
}

std::int16_t TestIniFile(const std::wstring& file) {
    // Both before the write, which would make a missing file and not say why it failed with the other.
    if (!FileExists(file)) return kIniMissing;
    if (GetFileAttributesW(file.c_str()) & FILE_ATTRIBUTE_READONLY) return kIniReadOnly;
    std::int16_t code = kConfigAccessGranted;
    // A program that writes a key at the same time may put back the file as it was before.
    Patiently([&] { return (code = WriteAndReadBack(file)) == kConfigAccessGranted; },
              [&] { return code == kIniReadBackDiffers || IsInUse(); });
    return code;
}

} // namespace

std::int16_t TestConfigAccess() {
    configAccess = FindConfigAccess(locations.SettingsPath);
    return configAccess.Code;
}

ConfigAccess FindConfigAccess(const std::wstring& settingsFolder) {
    const std::wstring iniFile = settingsFolder + suite::kIniFile;
    ConfigAccess access;
    // Only noted, like the two switches: what counts is whether the write succeeds, whoever makes it.
    access.IsAdmin = IsUserAnAdmin() != FALSE;
    const auto security = static_cast<std::int16_t>(
        NumericValue(ReadIniString(suite::kGeneral, suite::kSecurity, L"", iniFile)));
    access.SecurityRestrict = (security & 2) != 0;
    access.SecurityEnabled = (security & 1) != 0;
    access.Code = TestFolderWrite(settingsFolder);
    if (access.Code == kConfigAccessGranted) access.Code = TestIniFile(iniFile);
    access.ConfigWritable = access.Code == kConfigAccessGranted;
    if (!access.ConfigWritable) access.AccessError = static_cast<std::int32_t>(GetLastError());
    return access;
}

std::int16_t TestFolderWrite(const std::wstring& folder) {
    if (!FolderExists(folder)) return kFolderMissing;
    const std::wstring probe = folder + suite::kProbeFile;
    FileExists(probe); // the answer does not matter: one left over is written over
    if (const std::int16_t failed = WriteProbe(probe)) return failed;
    if (const std::int16_t failed = ReadProbe(probe)) return failed;
    return Patiently([&] { return DeleteFileW(probe.c_str()); }) ? kConfigAccessGranted : kProbeNotDeleted;
}
