#pragma once

// What the icon picker shows and which icon is chosen, as mouse, wheel and keys change it. Positions in
// the list and slots of the strip count from 1. With an empty list every operation changes nothing.

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

inline constexpr std::int16_t kIconSlots = 6;
inline constexpr std::int16_t kMostIcons = 32767; // what a position can count

struct IconStrip {
    std::int16_t count = 0;    // icons in the list
    std::int16_t selected = 1; // position of the chosen icon
    std::int16_t scroll = 1;   // position of the icon in slot 1

    bool operator==(const IconStrip&) const = default;
};

// The list as it opens: the chosen icon stands in the first slot wherever the scroll range allows it.
// A position outside the list is moved to its nearer end.
IconStrip OpenStrip(std::int16_t count, std::int16_t selected);

// A click on a slot. A slot beyond the number of icons counts as the last icon's, however far the strip is
// scrolled.
IconStrip ClickSlot(IconStrip strip, std::int16_t slot);

// The strip scrolled no further than the chosen icon needs to be seen.
IconStrip InView(IconStrip strip);

// The icon at `position`, or at the end of the list that is nearer to it, is chosen and brought into view.
IconStrip Choose(IconStrip strip, std::int32_t position);

// The arrow keys: the chosen icon is brought into view, then the choice goes one position on, and the strip
// follows by one when the new one has left it.
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

// What is typed to find an icon by its name: letters that follow each other within a second are one word.
struct TypedLetters {
    std::wstring letters;
    std::uint32_t time_ms = 0; // of the last one; may run over

    void Add(wchar_t letter, std::uint32_t letterTime_ms);
};

// The next icon behind the chosen one, round the end of the list, whose name begins with `letters`; with two
// letters and more the chosen one itself goes first. One letter typed again and again walks from name to
// name. Nothing when no name fits. `upper` gives the capital of a character.
std::optional<std::int16_t> FindByLetters(const std::vector<std::wstring>& keys, std::int16_t selected,
                                          std::wstring_view letters, wchar_t (*upper)(wchar_t));

// By how many icons the wheel scrolls. `rest` keeps what has been turned short of one icon; a notch is worth
// `iconsPerNotch`, the strip's length at most. Turning towards oneself (`turned` below 0) scrolls right.
int WheelIcons(int& rest, int turned, unsigned iconsPerNotch);

// The position to begin with: that of the suite's own icon, "VDNC32" in capitals or not, else the first.
std::int16_t DefaultPosition(const std::vector<std::wstring>& keys);
