#pragma once

class frmWizard;

// The one page shown, in either wizard, to a user who may not write the suite's settings: only Close leads
// on.
void PageConfigDisabled(frmWizard& form);
