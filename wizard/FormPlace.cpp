#include "wizard/FormPlace.h"

#include <algorithm>

namespace {

// One direction.
int Place(int length, int screen, int areaStart, int areaEnd, bool inCorner) {
    const int start = inCorner ? screen - length : (screen - length) / 2;
    const bool hasTaskBar = areaStart > 0 || areaEnd < screen;
    return hasTaskBar ? std::max(std::min(start, areaEnd - length), areaStart) : start;
}

} // namespace

PixelPoint PlaceForm(PixelSize window, PixelSize screen, const PixelArea& workArea, bool inCorner) {
    return {Place(window.width, screen.width, workArea.left, workArea.right, inCorner),
            Place(window.height, screen.height, workArea.top, workArea.bottom, inCorner)};
}
