// The engine with a book of its own: what holds for every page that a wizard may have.

#include "app/Settings.h"
#include "tests/support/Imports.h"
#include "tests/support/Scratch.h"
#include "win/Arrangement.h"
#include "win/SystemLibrary.h"
#include "wizard/frmMessage.h"
#include "wizard/frmWizard.h"

#include <gtest/gtest.h>

#include <optional>

namespace {

using namespace win::literals;

// What the pages do, and what they saw.
struct {
    bool vetoes = false, tells = false, throws = false;
    int entersWhileBuilt = 0;
    std::vector<std::int16_t> built = {};
    bool wasVisible = false, waited = false;
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
}

constexpr Page kPages[] = {
    {1, Build, Leave, {}, {}, {}, kNextCaption, Show::Yes, Show::Yes, Prepare},
    {2, Build, Leave, {}, {}, {}, kNextCaption, Show::Yes, Show::Yes, Prepare},
    {3, Build, Leave, {}, {}, {}, kNextCaption, Show::Yes, Show::Yes, Prepare},
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
    .exiting = [](frmWizard&) {},
};

class Engine : public testing::Test {
  protected:
    Engine() { pages = {}; }
    void Show(std::int16_t page) {
        form.PageNo = page;
        form.ShowPage();
    }
    void Click(win::Button& button) {
        SendMessageW(form.Hwnd(), WM_COMMAND, MAKEWPARAM(button.Id(), BN_CLICKED),
                     reinterpret_cast<LPARAM>(button.Handle()));
    }

    ScratchSuite suite;
    frmWizard form{kBook, {.configAllowed = true}};
};

// A control that hears the messages it gets.
struct Ear : win::Label {
    void Made() override { InterceptMessages(); }
    bool OnMessage(UINT message, WPARAM, LPARAM, LRESULT&) override {
        heard.push_back(message);
        return false;
    }
    std::vector<UINT> heard;
};

struct EarForm : win::Form {
    EarForm() {
        Create({L"VarnelEarForm", L"", WS_OVERLAPPEDWINDOW, WS_EX_CONTROLPARENT, nullptr}, nullptr, 600, 400);
        for (std::optional<Ear>* each : {&first, &second}) {
            each->emplace().Bind(*this, 100);
            (*each)->Handle();
        }
    }
    ~EarForm() override { Destroy(); }
    std::optional<Ear> first, second;
};

std::wstring loadedPath;
HMODULE(WINAPI* originalLoad)(LPCWSTR, HANDLE, DWORD);

HMODULE WINAPI LoadAsOldSystems(LPCWSTR file, HANDLE reserved, DWORD flags) {
    loadedPath = file;
    CharLowerW(loadedPath.data());
    if ((flags & ~0xFFu) == 0) return originalLoad(file, reserved, flags);
    SetLastError(ERROR_INVALID_PARAMETER);
    return nullptr;
}

std::array<int, 4> PlaceOf(HWND window) {
    RECT place{};
    GetWindowRect(window, &place);
    return {static_cast<int>(place.left), static_cast<int>(place.top),
            static_cast<int>(place.right - place.left), static_cast<int>(place.bottom - place.top)};
}

} // namespace

TEST_F(Engine, AVetoAndAWordLastForOneClick) {
    struct Row {
        const char* name;
        bool vetoes, tells, throws;
        std::size_t boxes;
        std::int16_t arrives;
    };
    // With the settings file refusing writes, the progress key tells of it too.
    const Row rows[] = {
        {"goes on", false, false, false, 1, 2},        {"told already", false, true, false, 1, 2},
        {"stays", true, false, false, 0, 1},           {"throws", false, false, true, 1, 1},
        {"stays and throws", true, false, true, 1, 1},
    };
    CreateDirectoryW(locations.IniFile.c_str(), nullptr);
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

// Clicks never go to what lies behind the form; what a page looks up is looked up before it is touched.
TEST_F(Engine, StaysVisibleWhileAPageIsBuilt) {
    ShowWindow(form.Hwnd(), SW_SHOW);
    form.txtInfo.Visible(true);
    for (const auto page : std::initializer_list<std::int16_t>{1, 2, 3, 2}) {
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
    EXPECT_NO_THROW(win::PumpPendingMessages());
    EnableWindow(form.Hwnd(), TRUE);
    win::PumpMessage(escape);
    EXPECT_THROW(win::PumpPendingMessages(), win::ProgramEnded);
    MSG quit{}; // not for the next test
    while (PeekMessageW(&quit, nullptr, 0, 0, PM_REMOVE)) {
    }
}

// In the middle of the screen or of the owner, whole on the work area; everything else waits, and what was
// active before is so again.
TEST_F(Engine, TheMessageBoxIsModalWithAndWithoutAnOwner) {
    struct Row {
        const char* name;
        std::int16_t buttons, size;
        std::optional<RECT> owner;
        std::array<int, 4> place; // pixels, as below
        std::array<int, 4> lastButton;
    };
    // clang-format off
    const Row rows[] = {
        {"small",          0, 0, {},                              {341, 263, 343, 243}, {139, 181, 65, 25}},
        {"two buttons",    1, 1, {},                              {321, 238, 383, 292}, {195, 230, 65, 25}},
        {"large",          3, 3, {},                              {289, 206, 447, 356}, {264, 294, 65, 25}},
        {"size unknown",   0, 9, {},                              {341, 263, 343, 243}, {139, 181, 65, 25}},
        {"owner",          4, 0, RECT{200, 100, 700, 500},        {279, 179, 343, 243}, {175, 181, 65, 25}},
        {"owner outside",  5, 0, RECT{-500, -400, -100, -200},    {  7,   7, 343, 243}, {175, 181, 65, 25}},
        {"owner far down", 2, 0, RECT{900, 700, 1100, 800},       {675, 519, 343, 243}, {212, 181, 65, 25}},
    };
    // clang-format on
    constexpr std::size_t kCounts[] = {1, 2, 3, 3, 2, 2};
    form.Form_Load();
    frmWizard other{kBook, {}};
    ShowWindow(other.Hwnd(), SW_SHOW);
    SetActiveWindow(form.Hwnd());
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        if (row.owner)
            SetWindowPos(form.Hwnd(), nullptr, row.owner->left, row.owner->top,
                         row.owner->right - row.owner->left, row.owner->bottom - row.owner->top,
                         SWP_NOZORDER);
        frmMessage box;
        const std::size_t last = kCounts[row.buttons] - 1;
        box.cmdButton[last].onClick = [&] {
            EXPECT_FALSE(IsWindowEnabled(form.Hwnd()) || IsWindowEnabled(other.Hwnd()));
            EXPECT_EQ(PlaceOf(box.Hwnd()), row.place);
            std::array<int, 4> button = PlaceOf(box.cmdButton[last].Handle());
            POINT corner{button[0], button[1]};
            ScreenToClient(box.Hwnd(), &corner);
            EXPECT_EQ((std::array<int, 4>{static_cast<int>(corner.x), static_cast<int>(corner.y), button[2],
                                          button[3]}),
                      row.lastButton);
            if (last == 0) { // the click itself moves the focus
                EXPECT_EQ(GetFocus(), box.cmdButton[0].Handle());
            }
            box.cmdButton_Click(last);
        };
        PostMessageW(box.cmdButton[last].Handle(), BM_CLICK, 0, 0);
        EXPECT_NE(box.Show(L"<b>Text</b>", row.buttons, row.size, L"", row.owner ? form.Hwnd() : nullptr), 0);
        EXPECT_TRUE(IsWindowEnabled(form.Hwnd()) && IsWindowEnabled(other.Hwnd()));
        EXPECT_EQ(GetActiveWindow(), form.Hwnd());
    }
}

TEST(Lifetime, AControlThatGoesTakesItselfOffItsForm) {
    EarForm form;
    const HWND window = form.first->Handle();
    form.first.reset();
    EXPECT_FALSE(IsWindow(window));
    SendMessageW(form.Hwnd(), WM_SYSCOLORCHANGE, 0, 0);
    EXPECT_EQ(form.second->heard.back(), static_cast<UINT>(WM_SYSCOLORCHANGE));
}

// As on a system without its updates of 2011, which knows no flags for where libraries are looked for.
TEST(SystemLibrary, IsLoadedByItsFullPath) {
    const ReplacedImport old("LoadLibraryExW", reinterpret_cast<void*>(&LoadAsOldSystems));
    originalLoad = old.Original<decltype(originalLoad)>();
    EXPECT_NE(win::LoadSystemLibrary(L"oleacc.dll"), nullptr);
    EXPECT_EQ(loadedPath.find(L"c:\\windows\\system32\\"), 0u) << Utf8(loadedPath);
    EXPECT_EQ(win::LoadSystemLibrary(L"no such.dll"), nullptr);
}
