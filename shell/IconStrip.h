#pragma once

// What the icon picker shows and which icon is chosen, as the mouse and the keys change it. Positions in
// the list and slots of the strip count from 1. With an empty list every operation changes nothing.

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

inline constexpr std::int16_t kIconSlots = 6;
inline constexpr std::int16_t kMostIcons = 32767; // what a position can count

struct IconStrip {
    std::int16_t count = 0;    // icons in the list
    std::int16_t selected = 1; // position of the chosen icon
    std::int16_t scroll = 1;   // position shown in the first slot

    bool operator==(const IconStrip&) const = default;
};

// The list as it opens: the chosen icon stands in the first slot wherever the scroll range allows it.
// A position outside the list is moved to its nearer end.
IconStrip OpenStrip(std::int16_t count, std::int16_t selected);

// A click on a slot. A slot beyond the number of icons counts as the last icon's, however far the strip is
// scrolled.
IconStrip ClickSlot(IconStrip strip, std::int16_t slot);

// The arrow keys: one position on, and the strip follows by one when the chosen icon has left it.
IconStrip MoveLeft(IconStrip strip);
IconStrip MoveRight(IconStrip strip);

enum class ScrollStep { LineLeft, LineRight, PageLeft, PageRight, First, Last };

// The scroll bar moves the slots, never the choice.
IconStrip Scroll(IconStrip strip, ScrollStep step);
IconStrip ScrollTo(IconStrip strip, std::int32_t position);

std::int16_t ScrollMaximum(std::int16_t count);
bool NeedsScrollBar(std::int16_t count);

// The slot that holds the chosen icon; none while it is scrolled out of sight.
std::optional<std::int16_t> SelectedSlot(const IconStrip& strip);

// The position shown in a slot; none for a slot behind the end of the list.
std::optional<std::int16_t> PositionInSlot(const IconStrip& strip, std::int16_t slot);

// The position to begin with: that of the suite's own icon, "VDNC32" in capitals or not, else the first.
std::int16_t DefaultPosition(const std::vector<std::wstring>& keys);
