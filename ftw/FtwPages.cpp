#include "ftw/FtwPages.h"

#include "app/Names.h"
#include "app/Settings.h"
#include "wizard/frmWizard.h"

FtwSession ftwSession;

namespace {

void Load(frmWizard&) {
    ftwSession = {};
    ftwSession.maxProgress = static_cast<std::int16_t>(
        NumericValue(TrimBlanks(ReadIniString(L"General", L"FTSW_MaxProgress", L""))));
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

bool NoSampleSelected() { return ftwSession.selectedSamples == 0; }

void ChooseInstallType(frmWizard& form) {
    ++form.PageNo;
    form.ShowPage();
}

void FtwHyperlink(frmWizard&, std::int16_t) {}

void PageFtwWelcome(frmWizard& form) { form.WriteHeading(L"Welcome"); }
void PageFtwChoose(frmWizard& form) { form.WriteHeading(L"Choose setup mode"); }
void PageFtwIntroduction(frmWizard& form) { form.WriteHeading(L"Introduction"); }
void PageFtwGetStarted(frmWizard& form) { form.WriteHeading(L"Getting Started"); }
void PageFtwShortcuts(frmWizard& form) { form.WriteHeading(L"Specify Application Shortcuts"); }
void PageFtwLocation(frmWizard& form) { form.WriteHeading(L"Specify CNC file location"); }
void PageFtwConfirmLocation(frmWizard& form) { form.WriteHeading(L"Confirm CNC file location"); }
void PageFtwAboutConfig(frmWizard& form) { form.WriteHeading(L"Configure Communication Options"); }
void PageFtwImportSample(frmWizard& form) { form.WriteHeading(L"Import Sample CNC Configuration Files"); }
void PageFtwEditSample(frmWizard& form) { form.WriteHeading(L"Edit Sample CNC Configuration Files"); }
void PageFtwCreateConfig(frmWizard& form) { form.WriteHeading(L"Create New CNC Configuration Files"); }
void PageFtwCaution(frmWizard& form) { form.WriteHeading(L"Common Problems"); }
void PageFtwBackup(frmWizard& form) { form.WriteHeading(L"Data Backup - Protect Your Investment"); }
void PageFtwFinal(frmWizard& form) { form.WriteHeading(L"Finished"); }

void LeaveFtwGetStarted(frmWizard&, Move) {}
void LeaveFtwShortcuts(frmWizard&, Move) {}
void LeaveFtwLocation(frmWizard&, Move) {}
void LeaveFtwConfirmLocation(frmWizard&, Move) {}
void LeaveFtwImportSample(frmWizard&, Move) {}
void LeaveFtwBackup(frmWizard&, Move) {}
void LeaveFtwFinal(frmWizard& form, Move) {
    form.ConfirmExit = false;
    form.EndProgram();
}
