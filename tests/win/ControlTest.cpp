#include "win/Control.h"

#include "win/Fonts.h"
#include "win/Form.h"
#include "win/Screen.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

using namespace win::literals;

class TestForm : public win::Form {
  public:
    TestForm() {
        Create({L"VarnelTestForm", L"", WS_OVERLAPPEDWINDOW, WS_EX_CONTROLPARENT, nullptr},
               win::FontFor(win::FontUse::Body), win::Px(6000_tw), win::Px(4000_tw));
        for (int i = 0; i < 3; ++i)
            button[i].Bind(*this, 100 + i, L"Button", BS_PUSHBUTTON | BS_NOTIFY | WS_TABSTOP);
        edit.Bind(*this, 120, L"Edit", ES_AUTOHSCROLL | WS_TABSTOP);
        link.Bind(*this, 150, L"Button", BS_OWNERDRAW | BS_NOTIFY | WS_TABSTOP);
        for (win::Control* control :
             {static_cast<win::Control*>(&button[0]), static_cast<win::Control*>(&button[1]),
              static_cast<win::Control*>(&link)})
            control->Place(0_tw, 0_tw, 1500_tw, 300_tw); // a button without a size takes no click
    }
    win::Button button[3];
    win::TextBox edit;
    win::Link link;
};

bool IsShown(win::Control& control) { return GetWindowLongW(control.Handle(), GWL_STYLE) & WS_VISIBLE; }

RECT PlaceOf(win::Control& control) {
    RECT place{};
    GetWindowRect(control.Handle(), &place);
    MapWindowPoints(nullptr, GetParent(control.Handle()), reinterpret_cast<POINT*>(&place), 2);
    return place;
}

} // namespace

TEST(Control, AWindowIsMadeAtItsFirstUse) {
    TestForm form;
    EXPECT_EQ(GetWindow(form.Hwnd(), GW_CHILD), nullptr);
    win::Button& button = form.button[0];
    button.Place(1000_tw, 500_tw, 1006_tw, 400_tw);
    button.Left(1567_tw); // no whole pixels: the edges are rounded, not the width
    button.Visible(false);
    button.ToolTip(L"tip");
    EXPECT_EQ(button.HandleIfMade(), nullptr);
    EXPECT_EQ(button.Bottom(), 900_tw);
    button.Visible(true);
    ASSERT_NE(button.HandleIfMade(), nullptr);
    const RECT place = PlaceOf(button);
    EXPECT_EQ(place.left, win::Px(1567_tw));
    EXPECT_EQ(place.top, win::Px(500_tw));
    EXPECT_EQ(place.right, win::Px(2573_tw));
    EXPECT_EQ(place.bottom, win::Px(900_tw));
    EXPECT_TRUE(IsShown(button));
    EXPECT_EQ(GetDlgCtrlID(button.Handle()), 100);
    EXPECT_EQ(reinterpret_cast<HFONT>(button.Send(WM_GETFONT)), form.DefaultFont());

    form.edit.Text(L"D\u00e4n"); // filled, not shown
    EXPECT_FALSE(IsShown(form.edit));
    EXPECT_EQ(form.edit.Text(), L"D\u00e4n");
    form.edit.Place(0_tw, 0_tw, 1500_tw, 300_tw);
    form.edit.Width(3000_tw);
    EXPECT_EQ(PlaceOf(form.edit).right, win::Px(3000_tw));
    form.edit.Visible(true);
    form.edit.Visible(false);
    EXPECT_FALSE(IsShown(form.edit));
}

// In which order controls are first used must not be the order in which Tab walks them.
TEST(Control, FollowsGivesTheTabOrder) {
    TestForm form;
    for (win::Control* control : {&form.button[2], &form.button[0], &form.button[1]})
        control->Visible(true);
    form.edit.Visible(true);
    for (int i : {2, 1, 0})
        form.button[i].Follows(form.edit);
    ShowWindow(form.Hwnd(), SW_SHOWNA);
    std::vector<HWND> order = {form.edit.Handle()};
    for (int i = 0; i < 3; ++i)
        order.push_back(GetNextDlgTabItem(form.Hwnd(), order.back(), FALSE));
    EXPECT_EQ(order, (std::vector<HWND>{form.edit.Handle(), form.button[0].Handle(), form.button[1].Handle(),
                                        form.button[2].Handle()}));
}

TEST(Control, ClicksReachTheirHandler) {
    TestForm form;
    int clicks = 0;
    form.button[0].onClick = [&] { ++clicks; };
    form.link.onClick = [&] { clicks += 10; };
    form.button[1].Send(BM_CLICK);
    EXPECT_EQ(clicks, 0);
    form.button[0].Send(BM_CLICK);
    EXPECT_EQ(clicks, 1);
    SendMessageW(form.Hwnd(), WM_COMMAND, MAKEWPARAM(100, BN_DOUBLECLICKED),
                 reinterpret_cast<LPARAM>(form.button[0].Handle()));
    EXPECT_EQ(clicks, 1) << "the second half of a double click is no click";
    form.link.Send(WM_KEYDOWN, VK_RETURN);
    form.link.Send(WM_KEYDOWN, VK_SPACE);
    form.link.Send(WM_KEYUP, VK_SPACE);
    EXPECT_EQ(clicks, 21);
}

// An exception that left the window procedure would end the program.
TEST(Control, WhatAHandlerThrowsStopsAtTheForm) {
    TestForm form;
    int after = 0;
    form.button[0].onClick = [&] {
        win::EndMessageLoop();
        ++after;
    };
    form.button[0].Send(BM_CLICK);
    EXPECT_EQ(after, 0);
    MSG message{};
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) && message.message != WM_QUIT) {
    }
    EXPECT_EQ(message.message, static_cast<UINT>(WM_QUIT));
}
