#include "wizard/frmMessage.h"

#include "ftw/FtwPages.h"
#include "wizard/frmWizard.h"

#include <gtest/gtest.h>

#include <optional>

namespace {

std::array<int, 4> PlaceOf(HWND window) {
    RECT place{};
    GetWindowRect(window, &place);
    MapWindowPoints(nullptr, GetAncestor(window, GA_PARENT), reinterpret_cast<POINT*>(&place), 2);
    return {static_cast<int>(place.left), static_cast<int>(place.top),
            static_cast<int>(place.right - place.left), static_cast<int>(place.bottom - place.top)};
}

// What each button returns, and its focus; everything else waits, and what was active before is so again.
// That the window's place is computed well is MessageLayout's.
TEST(frmMessage, IsModalWithAndWithoutAnOwner) {
    struct Row {
        const char* name;
        std::int16_t buttons, size;
        bool hasOwner;
        std::array<int, 4> place; // pixels, as below
        std::array<int, 4> lastButton;
        std::vector<std::int16_t> results;
    };
    // clang-format off
    const Row rows[] = {
        {"small",        0, 0, false, {341, 263, 343, 243}, {139, 181, 65, 25}, {IDOK}},
        {"two buttons",  1, 1, false, {321, 238, 383, 292}, {195, 230, 65, 25}, {IDOK, IDCANCEL}},
        {"three",        2, 0, true,  {279, 179, 343, 243}, {212, 181, 65, 25}, {IDABORT, IDRETRY, IDIGNORE}},
        {"large",        3, 3, false, {289, 206, 447, 356}, {264, 294, 65, 25}, {IDYES, IDNO, IDCANCEL}},
        {"owner",        4, 0, true,  {279, 179, 343, 243}, {175, 181, 65, 25}, {IDYES, IDNO}},
        {"size unknown", 5, 9, false, {341, 263, 343, 243}, {175, 181, 65, 25}, {IDRETRY, IDCANCEL}},
    };
    // clang-format on
    frmWizard form(FtwBook(), {}), other(FtwBook(), {});
    SetWindowPos(form.Hwnd(), nullptr, 200, 100, 500, 400, SWP_NOZORDER);
    ShowWindow(form.Hwnd(), SW_SHOW);
    ShowWindow(other.Hwnd(), SW_SHOW);
    SetActiveWindow(form.Hwnd());
    for (const Row& row : rows)
        for (std::size_t pressed = row.results.size(); pressed-- > 0;) {
            SCOPED_TRACE(row.name + std::to_string(pressed));
            frmMessage box;
            box.cmdButton[pressed].onClick = [&] {
                EXPECT_FALSE(IsWindowEnabled(form.Hwnd()) || IsWindowEnabled(other.Hwnd()));
                EXPECT_EQ(PlaceOf(box.Hwnd()), row.place);
                EXPECT_EQ(PlaceOf(box.cmdButton[row.results.size() - 1].Handle()), row.lastButton);
                EXPECT_EQ(LOWORD(SendMessageW(box.Hwnd(), DM_GETDEFID, 0, 0)), box.cmdButton[0].Id());
                if (pressed == 0) { // the click itself moves the focus
                    EXPECT_EQ(GetFocus(), box.cmdButton[0].Handle());
                }
                box.cmdButton_Click(pressed);
            };
            PostMessageW(box.cmdButton[pressed].Handle(), BM_CLICK, 0, 0);
            EXPECT_EQ(
                box.Show(L"<b>Text</b>", row.buttons, row.size, L"", row.hasOwner ? form.Hwnd() : nullptr),
                row.results[pressed]);
            EXPECT_TRUE(IsWindowEnabled(form.Hwnd()) && IsWindowEnabled(other.Hwnd()));
            EXPECT_EQ(GetActiveWindow(), form.Hwnd());
        }
}

} // namespace
