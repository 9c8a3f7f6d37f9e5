#include "ftw/FtwPages.h"

#include "app/Names.h"
#include "app/Settings.h"
#include "wizard/frmWizard.h"

FtwSession ftwSession;

namespace {

void Load(frmWizard&) {
    ftwSession = {};
    ftwSession.maxProgress = NumericValue(TrimBlanks(ReadIniString(L"General", L"FTSW_MaxProgress", L"")));
}

void BeforeShow(frmWizard&) {}

bool TakesOverNext(frmWizard& form) {
    if (form.PageNo != kFtwChoosePage) return false;
    ChooseInstallType(form);
    return true;
}

void Exiting(frmWizard&) {}

constexpr PageBook kBook{kFtwPages, true, Load, BeforeShow, TakesOverNext, FtwHyperlink, Exiting};

} // namespace

const PageBook& FtwBook() { return kBook; }

void PageFtwShortcuts(frmWizard& form) { form.WriteHeading(L"Specify Application Shortcuts"); }
void LeaveFtwShortcuts(frmWizard&, Move) {}
