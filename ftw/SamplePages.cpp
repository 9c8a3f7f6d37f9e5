// Pages of the First-Time Setup Wizard about configurations for the user's machines.

#include "app/Files.h"
#include "app/Launch.h"
#include "app/modLocations.h"
#include "ftw/FtwLinks.h"
#include "ftw/FtwPages.h"
#include "ftw/SampleImport.h"
#include "wizard/frmWizard.h"

namespace {

std::vector<std::wstring> SelectedSamples(win::ListBox& list) {
    std::vector<std::wstring> selected;
    for (int i = 0; i < list.Count(); ++i)
        if (list.Selected(i)) selected.push_back(list.Item(i));
    return selected;
}

} // namespace

void PageFtwAboutConfig(frmWizard& form) {
    form.WriteHeading(L"Configure Communication Options");
    // clang-format off
    form.WriteInfo(
        L"CNC communication settings (baud rate, parity, formatting, etc.) are stored in configuration files. A separate file is usually created for each CNC.\r\n\r\n"
        L"Varnel DNC includes sample configuration files for most common CNC models. The following pages show you how to use the samples, and how to create and modify your own new configurations.\r\n\r\n");
    // clang-format on
}

// At each visit: samples may have been added since the last one.
void PrepareFtwImportSample(frmWizard&) {
    ftwSession.samples = SampleEntries(ListFiles(locations.SamplesPath, suite::kConfigurationExtension));
}

void PageFtwImportSample(frmWizard& form) {
    form.WriteHeading(L"Import Sample CNC Configuration Files");
    // clang-format off
    form.WriteInfo(
        L"Sample CNC configuration files are listed below. Click a sample to select it. To select multiple samples, hold down the Ctrl key while clicking. If your CNC model is not listed, you can create a custom configuration later.\r\n\r\n"
        L"Note: Each sample includes a \"Notes\" section with recommended CNC parameter settings.");
    // clang-format on
    InputColumn column(form);
    column.Width(layout::kTextWidth);
    column.Prompt(0, L"Sample &configurations");
    // As long as the page allows, whatever the resolution makes of the text.
    column.List(0, layout::kContentBottom - layout::kGapBetween - column.Top()).Fill(ftwSession.samples);
}

// "No" leaves the samples where they are and goes on to the page about editing them all the same.
void LeaveFtwImportSample(frmWizard& form, Move move) {
    if (move != Move::Next) return;
    ftwSession.selectedSamples = form.pool.lstUserInput[0].SelectedCount();
    if (NoSampleSelected()) return;
    const std::wstring question = ImportQuestion(ftwSession.selectedSamples);
    if (win::ShowMessageBox(form.Hwnd(), question, MB_YESNO | MB_ICONQUESTION) != IDYES) return;
    ImportSelectedSamples(form);
    RunProgram(suite::kConfigProgram);
}

bool NoSampleSelected() { return ftwSession.selectedSamples == 0; }

// The shell itself asks before it replaces a configuration, and says what it refuses. A path that it would
// take for another one must not reach it, so that is said here.
void ImportSelectedSamples(frmWizard& form) {
    std::vector<std::wstring> fitting, leftOut;
    const bool hasTarget = FitsShell(locations.SettingsPath);
    // Each is measured for itself: one long path holds no other sample back.
    for (const std::wstring& sample : SelectedSamples(form.pool.lstUserInput[0]))
        (hasTarget && FitsShell(SampleFileList(locations.SamplesPath, {sample})) ? fitting : leftOut)
            .push_back(sample);
    if (!fitting.empty())
        CopyFiles(SampleFileList(locations.SamplesPath, fitting), locations.SettingsPath, 0, form.Hwnd());
    if (!leftOut.empty())
        win::ShowMessageBox(form.Hwnd(), LeftOutMessage(leftOut), MB_OK | MB_ICONEXCLAMATION);
}

void PageFtwEditSample(frmWizard& form) {
    form.WriteHeading(L"Edit Sample CNC Configuration Files");
    // clang-format off
    form.WriteInfo(
        L"The Varnel DNC Configuration window (VConfig.exe) is open so you can review and edit the selected configurations.\r\n\r\n"
        L"For each configuration:\r\n"
        L" 1. On the \"Port Settings\" tab, change COM Port and Baud rate. Changing other settings is not recommended.\r\n"
        L" 2. Carefully read the \"Notes\" tab.\r\n\r\n"
        L"Note: To import more sample configurations, click <b>Import sample configuration</b> in VConfig's <b>File</b> menu.");
    // clang-format on
    InputColumn(form).Links(kFtwLinks, form.PageNo);
}

void PageFtwCreateConfig(frmWizard& form) {
    form.WriteHeading(L"Create New CNC Configuration Files");
    // clang-format off
    form.WriteInfo(
        L"If a sample configuration is not available for your CNC, click <b>...New Device Wizard</b> below. The wizard walks you through the process of creating a new configuration.\r\n\r\n"
        L"For more information about configuring Varnel DNC, click <b>Configuration Guide</b> below.");
    // clang-format on
    InputColumn(form).Links(kFtwLinks, form.PageNo);
}
