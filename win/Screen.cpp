#include "win/Screen.h"

namespace win {

int Dpi() {
    static const int dpi = [] {
        const HDC screen = GetDC(nullptr);
        const int pixelsPerInch = GetDeviceCaps(screen, LOGPIXELSY);
        ReleaseDC(nullptr, screen);
        return pixelsPerInch > 0 ? pixelsPerInch : 96;
    }();
    return dpi;
}

RECT WorkArea() {
    RECT area{};
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &area, 0);
    return area;
}

} // namespace win
