#pragma once

// Every distance of the wizard's window, in twips of its client area. One place, so that they repeat.

#include "win/Twips.h"

namespace layout {

using namespace win::literals;
using win::Twips;

// The window (outer size; the caption's height comes on top).
inline constexpr Twips kWindowWidth = 7500_tw;
inline constexpr Twips kWindowHeight = 4860_tw;

// Header strip (logo above the picture column, heading, step counter), picture column, text column, button
// row.
inline constexpr Twips kHeaderHeight = 600_tw;
inline constexpr Twips kStepLeft = 6210_tw; // the counter at the right of the heading
inline constexpr Twips kStepWidth = 1080_tw;
inline constexpr Twips kLineWidth = 15_tw; // of the lines below header and above buttons
inline constexpr Twips kMainTop = kHeaderHeight;
inline constexpr Twips kMainHeight = 3540_tw;
inline constexpr Twips kRowTop = kMainTop + kMainHeight;
inline constexpr Twips kColumnWidth = 1440_tw;
inline constexpr Twips kTextLeft = 1560_tw;
inline constexpr Twips kTextRight = 7290_tw;
inline constexpr Twips kTextWidth = kTextRight - kTextLeft;
inline constexpr Twips kTextInset = 15_tw; // of the text inside its control: lines it up with the inputs
inline constexpr Twips kTextTop = kMainTop + 120_tw;
inline constexpr Twips kTextHeight = 2175_tw; // until a page says otherwise
inline constexpr Twips kContentBottom = kRowTop - 60_tw;
inline constexpr Twips kTallestText = kContentBottom - kTextTop; // of a page without inputs

// Gaps of the input column.
inline constexpr Twips kGapAfterText = 120_tw;  // text to first input
inline constexpr Twips kGapAfterPrompt = 30_tw; // prompt to its input
inline constexpr Twips kGapBetween = 45_tw;     // options, boxes and links of one group
inline constexpr Twips kGapBetweenGroups = 120_tw;

// Inputs.
inline constexpr Twips kInputWidth = 4000_tw;
inline constexpr Twips kOptionHeight = 240_tw;
inline constexpr Twips kPromptHeight = 210_tw;
inline constexpr Twips kTextBoxHeight = 315_tw;
inline constexpr Twips kLinkHeight = 225_tw;
inline constexpr Twips kDropDownHeight = 3000_tw; // with its list open

// Buttons: one size, equal gaps, the last one ends where the text does.
inline constexpr Twips kButtonWidth = 1095_tw;
inline constexpr Twips kButtonHeight = 375_tw;
inline constexpr Twips kButtonGap = 120_tw;
inline constexpr Twips kButtonTop = kRowTop + 120_tw;
constexpr Twips ButtonLeft(int fromRight) {
    return kTextRight - kButtonWidth - (kButtonWidth + kButtonGap) * fromRight;
}

// The row of application icons.
inline constexpr Twips kAppIconTop = kContentBottom - 480_tw;

// Heading inside the header strip.
inline constexpr Twips kHeadingLeft = 100_tw;
inline constexpr Twips kHeadingTop = 140_tw;

} // namespace layout
