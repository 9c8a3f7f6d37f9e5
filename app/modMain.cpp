// Where the program starts. The one file of this folder that knows the wizards.

#include "app/CommandLine.h"
#include "app/Hardening.h"
#include "app/SingleInstance.h"
#include "app/Suite.h"
#include "app/modLocations.h"
#include "app/modSecurity.h"
#include "ftw/FtwPages.h"
#include "ndw/NdwPages.h"
#include "win/AppError.h"
#include "win/Form.h"
#include "wizard/frmWizard.h"

#include <windows.h>

namespace {

void RunMessageLoop() {
    MSG message{};
    while (GetMessageW(&message, nullptr, 0, 0) > 0)
        win::PumpMessage(message);
}

// The order matters: the search for another copy needs the title, and a copy that ends there must not have
// touched the settings.
void Main(const wchar_t* commandLine) {
    InitLocations();
    startUp = ParseCommandLine(commandLine);
    InstanceClaim claim; // kept until the program ends
    if (FindRunningWizard(startUp.WizardTitle) || !claim.Take(startUp.WizardMode, startUp.WizardTitle))
        return;
    startUp.SamplesFolder = locations.ProgramFolder + suite::kSamplesFolder;
    startUp.MessageTitlePrefix = L"VWizard - ";
    TestConfigAccess();
    frmWizard form(startUp.WizardMode == kNewDevice ? NdwBook() : FtwBook(),
                   {startUp.WizardTitle, startUp.ShiftWindow, configAccess.ConfigWritable});
    try {
        form.Form_Load();
    } catch (const win::ProgramEnded&) { // closed while it was opening
    }
    RunMessageLoop();
}

} // namespace

// Any other exception is a fault of the program's own: it ends with code 3, which tells an administrator so.
int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR commandLine, int) {
    // Before anything that may load a library or look at a drive.
    RefusePlantedLibraries();
    RefuseSystemBoxes();
    try {
        Main(commandLine);
    } catch (const win::AppError& error) {
        win::ShowMessageBox(nullptr, error.Description(), MB_OK | MB_ICONEXCLAMATION);
        return 1;
    }
    return 0;
}
