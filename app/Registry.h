#pragma once

// Single registry values, read and deleted. Reading never fails: what cannot be read is the caller's
// default. The type of a value is neither asked for nor checked, and one that does not fit 1024 bytes
// counts as absent.

#include <windows.h>

#include <string>

// Value of HKEY_CURRENT_USER\key\subKey, cut by the length that the registry reports.
std::wstring ReadUserPathValue(const std::wstring& key, const std::wstring& subKey,
                               const std::wstring& valueName, const std::wstring& defaultText);

// Value of any key, cut at its first NUL. The two readers cut differently on purpose.
std::wstring ReadRegString(HKEY root, const std::wstring& subKey, const std::wstring& valueName,
                           const std::wstring& defaultText);

// The result code of the delete as decimal text ("0": done), or "" when the key could not be opened.
std::wstring DeleteRegValue(HKEY root, const std::wstring& subKey, const std::wstring& valueName);
