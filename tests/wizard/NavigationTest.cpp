// A book of its own: what holds for every page that a wizard may have. How it moves, what it tells, how it
// ends.

#include "app/Settings.h"
#include "tests/support/Imports.h"
#include "tests/support/Scratch.h"
#include "win/AppError.h"
#include "wizard/frmWizard.h"

#include <gtest/gtest.h>

#include <functional>

namespace {

// What the pages do, and what they saw.
struct {
    bool vetoes = false, tells = false, throws = false;
    int entersWhileBuilt = 0;
    std::function<void()> whileLeft = nullptr; // once
    std::vector<std::int16_t> built = {};
    bool wasVisible = false, waited = false;
    int exits = 0;
} pages;

void Enter(frmWizard& form) { PostMessageW(form.cmdNext.Handle(), WM_KEYDOWN, VK_RETURN, 1); }

void Prepare(frmWizard& form) {
    pages.waited = GetCursor() == LoadCursorW(nullptr, IDC_WAIT) &&
                   (form.txtInfo.Text() != L"  " || pages.built.empty());
}

void Build(frmWizard& form) {
    pages.built.push_back(form.PageNo);
    pages.wasVisible = (GetWindowLongW(form.Hwnd(), GWL_STYLE) & WS_VISIBLE) != 0;
    form.WriteInfo(L"Page");
    InputColumn column(form);
    column.Link(0, L"Link");
    if (form.PageNo == 2) column.DropDown();
    for (int i = 0; i < pages.entersWhileBuilt; ++i)
        Enter(form);
}

void Leave(frmWizard& form, Move) {
    form.StayOnPage = pages.vetoes;
    if (pages.tells) form.TellOfRefusedWrite(L"refused");
    if (pages.throws) throw win::AppError(1, L"", L"thrown");
    if (const auto act = std::exchange(pages.whileLeft, nullptr)) act();
}

constexpr Page kPages[] = {
    {1, Build, Leave, {}, {}, {}, kNextCaption, Show::Yes, Show::Yes, Prepare},
    {2, Build, Leave, {1}, {}, {1}, kNextCaption, Show::Yes, Show::Yes, Prepare},
    {4, Build, Leave, {}, {}, {}, kFinishCaption, Show::Yes, Show::Yes, Prepare},
};

constexpr PageBook kBook{
    .pages = kPages,
    .icon = 0,
    .picture = &frmWizard::picScreenLogo,
    .hasSteps = false,
    .hasSkip = true,
    .keepsProgress = true,
    .anotherPage = 1,
    .load = [](frmWizard&) {},
    .beforeShow = [](frmWizard&) {},
    .takesOverNext = [](frmWizard&) { return false; },
    .hyperlink = [](frmWizard&, std::int16_t) {},
    .exiting = [](frmWizard&) { ++pages.exits; },
};

bool QuitWasPosted() {
    MSG message{};
    bool quit = false;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE))
        quit = quit || message.message == WM_QUIT;
    return quit;
}

class Engine : public testing::Test {
  protected:
    Engine() { pages = {}; }
    void Show(std::int16_t page) {
        form.PageNo = page;
        form.ShowPage();
    }
    void Click(win::Control& button) {
        SendMessageW(form.Hwnd(), WM_COMMAND, MAKEWPARAM(button.Id(), BN_CLICKED),
                     reinterpret_cast<LPARAM>(button.Handle()));
    }

    ScratchSuite suite;
    frmWizard form{kBook, {.configAllowed = true}};
};

// With the settings file refusing writes, the start-up keys and the progress tell of it once each, too.
TEST_F(Engine, AVetoAndAWordLastForOneClick) {
    struct Row {
        const char* name;
        bool vetoes, tells, throws;
        std::size_t boxes;
        std::int16_t arrives;
    };
    const Row rows[] = {
        {"goes on", false, false, false, 1, 2},        {"told already", false, true, false, 1, 2},
        {"stays", true, false, false, 0, 1},           {"throws", false, false, true, 1, 1},
        {"stays and throws", true, false, true, 1, 1},
    };
    CreateDirectoryW(locations.IniFile.c_str(), nullptr);
    EXPECT_EQ(Answering({IDOK}, [&] { form.Form_Load(); }).size(), 1u);
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        Show(1);
        pages = {.vetoes = row.vetoes, .tells = row.tells, .throws = row.throws};
        EXPECT_EQ(Answering({IDOK, IDOK}, [&] { Click(form.cmdNext); }).size(), row.boxes);
        EXPECT_EQ(form.PageNo, row.arrives);
        EXPECT_FALSE(form.StayOnPage || form.MovingNext);
    }
    RemoveDirectoryW(locations.IniFile.c_str());
}

// A click that comes while its handler runs, as an impatient person's, does nothing. The ways differ by one.
TEST_F(Engine, EachClickMovesOnceOrStays) {
    form.SkipReminderShown = true;
    const std::pair<win::Control*, std::int16_t> ways[] = {
        {&form.cmdNext, 4}, {&form.cmdBack, 1}, {&form.cmdSkip, 4}};
    for (const auto& [button, arrival] : ways)
        for (const bool stays : {false, true}) {
            SCOPED_TRACE(Utf8(button->Text()) + (stays ? " stays" : ""));
            Show(2);
            pages = {.vetoes = stays, .whileLeft = [this, to = button] { Click(*to); }};
            Click(*button);
            EXPECT_EQ(form.PageNo, stays ? 2 : arrival);
            EXPECT_FALSE(form.StayOnPage || form.MovingNext || form.MovingBack || form.Skipping);
        }
}

// Clicks never go to what lies behind the form; what a page looks up is looked up before it is touched.
TEST_F(Engine, StaysVisibleWhileAPageIsBuilt) {
    ShowWindow(form.Hwnd(), SW_SHOW);
    form.txtInfo.Visible(true);
    for (const auto page : std::initializer_list<std::int16_t>{1, 2, 4, 2}) {
        Show(page);
        EXPECT_TRUE(pages.wasVisible && pages.waited) << page;
        EXPECT_TRUE(IsWindowVisible(form.txtInfo.Handle()) &&
                    IsWindowVisible(form.pool.lblHyperlink[0].Handle()));
        EXPECT_EQ(IsWindowVisible(form.pool.cmbUserInput.Handle()) != FALSE, page == 2);
    }
    EXPECT_NE(GetCursor(), LoadCursorW(nullptr, IDC_WAIT));
}

TEST_F(Engine, NothingIsPressedBeforeThereIsAPage) {
    pages.entersWhileBuilt = 3;
    Enter(form);
    form.Form_Load();
    EXPECT_EQ(pages.built, std::vector<std::int16_t>{1});
    pages.entersWhileBuilt = 0;
    win::PumpPendingMessages();
    EXPECT_EQ(form.PageNo, 1);
    Enter(form);
    win::PumpPendingMessages();
    EXPECT_EQ(form.PageNo, 2);
}

// Esc to a form that waits for a box would end the program behind it.
TEST_F(Engine, AFormThatWaitsGetsNoKeys) {
    form.Form_Load();
    form.ConfirmExit = false;
    EnableWindow(form.Hwnd(), FALSE);
    MSG escape{form.cmdNext.Handle(), WM_KEYDOWN, VK_ESCAPE, 1, 0, {}};
    win::PumpMessage(escape);
    EXPECT_FALSE(QuitWasPosted());
    EnableWindow(form.Hwnd(), TRUE);
    win::PumpMessage(escape);
    EXPECT_TRUE(QuitWasPosted());
}

int exitAnswer;
std::vector<UINT> boxes;

int WINAPI AnswerBox(HWND, LPCWSTR, LPCWSTR, UINT type) {
    boxes.push_back(type);
    return exitAnswer;
}

// An update that only closes the program is not the user's wish to leave, and does not ask.
TEST_F(Engine, WhenClosingAsks) {
    const struct {
        std::int16_t page;
        bool confirm;
        int answer;
        bool asks, closes;
    } rows[] = {{1, true, IDYES, true, true},
                {2, true, IDNO, true, false},
                {2, false, IDNO, false, true},
                {4, true, IDNO, false, true}};
    const std::pair<UINT, LPARAM> kWays[] = {
        {WM_CLOSE, 0}, {WM_QUERYENDSESSION, 0}, {WM_QUERYENDSESSION, ENDSESSION_CLOSEAPP}};
    const ReplacedImport answering("MessageBoxW", reinterpret_cast<void*>(&AnswerBox));
    for (const auto& row : rows)
        for (const auto& [message, reason] : kWays) {
            SCOPED_TRACE(std::to_string(row.page) + " " + std::to_string(message) + " " +
                         std::to_string(reason));
            Show(row.page);
            form.ConfirmExit = row.confirm;
            pages.exits = 0;
            boxes.clear();
            exitAnswer = row.answer;
            const LRESULT result = SendMessageW(form.Hwnd(), message, 0, reason);
            const bool asks = row.asks && !reason;
            EXPECT_EQ(boxes, asks ? std::vector<UINT>{MB_YESNO | MB_DEFBUTTON1} : std::vector<UINT>{});
            EXPECT_EQ(message == WM_CLOSE ? QuitWasPosted() : result != 0, row.closes || reason);
            EXPECT_EQ(pages.exits, asks && row.closes ? 1 : 0);
        }
    for (const BOOL ends : {FALSE, TRUE}) {
        SendMessageW(form.Hwnd(), WM_ENDSESSION, static_cast<WPARAM>(ends), 0);
        EXPECT_EQ(QuitWasPosted(), ends);
    }
}

} // namespace
