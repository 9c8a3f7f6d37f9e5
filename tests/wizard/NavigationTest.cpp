// What the walks cannot show of moving between pages: clicks that come too early, the end of the session.

#include "ftw/FtwPages.h"
#include "tests/support/Scratch.h"
#include "wizard/frmWizard.h"

#include <gtest/gtest.h>

namespace {

bool QuitWasPosted() {
    MSG message{};
    bool quit = false;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE))
        quit = quit || message.message == WM_QUIT;
    return quit;
}

// The first wizard in a suite of its own, on a page.
class Navigation : public testing::Test {
  protected:
    void Start(std::int16_t page) {
        form.PageNo = page;
        form.ShowPage();
    }
    ScratchSuite suite;
    frmWizard form{FtwBook(), {.title = L"Varnel test load", .configAllowed = true}};
};

} // namespace

// While a box is open another click, as an impatient person's, does nothing.
TEST_F(Navigation, AClickWhileItsHandlerRunsIsDropped) {
    Start(7);
    PostMessageW(form.cmdSkip.Handle(), BM_CLICK, 0, 0);
    EXPECT_EQ(Answering({IDOK}, [&] { form.cmdSkip_Click(); }).size(), 1u);
    EXPECT_EQ(form.PageNo, 7);
    Start(12);
    form.pool.lstUserInput[0].Send(LB_SETSEL, TRUE, 0);
    PostMessageW(form.cmdNext.Handle(), BM_CLICK, 0, 0);
    EXPECT_EQ(Answering({IDNO}, [&] { form.cmdNext_Click(); }).size(), 1u);
    EXPECT_EQ(form.PageNo, 13);
}

TEST_F(Navigation, WhenClosingAsks) {
    const struct {
        std::int16_t page;
        bool confirm;
        int answer;
        bool asks, closes;
    } rows[] = {{1, true, IDYES, true, true},
                {2, true, IDNO, true, false},
                {2, false, IDNO, false, true},
                {17, true, IDNO, false, true}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.page);
        Start(row.page);
        form.ConfirmExit = row.confirm;
        for (const UINT message : {WM_CLOSE, WM_QUERYENDSESSION}) {
            LRESULT result = 0;
            const auto boxes =
                Answering({row.answer}, [&] { result = SendMessageW(form.Hwnd(), message, 0, 0); });
            EXPECT_EQ(boxes.size(), row.asks ? 1u : 0u);
            EXPECT_EQ(message == WM_CLOSE ? QuitWasPosted() : result != 0, row.closes);
        }
    }
}
