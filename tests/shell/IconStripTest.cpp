#include "shell/IconStrip.h"

#include "app/AsciiCase.h"

#include <gtest/gtest.h>

namespace {

// One letter an operation: 1 to 6 clicks a slot, L and R are the arrow keys, H and E the ends of the list, P
// and N a page's length, < > { } [ ] the scroll bar's arrows, pages and ends.
IconStrip Play(IconStrip strip, std::string_view moves) {
    constexpr std::string_view kSteps = "<>{}[]"; // as ScrollStep counts them
    for (const char move : moves) {
        if (move == 'L') strip = MoveLeft(strip);
        if (move == 'R') strip = MoveRight(strip);
        if (move == 'H') strip = Choose(strip, 1);
        if (move == 'E') strip = Choose(strip, strip.count);
        if (move == 'P') strip = Choose(strip, strip.selected - kIconSlots);
        if (move == 'N') strip = Choose(strip, strip.selected + kIconSlots);
        if (move >= '1' && move <= '6') strip = ClickSlot(strip, static_cast<std::int16_t>(move - '0'));
        if (const auto step = kSteps.find(move); step != kSteps.npos)
            strip = Scroll(strip, static_cast<ScrollStep>(step));
    }
    return strip;
}

TEST(IconStrip, OpensAndMoves) {
    // clang-format off
    const struct {
        std::int16_t count, wanted;
        std::string_view moves;
        std::int16_t selected, scroll, slot; // slot 0: out of sight
    } rows[] = {
        { 6,  6, "",             6,  1, 6},   { 7,  7, "",             7,  2, 6},   {40, 99, "",            40, 35, 6},
        { 0,  5, "LR16<>]}HEPN", 1,  1, 0},   { 3,  1, "5",            3,  1, 3},   { 3,  3, "R",            3,  1, 3}, // 5: a slot without an icon
        { 7,  1, "RRRRRR",       7,  2, 6},   { 7,  7, "LLLLLL",       1,  1, 1},   { 7,  1, ">6",           7,  2, 6}, // the strip follows
        {40, 20, "}}}}",        20, 35, 0},   {40, 20, "{{{{",        20,  1, 0},   {40, 20, "[6",           6,  1, 6},
        {40, 20, "]R",          21, 20, 2},   {40, 20, "[R",          21, 16, 6},   {40,  1, ">L",           1,  1, 1}, // brought into view first
        {40, 20, ">L",          19, 19, 1},   {40, 20, "H",            1,  1, 1},   {40, 20, "PPPP",         1,  1, 1},
        {40, 20, "N",           26, 21, 6},   {40, 20, "]N",          26, 26, 1},   {40, 20, "<E",          40, 35, 6}, // no further than needed
        {32767, 32767, "N",  32767, 32762, 6},
    };
    // clang-format on
    for (const auto& row : rows) {
        SCOPED_TRACE(std::string(row.moves) + " with " + std::to_string(row.count));
        const IconStrip strip = Play(OpenStrip(row.count, row.wanted), row.moves);
        EXPECT_EQ(strip, (IconStrip{row.count, row.selected, row.scroll}));
        EXPECT_EQ(SelectedSlot(strip).value_or(0), row.slot);
        EXPECT_EQ(NeedsScrollBar(row.count), row.count > 6);
        for (std::int16_t slot = 1; slot <= kIconSlots; ++slot) {
            const int position = row.scroll + slot - 1;
            EXPECT_EQ(PositionInSlot(strip, slot).value_or(0), position <= row.count ? position : 0);
        }
    }
    EXPECT_EQ(ScrollTo(OpenStrip(40, 1), 100'000).scroll, 35);
}

TEST(IconStrip, FindsANameByItsLetters) {
    const std::vector<std::wstring> keys = {L"EDM", L"Lathe", L"lathe 2", L"Llama", L"Mill"};
    const struct {
        std::int16_t selected;
        std::wstring_view letters;
        std::int16_t found; // 0: none
    } rows[] = {{2, L"L", 3},   {4, L"l", 2}, {3, L"lA", 3}, {1, L"lathe ", 3}, {2, L"ll", 4},
                {3, L"lll", 4}, {5, L"m", 5}, {2, L"xx", 0}, {1, L"mills", 0}};
    for (const auto& row : rows)
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
    const struct {
        unsigned perNotch;
        int turned, icons, rest;
    } rows[] = {
        {3, 240, -6, 0}, {0xFFFFFFFF, -120, 6, 0}, {1, -50, 0, 50}, {1, -170, 1, 50}, {0, -120, 0, 0}};
    for (const auto& row : rows) { // the largest number is the system's word for a page
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
