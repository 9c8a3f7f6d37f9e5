// The part of frmWizard that moves between pages: the four buttons, the page change, the ways out.

#include "app/Blanks.h"
#include "app/Numbers.h"
#include "app/Settings.h"
#include "app/Suite.h"
#include "win/Arrangement.h"
#include "wizard/frmWizard.h"

namespace {

// clang-format off
constexpr wchar_t kSkipReminder[] =
    L"Complete all steps to ensure that Varnel DNC\r\n"
    L"is installed correctly. If you still wish to skip\r\n"
    L"this step, click \"Skip\" once more. This reminder\r\n"
    L"will not appear again.";

// The New Device Wizard asks with the same words.
constexpr wchar_t kExitQuestion[] =
    L"W A R N I N G\r\n"
    L"\r\n"
    L"Varnel strongly recommends that you complete\r\n"
    L"the First-Time Setup Wizard before using your\r\n"
    L"Varnel DNC software for the first time.\r\n"
    L"\r\n"
    L"Click \"No\" and complete first-time\r\n"
    L"setup.\r\n"
    L"\r\n"
    L"Exit? Are you sure?";
// clang-format on

// A flag that is up for the length of one handler, however that ends.
class Raised {
  public:
    explicit Raised(bool& flag) : flag_(flag) { flag_ = true; }
    Raised(const Raised&) = delete;
    Raised& operator=(const Raised&) = delete;
    ~Raised() { flag_ = false; }

  private:
    bool& flag_;
};

// A flag that may come up during one handler and is down behind it, however that ends.
class Lowered {
  public:
    explicit Lowered(bool& flag) : flag_(flag) {}
    Lowered(const Lowered&) = delete;
    Lowered& operator=(const Lowered&) = delete;
    ~Lowered() { flag_ = false; }

  private:
    bool& flag_;
};

} // namespace

void frmWizard::cmdNext_Click() {
    if (nextBusy_) return;
    const Raised busy(nextBusy_);
    if (book_.takesOverNext(*this)) return;
    Skipping = false;
    const Raised moving(MovingNext);
    const Lowered staying(StayOnPage);
    const Lowered told(toldOfRefusedWrite_);
    LeavePage();
    if (StayOnPage) return;
    if (book_.keepsProgress) KeepProgress();
    ++PageNo;
    ShowPage();
}

void frmWizard::cmdBack_Click() {
    if (backBusy_) return;
    const Raised busy(backBusy_);
    const Raised moving(MovingBack);
    const Lowered staying(StayOnPage);
    if (cmdBack.Text() == kNewCaption) { // a further device, without the introduction
        cmdBack.Text(kBackCaption);
        PageNo = book_.anotherPage;
        ShowPage();
        return;
    }
    LeavePage();
    if (StayOnPage) return;
    --PageNo;
    ShowPage();
}

void frmWizard::cmdSkip_Click() {
    if (skipBusy_) return;
    MovingNext = false;
    const Raised busy(skipBusy_);
    const Raised moving(Skipping);
    const Lowered staying(StayOnPage);
    LeavePage();
    if (StayOnPage) return;
    SkipToNextPage();
    ShowPage();
}

void frmWizard::cmdCancel_Click() { Unload(); }

void frmWizard::lblHyperlink_Click(std::int16_t index) { book_.hyperlink(*this, index); }

// The reminder of the first Skip of a run takes the place of the move: the same page is built again.
void frmWizard::SkipToNextPage() {
    if (!SkipReminderShown) {
        MessageBoxW(Hwnd(), kSkipReminder, L"Warning", MB_OK | MB_ICONEXCLAMATION);
        SkipReminderShown = true;
        return;
    }
    if (const Page* page = FindPage(book_.pages, PageNo)) PageNo = Arrival(*page, Move::Skip);
}

// The stored number only grows. A refused write is told; the user goes on all the same.
void frmWizard::KeepProgress() {
    const std::wstring stored = TrimBlanks(ReadIniString(suite::kGeneral, suite::kMaxProgress, L""));
    if (PageNo <= NumericValue(stored)) return;
    try {
        WriteIniString(suite::kMaxProgress, std::to_wstring(PageNo));
    } catch (const win::AppError& error) {
        TellOfRefusedWrite(error.Description());
    }
}

void frmWizard::TellOfRefusedWrite(const std::wstring& description) {
    if (toldOfRefusedWrite_) return;
    toldOfRefusedWrite_ = true;
    win::ShowMessageBox(Hwnd(), description, MB_OK | MB_ICONEXCLAMATION);
}

// The one place that reads why the page is left.
Move frmWizard::PresentMove() const { return Skipping ? Move::Skip : MovingBack ? Move::Back : Move::Next; }

// Leaves PageNo one plain step in front of where the move leads. A Skip has its own rule for that.
void frmWizard::LeavePage() {
    const Page* page = FindPage(book_.pages, PageNo);
    if (!page) return;
    const Move move = PresentMove();
    if (page->leave) page->leave(*this, move);
    if (StayOnPage || move == Move::Skip) return;
    PageNo = static_cast<std::int16_t>(Arrival(*page, move) - PlainStep(move));
}

void frmWizard::ShowPage() {
    const Page* page = FindPage(book_.pages, PageNo);
    if (page && page->prepare) {
        const win::Hourglass wait;
        page->prepare(*this);
    }
    const win::Arrangement arrangement(*this, PageArea());
    cmdBack.Enabled(PageNo != 1);
    pool.ClearPage(txtInfo);
    ResetInfo();
    if (!page) return;
    cmdNext.Focus(); // unless the builder knows better
    cmdNext.Text(page->nextCaption);
    cmdSkip.Visible(page->skip == Show::Yes);
    cmdBack.Visible(page->back == Show::Yes);
    if (book_.keepsProgress)
        picHeader.ToolTip(L"Progress: " +
                          TrimBlanks(ReadIniString(suite::kGeneral, suite::kMaxProgress, L"")));
    book_.beforeShow(*this);
    page->build(*this);
}

void frmWizard::Unload() {
    if (Form_QueryUnload()) Form_Unload();
}

bool frmWizard::Form_QueryUnload() {
    if (cmdNext.Text() != kNextCaption || !ConfirmExit) return true;
    const int answer = win::ShowMessageBox(Hwnd(), kExitQuestion, MB_YESNO | MB_DEFBUTTON1);
    if (answer != IDYES) return false;
    book_.exiting(*this);
    return true;
}

void frmWizard::Form_Unload() { EndProgram(); }

// Every loop ends, modal ones too, and the windows go with their forms.
void frmWizard::EndProgram() { win::EndMessageLoop(); }
