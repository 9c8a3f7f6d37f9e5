#include "app/modLocations.h"

#include "app/Files.h"
#include "app/Paths.h"
#include "app/Registry.h"
#include "app/SpecialFolders.h"

#include <windows.h>

#include <shlobj.h>

#include <algorithm>

namespace {

// Changed by UseLocations alone; everybody else has the constant reference below.
ProgramLocations found;

std::wstring ModulePath() {
    std::wstring path(MAX_PATH, L'\0');
    for (;;) {
        const DWORD length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
        // What does not fit is cut, and only the length of the buffer tells.
        if (length < path.size()) return path.substr(0, length);
        path.resize(path.size() * 2);
    }
}

// With a backslash, always appended: at a drive's root there are two, which the system takes for one.
std::wstring ModuleFolder(const std::wstring& modulePath) {
    const std::size_t end = modulePath.rfind(L'\\');
    std::wstring folder = modulePath.substr(0, end == std::wstring::npos ? 0 : end);
    if (folder.size() == 2 && folder[1] == L':') folder += L'\\';
    return folder + L'\\';
}

// What Windows calls relative to a drive ("\\Dnc", "D:Dnc") is relative as well.
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

std::wstring SettingsFolder(const std::wstring& userKey, const std::wstring& commonAppData) {
    std::wstring path = ReadUserPathValue(userKey, suite::kPathsKey, suite::kSettingsPathValue, L"");
    path.resize(std::min(path.find(L'\0'), path.size())); // no path goes on behind one
    if (path.empty()) path = commonAppData + suite::kDataFolder + suite::kSettingsFolder;
    path = WithBackslash(path);
    return IsRelative(path) ? Resolved(path) : path;
}

} // namespace

const ProgramLocations& locations = found;

void InitLocations() { UseLocations(FindLocations()); }

void UseLocations(const ProgramLocations& those) { found = those; }

ProgramLocations FindLocations(const std::wstring& userKey) {
    ProgramLocations all;
    const std::wstring module = ModulePath();
    all.ExeName = SplitPath(module, kNameWithoutExtension);
    all.AppPath = all.ProgramFolder = ModuleFolder(module);
    all.SamplesPath = all.AppPath + suite::kSamplesFolder;
    all.LocalAppDataPath = GetSpecialFolder(CSIDL_LOCAL_APPDATA);
    all.CommonAppDataPath = GetSpecialFolder(CSIDL_COMMON_APPDATA);
    all.MyDocumentsPath = GetSpecialFolder(CSIDL_PERSONAL);
    all.CommonDocumentsPath = GetSpecialFolder(CSIDL_COMMON_DOCUMENTS);
    all.SettingsPath = SettingsFolder(userKey, all.CommonAppDataPath);
    all.LogPath = all.CommonAppDataPath + suite::kDataFolder + suite::kLogFolder;
    all.IniFile = all.SettingsPath + suite::kIniFile;
    all.TempPath = all.LocalAppDataPath + suite::kDataFolder + suite::kTempFolder;
    all.ProgramFilesPath = GetSpecialFolder(CSIDL_PROGRAM_FILES);
    return all;
}

std::wstring GetSpecialFolder(int csidl) {
    return WithBackslash(SpecialFolderPath(nullptr, csidl).value_or(L"")); // some paths have one already
}

// Looked for anew each time: somebody may have made the folder while the wizard was open.
std::wstring IconFolder() {
    const std::wstring icons = locations.AppPath + suite::kIconsFolder;
    return FolderExists(icons) ? icons : locations.AppPath;
}

std::wstring ConfigurationFile(std::wstring_view name) {
    return locations.SettingsPath + std::wstring(name) + suite::kConfigurationExtension;
}
