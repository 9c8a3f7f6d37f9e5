#pragma once

#include <windows.h>

namespace win {

// Loads a library of Windows by its full path in the system's folder, where nobody else can put one of that
// name; what it needs itself is looked for there first. Works on systems that refuse the flags for this.
// Null when it is missing. Never unloaded.
HMODULE LoadSystemLibrary(const wchar_t* fileName);

} // namespace win
