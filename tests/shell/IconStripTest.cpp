#include "shell/IconStrip.h"

#include <gtest/gtest.h>

#include <array>

namespace {

// One letter an operation: 1 to 6 clicks a slot, L and R are the arrow keys, < > { } [ ] the scroll bar's
// arrows, pages and ends.
IconStrip Play(IconStrip strip, std::string_view moves) {
    using enum ScrollStep;
    constexpr std::pair<char, ScrollStep> kSteps[] = {{'<', LineLeft},  {'>', LineRight}, {'{', PageLeft},
                                                      {'}', PageRight}, {'[', First},     {']', Last}};
    for (const char move : moves) {
        if (move == 'L') strip = MoveLeft(strip);
        if (move == 'R') strip = MoveRight(strip);
        if (move >= '1' && move <= '6') strip = ClickSlot(strip, static_cast<std::int16_t>(move - '0'));
        for (const auto& [letter, step] : kSteps)
            if (move == letter) strip = Scroll(strip, step);
    }
    return strip;
}

TEST(IconStrip, OpensAndMoves) {
    struct Row {
        std::int16_t count, wanted;
        std::string_view moves;
        std::int16_t selected, scroll, slot; // slot 0: out of sight
    };
    // clang-format off
    const Row rows[] = {
        { 0,  5, "",             1,  1, 0},
        { 3,  3, "",             3,  1, 3},
        { 7,  7, "",             7,  2, 6},
        {40, 36, "",            36, 35, 2},
        {40, 99, "",            40, 35, 6},
        {32767, 32767, "",   32767, 32762, 6},
        { 0,  1, "LR16<>]}",     1,  1, 0},
        { 3,  1, "5",            3,  1, 3}, // a slot without an icon
        { 3,  3, "R",            3,  1, 3},
        { 7,  1, "RRRRRR",       7,  2, 6}, // the strip follows
        { 7,  7, "LLLLLL",       1,  1, 1},
        { 7,  1, ">6",           7,  2, 6},
        {40, 20, "}}}}",        20, 35, 0},
        {40, 20, "<",           20, 19, 2},
        {40, 20, "{{{{",        20,  1, 0},
        {40, 20, "[6",           6,  1, 6},
        {40, 20, "]R",          21, 35, 0}, // left of what is seen: a step right scrolls nothing
        {40, 20, "]L",          19, 34, 0}, // one step each
        {40, 20, "[R",          21,  2, 0},
        {40, 20, ">L",          19, 20, 0},
    };
    // clang-format on
    for (const Row& row : rows) {
        SCOPED_TRACE(std::string(row.moves) + " with " + std::to_string(row.count));
        const IconStrip strip = Play(OpenStrip(row.count, row.wanted), row.moves);
        EXPECT_EQ(strip, (IconStrip{row.count, row.selected, row.scroll}));
        EXPECT_EQ(SelectedSlot(strip).value_or(0), row.slot);
        EXPECT_EQ(NeedsScrollBar(row.count), row.count > 6);
    }
}

TEST(IconStrip, FillsItsSlots) {
    for (const std::int16_t count : std::array<std::int16_t, 5>{1, 5, 6, 7, 20}) {
        const std::int16_t full = std::min(count, kIconSlots);
        const IconStrip last = Scroll(OpenStrip(count, 1), ScrollStep::Last);
        EXPECT_EQ(PositionInSlot(last, full), count);
        EXPECT_EQ(PositionInSlot(last, static_cast<std::int16_t>(full + 1)), std::nullopt);
    }
    EXPECT_EQ(ScrollTo(OpenStrip(40, 1), 100'000).scroll, 35);
    EXPECT_EQ(ScrollTo(OpenStrip(40, 1), -100'000).scroll, 1);
}

TEST(IconStrip, BeginsWithTheSuitesOwnIcon) {
    EXPECT_EQ(DefaultPosition({L"A", L"vdnc32", L"VDNC32"}), 2);
    EXPECT_EQ(DefaultPosition({}), 1);
}

} // namespace
