#pragma once

// The suite's settings file, VarnelDnc.ini: 8-bit ANSI text, read and written only through the system's
// profile functions. `file` is that file unless the caller names another one. Reading never fails: a missing
// file, section or key, and an empty value, are the caller's default. A value is read up to 254 characters
// unless a function says otherwise.

#include "app/modLocations.h"
#include "win/AppError.h"

#include <string>

std::wstring ReadIniString(const std::wstring& section, const std::wstring& key,
                           const std::wstring& defaultText, const std::wstring& file = locations.IniFile);

// The value however long it is; "" when it is absent. For a value that is to be written back.
std::wstring ReadWholeIniString(const std::wstring& section, const std::wstring& key,
                                const std::wstring& file = locations.IniFile);

// As ReadIniString, and without the blanks at both ends of the value: nothing but blanks is the default.
std::wstring ReadProfileString(const std::wstring& file, const std::wstring& section, const std::wstring& key,
                               const std::wstring& defaultText);

// Writes into section "General". Throws the write error when the system refuses that, when the disk has less
// than the size of the file and 8 kB free, and for a value of more than 32,000 bytes.
void WriteIniString(const std::wstring& key, const std::wstring& value,
                    const std::wstring& file = locations.IniFile);

inline constexpr int kIniWriteErrorNumber = 2001;
win::AppError IniWriteError(const std::wstring& file = locations.IniFile); // names the file
[[noreturn]] void ReportIniWriteError(const std::wstring& file = locations.IniFile);

// Hands what the system keeps of the settings file to the disk.
void FlushIni(const std::wstring& file = locations.IniFile);
