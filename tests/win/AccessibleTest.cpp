#include "win/Accessible.h"

#include "app/StartUp.h"
#include "shell/frmIcons.h"
#include "tests/support/FormUnderTest.h"

#include <gtest/gtest.h>

namespace {

HWND announcing;
int announcements;

void CALLBACK OnEvent(HWINEVENTHOOK, DWORD, HWND window, LONG, LONG, DWORD, DWORD) {
    if (window == announcing) ++announcements;
}

TEST(Accessible, IconsSayTheirNames) {
    frmIcons form;
    form.imgIcon[0].Text(L"R&&D 1.x");
    EXPECT_EQ(SpokenOf(form.imgIcon[0].Handle()).name, L"R&D 1.x");
}

TEST(Accessible, EachPageChangeIsAnnouncedOnce) {
    FormUnderTest test(kNewDevice);
    announcing = test.form.picHeader.Handle();
    const HWINEVENTHOOK hook = SetWinEventHook(EVENT_SYSTEM_ALERT, EVENT_SYSTEM_ALERT, nullptr, OnEvent,
                                               GetCurrentProcessId(), 0, WINEVENT_OUTOFCONTEXT);
    for (const int count : {1, 2}) {
        test.form.cmdNext_Click();
        win::PumpPendingMessages();
        EXPECT_EQ(announcements, count);
    }
    UnhookWinEvent(hook);
}

} // namespace
