// First and last pages of the New Device Wizard: introduction, name, finish.

#include "app/Launch.h"
#include "app/StartUp.h"
#include "app/modLocations.h"
#include "ndw/NdwCreateConfig.h"
#include "ndw/NdwPages.h"
#include "ndw/Summary.h"
#include "wizard/Markup.h"
#include "wizard/frmWizard.h"

namespace {

constexpr int kNameLimit = 250; // characters; a path holds 259
// What the two links leave: a text that a long path makes taller scrolls, and hides neither of them.
constexpr win::Twips kTallestFinalText = layout::kContentBottom - layout::kTextTop - layout::kGapAfterText -
                                         (layout::kLinkHeight + layout::kGapBetween) * 2;

} // namespace

void PageNdwIntroduction(frmWizard& form) {
    form.WriteHeading(L"New CNC Configuration");
    // clang-format off
    form.WriteInfo(
        L"The New Device Wizard creates a configuration file for one CNC machine tool.\r\n\r\n"
        L"Each page asks for one setting. Have these ready:\r\n"
        L"<u>the number of the COM port that leads to the CNC</u>\r\n"
        L"<u>the communication parameters of the CNC (baud rate, parity, flow control)</u>\r\n"
        L"<u>a name for the new configuration</u>\r\n\r\n"
        L"If you do not know a setting, keep the value shown. You can change every setting later in Varnel DNC Configuration (VConfig).\r\n\r\n"
        L"Click <b>Next</b> to continue.");
    // clang-format on
    InputColumn(form).Links(kNdwLinks, form.PageNo);
}

void PageNdwIntro2(frmWizard& form) {
    form.WriteHeading(L"Before You Begin");
    // clang-format off
    form.WriteInfo(
        L"The settings in this wizard must match the communication parameters of the CNC.\r\n\r\n"
        L"If this CNC has not been connected before:\r\n"
        L"<u>check that the cable is the right one for the control</u>\r\n"
        L"<u>test the connection with the terminal program</u>\r\n"
        L"<u>write down the communication parameters shown on the control</u>");
    // clang-format on
    InputColumn(form).Links(kNdwLinks, form.PageNo);
}

void PageNdwName(frmWizard& form) {
    form.WriteHeading(L"Configuration Name");
    // clang-format off
    form.WriteInfo(
        L"Check your answers, type a name and click <b>Create</b>. Then choose an icon; with <b>Cancel</b> the standard icon is used.\r\n\r\n" +
        // Texts of other pages stand in it as they were typed, with any "<".
        WithoutTags(SummaryText(ndwSession.answers)));
    // clang-format on
    InputColumn column(form);
    column.Prompt(0, L"Configuration &name");
    column.TextBox(0, ndwSession.answers.name, kNameLimit).Focus();
}

void LeaveNdwName(frmWizard& form, Move move) {
    auto& box = form.pool.txtUserInput[0];
    // Checked on Create alone, but kept on Back as well: who looks something up finds the name again.
    ndwSession.answers.name = box.Text();
    if (move != Move::Next) return;
    NdwCreateConfig(form);
    if (!form.StayOnPage) return;
    // What was refused is there to be typed over.
    box.Focus();
    box.SelectAll();
}

void PageNdwFinal(frmWizard& form) {
    form.WriteHeading(L"Finished");
    // clang-format off
    // No tags to be kept out here: no file name holds a "<".
    const wchar_t* next = startUp.ConfigLaunch
        ? L"Click <b>Finish</b> to open it in Varnel DNC Configuration (VConfig)."
        : L"Click <b>New</b> to create a configuration for another CNC.\r\n\r\n"
          L"Click <b>Finish</b> to close this wizard.";
    form.WriteInfo(
        L"The configuration <b>" + form.ConfigName + L"</b> has been created.\r\n\r\n"
        L"It is stored in the file " + ConfigurationFile(form.ConfigName) + L"\r\n\r\n" +
        next,
        kTallestFinalText);
    // clang-format on
    InputColumn(form).Links(kNdwLinks, form.PageNo);
}

void LeaveNdwFinal(frmWizard& form, Move move) {
    if (move != Move::Next) return;
    // The name as it stands, like the link's: the rest of the command line, blanks included.
    if (startUp.ConfigLaunch) RunProgram(suite::kConfigProgram, L" " + form.ConfigName);
    form.ConfirmExit = false;
    form.EndProgram();
}
