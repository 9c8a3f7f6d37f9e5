// What the pages that speak of shortcuts show of them.

#include "app/StartUp.h"
#include "ftw/FtwPages.h"
#include "tests/support/FormUnderTest.h"
#include "tests/support/Scratch.h"

#include <gtest/gtest.h>

TEST(ShortcutsPage, ShowsTheChoiceAndTheIconsOfThePrograms) {
    const ScratchSuite suite;
    FormUnderTest test(kFirstTimeSetup);
    ftwSession.shortcutChoice = 5;
    const std::pair<std::int16_t, std::string> rows[] = {
        {8, "10000"}, {9, "00000"}, {17, "11111"}, {16, "00000"}};
    for (const auto& [page, icons] : rows) {
        test.Show(page);
        std::string shown;
        for (const auto& icon : test.form.picAppIcon)
            shown += icon.Visible() ? '1' : '0';
        EXPECT_EQ(shown, icons) << page;
        EXPECT_TRUE(page != 8 || CheckedBits(test.form.pool, 3) == 5);
    }
}
