#include "app/modLocations.h"

#include "app/Files.h"
#include "app/Paths.h"
#include "app/Registry.h"
#include "app/SpecialFolders.h"

#include <windows.h>

#include <shlobj.h>

ProgramLocations locations;

namespace {

std::wstring ModulePath() {
    std::wstring path(MAX_PATH, L'\0');
    for (;;) {
        const DWORD length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
        if (length < path.size()) return path.substr(0, length);
        path.resize(path.size() * 2);
    }
}

// The program's folder followed by a backslash, always appended: "C:\" becomes "C:\\" as in the whole suite.
std::wstring ModuleFolder(const std::wstring& modulePath) {
    const std::size_t end = modulePath.rfind(L'\\');
    std::wstring folder = modulePath.substr(0, end == std::wstring::npos ? 0 : end);
    if (folder.size() == 2 && folder[1] == L':') folder += L'\\';
    return folder + L'\\';
}

bool IsRelative(const std::wstring& path) {
    const bool drive = path.size() >= 3 && path[1] == L':' && (path[2] == L'\\' || path[2] == L'/');
    const bool unc = path.starts_with(L"\\\\");
    return !drive && !unc;
}

// Against the folder that is current now: the wizard changes it later.
std::wstring Resolved(const std::wstring& path) {
    std::wstring full(32768, L'\0');
    const DWORD length =
        GetFullPathNameW(path.c_str(), static_cast<DWORD>(full.size()), full.data(), nullptr);
    if (length == 0 || length >= full.size()) return path;
    return full.substr(0, length);
}

std::wstring FindSettingsPath() {
    std::wstring path = ReadUserPathValue(kSuiteKey, kPathsKey, kSettingsPathValue, L"");
    path.resize(path.find(L'\0') == std::wstring::npos ? path.size() : path.find(L'\0'));
    if (path.empty()) path = locations.CommonAppDataPath + kSuiteFolder + L"Settings\\";
    path = WithBackslash(path);
    return IsRelative(path) ? Resolved(path) : path;
}

} // namespace

void InitLocations() {
    const std::wstring module = ModulePath();
    locations.ExeName = SplitPath(module, kNameWithoutExtension);
    locations.AppPath = ModuleFolder(module);
    locations.LocalAppDataPath = GetSpecialFolder(CSIDL_LOCAL_APPDATA);
    locations.CommonAppDataPath = GetSpecialFolder(CSIDL_COMMON_APPDATA);
    locations.MyDocumentsPath = GetSpecialFolder(CSIDL_PERSONAL);
    locations.CommonDocumentsPath = GetSpecialFolder(CSIDL_COMMON_DOCUMENTS);
    locations.SettingsPath = FindSettingsPath();
    locations.LogPath = locations.CommonAppDataPath + kSuiteFolder + L"Log\\";
    locations.IniFile = locations.SettingsPath + kIniName;
    locations.TempPath = locations.LocalAppDataPath + kSuiteFolder + L"Temp\\";
    locations.ProgramFilesPath = GetSpecialFolder(CSIDL_PROGRAM_FILES);
    const std::wstring icons = locations.AppPath + L"Icons\\";
    locations.IconsPath = FolderExists(icons) ? icons : locations.AppPath;
}

std::wstring GetSpecialFolder(int csidl) {
    return WithBackslash(SpecialFolderPath(nullptr, csidl).value_or(L"")); // some paths have one already
}

std::wstring ConfigurationFile(std::wstring_view name) {
    return locations.SettingsPath + std::wstring(name) + kConfigurationExtension;
}
