#pragma once

#include <cstdint>
#include <string_view>

// The window title of each mode. It is also the caption by which a second copy finds the first one.
inline constexpr std::wstring_view kFtwTitle = L"Varnel DNC - First-Time Setup Wizard";
inline constexpr std::wstring_view kNdwTitle = L"Varnel DNC - New CNC Configuration Setup Wizard";

// What the command line asks for; the members' defaults are those of an empty command line.
struct CommandLine {
    std::int16_t wizardMode = 0;               // 0 First-Time Setup Wizard, 1 New Device Wizard
    bool configLaunch = false;                 // started by VConfig, which gets the new device back
    std::wstring_view wizardTitle = kFtwTitle; // one of the two titles above, never anything else
    bool shiftWindow = false;                  // lower right corner of the screen; mode 1 only
};

// Reads "/NDW", "/VCONFIG" and "/SHIFT" from `text`, the command line without the program's name.
// A switch counts wherever it occurs, also inside a longer word, in capitals or not. Only the letters
// a to z have two cases here, so that the answer is the same under every locale. Never fails.
CommandLine ParseCommandLine(std::wstring_view text);
