#pragma once

#include <string>

// Writes the program-wide device records to `path`, over an existing file without cutting it. True when
// the file is there with its full length afterwards; on any failure false, and what was written stays.
bool WriteDcpFile(const std::wstring& path);
