#pragma once

// The suite's settings file, VarnelDnc.ini: 8-bit ANSI text, read and written only through the system's
// profile functions. Reading never fails: a missing file, section or key, and an empty value, are the
// caller's default. A value is read up to 254 characters, as all programs of the suite do.

#include "win/AppError.h"

#include <string>

std::wstring ReadIniString(const std::wstring& section, const std::wstring& key,
                           const std::wstring& defaultText);

// The value however long it is; "" when it is absent. For a value that is to be written back.
std::wstring ReadWholeIniString(const std::wstring& section, const std::wstring& key);

// As ReadIniString for any file; the one reader that trims blanks.
std::wstring ReadProfileString(const std::wstring& file, const std::wstring& section, const std::wstring& key,
                               const std::wstring& defaultText);

// Writes into section "General" of the settings file; throws the write error when that is refused.
void WriteIniString(const std::wstring& key, const std::wstring& value);

// The same, answering false instead of throwing. The system's last error tells why.
bool TryWriteIniString(const std::wstring& key, const std::wstring& value);

inline constexpr int kIniWriteErrorNumber = 2001;
win::AppError IniWriteError(); // names the file and what may be wrong with it
[[noreturn]] void ReportIniWriteError();

// Hands what the system keeps of the settings file to the disk.
void FlushIni();
