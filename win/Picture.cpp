#include "win/Picture.h"

namespace win {
namespace {

using UniqueMemoryDc = Unique<HDC, DeleteDC>;

SIZE StoredSize(HBITMAP bitmap) {
    BITMAP info = {};
    if (GetObjectW(bitmap, sizeof info, &info) == 0) return {};
    return {info.bmWidth, info.bmHeight};
}

template <class Handle> Handle Load(int number, UINT kind, int pixels) {
    return static_cast<Handle>(LoadImageW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(number), kind, pixels,
                                          pixels, LR_DEFAULTCOLOR));
}

} // namespace

Picture::Picture(int number, int dpi)
    : bitmap_(Load<HBITMAP>(number + PictureStep(dpi), IMAGE_BITMAP, 0)), stored_(StoredSize(bitmap_.Get())) {
    const int drawnFor = kPictureDpi[PictureStep(dpi)];
    size_ = {MulDiv(stored_.cx, dpi, drawnFor), MulDiv(stored_.cy, dpi, drawnFor)};
}

void Picture::Draw(HDC dc, int x, int y) const {
    const UniqueMemoryDc source(CreateCompatibleDC(dc));
    if (!bitmap_ || !source) return;
    const HGDIOBJ before = SelectObject(source.Get(), bitmap_.Get());
    const int mode = SetStretchBltMode(dc, HALFTONE);
    SetBrushOrgEx(dc, 0, 0, nullptr); // HALFTONE asks for it
    StretchBlt(dc, x, y, size_.cx, size_.cy, source.Get(), 0, 0, stored_.cx, stored_.cy, SRCCOPY);
    SetStretchBltMode(dc, mode);
    SelectObject(source.Get(), before);
}

IconPicture::IconPicture(int number, int pixels)
    : icon_(Load<HICON>(number, IMAGE_ICON, pixels)), pixels_(pixels) {}

void IconPicture::Draw(HDC dc, int x, int y) const {
    if (icon_) DrawIconEx(dc, x, y, icon_.Get(), pixels_, pixels_, 0, nullptr, DI_NORMAL);
}

} // namespace win
