#pragma once

// What the drawings of res/art agree on with the window that shows them.

#include <windows.h>

#include "res/resource.h"

// The ground of the picture column. The pictures are drawn on it, so it is the same under every color
// scheme, high contrast included.
inline constexpr COLORREF kColumnColor = RGB(0x27, 0x45, 0x5F);
// Text on that ground (contrast 7.4 : 1).
inline constexpr COLORREF kColumnTextColour = RGB(0xD6, 0xE0, 0xE9);
// The one accent.
inline constexpr COLORREF kAccentColour = RGB(0xF2, 0xA3, 0x2C);
