#pragma once

// Files and folders: whether they exist, and the shell's own copy and delete with their confirmations.
// Nothing throws; the Boolean result is all that is reported.

#include <windows.h>

#include <string>
#include <vector>

// A path whose file-name part is empty or blank is no file; folders are no files.
bool FileExists(const std::wstring& path);

// With or without a backslash at the end; roots and shares too.
bool FolderExists(const std::wstring& path);

// Full names (with extension) of the files in `folder` (ends in a backslash) whose extension is exactly
// `extension` (".dcp", any case), in the order in which the system lists them.
std::vector<std::wstring> ListFiles(const std::wstring& folder, const std::wstring& extension);

// Whether the shell's file operation can take `files` (a path, or a list of them): each has less than
// MAX_PATH characters and the first is not empty. Some versions make something else of others: the current
// folder.
bool FitsShell(const std::wstring& files);

// The shell's copy of `files` (full paths, each followed by a NUL) into `folder`. `flags` are FOF_… values,
// 0 means FOF_ALLOWUNDO. True when the shell reports success and the user refused nothing.
bool CopyFiles(const std::wstring& files, const std::wstring& folder, std::int16_t flags, HWND owner);

// The shell's delete, into the recycle bin. `flags` are added to FOF_ALLOWUNDO.
bool DeleteAnyFile(const std::wstring& files, std::int16_t flags, HWND owner);
