// Where the program starts. The one file of this folder that knows the wizards.

#include "app/CommandLine.h"
#include "app/Hardening.h"
#include "app/SingleInstance.h"
#include "app/StartUp.h"
#include "app/modSecurity.h"
#include "ftw/FtwPages.h"
#include "ndw/NdwPages.h"
#include "win/AppError.h"
#include "win/Form.h"
#include "wizard/frmWizard.h"

#include <windows.h>

namespace {

void ReadCommandLine(const wchar_t* text) {
    const CommandLine line = ParseCommandLine(text);
    startUp.WizardMode = line.wizardMode;
    startUp.ConfigLaunch = line.configLaunch;
    startUp.ShiftWindow = line.shiftWindow;
    startUp.WizardTitle = line.wizardTitle;
}

void RunMessageLoop() {
    MSG message{};
    while (GetMessageW(&message, nullptr, 0, 0) > 0)
        win::PumpMessage(message);
}

void Main(const wchar_t* commandLine) {
    InitLocations();
    ReadCommandLine(commandLine);
    InstanceClaim claim;
    if (FindRunningWizard(startUp.WizardTitle) || !claim.Take(startUp.WizardMode, startUp.WizardTitle))
        return;
    startUp.SamplesFolder = locations.ProgramFolder + L"Samples\\";
    startUp.MessageTitlePrefix = L"VWizard - ";
    TestConfigAccess();
    frmWizard form(startUp.WizardMode == kNewDevice ? NdwBook() : FtwBook(), configAccess.ConfigWritable);
    try {
        form.Form_Load();
    } catch (const win::ProgramEnded&) { // closed while it was opening
    }
    RunMessageLoop();
}

} // namespace

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR commandLine, int) {
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
