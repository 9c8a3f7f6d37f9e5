#pragma once
#include <windows.h>

#include <string>

// Writes what the screen shows in `area` (screen pixels) to `file` as a 24-bit BMP; false when that fails.
bool CaptureScreen(const RECT& area, const std::wstring& file);
