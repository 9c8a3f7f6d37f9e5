#pragma once

// Where the wizard's window stands on the screen. All lengths are pixels.

struct PixelArea {
    int left, top, right, bottom;
};

struct PixelSize {
    int width, height;
};

struct PixelPoint {
    int left, top;
    bool operator==(const PixelPoint&) const = default;
};

// In the lower right corner of the screen, or in its middle. Where a task bar takes a part of the screen
// away, the window is then moved into what is left, its upper left corner first; without one it stays.
PixelPoint PlaceForm(PixelSize window, PixelSize screen, const PixelArea& workArea, bool inCorner);
