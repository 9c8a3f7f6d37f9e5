#pragma once

#include <string>

// Writes the program-wide device records to `path`, over an existing file without cutting it. True when
// all bytes are in the file afterwards; on any failure false, and what was written stays.
bool WriteDcpFile(const std::wstring& path);
