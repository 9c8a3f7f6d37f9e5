#include "ftw/FtwPages.h"

#include "app/Blanks.h"
#include "app/Numbers.h"
#include "app/Settings.h"
#include "app/StartUp.h"
#include "ftw/FtwLinks.h"
#include "shell/ShortcutsPage.h"
#include "shell/modShellLink.h"
#include "wizard/frmWizard.h"

FtwSession ftwSession;

namespace {

// The progress is kept as it was at load: what this run adds must not open a choice that was closed at first.
void Load(frmWizard&) {
    ftwSession = {};
    ftwSession.maxProgress =
        NumericValue(TrimBlanks(ReadIniString(suite::kGeneral, suite::kMaxProgress, L"")));
}

// A page that has icons shows them itself.
void BeforeShow(frmWizard& form) { ShowAppIcons(form, kNoAppIcon); }

// The chosen setup mode decides where Next leads, and whether the wizard goes on at all. That page is not
// counted as progress.
bool TakesOverNext(frmWizard& form) {
    // Asked at every Next; the other pages leave by their rows.
    if (form.PageNo != kFtwChoosePage) return false;
    ChooseInstallType(form);
    return true;
}

// No other program waits for anything of this wizard.
void Exiting(frmWizard&) {}

constexpr PageBook kBook{
    .pages = kFtwPages,
    .icon = kFirstTimeSetup,
    .picture = &frmWizard::picScreenLogo,
    .hasSteps = false,
    .hasSkip = true,
    .keepsProgress = true,
    .anotherPage = 0, // Back never reads "New"
    .load = Load,
    .beforeShow = BeforeShow,
    .takesOverNext = TakesOverNext,
    .hyperlink = FtwHyperlink,
    .exiting = Exiting,
};

} // namespace

const PageBook& FtwBook() { return kBook; }

void PageFtwShortcuts(frmWizard& form) { BuildShortcutsPage(form, ftwSession.shortcutChoice, kFtwLinks); }

void LeaveFtwShortcuts(frmWizard& form, Move move) {
    ftwSession.shortcutChoice = LeaveShortcutsPage(form, move);
}
