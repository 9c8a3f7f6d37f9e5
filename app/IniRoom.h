#pragma once

#include <cstddef>
#include <string>

// Makes sure that the profile functions can rewrite `file` with `added` bytes more: they truncate it first
// and report success when the disk is full or the file may not grow, and the keys behind the cut are lost.
// False: do not write. The file keeps its bytes; a missing one is missing afterwards.
bool HasRoomToRewrite(const std::wstring& file, std::size_t added);

// Whether `file` is so large that rewriting it, as each single key does, would hold up the program for
// seconds. There is never room for it.
bool IsTooLargeToRewrite(const std::wstring& file);
