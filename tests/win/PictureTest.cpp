#include "win/Picture.h"

#include "res/Artwork.h"
#include "tests/support/Canvas.h"

#include <gtest/gtest.h>

namespace {

constexpr COLORREF kWhite = RGB(255, 255, 255);

// At the resolutions drawn for and one that is not; it stands on the column's color.
TEST(Picture, HasItsPlaceAndSizeAtEachResolution) {
    constexpr std::pair<int, SIZE> kPictures[] = {
        {IDB_SCREEN_LOGO, {72, 72}}, {IDB_CNC_ICON, {72, 72}}, {IDB_LOGO, {96, 40}}, {IDB_VARNEL, {80, 24}}};
    for (const auto& [number, at96] : kPictures)
        for (const int dpi : {96, 120, 144, 168, 192}) {
            SCOPED_TRACE(std::to_string(number) + " at " + std::to_string(dpi));
            const win::Picture picture(number, dpi);
            const Canvas canvas(kWhite);
            picture.Draw(canvas.Dc(), 7, 9);
            const LONG right = 7 + at96.cx * dpi / 96, bottom = 9 + at96.cy * dpi / 96;
            EXPECT_EQ(picture.Size().cx, right - 7);
            EXPECT_EQ(picture.Size().cy, bottom - 9);
            EXPECT_EQ(canvas.At(right - 1, 9), kColumnColor);
            EXPECT_EQ(canvas.At(right - 1, bottom - 1), kColumnColor);
            EXPECT_EQ(canvas.At(right, 9), kWhite);
            EXPECT_EQ(canvas.At(6, 9), kWhite);
            EXPECT_EQ(canvas.At(right - 1, bottom), kWhite);
        }
}

TEST(Picture, TakesTheNextHigherResolution) {
    constexpr std::pair<int, int> kSteps[] = {{72, 0}, {96, 0}, {97, 1}, {144, 2}, {145, 3}, {480, 3}};
    for (const auto& [dpi, step] : kSteps)
        EXPECT_EQ(win::PictureStep(dpi), step) << dpi;
}

// A tile with round corners, which let the ground shine through; nothing without a resource.
TEST(IconPicture, IsDrawnAtItsPlaceInEachSize) {
    for (const int number : {IDI_DEVICE, IDI_DEVICE + 1, IDI_APP_ICON, IDI_APP_ICON + 4, 9999})
        for (const LONG size : {32, 40, 48, 64}) {
            const Canvas canvas(kWhite);
            win::IconPicture(number, size).Draw(canvas.Dc(), 11, 13);
            EXPECT_EQ(canvas.At(11 + size / 2, 14) == kWhite, number == 9999) << number;
            EXPECT_EQ(canvas.At(9 + size, 13 + size / 2) == kWhite, number == 9999) << number;
            EXPECT_EQ(canvas.At(11, 13), kWhite) << number;
            EXPECT_EQ(canvas.At(11 + size, 13 + size / 2), kWhite) << number;
        }
}

} // namespace
