#include "ndw/NdwPages.h"

#include "app/Launch.h"
#include "app/StartUp.h"
#include "app/modLocations.h"
#include "wizard/frmWizard.h"

NdwSession ndwSession;

namespace {

constexpr int kSteps = kNdwNamePage - kNdwPortPage + 1;

// A form begins anew, whatever one before it in this process was told.
void Load(frmWizard&) { NdwSetDefaults(); }

void BeforeShow(frmWizard& form) {
    const bool isFinal = form.PageNo == kNdwFinalPage;
    form.cmdBack.Text(isFinal ? kNewCaption : kBackCaption);
    // VConfig has asked for one configuration: no other can be begun.
    if (isFinal && startUp.ConfigLaunch) form.cmdBack.Visible(false);
    const bool isStep = form.PageNo >= kNdwPortPage && form.PageNo <= kNdwNamePage;
    // On the other pages it is hidden, and what it says does not matter.
    form.lblStep.Text(L"Step " + std::to_wstring(form.PageNo - kNdwPortPage + 1) + L"/" +
                      std::to_wstring(kSteps));
    form.lblStep.Visible(isStep);
    if (form.PageNo == kNdwPortPage) form.ConfigWritten = false;
}

// Every page is left by its row.
bool TakesOverNext(frmWizard&) { return false; }

// The user has closed the wizard after making a configuration for VConfig: hand it over all the same. The
// second backslash in the path makes no difference to the system.
void Exiting(frmWizard& form) {
    if (startUp.ConfigLaunch && form.ConfigWritten)
        RunCommandLine(L"\"" + locations.ProgramFolder + L"\\" + suite::kConfigProgram + L"\" " +
                       form.ConfigName);
}

constexpr PageBook kBook{
    .pages = kNdwPages,
    .icon = kNewDevice,
    .picture = &frmWizard::picCncIcon,
    .hasSteps = true,
    .hasSkip = false,
    .keepsProgress = false,
    .anotherPage = kNdwPortPage, // without the introduction
    .load = Load,
    .beforeShow = BeforeShow,
    .takesOverNext = TakesOverNext,
    .hyperlink = NdwHyperlink,
    .exiting = Exiting,
};

} // namespace

const PageBook& NdwBook() { return kBook; }

void NdwSetDefaults() { ndwSession = {}; }

void NdwHyperlink(frmWizard& form, std::int16_t index) {
    const LinkRow* link = FindLink(kNdwLinks, form.PageNo, index);
    if (!link || StartLink(*link)) return;
    RunProgram(link->file, L" " + form.ConfigName); // RunWithConfig, the one action left in the table
}

bool LeavesOutCharacterFormat() { return ndwSession.answers.dataFormatIndex != kAsciiDataFormat; }
