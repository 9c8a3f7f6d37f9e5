#include "app/Hardening.h"

#include <windows.h>

// Looked up instead of linked: a Windows 7 without the update that brought the call would not start the
// program at all. The older call takes at least the current folder out of the search.
void RefusePlantedLibraries() {
    using Set = BOOL(WINAPI*)(DWORD);
    const FARPROC found = GetProcAddress(GetModuleHandleW(L"kernel32.dll"), "SetDefaultDllDirectories");
    if (found) reinterpret_cast<Set>(reinterpret_cast<void*>(found))(LOAD_LIBRARY_SEARCH_SYSTEM32);
    SetDllDirectoryW(L"");
}

void RefuseSystemBoxes() { SetThreadErrorMode(SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX, nullptr); }
