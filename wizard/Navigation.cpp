// The part of frmWizard that moves between pages: the four buttons, the page change, the ways out.

#include "app/Blanks.h"
#include "app/Numbers.h"
#include "app/Settings.h"
#include "wizard/frmWizard.h"

#include <utility>

namespace {

constexpr wchar_t kProgressKey[] = L"FTSW_MaxProgress";

constexpr wchar_t kSkipReminder[] = L"Complete all steps to ensure that Varnel DNC\r\n"
                                    L"is installed correctly. If you still wish to skip\r\n"
                                    L"this step, click \"Skip\" once more. This reminder\r\n"
                                    L"will not appear again.";

// The New Device Wizard asks with the same words.
constexpr wchar_t kExitQuestion[] = L"W A R N I N G\r\n\r\n"
                                    L"Varnel strongly recommends that you complete\r\n"
                                    L"the First-Time Setup Wizard before using your\r\n"
                                    L"Varnel DNC software for the first time.\r\n\r\n"
                                    L"Click \"No\" and complete first-time\r\n"
                                    L"setup.\r\n\r\n"
                                    L"Exit? Are you sure?";

// A flag that is true for the length of one handler, however that ends.
class Raised {
  public:
    explicit Raised(bool& flag) : flag_(flag) { flag_ = true; }
    Raised(const Raised&) = delete;
    Raised& operator=(const Raised&) = delete;
    ~Raised() { flag_ = false; }

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
    LeavePage();
    if (std::exchange(StayOnPage, false)) return;
    if (book_.keepsProgress) KeepProgress();
    ++PageNo;
    ShowPage();
}

void frmWizard::cmdBack_Click() {
    if (backBusy_) return;
    const Raised busy(backBusy_);
    const Raised moving(MovingBack);
    if (cmdBack.Text() == kNewCaption) { // a further device, without the introduction
        cmdBack.Text(kBackCaption);
        PageNo = 3;
        ShowPage();
        return;
    }
    LeavePage();
    if (std::exchange(StayOnPage, false)) return;
    --PageNo;
    ShowPage();
}

void frmWizard::cmdSkip_Click() {
    if (skipBusy_) return;
    MovingNext = false;
    const Raised busy(skipBusy_);
    const Raised moving(Skipping);
    LeavePage();
    if (std::exchange(StayOnPage, false)) return;
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
    const Page* page = FindPage(book_.pages, PageNo);
    PageNo = page ? Arrival(*page, Move::Skip, true) : static_cast<std::int16_t>(PageNo + 1);
}

// The stored number only grows. A refused write is told; the user goes on all the same.
void frmWizard::KeepProgress() {
    const std::wstring stored = TrimBlanks(ReadIniString(L"General", kProgressKey, L""));
    if (PageNo <= NumericValue(stored)) return;
    try {
        WriteIniString(kProgressKey, std::to_wstring(PageNo));
    } catch (const win::AppError& error) {
        win::ShowMessageBox(Hwnd(), error.Description(), MB_OK | MB_ICONEXCLAMATION);
    }
}

void frmWizard::LeavePage() {
    const Page* page = FindPage(book_.pages, PageNo);
    if (!page) return;
    const Move move = Skipping ? Move::Skip : MovingBack ? Move::Back : Move::Next;
    if (page->leave) page->leave(*this, move);
    if (StayOnPage || move == Move::Skip) return; // the skip rule has its own detours
    const Detour& detour = DetourOf(*page, move);
    if (!detour.condition || detour.condition()) PageNo = static_cast<std::int16_t>(PageNo + detour.pages);
}

void frmWizard::ShowPage() {
    const Arrangement arrangement(*this, PageArea()); // half a page is never seen
    cmdBack.Enabled(PageNo != 1);
    pool.ClearPage(txtInfo);
    const Page* page = FindPage(book_.pages, PageNo);
    if (!page) return txtInfo.SetText(win::FormattedText());
    cmdNext.Focus(); // unless the builder knows better
    cmdNext.Text(page->nextCaption);
    cmdSkip.Visible(page->skip == Show::Yes);
    cmdBack.Visible(page->back == Show::Yes);
    if (book_.keepsProgress)
        picHeader.ToolTip(L"Progress: " + TrimBlanks(ReadIniString(L"General", kProgressKey, L"")));
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
