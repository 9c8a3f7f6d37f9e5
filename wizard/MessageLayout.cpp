#include "wizard/MessageLayout.h"

namespace {

using namespace win::literals;
using win::Twips;

struct OuterSize {
    Twips height, width;
};

// clang-format off
constexpr OuterSize kMade = {3640_tw, 5140_tw};
constexpr OuterSize kSizes[] = {
    {3640_tw, 5140_tw},
    {4380_tw, 5740_tw},
    {5340_tw, 6700_tw},
    {5340_tw, 6700_tw},
};
// clang-format on

constexpr Twips kInset = 100_tw; // from the edge of the work area
constexpr Twips kBelowFrame = 795_tw;
constexpr Twips kBesideFrame = 90_tw;
constexpr Twips kAroundText = 240_tw;
constexpr Twips kButtonRow = 930_tw; // from the window's bottom
constexpr Twips kButtonGap = 120_tw;

// Rounded down, unlike the layout's own lengths: half a pixel of the work area is no room.
constexpr Twips FromPixels(int pixels, int dpi) { return {pixels * win::kTwipsPerInch / dpi}; }

// One direction: the middle between `from` and `to`, then held between the edges of the work area.
Twips Place(Twips length, Twips from, Twips to, Twips areaStart, Twips areaEnd) {
    Twips start = from + (to - from) / 2 - length / 2;
    // Below 0 it would pass the screen, below the area only a task bar: both are put at the same place.
    if (start < areaStart) start = kInset;
    if (start + length > areaEnd) start = areaEnd - length - kInset;
    return start;
}

} // namespace

MessageLayout LayOutMessage(std::int16_t size, std::size_t buttons, const MessageScreen& screen,
                            const std::optional<PixelArea>& owner) {
    const auto twips = [&](int pixels) { return FromPixels(pixels, screen.dpi); };
    const OuterSize outer = size >= 0 && size <= 3 ? kSizes[size] : kMade;
    const PixelArea& area = screen.workArea;
    const PixelArea middle = owner.value_or(PixelArea{0, 0, area.right, area.bottom});

    MessageLayout layout{};
    layout.height = outer.height;
    layout.width = outer.width;
    layout.top =
        Place(outer.height, twips(middle.top), twips(middle.bottom), twips(area.top), twips(area.bottom));
    layout.left =
        Place(outer.width, twips(middle.left), twips(middle.right), twips(area.left), twips(area.right));
    layout.frameHeight = outer.height - kBelowFrame - twips(screen.captionHeight);
    layout.frameWidth = outer.width - kBesideFrame;
    layout.textHeight = layout.frameHeight - kAroundText;
    layout.textWidth = layout.frameWidth - kAroundText;
    layout.buttonTop = outer.height - kButtonRow;
    const int count = static_cast<int>(buttons);
    Twips left = outer.width / 2 - (kMessageButtonWidth * count + kButtonGap * (count - 1)) / 2;
    for (Twips& buttonLeft : layout.buttonLeft) {
        buttonLeft = left;
        left += kMessageButtonWidth + kButtonGap;
    }
    return layout;
}
