#include "ftw/frmChoice.h"

#include "tests/support/FormDriver.h"

#include <gtest/gtest.h>

namespace {

constexpr wchar_t kClass[] = L"VarnelChoice";
constexpr int kFirstOption = 101;

struct Row {
    std::int16_t before;
    std::string_view steps; // 0 to 2 clicks an option, D is the down arrow; e Enter, s Esc, x the close box
    std::string_view shown; // the options as the window opens
    std::int16_t after;
};

// clang-format off
const Row kRows[] = {
    {0, "e",   "100", 0},
    {0, "1e",  "100", 1},
    {0, "2s",  "100", 2}, // Esc keeps what is selected
    {2, "x",   "001", 2},
    {2, "0x",  "001", 0},
    {1, "De",  "010", 2},
    {1, "s",   "010", 1},
    {7, "e",   "000", 7}, // nothing selected
    {7, "s",   "000", 7},
    {-1, "2e", "000", 2},
};
// clang-format on

void Do(HWND form, char step) {
    switch (step) {
        // clang-format off
    case 'e': return PostKey(form, VK_RETURN);
    case 's': return PostKey(form, VK_ESCAPE);
    case 'D': return PostKey(form, VK_DOWN);
    case 'x': PostMessageW(form, WM_SYSCOMMAND, SC_CLOSE, 0); return;
    default:  return PostClick(GetDlgItem(form, kFirstOption + step - '0'), MAKELPARAM(9, 9));
        // clang-format on
    }
}

TEST(frmChoice, StoresTheSelectedOption) {
    for (const Row& row : kRows) {
        SCOPED_TRACE(std::to_string(row.before) + ", " + std::string(row.steps));
        std::string shown;
        setupChoice = row.before;
        EXPECT_TRUE(WhileOpen(
            kClass, [] { ShowChoice(nullptr); },
            [&](HWND form) {
                for (int id = kFirstOption; id < kFirstOption + 3; ++id)
                    shown += IsDlgButtonChecked(form, id) == BST_CHECKED ? '1' : '0';
                for (const char step : row.steps)
                    Do(form, step);
            }));
        EXPECT_EQ(shown, row.shown);
        EXPECT_EQ(setupChoice, row.after);
    }
}

} // namespace
