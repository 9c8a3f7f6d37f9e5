#pragma once

// The user's own shell folders and the shell's links (".lnk" files). What fails is reported by the result
// alone, nothing is shown. Texts go to the shell in the system's ANSI code page, but for the name of the
// link file; one longer than 254 characters cannot be read back.

#include <windows.h>

#include <cstdint>
#include <optional>
#include <string>

// Folders that the program asks for.
enum ShellFolders : std::int32_t { kDesktopFolder = 0, kStartMenuFolder = 11, kApplicationDataFolder = 26 };

struct ShellLinkInfo {
    std::wstring target, workingFolder, arguments, description;
    WORD hotKey = 0; // key in the low byte, modifiers in the high one; 0 none
    std::wstring iconFile;
    std::int32_t iconIndex = 0;
    std::int32_t showCommand = 0; // SW_…
};

class cShellLink {
  public:
    // The full path of a CSIDL_… folder without a backslash at its end. False when the shell knows no such
    // folder. `path` is left as it is then, and also when the shell's answer is blank, which is no failure.
    // `ownerWindow` may be null.
    bool GetSystemFolderPath(HWND ownerWindow, std::int32_t folderId, std::wstring& path) const;

    // Writes `linkFile` (full path), over an old one of that name. `workingFolder`, `arguments` and
    // `iconFile` are applied only when not empty. True when the file was written. False, with no file, for a
    // text that the system's code page cannot hold exactly; whether a target that does not exist gets its
    // link is the shell's affair.
    bool CreateShellLink(const std::wstring& linkFile, const std::wstring& target,
                         const std::wstring& workingFolder, const std::wstring& arguments,
                         const std::wstring& iconFile, std::int32_t iconIndex,
                         std::int32_t showCommand) const;

    std::optional<ShellLinkInfo> GetShellLinkInfo(const std::wstring& linkFile) const;
};
