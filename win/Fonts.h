#pragma once

// The program's few fonts at the screen's resolution, each made once and kept to the end.

#include <windows.h>

namespace win {

enum class FontUse { Body, Heading, Link, OldStyle }; // Verdana 8, bold 12, underlined 8, MS Sans Serif 8

HFONT FontFor(FontUse use);

// From one line to the next, in pixels.
int LineHeight(HFONT font);

} // namespace win
