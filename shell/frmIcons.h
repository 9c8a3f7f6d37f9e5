#pragma once

#include <windows.h>

#include <string>

// The icon that the user picks for a new configuration ("MILL.ico"); "" when none was picked or there is
// none.
std::wstring NdwPickIcon(HWND owner);
