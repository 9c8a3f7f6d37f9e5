#pragma once

// The start-up state that every page may read. Written once, by modMain, before a window exists.

#include <cstdint>
#include <string>

enum WizardModes : std::int16_t { kFirstTimeSetup = 0, kNewDevice = 1 };

struct StartUpState {
    // What the command line asks for:
    std::int16_t WizardMode = kFirstTimeSetup;
    bool ConfigLaunch = false; // started by VConfig ("/VCONFIG"): the new device is handed back to it
    bool ShiftWindow = false;  // "/SHIFT" in the New Device Wizard: lower right corner of the screen
    std::wstring WizardTitle;  // caption of the window, and what a second copy looks for
    // The same at every start:
    std::wstring MessageTitlePrefix; // part of the suite's common state; not read here
    std::wstring SamplesFolder;      // the locations' SamplesPath
};

extern StartUpState startUp;
