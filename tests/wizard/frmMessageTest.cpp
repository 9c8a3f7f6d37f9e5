#include "wizard/frmMessage.h"

#include "app/modLocations.h"
#include "tests/support/FormDriver.h"
#include "win/Screen.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace {

constexpr wchar_t kClass[] = L"VarnelMessage";
constexpr wchar_t kMessage[] = L"<b>Bold</b> and plain\r\n<u>item</u><br>after";

enum Ids { kFirstButton = 100, kText = 110 };

// One letter a step: 0 to 2 clicks a button, e Enter, s Esc, T Tab, R the right arrow, x the close box, any
// other letter is typed.
void Do(HWND form, char step) {
    switch (step) {
        // clang-format off
    case 'e': return PostKey(form, VK_RETURN);
    case 's': return PostKey(form, VK_ESCAPE);
    case 'T': return PostKey(form, VK_TAB);
    case 'R': return PostKey(form, VK_RIGHT);
    case 'x': PostMessageW(form, WM_SYSCOMMAND, SC_CLOSE, 0); return;
    case '0': case '1': case '2': return PostClick(GetDlgItem(form, kFirstButton + step - '0'), MAKELPARAM(9, 9));
    default:  PostMessageW(FocusIn(form), WM_CHAR, static_cast<WPARAM>(step), 1); return Settle(form);
        // clang-format on
    }
}

// The captions of the buttons shown, "|" behind each.
std::wstring Buttons(HWND form) {
    std::wstring captions;
    for (int id = kFirstButton; id < kFirstButton + 3; ++id)
        if (const HWND button = GetDlgItem(form, id); button && IsWindowVisible(button))
            captions += CaptionOf(button) + L"|";
    return captions;
}

struct Row {
    std::int16_t buttons;
    const wchar_t* captions;
    std::string_view steps;
    int result;
};

// clang-format off
const Row kRows[] = {
    {0, L"&OK|",                    "0",   IDOK    },
    {0, L"&OK|",                    "e",   IDOK    },
    {0, L"&OK|",                    "s",   0       },
    {1, L"&OK|&Cancel|",            "1",   IDCANCEL},
    {1, L"&OK|&Cancel|",            "Te",  IDCANCEL},
    {1, L"&OK|&Cancel|",            "s",   0       }, // Esc is no Cancel button
    {2, L"&Abort|&Retry|&Ignore|",  "0",   IDABORT },
    {2, L"&Abort|&Retry|&Ignore|",  "1",   IDRETRY },
    {2, L"&Abort|&Retry|&Ignore|",  "i",   IDIGNORE},
    {2, L"&Abort|&Retry|&Ignore|",  "Re",  IDRETRY },
    {3, L"&Yes|&No|&Cancel|",       "2",   IDCANCEL},
    {3, L"&Yes|&No|&Cancel|",       "x",   0       },
    {3, L"&Yes|&No|&Cancel|",       "TTTe", IDYES  }, // from the text Enter goes to the first
    {4, L"&Yes|&No|",               "1",   IDNO    },
    {4, L"&Yes|&No|",               "n",   IDNO    },
    {4, L"&Yes|&No|",               "y",   IDYES   },
    {5, L"&Retry|&Cancel|",         "0",   IDRETRY },
    {5, L"&Retry|&Cancel|",         "x",   0       },
};
// clang-format on

TEST(frmMessage, ReturnsWhatWasPressed) {
    for (const Row& row : kRows) {
        SCOPED_TRACE(std::to_string(row.buttons) + ", " + std::string(row.steps));
        std::int16_t result = -1;
        std::wstring captions;
        EXPECT_TRUE(WhileOpen(
            kClass, [&] { result = ShowMessage(kMessage, row.buttons, 0, L"", nullptr); },
            [&](HWND form) {
                captions = Buttons(form);
                for (const char step : row.steps)
                    Do(form, step);
            }));
        EXPECT_EQ(captions, row.captions);
        EXPECT_EQ(result, row.result);
    }
}

struct Seen {
    std::wstring caption, text;
    RECT place{};
    bool ownerHeld = false;
};

Seen Look(std::int16_t size, const std::wstring& title, HWND owner) {
    Seen seen;
    WhileOpen(
        kClass, [&] { ShowMessage(kMessage, 0, size, title, owner); },
        [&](HWND form) {
            seen.caption = CaptionOf(form);
            seen.text = CaptionOf(GetDlgItem(form, kText));
            GetWindowRect(form, &seen.place);
            seen.ownerHeld = owner && !IsWindowEnabled(owner);
            Do(form, 'e');
        });
    return seen;
}

TEST(frmMessage, ShowsTitleTextAndSize) {
    locations.ExeName = L"Program";
    EXPECT_EQ(Look(0, L"", nullptr).caption, L"VWizard");
    EXPECT_EQ(Look(0, L"Some title", nullptr).caption, L"Program - Some title");
    EXPECT_EQ(Look(0, L"", nullptr).text, L"Bold and plain\r\nitem\r\nafter");
    for (const auto& [size, width, height] : {std::tuple(0, 5140, 3640),
                                              {1, 5740, 4380},
                                              {2, 6700, 5340},
                                              {3, 6700, 5340},
                                              {4, 5140, 3640},
                                              {-1, 5140, 3640}}) {
        const RECT place = Look(static_cast<std::int16_t>(size), L"", nullptr).place;
        EXPECT_EQ(place.right - place.left, win::Px({width})) << size;
        EXPECT_EQ(place.bottom - place.top, win::Px({height})) << size;
    }
}

TEST(frmMessage, StandsOverItsOwnerAndHoldsIt) {
    struct Place {
        int left, top, width, height;
    };
    for (const Place& at : {Place{100, 80, 700, 500}, {-2000, -2000, 300, 300}, {5000, 4000, 300, 300}}) {
        SCOPED_TRACE(at.left);
        const HWND owner = CreateWindowExW(0, L"Static", L"", WS_POPUP | WS_VISIBLE, at.left, at.top,
                                           at.width, at.height, nullptr, nullptr, nullptr, nullptr);
        const Seen seen = Look(0, L"", owner);
        const RECT area = win::WorkArea();
        EXPECT_TRUE(seen.ownerHeld);
        EXPECT_TRUE(IsWindowEnabled(owner));
        EXPECT_GE(seen.place.left, area.left);
        EXPECT_GE(seen.place.top, area.top);
        EXPECT_LE(seen.place.right, area.right);
        EXPECT_LE(seen.place.bottom, area.bottom);
        if (at.left > 0 && at.left < area.right) {
            EXPECT_NEAR(seen.place.left + seen.place.right, 2 * at.left + at.width, 2);
            EXPECT_NEAR(seen.place.top + seen.place.bottom, 2 * at.top + at.height, 2);
        }
        DestroyWindow(owner);
    }
}

TEST(frmMessage, KnowsNoFifthButton) {
    frmMessage form;
    EXPECT_NO_THROW(form.cmdButton_Click(3));
    EXPECT_THROW(form.cmdButton_Click(4), std::out_of_range);
    EXPECT_THROW(ShowMessage(kMessage, 6, 0, L"", nullptr), std::out_of_range);
}

} // namespace
