#pragma once

// Pictures from the program's own resources, sharp at each resolution that they are drawn for.

#include <windows.h>

#include <array>

#include "win/Handles.h"

namespace win {

// A picture with the number N has a bitmap for each of these resolutions (dots per inch): N + 0 to N + 3.
inline constexpr std::array<int, 4> kPictureDpi = {96, 120, 144, 192};

// The bitmap to use: that of the resolution itself, else of the next higher, else of the highest.
constexpr int PictureStep(int dpi) {
    for (int step = 0; step < 4; ++step)
        if (dpi <= kPictureDpi[step]) return step;
    return 3;
}

// A bitmap of up to 8 bits with its colors counted (biClrUsed), without transparency. It is drawn from where
// the program's file is mapped: nothing is loaded or kept. One that is not there has no size and draws
// nothing: no page depends on seeing a picture.
class Picture {
  public:
    Picture() = default;
    // The bitmap for `dpi`. It is stretched when there is none of just this resolution.
    Picture(int number, int dpi);

    // In pixels, as drawn.
    SIZE Size() const { return size_; }
    // With its upper left corner at a position in pixels.
    void Draw(HDC dc, int x, int y) const;

  private:
    const BITMAPINFOHEADER* stored_ = nullptr; // in the resource; its colors and pixels follow
    SIZE size_ = {};
};

// An icon, drawn with its transparency on whatever is there. One that cannot be loaded draws nothing.
class IconPicture {
  public:
    IconPicture() = default;
    // Takes the frame of this size (width = height, in pixels); stretched when the icon has none.
    IconPicture(int number, int pixels);

    HICON Get() const { return icon_.Get(); }
    void Draw(HDC dc, int x, int y) const;

  private:
    UniqueIcon icon_;
    int pixels_ = 0;
};

} // namespace win
