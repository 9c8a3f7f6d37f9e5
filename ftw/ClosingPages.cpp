// Last pages of the First-Time Setup Wizard: common problems, backup, finish.

#include "app/Launch.h"
#include "ftw/FtwLinks.h"
#include "ftw/FtwPages.h"
#include "shell/modShellLink.h"
#include "wizard/frmWizard.h"

void PageFtwCaution(frmWizard& form) {
    form.WriteHeading(L"Common Problems");
    // clang-format off
    form.WriteInfo(
        L"Two of the most common problems for new Varnel DNC software users are:\r\n"
        L"<u>Computer hibernation and power features</u>\r\n"
        L"<u>USB/serial adapters</u>\r\n\r\n"
        L"<b>To avoid these common problems</b>, click the links below to read the help topics.\r\n\r\n"
        L"You can view this help file at any time by clicking <b>Communication testing...</b> in the Varnel DNC help menus, or the Varnel DNC Navigator \"Help\" tab.");
    // clang-format on
    InputColumn(form).Links(kFtwLinks, form.PageNo);
}

void PageFtwBackup(frmWizard& form) {
    form.WriteHeading(L"Data Backup - Protect Your Investment");
    // clang-format off
    form.WriteInfo(
        L"<b>                        I M P O R T A N T</b>\r\n\r\n" // the blanks centre it
        L"To protect your investment, back up your software disk, your configuration files, and your CNC data files.\r\n\r\n"
        L"If you purchased a <b>download only</b> copy, make a permanent backup copy of the downloaded file now. If you lose the download file, you may need to purchase a new copy to reinstall or repair the software.\r\n\r\n"
        L"Data backup is fast and easy. Failure to back up your data can be costly.\r\n\r\n"
        L"Click <b>Next</b> to view and print the Data Backup help page.");
    // clang-format on
}

// By Next alone, as the page says.
void LeaveFtwBackup(frmWizard&, Move move) {
    if (move == Move::Next) ShowHelpTopic(suite::kTutorial, L"Protect-investment.htm");
}

void PageFtwFinal(frmWizard& form) {
    form.WriteHeading(L"Finished");
    // clang-format off
    form.WriteInfo(
        L"First-time setup is now complete. \r\n\r\n"
        L"Click <b>Finish</b> to launch the Varnel DNC Navigator application which provides categorized links to all Varnel DNC resources, including:\r\n\r\n"
        L"<u>Varnel DNC applications</u>\r\n"
        L"<u>User manuals</u>\r\n"
        L"<u>Help files</u>\r\n"
        L"<u>Application notes</u>\r\n"
        L"<u>Cable and wiring diagrams</u>\r\n"
        L"<u>Technical support</u>");
    // clang-format on
    ShowAppIcons(form, kAllAppIcons);
}

void LeaveFtwFinal(frmWizard& form, Move move) {
    if (move != Move::Next) return;
    OpenDocument(suite::kNavigator);
    // All is done: nothing is left to ask about.
    form.ConfirmExit = false;
    form.EndProgram();
}
