#include "wizard/MessageLayout.h"

#include <gtest/gtest.h>

namespace {

constexpr PixelArea kScreen{0, 0, 1024, 768};

TEST(MessageLayout, StandsInTheMiddleAndOnTheScreen) {
    struct Row {
        const char* name;
        std::int16_t size;
        int dpi;
        PixelArea workArea;
        std::optional<PixelArea> owner;
        std::array<int, 4> place; // left, top, width, height in twips
    };
    // clang-format off
    const Row rows[] = {
        {"small",             0,  96, kScreen,                     {},                                {5110, 3940, 5140, 3640}},
        {"medium",            1,  96, kScreen,                     {},                                {4810, 3570, 5740, 4380}},
        {"large",             2,  96, kScreen,                     {},                                {4330, 3090, 6700, 5340}},
        {"as made",          -1,  96, kScreen,                     {},                                {5110, 3940, 5140, 3640}},
        {"144 DPI",           0, 144, kScreen,                     {},                                {2550, 2020, 5140, 3640}},
        {"task bar below",    0,  96, PixelArea{0, 0, 1024, 728},  {},                                {5110, 3640, 5140, 3640}},
        {"owner, 144 DPI",    0, 144, kScreen,                     PixelArea{200, 100, 700, 500},     {1930, 1180, 5140, 3640}},
        {"off above, left",   0,  96, kScreen,                     PixelArea{-500, -400, -100, -200}, { 100,  100, 5140, 3640}},
        {"off below, right",  0,  96, kScreen,                     PixelArea{900, 700, 1100, 800},    {10120, 7780, 5140, 3640}},
        {"100 of the screen", 0,  96, PixelArea{0, 60, 1024, 768}, PixelArea{200, 0, 700, 100},       {4180,  100, 5140, 3640}},
        {"too low a screen",  0,  96, PixelArea{0, 0, 1024, 200},  {},                                {5110, -740, 5140, 3640}},
    };
    // clang-format on
    for (const Row& row : rows) {
        const MessageLayout is = LayOutMessage(row.size, 1, {row.workArea, row.dpi, 19}, row.owner);
        EXPECT_EQ((std::array{is.left.value, is.top.value, is.width.value, is.height.value}), row.place)
            << row.name;
    }
}

TEST(MessageLayout, DividesTheWindow) {
    struct Row {
        std::int16_t size;
        std::size_t buttons;
        int dpi, captionHeight;
        std::array<int, 5> parts;      // frame's and text's width and height, the buttons' top
        std::array<int, 3> buttonLeft; // as many as there are buttons
    };
    // clang-format off
    const Row rows[] = {
        {0, 1,  96, 19, {5050, 2560, 4810, 2320, 2710}, {2083}},
        {0, 2,  96, 19, {5050, 2560, 4810, 2320, 2710}, {1535, 2630}},
        {0, 1, 144, 28, {5050, 2565, 4810, 2325, 2710}, {2083}},
        {1, 2,  96, 23, {5650, 3240, 5410, 3000, 3450}, {1835, 2930}},
        {3, 3,  96, 19, {6610, 4260, 6370, 4020, 4410}, {1768, 2863, 3958}},
    };
    // clang-format on
    for (const Row& row : rows) {
        SCOPED_TRACE(std::to_string(row.size) + ", " + std::to_string(row.buttons) + " buttons");
        const MessageLayout is =
            LayOutMessage(row.size, row.buttons, {kScreen, row.dpi, row.captionHeight}, std::nullopt);
        EXPECT_EQ((std::array{is.frameWidth.value, is.frameHeight.value, is.textWidth.value,
                              is.textHeight.value, is.buttonTop.value}),
                  row.parts);
        for (std::size_t i = 0; i < row.buttons; ++i)
            EXPECT_EQ(is.buttonLeft[i].value, row.buttonLeft[i]) << i;
    }
}

} // namespace
