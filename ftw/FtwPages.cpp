#include "ftw/FtwPages.h"

#include "app/Blanks.h"
#include "app/Numbers.h"
#include "app/Settings.h"
#include "app/StartUp.h"
#include "shell/ShortcutsPage.h"
#include "shell/modShellLink.h"
#include "wizard/frmWizard.h"

FtwSession ftwSession;

namespace {

void Load(frmWizard&) {
    ftwSession = {};
    ftwSession.maxProgress = NumericValue(TrimBlanks(ReadIniString(L"General", L"FTSW_MaxProgress", L"")));
}

void BeforeShow(frmWizard& form) { ShowAppIcons(form, kNoAppIcon); }

bool TakesOverNext(frmWizard& form) {
    if (form.PageNo != kFtwChoosePage) return false;
    ChooseInstallType(form);
    return true;
}

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

void PageFtwShortcuts(frmWizard& form) { BuildShortcutsPage(form, ftwSession.shortcutChoice); }

void LeaveFtwShortcuts(frmWizard& form, Move move) {
    ftwSession.shortcutChoice = LeaveShortcutsPage(form, move);
}
