#pragma once

class frmWizard;

// Next on the name page: checks the name, asks for an icon, fills the records and writes the file. On any
// failure the user has been told and the form's StayOnPage is set; after a success ConfigWritten and
// ConfigName are.
void NdwCreateConfig(frmWizard& form);
