#include "win/Picture.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <string>

#include "res/Artwork.h"

namespace {

using Area = std::array<LONG, 4>; // left, top, right, bottom

constexpr COLORREF kWhite = RGB(255, 255, 255);

// A square of pixels that pictures are drawn on.
class Canvas {
  public:
    static constexpr int kSide = 320;

    explicit Canvas(COLORREF ground) : dc_(CreateCompatibleDC(nullptr)) {
        BITMAPINFO info = {{sizeof(BITMAPINFOHEADER), kSide, -kSide, 1, 32, BI_RGB, 0, 0, 0, 0, 0}, {}};
        void* bits = nullptr;
        bitmap_ = win::UniqueBitmap(CreateDIBSection(dc_.Get(), &info, DIB_RGB_COLORS, &bits, nullptr, 0));
        pixels_ = static_cast<const DWORD*>(bits);
        SelectObject(dc_.Get(), bitmap_.Get());
        const win::UniqueBrush brush(CreateSolidBrush(ground));
        const RECT all = {0, 0, kSide, kSide};
        FillRect(dc_.Get(), &all, brush.Get());
    }

    HDC Dc() const { return dc_.Get(); }
    COLORREF At(LONG x, LONG y) const {
        GdiFlush();
        const DWORD pixel = pixels_[y * kSide + x];
        return RGB(pixel >> 16 & 255, pixel >> 8 & 255, pixel & 255);
    }

    // The smallest rectangle that holds every pixel of another colour than `ground`.
    Area Drawn(COLORREF ground) const {
        Area r = {kSide, kSide, 0, 0};
        for (LONG y = 0; y < kSide; ++y)
            for (LONG x = 0; x < kSide; ++x)
                if (At(x, y) != ground)
                    r = {std::min(r[0], x), std::min(r[1], y), std::max(r[2], x + 1), std::max(r[3], y + 1)};
        return r;
    }

  private:
    const DWORD* pixels_ = nullptr;
    win::UniqueBitmap bitmap_;
    win::Unique<HDC, DeleteDC> dc_; // goes first, and the bitmap with nothing selecting it
};

// The resolutions drawn for, and two that are not.
TEST(Picture, HasItsSizeAtEachResolution) {
    constexpr struct {
        int number;
        SIZE at96;
    } kPictures[] = {
        {IDB_SCREEN_LOGO, {72, 72}}, {IDB_CNC_ICON, {72, 72}}, {IDB_LOGO, {96, 40}}, {IDB_VARNEL, {80, 24}}};
    for (const auto& row : kPictures)
        for (const int dpi : {96, 120, 144, 192, 168, 288}) {
            SCOPED_TRACE(std::to_string(row.number) + " at " + std::to_string(dpi));
            const win::Picture picture(row.number, dpi);
            const Canvas onWhite(kWhite), onColumn(kColumnColour);
            picture.Draw(onWhite.Dc(), 7, 9);
            const LONG width = row.at96.cx * dpi / 96, height = row.at96.cy * dpi / 96;
            EXPECT_EQ(picture.Size().cx, width);
            EXPECT_EQ(onWhite.Drawn(kWhite), (Area{7, 9, std::min<LONG>(7 + width, Canvas::kSide),
                                                   std::min<LONG>(9 + height, Canvas::kSide)}));
            picture.Draw(onColumn.Dc(), 0, 0);
            EXPECT_EQ(onColumn.At(width - 1, 0), kColumnColour); // it stands on the column's colour
        }
}

TEST(Picture, TakesTheNextHigherResolution) {
    constexpr std::pair<int, int> kSteps[] = {{72, 0}, {96, 0}, {97, 1}, {144, 2}, {145, 3}, {480, 3}};
    for (const auto& [dpi, step] : kSteps)
        EXPECT_EQ(win::PictureStep(dpi), step) << dpi;
}

TEST(Picture, DrawsNothingWithoutAResource) {
    const Canvas canvas(kWhite);
    win::Picture(9999, 96).Draw(canvas.Dc(), 0, 0);
    win::IconPicture(9999, 32).Draw(canvas.Dc(), 0, 0);
    EXPECT_EQ(canvas.Drawn(kWhite)[2], 0);
}

// A tile with round corners, which let the ground shine through.
TEST(IconPicture, IsDrawnAtItsPlaceInEachSize) {
    for (const int number : {IDI_DEVICE, IDI_DEVICE + 1, IDI_APP_ICON, IDI_APP_ICON + 4})
        for (const LONG size : {32, 40, 48, 64}) {
            const Canvas canvas(kWhite);
            win::IconPicture(number, size).Draw(canvas.Dc(), 11, 13);
            EXPECT_EQ(canvas.Drawn(kWhite), (Area{11, 13, 11 + size, 13 + size})) << number;
            EXPECT_EQ(canvas.At(11, 13), kWhite) << number;
        }
}

} // namespace
