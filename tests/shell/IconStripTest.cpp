#include "shell/IconStrip.h"

#include "app/AsciiCase.h"

#include <gtest/gtest.h>

#include <array>

namespace {

// One letter an operation: 1 to 6 clicks a slot, L and R are the arrow keys, H and E the ends of the list, P
// and N a page's length, < > { } [ ] the scroll bar's arrows, pages and ends.
IconStrip Play(IconStrip strip, std::string_view moves) {
    using enum ScrollStep;
    constexpr std::pair<char, ScrollStep> kSteps[] = {{'<', LineLeft},  {'>', LineRight}, {'{', PageLeft},
                                                      {'}', PageRight}, {'[', First},     {']', Last}};
    for (const char move : moves) {
        if (move == 'L') strip = MoveLeft(strip);
        if (move == 'R') strip = MoveRight(strip);
        if (move == 'H') strip = Choose(strip, 1);
        if (move == 'E') strip = Choose(strip, strip.count);
        if (move == 'P') strip = Choose(strip, strip.selected - kIconSlots);
        if (move == 'N') strip = Choose(strip, strip.selected + kIconSlots);
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
        {40, 20, "]R",          21, 20, 2}, // out of sight: brought into view first
        {40, 20, "[R",          21, 16, 6},
        {40, 20, ">L",          19, 19, 1},
        {40,  1, ">L",           1,  1, 1}, // nowhere to go, but into view
        {40, 40, "[R",          40, 35, 6},
        {40, 20, "E",           40, 35, 6},
        {40, 20, "H",            1,  1, 1},
        {40, 20, "N",           26, 21, 6}, // no further than needed
        {40, 20, "PPPP",         1,  1, 1},
        {40, 20, "]N",          26, 26, 1},
        {32767, 32767, "N",  32767, 32762, 6},
        { 0,  1, "HEPN",         1,  1, 0},
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

TEST(IconStrip, FindsANameByItsLetters) {
    const std::vector<std::wstring> keys = {L"EDM", L"Lathe", L"lathe 2", L"Llama", L"Mill"};
    struct Row {
        std::int16_t selected;
        std::wstring_view letters;
        std::int16_t found; // 0: none
    };
    const Row rows[] = {{1, L"l", 2},      {2, L"L", 3},  {4, L"l", 2},    {3, L"lA", 3},
                        {1, L"lathe ", 3}, {2, L"ll", 4}, {3, L"lll", 4},  {5, L"m", 5},
                        {1, L"x", 0},      {2, L"xx", 0}, {1, L"mills", 0}};
    for (const Row& row : rows)
        EXPECT_EQ(FindByLetters(keys, row.selected, row.letters, AsciiUpper).value_or(0), row.found)
            << testing::PrintToString(row.letters) << " from " << row.selected;
    EXPECT_EQ(FindByLetters({}, 1, L"l", AsciiUpper), std::nullopt);
    TypedLetters typed;
    const std::pair<std::uint32_t, const wchar_t*> times[] = {{0xFFFFFF00, L"a"},
                                                              {0xFFFFFFF0, L"aa"},
                                                              {0x10, L"aaa"},
                                                              {0x10 + 1000, L"aaaa"},
                                                              {0x10 + 2001, L"a"}}; // the clock runs over
    for (const auto& [time, letters] : times) {
        typed.Add(L'a', time);
        EXPECT_EQ(typed.letters, letters) << time;
    }
}

TEST(IconStrip, TheWheelScrolls) {
    struct Row {
        unsigned perNotch;
        int turned, icons, rest;
    };
    constexpr unsigned kPage = 0xFFFFFFFF; // the system's word for a page
    const Row rows[] = {
        {1, -120, 1, 0}, {3, 240, -6, 0}, {kPage, -120, 6, 0}, {1, -50, 0, 50}, {0, -120, 0, 0}};
    for (const Row& row : rows) {
        int rest = 0;
        EXPECT_EQ(WheelIcons(rest, row.turned, row.perNotch), row.icons) << row.turned;
        EXPECT_EQ(rest, row.rest) << row.turned;
    }
}

TEST(IconStrip, BeginsWithTheSuitesOwnIcon) {
    EXPECT_EQ(DefaultPosition({L"A", L"vdnc32", L"VDNC32"}), 2);
    EXPECT_EQ(DefaultPosition({}), 1);
}

} // namespace
