#pragma once

// Single registry values, read and deleted. Reading never fails: what cannot be read is the caller's
// default. Values of all types are read as text in the system's code page; one that does not fit 1024 bytes
// counts as absent.

#include <windows.h>

#include <string>

// Value of HKEY_CURRENT_USER\key\subKey, as long as the registry says, without a NUL at its end; other NULs
// stay in it.
std::wstring ReadUserPathValue(const std::wstring& key, const std::wstring& subKey,
                               const std::wstring& valueName, const std::wstring& defaultText);

// Value of any key, up to its first NUL.
std::wstring ReadRegString(HKEY root, const std::wstring& subKey, const std::wstring& valueName,
                           const std::wstring& defaultText);

// The result code of the delete as decimal text ("0": done), or "" when the key could not be opened.
std::wstring DeleteRegValue(HKEY root, const std::wstring& subKey, const std::wstring& valueName);
