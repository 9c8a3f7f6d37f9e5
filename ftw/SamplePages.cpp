// Pages of the First-Time Setup Wizard about configurations for the user's machines.

#include "app/Files.h"
#include "app/Launch.h"
#include "app/modLocations.h"
#include "ftw/Companions.h"
#include "ftw/FtwPages.h"
#include "ftw/SampleImport.h"
#include "wizard/frmWizard.h"

void PageFtwAboutConfig(frmWizard& form) {
    form.WriteHeading(L"Configure Communication Options");
    form.WriteInfo(
        L"CNC communication settings (baud rate, parity, formatting, etc.) are stored in configuration "
        L"files. "
        L"A separate file is usually created for each CNC.\r\n\r\n"
        L"Varnel DNC includes sample configuration files for most common CNC models. The following pages "
        L"show "
        L"you how to use the samples, and how to create and modify your own new configurations.\r\n\r\n");
}

void PageFtwImportSample(frmWizard& form) {
    form.WriteHeading(L"Import Sample CNC Configuration Files");
    form.WriteInfo(
        L"Sample CNC configuration files are listed below. Click a sample to select it. To select multiple "
        L"samples, hold down the Ctrl key while clicking. If your CNC model is not listed, you can create a "
        L"custom configuration later.\r\n\r\n"
        L"Note: Each sample includes a \"Notes\" section with recommended CNC parameter settings.");
    InputColumn column(form);
    column.Width(layout::kTextWidth);
    column.Prompt(0, L"Sample &configurations");
    column.List(0, layout::kContentBottom - layout::kGapBetween - column.Top())
        .Fill(SampleEntries(ListFiles(locations.SamplesPath, L".dcp")));
}

void LeaveFtwImportSample(frmWizard& form, Move move) {
    if (move != Move::Next) return;
    ftwSession.selectedSamples = form.pool.lstUserInput[0].SelectedCount();
    if (NoSampleSelected()) return;
    const std::wstring question = ImportQuestion(ftwSession.selectedSamples);
    if (win::ShowMessageBox(form.Hwnd(), question, MB_YESNO | MB_ICONQUESTION) != IDYES) return;
    ImportSelectedSamples(form);
    RunProgram(kConfigProgram);
}

bool NoSampleSelected() { return ftwSession.selectedSamples == 0; }

// The shell itself asks before it replaces a configuration.
void ImportSelectedSamples(frmWizard& form) {
    auto& list = form.pool.lstUserInput[0];
    std::vector<std::wstring> selected;
    for (int i = 0; i < list.Count(); ++i)
        if (list.Selected(i)) selected.push_back(list.Item(i));
    if (selected.empty()) return;
    CopyFiles(SampleFileList(locations.SamplesPath, selected), locations.SettingsPath, 0, form.Hwnd());
}

void PageFtwEditSample(frmWizard& form) {
    form.WriteHeading(L"Edit Sample CNC Configuration Files");
    form.WriteInfo(
        L"The Varnel DNC Configuration window (VConfig.exe) is open so you can review and edit the selected "
        L"configurations.\r\n\r\n"
        L"For each configuration:\r\n"
        L" 1. On the \"Port Settings\" tab, change COM Port and Baud rate. Changing other settings is not "
        L"recommended.\r\n"
        L" 2. Carefully read the \"Notes\" tab.\r\n\r\n"
        L"Note: To import more sample configurations, click <b>Import sample configuration</b> in VConfig's "
        L"<b>File</b> menu.");
    InputColumn(form).Link(0, L"Varnel DNC Configuration (VConfig)");
}

void PageFtwCreateConfig(frmWizard& form) {
    form.WriteHeading(L"Create New CNC Configuration Files");
    form.WriteInfo(
        L"If a sample configuration is not available for your CNC, click <b>...New Device Wizard</b> below. "
        L"The wizard walks you through the process of creating a new configuration.\r\n\r\n"
        L"For more information about configuring Varnel DNC, click <b>Configuration Guide</b> below.");
    InputColumn column(form);
    column.Link(0, L"Start Varnel DNC New Device Wizard");
    column.Link(2, L"Configuration Guide");
}
