#pragma once

// The shortcuts of the suite's programs on the desktop, in the Start menu and on the Quick Launch bar, and
// the row of application icons of the pages that speak of them. Nothing here shows a message: a shortcut
// that cannot be written or deleted is passed over.

#include <windows.h>

#include <cstdint>
#include <string>

class frmWizard;

// 0 hides all five icons, 1 shows all five, 2 shows the first and leaves the others as they are.
inline constexpr std::int16_t kNoAppIcon = 0;
inline constexpr std::int16_t kAllAppIcons = 1;
inline constexpr std::int16_t kFirstAppIcon = 2;
void ShowAppIcons(frmWizard& form, std::int16_t mode);

// Makes the shortcuts at the places whose bit is set in `choice` (1 desktop, 2 Start menu, 4 Quick Launch
// bar) and deletes those at the other places. The Remote Server's shortcut follows the File Manager's where
// that program is installed, and is left alone where it is not.
void UpdateShortcuts(HWND owner, std::int16_t choice);

// The same for one place. `folder` ends in a backslash and is made, but not its parents, when a shortcut is
// to go there.
void UpdateShortcutsIn(HWND owner, const std::wstring& folder, bool create, bool remoteServer);

// The lowest bit of the number under "Options" in section "Install" of the settings file or, when that is
// absent or empty, under "Install" in section "Options": the first that is not empty decides.
bool RemoteServerInstalled();
