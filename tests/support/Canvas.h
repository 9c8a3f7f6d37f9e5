#pragma once

#include "win/Handles.h"

#include <windows.h>

// A square of 320 pixels, filled with one color, that pictures are drawn on.
class Canvas {
  public:
    explicit Canvas(COLORREF ground) : dc_(CreateCompatibleDC(nullptr)) {
        bitmap_ = win::UniqueBitmap(CreateCompatibleBitmap(win::WindowDc(nullptr).Get(), 320, 320));
        SelectObject(dc_.Get(), bitmap_.Get());
        const win::UniqueBrush brush(CreateSolidBrush(ground));
        const RECT all = {0, 0, 320, 320};
        FillRect(dc_.Get(), &all, brush.Get());
    }
    HDC Dc() const { return dc_.Get(); }
    COLORREF At(LONG x, LONG y) const { return GetPixel(dc_.Get(), x, y); }

  private:
    win::UniqueBitmap bitmap_;
    win::Unique<HDC, DeleteDC> dc_; // goes first, and the bitmap with nothing selecting it
};
