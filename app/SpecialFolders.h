#pragma once

#include <windows.h>

#include <optional>
#include <string>

// The path of a CSIDL_… folder as the shell writes it: with or without a backslash at its end, and empty for
// a folder without path text. None when the shell knows no such folder or refuses its path. The shell may
// show what it asks about a network folder above `ownerWindow`; null for none.
std::optional<std::wstring> SpecialFolderPath(HWND ownerWindow, int csidl);
