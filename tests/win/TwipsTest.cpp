#include "win/Twips.h"

#include <gtest/gtest.h>

TEST(Twips, Pixels) {
    const struct {
        int twips, at96, at120, at144, at192;
    } rows[] = {{1, 0, 0, 0, 0},      {7, 0, 1, 1, 1},     {8, 1, 1, 1, 1},
                {-8, -1, -1, -1, -1}, {-7, 0, -1, -1, -1}, {1560, 104, 130, 156, 208}};
    for (const auto& row : rows) {
        EXPECT_EQ(win::ToPixels({row.twips}, 96), row.at96) << row.twips;
        EXPECT_EQ(win::ToPixels({row.twips}, 120), row.at120) << row.twips;
        EXPECT_EQ(win::ToPixels({row.twips}, 144), row.at144) << row.twips;
        EXPECT_EQ(win::ToPixels({row.twips}, 192), row.at192) << row.twips;
    }
}

// A measured text must fit the twips that it was turned into.
TEST(Twips, FromPixelsNeverShrinks) {
    for (const int dpi : {96, 120, 144, 168, 192})
        for (int pixels = 0; pixels < 1500; ++pixels)
            ASSERT_TRUE(win::ToTwips(pixels, dpi).value * dpi >= pixels * win::kTwipsPerInch &&
                        win::ToPixels(win::ToTwips(pixels, dpi), dpi) == pixels)
                << pixels << " at " << dpi;
}
