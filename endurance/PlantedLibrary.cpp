// A library that leaves "<own path>.loaded" behind when a program loads it.
#include <windows.h>

extern "C" BOOL WINAPI DllMain(HINSTANCE library, DWORD reason, LPVOID) {
    if (reason != DLL_PROCESS_ATTACH) return TRUE;
    wchar_t path[2 * MAX_PATH] = L"";
    GetModuleFileNameW(library, path, MAX_PATH);
    lstrcatW(path, L".loaded");
    CloseHandle(CreateFileW(path, GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr));
    return TRUE;
}
