#include "win/FormattedText.h"

#include "tests/wizard/Described.h"

#include <gtest/gtest.h>

#include <stdexcept>

TEST(FormattedText, CountsAsTheControlDoes) {
    win::FormattedText text(L"\na\r\nb\n");
    EXPECT_EQ(text.Text(), L"\ra\rb\r");
    for (const int start : {-1, 6})
        EXPECT_THROW(text.SelStart(start), std::out_of_range) << start;
    for (const int length : {-1, 6})
        EXPECT_THROW(text.SelLength(length), std::out_of_range) << length;
    text.SelStart(3);
    text.SelBullet(true); // of the caret's paragraph
    text.SelStart(0);
    text.SelBold(true);
    text.SelText(L"+"); // with the look that was set for it
    EXPECT_EQ(Described(text), L"{b}+{}/a/{* 0 0}b/");
    text.SetText(L"");
    text.SelBullet(true);
    text.SelText(L"x");
    EXPECT_EQ(Described(text), L"x");
}
