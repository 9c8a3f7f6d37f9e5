#pragma once

// The shell's own dialog in which the user chooses a folder.

#include <windows.h>

#include <string>

// Modal to `ownerWindow`, opened on `startFolder` (empty: "C:\"; one that does not exist changes nothing).
// `flags` are BIF_… values. The full path of the folder chosen, without a backslash at its end unless it is
// a drive's root; "" when the user cancels or the choice has no path. Longer paths than the shell's own
// limit of 259 characters are not supported. Never throws.
std::wstring BrowseForFolder(const std::wstring& startFolder, HWND ownerWindow, const std::wstring& title,
                             unsigned flags);

// Selects the start folder, to which `data` points, as soon as the dialog is there. Always 0.
int CALLBACK BrowseCallback(HWND window, UINT message, LPARAM parameter, LPARAM data);
