#include "app/Registry.h"
#include "app/Settings.h"
#include "app/StartUp.h"
#include "tests/support/DemoSuite.h"
#include "tests/support/FormUnderTest.h"
#include "tests/support/Scratch.h"

#include <gtest/gtest.h>

#include <functional>

namespace {

// What the pages of a small book made for these tests do and saw: "N2" page 2 was left by Next, "3" page 3
// was built.
struct Trace {
    std::string log;
    bool detour = false;
    std::function<void(frmWizard&)> onLeave;
    bool takesOver = false;
} trace;

void Build(frmWizard& form) { trace.log += std::to_string(form.PageNo) + " "; }

void Leave(frmWizard& form, Move move) {
    trace.log += "NBS"[static_cast<int>(move)] + std::to_string(form.PageNo) + " ";
    if (trace.onLeave) trace.onLeave(form);
}

bool WantsDetour() { return trace.detour; }

constexpr Detour kStraight{};
// clang-format off
constexpr Page kPages[] = {
    {1, Build, Leave,   kStraight,        kStraight,         kStraight, kNextCaption,   Show::Yes, Show::No },
    {2, Build, Leave,   {1, WantsDetour}, kStraight,         {2},       kNextCaption,   Show::Yes, Show::Yes},
    {3, Build, nullptr, kStraight,        kStraight,         kStraight, kNextCaption,   Show::No,  Show::Yes},
    {4, Build, Leave,   kStraight,        {-1, WantsDetour}, kStraight, kCreateCaption, Show::Yes, Show::Yes},
    {5, Build, Leave,   kStraight,        kStraight,         kStraight, kFinishCaption, Show::Yes, Show::Yes},
};
// clang-format on
void Nothing(frmWizard&) {}
constexpr PageBook kBook{kPages,
                         true,
                         Nothing,
                         Nothing,
                         [](frmWizard&) { return trace.takesOver; },
                         [](frmWizard&, std::int16_t) {},
                         Nothing};

class Navigation : public testing::Test {
  protected:
    Navigation() : form(kBook, true) {
        GetCurrentDirectoryW(MAX_PATH, folder_);
        suite.Ini("[General]\r\n");
        trace = {};
        startUp.WizardMode = kFirstTimeSetup;
        Start(1);
    }
    ~Navigation() override {
        trace = {};
        startUp.ConfigLaunch = startUp.ShiftWindow = false;
        SetCurrentDirectoryW(folder_);
    }
    void Start(std::int16_t page) {
        form.PageNo = page;
        form.ShowPage();
        trace.log.clear();
    }
    // N, B and S press the buttons.
    std::string Press(const char* keys) {
        for (; *keys; ++keys)
            *keys == 'N' ? form.cmdNext_Click() : *keys == 'B' ? form.cmdBack_Click() : form.cmdSkip_Click();
        return trace.log;
    }
    static std::wstring Progress() { return ReadIniString(L"General", L"FTSW_MaxProgress", L""); }

    ScratchSuite suite;
    frmWizard form;

  private:
    wchar_t folder_[MAX_PATH] = L"";
};

bool QuitWasPosted() {
    MSG message{};
    bool quit = false;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE))
        quit = quit || message.message == WM_QUIT;
    return quit;
}

} // namespace

TEST_F(Navigation, FollowsTheTable) {
    const struct {
        const char* keys;
        std::int16_t from;
        bool detour;
        const char* log;
    } rows[] = {
        {"NNNN", 1, false, "N1 2 N2 3 4 N4 5 "},
        {"BBB", 4, false, "B4 3 2 B2 1 "},
        {"N", 2, true, "N2 4 "},
        {"B", 4, true, "B4 2 "},
        {"N", 4, true, "N4 5 "},
        {"SS", 1, false, "S1 2 S2 5 "},
        {"SNB", 1, true, "S1 2 N2 4 B4 2 "},
    };
    form.SkipReminderShown = true;
    for (const auto& row : rows) {
        Start(row.from);
        trace.detour = row.detour;
        EXPECT_EQ(Press(row.keys), row.log);
        EXPECT_FALSE(form.MovingNext || form.MovingBack || form.Skipping || form.StayOnPage);
    }
    Start(3);
    EXPECT_TRUE(form.cmdBack.Enabled() && form.cmdBack.Visible() && !form.cmdSkip.Visible());
    Start(1);
    EXPECT_TRUE(!form.cmdBack.Enabled() && !form.cmdBack.Visible() && form.cmdSkip.Visible());
    Start(6);
    EXPECT_EQ(Press("B"), "5 ") << "no such page: nothing is built, nothing left";
    EXPECT_EQ(form.cmdNext.Text(), kFinishCaption);
}

TEST_F(Navigation, AVetoKeepsThePage) {
    form.SkipReminderShown = true;
    trace.onLeave = [](frmWizard& wizard) { wizard.StayOnPage = true; };
    trace.detour = true;
    Start(2);
    EXPECT_EQ(Press("NBS"), "N2 B2 S2 ");
    EXPECT_EQ(form.PageNo, 2);
    EXPECT_EQ(Progress(), L"");
    trace.onLeave = nullptr;
    EXPECT_EQ(Press("N"), "N2 B2 S2 N2 4 ");
    trace.takesOver = true;
    EXPECT_EQ(Press("N"), "N2 B2 S2 N2 4 ");
}

TEST_F(Navigation, AClickWhileItsHandlerRunsIsDropped) {
    for (const char key : {'N', 'B', 'S'}) {
        form.SkipReminderShown = true;
        trace.onLeave = nullptr;
        Start(2);
        trace.onLeave = [&](frmWizard&) {
            const char again[] = {key, '\0'};
            Press(again);
        };
        const char keys[] = {key, '\0'};
        const std::string page = key == 'N' ? "3" : key == 'B' ? "1" : "5";
        EXPECT_EQ(Press(keys), key + std::string("2 ") + page + " ");
    }
}

TEST_F(Navigation, TheFirstSkipOfARunOnlyReminds) {
    const auto boxes = Answering({IDOK}, [&] { EXPECT_EQ(Press("SSS"), "S1 1 S1 2 S2 5 "); });
    ASSERT_EQ(boxes.size(), 1u);
    EXPECT_EQ(boxes[0].title, L"Warning");
    EXPECT_EQ(boxes[0].text, L"Complete all steps to ensure that Varnel DNC\r\n"
                             L"is installed correctly. If you still wish to skip\r\n"
                             L"this step, click \"Skip\" once more. This reminder\r\n"
                             L"will not appear again.");
    EXPECT_EQ(Progress(), L"");
}

TEST_F(Navigation, ProgressOnlyGrows) {
    const struct {
        const char *keys, *stored;
        const wchar_t* progress;
    } rows[] = {
        {"N", "", L"1"},     {"NN", "", L"2"}, {"NNBBN", "", L"2"}, {"N", "7", L"7"},
        {"NN", "abc", L"2"}, {"S", "", L""},   {"SN", "", L"2"},    {"N", "\" 9 x\"", L" 9 x"},
    };
    form.SkipReminderShown = true;
    for (const auto& row : rows) {
        SCOPED_TRACE(std::string(row.keys) + " from " + row.stored);
        suite.Ini("[General]\r\nFTSW_MaxProgress=" + std::string(row.stored) + "\r\n");
        Start(1);
        Press(row.keys);
        EXPECT_EQ(Progress(), row.progress);
    }
    trace.detour = true;
    Start(2);
    suite.Ini("[General]\r\nFTSW_MaxProgress=2\r\n");
    Press("N");
    EXPECT_EQ(Progress(), L"3") << "as the detour left it";
    EXPECT_EQ(form.picHeader.ToolTip(), L"Progress: 3");
}

TEST_F(Navigation, ProgressThatCannotBeWrittenIsTold) {
    locations.IniFile = suite.Path() + L"missing\\VarnelDnc.ini";
    const auto boxes = Answering({IDOK}, [&] { EXPECT_EQ(Press("N"), "N1 2 "); });
    ASSERT_EQ(boxes.size(), 1u);
    EXPECT_EQ(boxes[0].title, L"Varnel DNC Setup Wizard");
    EXPECT_EQ(boxes[0].text, IniWriteError().Description());
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
                {4, true, IDNO, false, true},
                {5, true, IDNO, false, true}};
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

TEST_F(Navigation, NothingRunsAfterTheEnd) {
    bool after = false;
    trace.onLeave = [&](frmWizard& wizard) {
        wizard.EndProgram();
        after = true;
    };
    form.cmdNext.Visible(true);
    form.cmdNext.Send(BM_CLICK);
    EXPECT_TRUE(QuitWasPosted());
    EXPECT_FALSE(after);
    EXPECT_EQ(trace.log, "N1 ");
    EXPECT_EQ(form.PageNo, 1);
}

// Closed after a configuration was made for VConfig: it is handed over, with the doubled backslash.
TEST_F(Navigation, ExitHandsTheConfigurationOver) {
    suite.AddStandIn(L"VConfig.exe");
    FormUnderTest test(kNewDevice);
    test.Show(4);
    test.form.ConfirmExit = true;
    test.form.ConfigName = L"Mill 3";
    for (const int flags : {0, 1, 2, 3}) {
        startUp.ConfigLaunch = flags & 1;
        test.form.ConfigWritten = flags & 2;
        EXPECT_EQ(Answering({IDYES}, [&] { SendMessageW(test.form.Hwnd(), WM_CLOSE, 0, 0); }).size(), 1u);
        EXPECT_TRUE(QuitWasPosted());
    }
    suite.StartsOf(L"VConfig.exe");
    Sleep(300); // a second start would come late
    const std::string start = suite.StartsOf(L"VConfig.exe");
    EXPECT_TRUE(start.starts_with("command=\"" + Utf8(suite.Path()) + "\\VConfig.exe\" Mill 3\r\n")) << start;
    EXPECT_EQ(start.rfind("command="), 0u) << "started once";
}

TEST_F(Navigation, LoadingTheForm) {
    constexpr wchar_t kRunOnce[] = L"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\RunOnce";
    startUp.WizardTitle = L"Varnel test load";
    for (const bool shifted : {false, true}) {
        suite.Ini("[General]\r\nRxNameMode=7\r\nOther=2\r\n");
        RegSetKeyValueW(HKEY_LOCAL_MACHINE, kRunOnce, L"Varnel_DNC_FTSW", REG_SZ, L"x", 4);
        startUp.ShiftWindow = shifted;
        trace.log.clear();
        form.Form_Load();
        EXPECT_EQ(trace.log, "1 ");
        EXPECT_EQ(win::WindowText(form.Hwnd()), L"Varnel test load");
        for (const wchar_t* key : {L"RxNameMode", L"RxChangeNameMode", L"NavAutoStart"})
            EXPECT_EQ(ReadIniString(L"General", key, L""), L"1");
        EXPECT_EQ(ReadIniString(L"General", L"Other", L""), L"2");
        EXPECT_EQ(ReadRegString(HKEY_LOCAL_MACHINE, kRunOnce, L"Varnel_DNC_FTSW", L"gone"), L"gone");
        RECT place{};
        GetWindowRect(form.Hwnd(), &place);
        const int freeWidth = GetSystemMetrics(SM_CXSCREEN) - (place.right - place.left);
        const int freeHeight = GetSystemMetrics(SM_CYSCREEN) - (place.bottom - place.top);
        EXPECT_EQ(place.left, shifted ? freeWidth : freeWidth / 2);
        EXPECT_EQ(place.top, shifted ? freeHeight : freeHeight / 2);
    }
    locations.IniFile = suite.Path() + L"missing\\VarnelDnc.ini";
    const auto boxes = Answering({IDOK}, [&] { form.Form_Load(); });
    ASSERT_EQ(boxes.size(), 1u) << "three keys, one box";
    EXPECT_EQ(boxes[0].text, IniWriteError().Description());
    EXPECT_TRUE(form.ConfirmExit);
}
