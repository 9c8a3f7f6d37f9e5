#pragma once

// What the drawings of res/art agree on with the window that shows them.

#include <windows.h>

#include "res/resource.h"

// The ground of the picture column. The pictures are drawn on it, so it is the same under every color
// scheme, high contrast included.
inline constexpr COLORREF kColumnColor = RGB(0x27, 0x45, 0x5F);
