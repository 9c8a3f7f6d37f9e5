#pragma once

// The choice of the setup mode in a small window of its own.

#include "win/Control.h"
#include "win/DialogForm.h"

#include <windows.h>

#include <array>
#include <cstdint>

// What was chosen last, and what the dialog begins with: 0 new installation, 1 move or recover an
// installation, 2 exit. Any other value selects nothing.
extern std::int16_t setupChoice;

class frmChoice : public win::DialogForm {
  public:
    frmChoice();
    ~frmChoice() override { Destroy(); }

    // Controls.
    win::Label lblInstructions;
    std::array<win::OptionButton, 3> optChoice;
    win::PushButton cmdOK;

    // In front of `owner`, which may be null, until the user has chosen.
    void Show(HWND owner);
    win::Button& Form_Load(); // selects the option of `setupChoice`: what gets the focus
    void Form_Unload();       // stores the selected option, if any, however the window was closed
    void cmdOK_Click() { Hide(); }

  private:
    void PlaceControls();
};

// Runs the dialog in front of `owner`, which may be null.
void ShowChoice(HWND owner);
