#include "shell/modShellLink.h"

#include "app/Blanks.h"
#include "app/Files.h"
#include "app/Numbers.h"
#include "app/Settings.h"
#include "app/Suite.h"
#include "app/modLocations.h"
#include "shell/cShellLink.h"
#include "wizard/frmWizard.h"

#include <shellapi.h>
#include <shlobj.h>

namespace {

struct Place {
    std::int16_t bit;
    std::int32_t shellFolder;
    const wchar_t* below; // the shell folder
};

struct Shortcut {
    const wchar_t* file;
    const wchar_t* target; // in the program's folder
};

// clang-format off
constexpr Place kPlaces[] = {
    {1, kDesktopFolder,         L"\\"},
    {2, kStartMenuFolder,       L"\\"},
    {4, kApplicationDataFolder, L"\\Microsoft\\Internet Explorer\\Quick Launch\\"},
};

constexpr Shortcut kFileManager  = {L"Varnel DNC File Manager.lnk",  suite::kFileManagerTarget};
constexpr Shortcut kRemoteServer = {L"Varnel DNC Remote Server.lnk", suite::kRemoteServerTarget};
// clang-format on

// Silent, without confirmation, and without a word about a link that is not there or that another program
// holds open.
constexpr std::int16_t kQuietDelete = FOF_SILENT | FOF_NOCONFIRMATION | FOF_NOERRORUI;

// Made when a shortcut is first asked for: most runs never need it.
cShellLink& Links() {
    static cShellLink link;
    return link;
}

void Update(HWND owner, const std::wstring& folder, bool create, const Shortcut& shortcut) {
    const std::wstring link = folder + shortcut.file;
    if (create) {
        // Of all three places only Quick Launch may be missing. Where it cannot be made, the link fails by
        // itself.
        if (!FolderExists(folder)) CreateDirectoryW(folder.c_str(), nullptr);
        Links().CreateShellLink(link, locations.ProgramFolder + shortcut.target, locations.ProgramFolder, L"",
                                L"", 0, SW_SHOW);
    } else {
        // A list of one path: two NULs end it, whoever hands it on.
        DeleteAnyFile(link + std::wstring(2, L'\0'), kQuietDelete, owner);
    }
}

} // namespace

void ShowAppIcons(frmWizard& form, std::int16_t mode) {
    for (auto& icon : form.picAppIcon) {
        icon.Visible(mode >= kAllAppIcons);
        // The page change has hidden all five, so the others need no word.
        if (mode == kFirstAppIcon) break;
    }
}

// The settings are read anew each time: another program of the suite may have installed the Remote Server
// while the wizard was open.
void UpdateShortcuts(HWND owner, std::int16_t choice) {
    const bool remoteServer = RemoteServerInstalled();
    for (const Place& place : kPlaces) {
        std::wstring folder;
        // A place that the shell does not know is passed over, the others are not.
        if (!Links().GetSystemFolderPath(owner, place.shellFolder, folder) || folder.empty()) continue;
        UpdateShortcutsIn(owner, folder + place.below, (choice & place.bit) != 0, remoteServer);
    }
}

void UpdateShortcutsIn(HWND owner, const std::wstring& folder, bool create, bool remoteServer) {
    Update(owner, folder, create, kFileManager);
    if (remoteServer) Update(owner, folder, create, kRemoteServer);
}

bool RemoteServerInstalled() {
    std::wstring options = TrimBlanks(ReadIniString(suite::kInstall, suite::kOptions, L""));
    if (options.empty()) options = ReadIniString(suite::kOptions, suite::kInstall, L"");
    return (NumericValue(options) & 1) != 0;
}
