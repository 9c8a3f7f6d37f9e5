#include "win/Picture.h"

namespace win {
namespace {

const BITMAPINFOHEADER* FindBitmap(int number) {
    const HRSRC resource = FindResourceW(nullptr, MAKEINTRESOURCEW(number), RT_BITMAP);
    return resource ? static_cast<const BITMAPINFOHEADER*>(LockResource(LoadResource(nullptr, resource)))
                    : nullptr;
}

} // namespace

Picture::Picture(int number, int dpi) : stored_(FindBitmap(number + PictureStep(dpi))) {
    if (!stored_) return;
    const int drawnFor = kPictureDpi[PictureStep(dpi)];
    size_ = {MulDiv(stored_->biWidth, dpi, drawnFor), MulDiv(stored_->biHeight, dpi, drawnFor)};
}

void Picture::Draw(HDC dc, int x, int y) const {
    if (!stored_) return;
    // Behind the header the colors that are counted, behind them the pixels.
    const auto* colors = reinterpret_cast<const BYTE*>(stored_) + stored_->biSize;
    const BYTE* pixels = colors + stored_->biClrUsed * sizeof(RGBQUAD);
    const int mode = SetStretchBltMode(dc, HALFTONE);
    SetBrushOrgEx(dc, 0, 0, nullptr); // HALFTONE asks for it
    StretchDIBits(dc, x, y, size_.cx, size_.cy, 0, 0, stored_->biWidth, stored_->biHeight, pixels,
                  reinterpret_cast<const BITMAPINFO*>(stored_), DIB_RGB_COLORS, SRCCOPY);
    SetStretchBltMode(dc, mode);
}

IconPicture::IconPicture(int number, int pixels)
    : icon_(static_cast<HICON>(LoadImageW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(number), IMAGE_ICON,
                                          pixels, pixels, LR_DEFAULTCOLOR))),
      pixels_(pixels) {}

void IconPicture::Draw(HDC dc, int x, int y) const {
    if (icon_) DrawIconEx(dc, x, y, icon_.Get(), pixels_, pixels_, 0, nullptr, DI_NORMAL);
}

} // namespace win
