#pragma once

#include "app/StartUp.h"

#include <string_view>

// The window title of each mode. It is also the caption by which a second copy finds the first one.
inline constexpr std::wstring_view kFtwTitle = L"Varnel DNC - First-Time Setup Wizard";
inline constexpr std::wstring_view kNdwTitle = L"Varnel DNC - New CNC Configuration Setup Wizard";

// Reads "/NDW", "/VCONFIG" and "/SHIFT" from `text`, the command line without the program's name.
// A switch counts wherever it occurs, also inside a longer word, in capitals or not. Only the letters
// a to z have two cases here, so that the answer is the same under every locale. Never fails.
StartUpState ParseCommandLine(std::wstring_view text);
