#pragma once

// What the soak program and the wizard with a monkey inside share: a block of memory, and an event that is
// set after each turn.

#include <windows.h>

#include <cstdint>

struct MonkeyNotes {
    std::uint32_t seed;         // of this run of the wizard
    HWND window;                // takes kMonkeyTurn; null until the wizard is there
    HWND main;                  // the wizard's own; gone when it is about to end
    bool browses;               // the page has a button for the shell's own folder dialog
    int events;                 // done so far
    int created;                // configurations
    wchar_t acts[8][64];        // the last events; number n is in row n % 8
    wchar_t trouble[512];       // "" as long as all is well
    wchar_t waiting[512];       // for whom, when a turn brought no event
    wchar_t locations[1 << 16]; // folders typed for CNC programs: these may be made anywhere
};

inline constexpr wchar_t kMonkeyNotes[] = L"VWizardMonkeyNotes";
inline constexpr wchar_t kMonkeyTurnEnds[] = L"VWizardMonkeyTurnEnds";
inline constexpr UINT kMonkeyTurn = WM_APP + 77;

// The notes of that name, made when there are none. They last as long as a process holds them.
inline MonkeyNotes* OpenMonkeyNotes() {
    const HANDLE block = CreateFileMappingW(INVALID_HANDLE_VALUE, nullptr, PAGE_READWRITE, 0,
                                            sizeof(MonkeyNotes), kMonkeyNotes);
    return static_cast<MonkeyNotes*>(MapViewOfFile(block, FILE_MAP_ALL_ACCESS, 0, 0, sizeof(MonkeyNotes)));
}
