#pragma once

// Where the formatted message box stands and how it is divided. Lengths are twips; the window's place is
// that of its outer edge on the screen, the rest lies in its client area.

#include "win/Twips.h"
#include "wizard/FormPlace.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>

struct MessageScreen {
    PixelArea workArea; // what the task bar leaves free
    int dpi;
    int captionHeight; // pixels
};

inline constexpr std::size_t kMessageButtons = 3;
inline constexpr win::Twips kMessageButtonWidth{975};

struct MessageLayout {
    win::Twips left, top, width, height; // the window
    win::Twips frameWidth, frameHeight;  // the panel around the text
    win::Twips textWidth, textHeight;    // 240 less than the panel
    win::Twips buttonTop;
    std::array<win::Twips, kMessageButtons> buttonLeft; // the first `buttons` of them, centred as one group
};

// `size` is 0 to 3, small to large (2 and 3 are one size); any other leaves the size that the window is made
// with. Without an owner the window stands about the middle between 0 and the right and bottom edges of the
// work area. One that would pass the area's right or bottom edge is put 100 twips inside it; one that would
// pass the upper or left edge is put 100 twips from that of the screen.
MessageLayout LayOutMessage(std::int16_t size, std::size_t buttons, const MessageScreen& screen,
                            const std::optional<PixelArea>& owner);
