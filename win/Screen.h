#pragma once

// The screen as the layout sees it. The program is system DPI aware: one resolution for its whole life.

#include "win/Twips.h"

#include <windows.h>

namespace win {

int Dpi(); // pixels per inch, read once

inline int Px(Twips length) { return ToPixels(length, Dpi()); }
inline Twips Tw(int pixels) { return ToTwips(pixels, Dpi()); }

// The area of the primary screen that the task bar leaves free, in pixels.
RECT WorkArea();

} // namespace win
