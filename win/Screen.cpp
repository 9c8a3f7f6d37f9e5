#include "win/Screen.h"

#include "win/Handles.h"

namespace win {

int Dpi() {
    static const int dpi = [] {
        const WindowDc screen(nullptr);
        const int pixelsPerInch = GetDeviceCaps(screen.Get(), LOGPIXELSY);
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
