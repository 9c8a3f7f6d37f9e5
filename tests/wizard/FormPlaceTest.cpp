#include "wizard/FormPlace.h"

#include <gtest/gtest.h>

TEST(FormPlace, LeavesTheTaskBarFree) {
    constexpr PixelSize kScreen{1024, 768};
    struct Row {
        const char* name;
        PixelSize window;
        PixelArea workArea;
        bool inCorner;
        PixelPoint place;
    };
    // clang-format off
    const Row rows[] = {
        {"middle",                 { 500, 343}, { 0,  0, 1024, 768}, false, {262, 212}},
        {"corner",                 { 500, 343}, { 0,  0, 1024, 768}, true,  {524, 425}},
        {"larger than the screen", {1100, 900}, { 0,  0, 1024, 768}, false, {-38, -66}},
        {"middle, bar below",      { 500, 343}, { 0,  0, 1024, 728}, false, {262, 212}},
        {"corner, bar below",      { 500, 343}, { 0,  0, 1024, 728}, true,  {524, 385}},
        {"corner, bar right",      { 500, 343}, { 0,  0,  900, 768}, true,  {400, 425}},
        {"middle, bar left",       { 800, 343}, {200, 0, 1024, 768}, false, {200, 212}},
        {"middle, bar above",      { 500, 700}, { 0, 48, 1024, 768}, false, {262,  48}},
        {"too high for the rest",  { 500, 740}, { 0,  0, 1024, 728}, false, {262,   0}},
    };
    // clang-format on
    for (const Row& row : rows)
        EXPECT_EQ(PlaceForm(row.window, kScreen, row.workArea, row.inCorner), row.place) << row.name;
}
