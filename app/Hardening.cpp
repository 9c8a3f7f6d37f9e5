#include "app/Hardening.h"

#include <windows.h>

void RefusePlantedLibraries() {
    using Set = BOOL(WINAPI*)(DWORD);
    const FARPROC found = GetProcAddress(GetModuleHandleW(L"kernel32.dll"), "SetDefaultDllDirectories");
    if (found) reinterpret_cast<Set>(reinterpret_cast<void*>(found))(LOAD_LIBRARY_SEARCH_SYSTEM32);
    SetDllDirectoryW(L"");
}

void RefuseSystemBoxes() { SetThreadErrorMode(SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX, nullptr); }
